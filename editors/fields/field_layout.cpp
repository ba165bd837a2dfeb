#include "editors/fields/field_layout.h"

#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/complaint.h"
#include "platform/widgets/dialog.h"
#include "platform/widgets/field_changed.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

namespace {

/// A click on a swatch is a press of its button.
class CSwatchClicks : public QObject {
public:
    CSwatchClicks(QWidget& swatch, QPushButton& button) : QObject(&button), m_button(button) {
        swatch.installEventFilter(this);
        swatch.setCursor(Qt::PointingHandCursor);
    }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonRelease ||
            static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
            return false;
        QMetaObject::invokeMethod(
            &m_button, [this] { m_button.click(); }, Qt::QueuedConnection); // when the release is over
        return false;
    }

private:
    QPushButton& m_button;
};

/// What a screen reader says: the name of the field and its value.
void TellName(QPushButton& button) {
    QString name = button.objectName();
    name.chop(3); // the dots
    const QString value = button.toolTip();
    button.setAccessibleName(value.isEmpty() ? button.objectName() : name + QStringLiteral(", ") + value);
}

} // namespace

void LaySwatchField(CDialog& field, CChartPreviewView& swatch, QLabel& text,
                    const std::function<void()>& choose) {
    auto* button = new QPushButton(QStringLiteral("..."), &field);
    const int height = button->sizeHint().height();
    button->setFixedWidth(height * 3 / 2);
    swatch.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // as wide as the page leaves it
    swatch.setFixedHeight(height);
    swatch.setMinimumWidth(height * 7 / 4);
    swatch.setFocusPolicy(Qt::NoFocus);
    new CSwatchClicks(*swatch.viewport(), *button);

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
        TellName(button);
    });
}

void TellValue(CDialog& field, const QString& value) {
    auto* button = static_cast<QPushButton*>(field.focusProxy());
    field.setToolTip(value); // of all that stands on the field
    button->setToolTip(value);
    TellName(*button);
    field.findChild<CChartPreviewView*>()->setAccessibleName(QStringLiteral("Swatch, ") + value);
}

void SendToPage(CDialog& field, int key) {
    QWidget* above = field.parentWidget();
    while (above != nullptr && dynamic_cast<CDialog*>(above) == nullptr)
        above = above->parentWidget();
    SendFieldChanged(above, key);
}
