#include "platform/widgets/numeric_edit.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>
#include <cstdlib>

CNumericEdit::CNumericEdit(QWidget* parent) : QAbstractSpinBox(parent) {
    setFocusPolicy(Qt::StrongFocus); // not by the wheel
    setAccelerated(true);
}

void CNumericEdit::SetDigitsOnly() {
    static const QRegularExpression digits(QStringLiteral("[0-9]*"));
    lineEdit()->setValidator(new QRegularExpressionValidator(digits, this));
}

QString CNumericEdit::Text() const {
    return lineEdit()->text();
}

void CNumericEdit::SetText(const QString& text) {
    if (text != lineEdit()->text())
        lineEdit()->setText(text);
    m_set = text;
}

bool CNumericEdit::Touched() const {
    return lineEdit()->text() != m_set;
}

void CNumericEdit::SelectAll() {
    lineEdit()->selectAll();
    lineEdit()->setFocus();
}

void CNumericEdit::SetDigits(int digits) {
    m_digits = digits;
    updateGeometry();
}

void CNumericEdit::stepBy(int steps) {
    const int direction = steps < 0 ? -1 : 1;
    for (int i = 0; i < std::abs(steps); ++i)
        emit Pressed(direction);
}

QSize CNumericEdit::sizeHint() const {
    ensurePolished();
    const int width = fontMetrics().horizontalAdvance(QString(m_digits, QLatin1Char('8'))) + 8;
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option,
                                     QSize(width, lineEdit()->sizeHint().height()), this);
}

QAbstractSpinBox::StepEnabled CNumericEdit::stepEnabled() const {
    return StepUpEnabled | StepDownEnabled;
}

void CNumericEdit::wheelEvent(QWheelEvent* event) {
    // A page that scrolls under the pointer must not change what it scrolls over.
    if (hasFocus())
        QAbstractSpinBox::wheelEvent(event);
    else
        event->ignore();
}

void CNumericEdit::keyPressEvent(QKeyEvent* event) {
    // Enter and Esc belong to the page.
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        event->ignore();
        return;
    default:
        QAbstractSpinBox::keyPressEvent(event);
    }
}
