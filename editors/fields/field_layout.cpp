#include "editors/fields/field_layout.h"

#include "platform/widgets/complaint.h"
#include "platform/widgets/dialog.h"
#include "platform/widgets/field_changed.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

void LaySwatchField(CDialog& field, QWidget& swatch, QLabel& text, const std::function<void()>& choose) {
    auto* button = new QPushButton(QStringLiteral("..."), &field);
    const int height = button->sizeHint().height();
    button->setFixedWidth(height * 3 / 2);
    swatch.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // as wide as the page leaves it
    swatch.setFixedHeight(height);
    swatch.setMinimumWidth(height * 7 / 4);
    swatch.setFocusPolicy(Qt::NoFocus);

    auto* row = new QHBoxLayout(&field);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(&swatch, 1);
    row->addWidget(button);
    row->addWidget(&text);
    OpenBy(field, *button, choose);
}

void OpenBy(CDialog& field, QPushButton& button, const std::function<void()>& choose) {
    button.setFocusPolicy(Qt::StrongFocus);
    field.setFocusProxy(&button);
    WhenClicked(button, choose);
    // The name that the page gives to the field is the button's too: it is what takes the focus.
    QObject::connect(&field, &QObject::objectNameChanged, &button, [&button](const QString& name) {
        button.setObjectName(name + QStringLiteral("..."));
        button.setAccessibleName(button.objectName());
    });
}

void SendToPage(CDialog& field, int key) {
    QWidget* above = field.parentWidget();
    while (above != nullptr && dynamic_cast<CDialog*>(above) == nullptr)
        above = above->parentWidget();
    SendFieldChanged(above, key);
}
