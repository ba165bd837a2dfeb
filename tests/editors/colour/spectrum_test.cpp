#include "editors/colour/spectrum_ctrl.h"
#include "editors/colour/spectrum_event.h"
#include "tests/driver/person.h"

namespace {
/// A parent that keeps what the spectrum sends: 'c' and 'e' for the two messages, and the colour.
class SpectrumLog : public QWidget {
public:
    std::string m_messages;
    std::uint32_t m_color = 0;
    int m_id = 0;

protected:
    bool event(QEvent* event) override {
        const bool change = event->type() == RegisteredEventType("WM_XCOLORPICKER_SELCHANGE");
        if (change || event->type() == RegisteredEventType("WM_XCOLORPICKER_SELENDOK")) {
            const auto* sent = static_cast<CSpectrumEvent*>(event);
            m_messages += change ? 'c' : 'e';
            m_color = sent->Color();
            m_id = sent->Id();
            return true;
        }
        return QWidget::event(event);
    }
};

// A control of 275 x 254: the spectrum is 240 by 240 at (0, 7), the bar of the slider 14 by 240 at (246, 7).
class Spectrum : public WidgetTest {
protected:
    Spectrum() {
        m_log.resize(400, 300);
        Make(0xFFFFFF, 0);
        m_log.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_log));
    }
    void Make(std::uint32_t color, int tooltipFormat) {
        m_control = std::make_unique<XColorSpectrumCtrl>();
        m_control->Create(&m_log, 77, color, tooltipFormat);
        m_control->setGeometry(0, 0, 275, 254);
        QWidget::setTabOrder(&m_before, m_control.get());
        QWidget::setTabOrder(m_control.get(), &m_after);
    }
    void Press(QPoint at) { QTest::mousePress(m_control.get(), Qt::LeftButton, {}, at); }
    void Release(QPoint at) { QTest::mouseRelease(m_control.get(), Qt::LeftButton, {}, at); }
    void Move(QPoint at, Qt::MouseButtons held) {
        QMouseEvent move(QEvent::MouseMove, at, m_control->mapToGlobal(at), Qt::NoButton, held, {});
        QApplication::sendEvent(m_control.get(), &move);
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(m_control.get(), key, held); }
    std::uint32_t Color() const { return m_control->GetRGB(); }

    SpectrumLog m_log;
    QLineEdit m_before{&m_log};
    QLineEdit m_after{&m_log};
    std::unique_ptr<XColorSpectrumCtrl> m_control;
};
} // namespace

TEST_F(Spectrum, FollowsTheMouse) {
    m_control->SetRGB(Rgb(255, 0, 0)); // hue 0, saturation 240, lightness 120
    Press({80, 7});
    EXPECT_EQ(Color(), Rgb(0, 255, 0)); // hue 80
    EXPECT_EQS((m_log.m_color, Color()), (m_log.m_id, 77), (m_control->hasFocus(), true));
    Move({160, 7}, Qt::LeftButton);
    EXPECT_EQ(Color(), Rgb(0, 0, 255));
    Move({300, 7}, Qt::LeftButton);  // outside: no more following until it comes back
    Move({250, 50}, Qt::LeftButton); // the slider is not what was pressed
    EXPECT_EQS((Color(), Rgb(0, 0, 255)), (m_log.m_messages, "cc"));
    Move({20, 7}, Qt::LeftButton);
    EXPECT_EQ(Color(), Rgb(255, 127, 0));
    Release({20, 7});
    Move({160, 7}, Qt::LeftButton);
    EXPECT_EQ(m_log.m_messages, "ccc");

    Press({0, 7});
    Move({20, 7}, Qt::NoButton); // let go somewhere else
    Move({80, 7}, Qt::LeftButton);
    EXPECT_EQ(Color(), Rgb(255, 0, 0));
}

TEST_F(Spectrum, SliderKeepsHueOfWhiteAndBlack) {
    Press({80, 7});
    Press({250, 7});
    EXPECT_EQ(Color(), Rgb(255, 255, 255));
    Move({250, 246}, Qt::LeftButton);
    EXPECT_EQ(Color(), Rgb(0, 0, 0));
    Move({250, 250}, Qt::LeftButton); // below the bar, in the slider
    Release({250, 127});
    EXPECT_EQ(Color(), Rgb(0, 0, 0));
    Press({250, 127}); // lightness (240 - 120 - 1) * 240 / 239 = 119
    EXPECT_EQ(Color(), RgbOf(80, 240, 119));
    Press({243, 100}); // between spectrum and slider
    EXPECT_EQ(Color(), RgbOf(80, 240, 119));
}

TEST_F(Spectrum, FollowsTheKeys) {
    // what becomes of 140, 120, 96 by the keys of the crosshair, and of the slider
    const std::tuple<Qt::Key, Qt::KeyboardModifiers, Hsl, Hsl> cases[] = {
        {Qt::Key_Left, {}, {135, 120, 96}, {140, 120, 96}},
        {Qt::Key_Right, {}, {145, 120, 96}, {140, 120, 96}},
        {Qt::Key_Up, {}, {140, 125, 96}, {140, 120, 101}},
        {Qt::Key_Down, {}, {140, 115, 96}, {140, 120, 91}},
        {Qt::Key_Right, Qt::ControlModifier, {141, 120, 96}, {140, 120, 96}},
        {Qt::Key_Up, Qt::ShiftModifier, {140, 130, 96}, {140, 120, 106}},
        {Qt::Key_PageUp, {}, {140, 240, 96}, {140, 120, 240}},
        {Qt::Key_PageDown, {}, {140, 0, 96}, {140, 120, 0}},
        {Qt::Key_Home, {}, {0, 120, 96}, {140, 120, 240}},
        {Qt::Key_End, {}, {239, 120, 96}, {140, 120, 0}},
    };
    m_before.setFocus();
    const std::uint32_t start = Rgb(51, 102, 153);
    const Hsl unmoved{140, 120, 96};
    ASSERT_EQ(HslOf(start), unmoved);
    for (const auto& [key, held, crosshair, slider] : cases) {
        QTest::keyRelease(&m_before, Qt::Key_Shift);
        m_control->setFocus();
        m_control->SetRGB(start);
        m_log.m_messages.clear();
        Key(key, held);
        EXPECT_EQ(Color(), RgbOf(crosshair.hue, crosshair.sat, crosshair.lum)) << key;
        EXPECT_EQ(m_log.m_messages, "c") << key;

        m_control->SetRGB(start);
        m_log.m_messages.clear();
        Key(Qt::Key_Tab);
        Key(key, held);
        const bool still = slider == unmoved;
        EXPECT_EQ(Color(), still ? start : RgbOf(slider.hue, slider.sat, slider.lum)) << key;
        EXPECT_EQ(m_log.m_messages, still ? "" : "c") << key;
        m_before.setFocus();
    }
    // Kept at both ends.
    m_control->setFocus();
    m_control->SetRGB(RgbOf(2, 239, 120));
    Key(Qt::Key_Left);
    Key(Qt::Key_Up);
    EXPECT_EQ(Color(), Rgb(255, 0, 0));
}

TEST_F(Spectrum, TabGoesThroughBothParts) {
    m_before.setFocus();
    const auto focus = [this] {
        return m_log.focusWidget() == &m_before ? 'b' : m_log.focusWidget() == &m_after ? 'a' : 's';
    };
    QTest::keyClick(&m_before, Qt::Key_Tab);
    EXPECT_EQ(focus(), 's');
    Key(Qt::Key_Tab);
    EXPECT_EQ(focus(), 's');
    Key(Qt::Key_Home); // of the slider: white
    EXPECT_EQ(Color(), Rgb(255, 255, 255));
    Key(Qt::Key_Tab);
    EXPECT_EQ(focus(), 'a');
    QTest::keyClick(&m_after, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), 's');
    Key(Qt::Key_End); // of the slider: black
    EXPECT_EQ(Color(), Rgb(0, 0, 0));
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), 's');
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focus(), 'b');
}

TEST_F(Spectrum, ShowsColoursWhereTheyAreChosen) {
    m_control->SetRGB(Rgb(0, 0, 255));
    const QImage image = m_control->grab().toImage();
    const auto near = [&](QPoint at, std::uint32_t color) {
        const QRgb pixel = image.pixel(at);
        return std::abs(qRed(pixel) - RedOf(color)) < 8 && std::abs(qGreen(pixel) - GreenOf(color)) < 8 &&
               std::abs(qBlue(pixel) - BlueOf(color)) < 8;
    };
    EXPECT_EQS((near({0, 7}, Rgb(255, 0, 0)), true), (near({80, 7}, Rgb(0, 255, 0)), true),
               (near({239, 246}, Rgb(127, 127, 127)), true), (near({250, 7}, Rgb(255, 255, 255)), true),
               (near({250, 246}, Rgb(0, 0, 0)), true), (near({250, 127}, Rgb(0, 0, 255)), true));
    // The crosshair stands at hue 160, cut off by the upper edge: an arm below, the hole in the middle.
    EXPECT_EQ(image.pixel(160, 10), m_control->palette().color(QPalette::Base).rgb());
    EXPECT_TRUE(near({160, 8}, Rgb(0, 0, 255)));
    EXPECT_NE(image.pixel(160, 5), m_control->palette().color(QPalette::Base).rgb());
    // The point of the slider's arrow.
    EXPECT_EQ(image.pixel(263, 127), m_control->palette().color(QPalette::WindowText).rgb());
}
