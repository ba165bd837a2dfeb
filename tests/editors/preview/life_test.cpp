// When pictures are drawn, what a view shows that has none, and what is left of views that went.

#include "editors/preview/draw_routines.h"
#include "resources/preview_menu.h"
#include "tests/editors/preview/test_view.h"
#include "tests/recorder/recorder.h"
#include <QScrollBar>
#include <malloc.h>

namespace {
using recorder::Recording;

TEST(Refresh, DrawsOnceAtTheNextPaintAndForANewSize) {
    TestView view({200, 150}, {400, 300});
    const Recording recording;
    const auto drawings = [&] {
        view.Pane();
        return recording.Count("CPieChart_create");
    };
    EXPECT_EQ(drawings(), 0) << "has its picture";
    for (int i = 0; i < 5; ++i) view.RefreshPreview();
    EXPECT_EQ(recording.Count("CPieChart_create"), 0) << "not before the paint";
    EXPECT_EQ(drawings(), 1);
    view.ResizePane({220, 160});
    EXPECT_EQ(drawings(), 2) << "shown larger";
    view.ResizePane({300, 160});
    EXPECT_EQ(drawings(), 2) << "the height limits, as before";
    view.OnCommand(scrollModeCommand);
    EXPECT_EQ(drawings(), 3);
    view.ResizePane({190, 140});
    view.verticalScrollBar()->setValue(50);
    view.Pane();
    view.hide();
    view.show();
    EXPECT_EQ(drawings(), 3);
}

TEST(Refresh, ShowsTheEditedWorkingCopy) {
    TestView view({200, 150}, {100, 80});
    view.m_ownLayout.m_useWallPaper = false;
    view.m_ownLayout.m_backColor.m_color = 0x123456;
    EXPECT_TRUE(showsNaturalSize(view.Pane(), {-50, -35}, {100, 80}));
    view.RefreshPreview();
    EXPECT_EQ(view.Pane().pixel(100, 75), 0xff123456);
}

TEST(Samples, PaintOverThePaneWithAFrame) {
    TestView view({200, 150}, {400, 300});
    CChartColor color;
    color.m_color = 0x336699;
    view.SetSampleColor(color);
    view.RefreshPreview();
    for (const QSize pane : {QSize(200, 150), QSize(90, 41)}) {
        view.ResizePane(pane);
        view.Pane();
        const QImage shown = view.Pane();
        ASSERT_EQ(shown.size(), pane);
        for (int y = 0; y < pane.height(); ++y)
            for (int x = 0; x < pane.width(); ++x) {
                const bool frame = x == 0 || y == 0 || x == pane.width() - 1 || y == pane.height() - 1;
                ASSERT_EQ(shown.pixel(x, y), frame ? 0xff000000 : 0xff336699) << x << ',' << y;
            }
    }
    EXPECT_TRUE(view.m_picture.Empty());
}

TEST(Samples, AnImageIsFittedAndAnUnreadableOneIsEmpty) {
    TestView view({200, 150}, {400, 300});
    view.SetSampleImage(codedLayout({400, 300}).m_wallPaperImage);
    EXPECT_FALSE(view.m_fitMode);
    view.RefreshPreview();
    EXPECT_EQS((shownRect(view.Pane()), QRect(7, 5, 187, 140)), (view.m_fitMode, true));
    CChartString nowhere;
    nowhere = "no such.png";
    view.SetSampleImage(nowhere);
    view.RefreshPreview();
    view.Pane();
    EXPECT_EQS((view.m_fitMode, false), (view.Pane().pixel(100, 75), 0xffffffff), (view.ScrollRange(), QPoint(0, 0)));
}

TEST(Views, WithNothingToDrawPaintNothing) {
    CChartPreviewView view;
    const Recording recording;
    view.AttachChart(static_cast<CXYChart*>(nullptr), nullptr);
    view.RefreshPreview();
    view.grab();
    view.AttachChart(static_cast<CPolarChart*>(nullptr), nullptr);
    view.grab();
    const CChartLayout layout;
    view.AttachChart(static_cast<CXYChart*>(nullptr), &layout);
    view.grab();
    view.AttachChart(static_cast<CPolarChart*>(nullptr), &layout);
    view.grab();
    for (const int kind : {-1, 10, std::numeric_limits<int>::max()}) {
        view.m_kind = kind;
        view.grab();
        EXPECT_EQ(FindDrawRoutine(kind), nullptr);
    }
    EXPECT_TRUE(recording.Lines().empty());
}
} // namespace
