#pragma once
// Buttons of the toolkit that say more of their state: which one has the focus, and in dark palettes where
// the box of one that is not checked stands.

#include <QCheckBox>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>

class CPushButton : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override {
        QPushButton::paintEvent(event);
        if (hasFocus()) {
            QPainter painter(this);
            painter.setPen(QPen(palette().color(QPalette::ButtonText), 1, Qt::DotLine));
            painter.drawRect(rect().adjusted(3, 3, -4, -4));
        }
    }
};

/// A check box or a radio button.
template <class Button, QStyle::SubElement indicator>
class CClearButton : public Button {
public:
    using Button::Button;

protected:
    void paintEvent(QPaintEvent* event) override {
        Button::paintEvent(event);
        const QPalette& palette = this->palette();
        const bool dark = palette.color(QPalette::Window).lightness() < 128;
        if (!dark || this->isChecked())
            return;
        QStyleOptionButton option;
        this->initStyleOption(&option);
        const QRectF box = this->style()->subElementRect(indicator, &option, this);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor outline = palette.color(QPalette::WindowText);
        outline.setAlphaF(this->isEnabled() ? 0.6F : 0.3F);
        painter.setPen(outline);
        if constexpr (indicator == QStyle::SE_RadioButtonIndicator)
            painter.drawEllipse(box.adjusted(0.5, 0.5, -0.5, -0.5));
        else
            painter.drawRect(box.adjusted(0.5, 0.5, -0.5, -0.5));
    }
};

using CCheckBox = CClearButton<QCheckBox, QStyle::SE_CheckBoxIndicator>;
using CRadioButton = CClearButton<QRadioButton, QStyle::SE_RadioButtonIndicator>;
