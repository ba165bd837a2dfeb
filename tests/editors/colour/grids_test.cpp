#include "editors/colour/palettes.h"
#include "editors/colour/swatch_grids.h"
#include "platform/widgets/field_changed.h"
#include "tests/driver/windows.h"
#include <algorithm>

namespace {
class MessageLog : public QWidget {
public:
    std::vector<int> m_keys;

protected:
    bool event(QEvent* event) override {
        if (event->type() == CFieldChangedEvent::kType) {
            m_keys.push_back(static_cast<CFieldChangedEvent*>(event)->Key());
            return true;
        }
        return QWidget::event(event);
    }
};

class Grids : public WidgetTest {
protected:
    Grids() {
        m_log.resize(600, 300);
        m_palette.setGeometry(0, 0, 300, 200);
        m_custom.setGeometry(320, 0, 200, 200);
        m_log.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_log));
        for (CChartColor& color : CCustomColorCtrl::Colors()) {
            color = CChartColor();
            color.m_color = 0xFFFFFF;
        }
    }
    static QPoint Place(GridShape shape, int index, const QWidget& grid) {
        return shape.CellRect(index, grid.size()).center();
    }
    void ClickPalette(int index) { QTest::mouseClick(&m_palette, Qt::LeftButton, {}, Place({8, 5}, index, m_palette)); }
    void ClickCustom(int index) { QTest::mouseClick(&m_custom, Qt::LeftButton, {}, Place({3, 6}, index, m_custom)); }
    using Keys = std::vector<int>;

    MessageLog m_log;
    CColorPaletteCtrl m_palette{&m_log};
    CCustomColorCtrl m_custom{&m_log};
};
} // namespace

TEST_F(Grids, PaletteTellsOfNewChoicesOnly) {
    EXPECT_EQS((m_palette.Selected(), -1), (m_palette.GetSelectedColor(), 0U));
    ClickPalette(9);
    EXPECT_EQ(m_palette.GetSelectedColor(), 0x0033FF33U);
    ClickPalette(9);
    ClickPalette(39);
    EXPECT_EQS((m_palette.GetSelectedColor(), 0x00999999U), (m_log.m_keys, (Keys{0, 0})));

    m_palette.SetPalette(2); // the selected cell of another palette
    EXPECT_EQ(m_palette.GetSelectedColor(), 0x80999999U);
    m_palette.SetPalette(3);
    m_palette.SetPalette(-1);
    EXPECT_EQS((m_palette.GetSelectedColor(), 0x80999999U), (m_log.m_keys, (Keys{0, 0})));

    // A gap, the margin, another button, and a release outside choose nothing.
    const QRect cell = GridShape{8, 5}.CellRect(0, m_palette.size());
    QTest::mouseClick(&m_palette, Qt::LeftButton, {}, cell.topRight() + QPoint(2, 5));
    QTest::mouseClick(&m_palette, Qt::LeftButton, {}, QPoint(1, 1));
    QTest::mouseClick(&m_palette, Qt::RightButton, {}, cell.center());
    QTest::mousePress(&m_palette, Qt::LeftButton, {}, cell.center());
    QTest::mouseRelease(&m_palette, Qt::LeftButton, {}, QPoint(50, 900));
    EXPECT_EQ(m_palette.Selected(), 39);
}

TEST_F(Grids, KeysReachEveryCell) {
    m_palette.setFocus();
    using Step = std::tuple<int, int>;
    const Step steps[] = {
        {Qt::Key_Right, 1}, {Qt::Key_Down, 9}, {Qt::Key_Left, 8}, {Qt::Key_Left, 8}, // kept at the edge
        {Qt::Key_Up, 0},    {Qt::Key_Up, 0},   {Qt::Key_End, 39}, {Qt::Key_Right, 39},
        {Qt::Key_Down, 39}, {Qt::Key_Home, 0},
    };
    for (const auto& [key, selected] : steps) {
        QTest::keyClick(&m_palette, static_cast<Qt::Key>(key));
        QTest::keyClick(&m_palette, Qt::Key_Space);
        EXPECT_EQ(m_palette.Selected(), selected) << key;
    }
    EXPECT_EQ(m_palette.accessibleDescription(), "#FFFFFF, opaque, row 1 of 5, column 1 of 8");

    m_custom.setFocus();
    QTest::keyClick(&m_custom, Qt::Key_Down);
    QTest::keyClick(&m_custom, Qt::Key_Return);
    EXPECT_EQ(m_custom.Selected(), 3);
    // A click takes the keyboard's cell along.
    ClickCustom(7);
    QTest::keyClick(&m_custom, Qt::Key_Right);
    QTest::keyClick(&m_custom, Qt::Key_Enter);
    EXPECT_EQ(m_custom.Selected(), 8);
}

TEST_F(Grids, ShowSwatchesAndFrames) {
    ClickPalette(8);
    QTest::mouseMove(&m_palette, Place({8, 5}, 20, m_palette));
    const QImage image = m_palette.grab().toImage();
    const auto cell = [&](int i) { return GridShape{8, 5}.CellRect(i, m_palette.size()); };
    for (const int i : {0, 1, 8, 20, 39}) EXPECT_EQ(image.pixel(cell(i).center()) & 0xFFFFFF, kPalettes[0][i]) << i;
    EXPECT_EQS((image.pixel(cell(8).topLeft() - QPoint(2, 2)), 0xFF3F3F3F),
               (image.pixel(cell(8).bottomRight() + QPoint(2, 2)), 0xFF3F3F3F),
               (image.pixel(cell(20).topLeft() - QPoint(2, 2)), 0xFFA0A0A0),
               (image.pixel(cell(0).topLeft() - QPoint(2, 2)), m_palette.palette().color(QPalette::Button).rgb()));

    // Half transparent red over the white and the black squares of the board.
    m_palette.SetPalette(2);
    const QImage over = m_palette.grab().toImage();
    std::vector<int> greens;
    for (int x = cell(8).left() + 2; x < cell(8).right() - 2; ++x)
        greens.push_back(qGreen(over.pixel(x, cell(8).center().y())));
    EXPECT_NEAR(*std::max_element(greens.begin(), greens.end()), 128, 2);
    EXPECT_EQ(*std::min_element(greens.begin(), greens.end()), 0);
}
