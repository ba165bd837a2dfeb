#pragma once
// A person who does anything at all with a dialog: random presses, moves, turns of the wheel and keys.

#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <functional>
#include <random>

class RandomPerson {
public:
    /// CHART_RANDOM_SEED, where it is given, makes another person of each.
    explicit RandomPerson(unsigned seed)
        : m_random(seed + 1000U * static_cast<unsigned>(qEnvironmentVariableIntValue("CHART_RANDOM_SEED"))) {}

    /// Opens dialogs by `run`, which runs one modally, until so many events have been sent into them.
    void Use(int events, const std::function<void()>& run) {
        m_left = events;
        QTimer hand;
        QObject::connect(&hand, &QTimer::timeout, &hand, [this] { Act(); });
        hand.start(0);
        // A timer does not ring while its own slot waits for a box to be closed; another one does.
        QTimer dismiss;
        QObject::connect(&dismiss, &QTimer::timeout, &dismiss, [this] {
            auto* over = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (over != nullptr && m_tried != nullptr && over != m_tried) over->reject();
        });
        dismiss.start(0);
        while (m_left > 0) run();
    }

    /// Called with a dialog that has just opened, and with one that is about to be closed.
    std::function<void(QWidget&)> m_meeting;
    std::function<void(QWidget&)> m_leaving;

private:
    void Leave(QWidget& dialog) {
        if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
        if (m_leaving) m_leaving(dialog);
    }
    int Below(int bound) { return std::uniform_int_distribution(0, bound - 1)(m_random); }

    void Act() {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal == nullptr) return;
        if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr && Below(3) == 0) popup->close();
        if (m_left <= 0) {
            Leave(*modal);
            static_cast<QDialog*>(modal)->reject();
            return;
        }
        m_tried = modal;
        if (m_meeting && !modal->property("met").toBool()) {
            modal->setProperty("met", true);
            m_meeting(*modal);
        }
        // The buttons that end the dialog have their turn now and then.
        QList<QWidget*> controls;
        for (QWidget* widget : modal->findChildren<QWidget*>()) {
            const QString name = widget->objectName();
            if (widget->isVisible() && name != "OK" && name != "Cancel" && !name.startsWith("qt_") &&
                (name != "ChooseImage" || Below(20) == 0))
                controls += widget;
        }
        for (int i = 0; i < 40 && m_left > 0 && QApplication::activeModalWidget() == modal; ++i, --m_left)
            Send(controls[Below(static_cast<int>(controls.size()))]);
        if (Below(10) == 0 && QApplication::activeModalWidget() == modal) {
            Leave(*modal);
            auto* end = modal->findChild<QWidget*>(Below(4) == 0 ? "Cancel" : "OK");
            if (end != nullptr)
                QTest::mouseClick(end, Qt::LeftButton);
            else
                static_cast<QDialog*>(modal)->reject(); // a box that complains
        }
        m_tried = nullptr;
    }

    void Send(QWidget* widget) {
        const QPoint at(Below(widget->width() + 8) - 4, Below(widget->height() + 8) - 4);
        const Qt::MouseButton button = Below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
        switch (Below(7)) {
        case 0: SendMouse(widget, QEvent::MouseButtonPress, at, button, button); break;
        case 1:
            SendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, Below(2) == 0 ? Qt::LeftButton : Qt::NoButton);
            break;
        case 2: SendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton); break;
        case 3: {
            QWheelEvent wheel(at, widget->mapToGlobal(at), {}, {0, (Below(5) - 2) * 120}, {}, {}, Qt::NoScrollPhase,
                              false);
            QApplication::sendEvent(widget, &wheel);
            break;
        }
        case 4: SendMouse(widget, QEvent::MouseButtonDblClick, at, button, button); break;
        default: SendKey(widget);
        }
    }

    void SendMouse(QWidget* widget, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
        QMouseEvent event(type, at, widget->mapToGlobal(at), button, held, {});
        QApplication::sendEvent(widget, &event);
    }

    void SendKey(QWidget* widget) {
        static constexpr Qt::Key kKeys[] = {Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,        Qt::Key_Down,
                                            Qt::Key_Home,   Qt::Key_End,      Qt::Key_Tab,       Qt::Key_Space,
                                            Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Backspace, Qt::Key_Return,
                                            Qt::Key_Delete, Qt::Key_Z,        Qt::Key_Y,         Qt::Key_F9};
        static constexpr char kTexts[] = "0123456789-.eA";
        static constexpr Qt::KeyboardModifier kHeld[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                                         Qt::ControlModifier};
        if (Below(4) == 0) widget->setFocus();
        const bool text = Below(2) == 0;
        const char typed = kTexts[Below(static_cast<int>(sizeof kTexts) - 1)];
        const int key = text ? typed : static_cast<int>(kKeys[Below(static_cast<int>(std::size(kKeys)))]);
        QKeyEvent press(QEvent::KeyPress, key, kHeld[Below(4)], text ? QString(QLatin1Char(typed)) : QString());
        QApplication::sendEvent(widget, &press);
    }

    std::mt19937 m_random;
    int m_left = 0;
    QWidget* m_tried = nullptr; ///< the dialog that events are being sent to
};

/// Many where every byte is watched, fewer else; CHART_EVENTS asks for another number.
inline int RandomEventCount() {
    if (const int asked = qEnvironmentVariableIntValue("CHART_EVENTS"); asked > 0) return asked;
#if defined(__SANITIZE_ADDRESS__)
    return 100000;
#else
    return 5000;
#endif
}
