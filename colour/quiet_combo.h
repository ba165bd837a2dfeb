#pragma once

#include <QComboBox>
#include <QWheelEvent>

/// A drop-down list that does not change under a wheel that only passes over it.
class CQuietCombo : public QComboBox {
public:
    explicit CQuietCombo(QWidget* parent) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus()) {
            QComboBox::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};
