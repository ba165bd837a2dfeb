#pragma once
// A drop-down list that does not change under a wheel that only passes over it.

#include <QComboBox>
#include <QWheelEvent>

class CQuietCombo : public QComboBox {
public:
    explicit CQuietCombo(QWidget* parent = nullptr) : QComboBox(parent) { setFocusPolicy(Qt::StrongFocus); }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus())
            QComboBox::wheelEvent(event);
        else
            event->ignore();
    }
};
