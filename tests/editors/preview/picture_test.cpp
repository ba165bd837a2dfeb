// Where the picture stands in the pane, fitted and scrolled, read from the widget's own picture.

#include "editors/preview/fit_geometry.h"
#include "resources/preview_menu.h"
#include "tests/editors/preview/test_view.h"
#include <QCoreApplication>
#include <QScreen>
#include <QScrollBar>

namespace {
struct FitCase {
    QSize pane;
    QSize picture;
    QRect place; // worked by hand
};

const FitCase fits[] = {
    // Smaller both ways: natural size, centred.
    {{200, 150}, {100, 80}, {50, 35, 100, 80}},
    {{200, 150}, {101, 81}, {50, 35, 101, 81}},
    {{200, 150}, {199, 149}, {1, 1, 199, 149}},
    // As wide, as high, or both: the margin counts.
    {{200, 150}, {200, 80}, {5, 37, 190, 76}},
    {{200, 150}, {120, 150}, {44, 5, 112, 140}},
    {{200, 150}, {200, 150}, {7, 5, 187, 140}},
    // Larger: the width limits.
    {{200, 150}, {400, 100}, {5, 51, 190, 48}},
    {{200, 150}, {800, 400}, {5, 28, 190, 95}},
    // Larger: the height limits.
    {{200, 150}, {100, 300}, {77, 5, 47, 140}},
    {{200, 150}, {400, 400}, {30, 5, 140, 140}},
};

TEST(FitMode, PlacesThePictureInThePane) {
    for (const FitCase& fit : fits) {
        TestView view(fit.pane, fit.picture);
        const QImage pane = view.Pane();
        ASSERT_EQ(pane.size(), fit.pane);
        EXPECT_EQ(shownRect(pane), fit.place) << fit.picture.width() << 'x' << fit.picture.height();
        EXPECT_EQ(view.ScrollRange(), QPoint(0, 0));
        if (fit.place.size() == fit.picture) {
            EXPECT_TRUE(showsNaturalSize(pane, -fit.place.topLeft(), fit.picture));
            continue;
        }
        // Shrunk: the pixel in the middle of each quarter is that of the picture, give or take its neighbours.
        for (const int part : {1, 3}) {
            const QPoint from(fit.picture.width() * part / 4, fit.picture.height() * part / 4);
            const QPoint to = fit.place.topLeft() + QPoint(fit.place.width() * part / 4, fit.place.height() * part / 4);
            const int reach = fit.picture.width() / fit.place.width() + 2;
            EXPECT_NEAR(qBlue(pane.pixel(to)), from.x() & 255, reach);
            EXPECT_NEAR(qGreen(pane.pixel(to)), from.y() & 255, reach);
        }
    }
}

TEST(FitMode, ShowsNoPictureInAPaneTooSmallForTheMargin) {
    EXPECT_EQS((FitRect({10, 50}, {100, 100}).isEmpty(), true), (FitRect({8, 50}, {100, 100}).isEmpty(), true),
               (FitRect({0, 0}, {100, 100}).isEmpty(), true), (FitRect({100, 100}, {0, 0}).isEmpty(), true));
    TestView view({40, 9}, {100, 100});
    EXPECT_TRUE(shownRect(view.Pane()).isNull());
}

TEST(FitMode, FollowsThePane) {
    TestView view({200, 150}, {400, 100});
    view.ResizePane({420, 120});
    EXPECT_TRUE(showsNaturalSize(view.Pane(), {-10, -10}, {400, 100}));
}

TEST(ScrollMode, ShowsThePictureAtNaturalSize) {
    using Case = std::tuple<QSize, bool, bool>;
    for (const auto& [picture, barAcross, barDown] :
         {Case{{100, 80}, false, false}, Case{{200, 150}, false, false}, Case{{201, 80}, true, false},
          Case{{120, 151}, false, true}, Case{{201, 150}, true, true},
          Case{{200, 151}, true, true}, // one bar takes room that
          Case{{700, 600}, true, true}}) {
        TestView view({200, 150}, picture);
        view.OnCommand(scrollModeCommand);
        QImage pane = view.Pane();
        EXPECT_EQS((pane.height() < 150, barAcross), (pane.width() < 200, barDown),
                   (showsNaturalSize(pane, {0, 0}, picture), true));
        const QPoint range(std::max(0, picture.width() - pane.width()), std::max(0, picture.height() - pane.height()));
        EXPECT_EQS((view.ScrollRange(), range), (view.horizontalScrollBar()->pageStep(), pane.width()),
                   (view.verticalScrollBar()->pageStep(), pane.height()));
        view.horizontalScrollBar()->setValue(17);
        view.verticalScrollBar()->setValue(1000);
        const QPoint scrolled(std::min(17, range.x()), range.y());
        EXPECT_TRUE(showsNaturalSize(view.Pane(), scrolled, picture));
    }
}

TEST(ScrollMode, KeepsItsPromisesWhenResized) {
    const QSize picture(400, 300);
    TestView view({200, 150}, picture);
    view.OnCommand(scrollModeCommand);
    view.Pane();
    view.horizontalScrollBar()->setValue(150);
    view.verticalScrollBar()->setValue(120);
    const int bar = 150 - view.viewport()->height();
    const std::pair<QSize, QPoint> steps[] = {
        // pane and scroll by hand, with bars 0 or `bar` wide
        {{100, 90}, {150, 120}},                                         // smaller: stays
        {{350, 90}, {400 - 350 + bar, 120}},                             // wider: no further than the edge
        {{350, 290}, {400 - 350 + bar, 300 - 290 + bar}},                // higher, too
        {{400, 290}, {bar, 300 - 290 + bar}},                            // the bar down takes room from the width
        {{410, 299}, {bar > 10 ? bar - 10 : 0, bar > 10 ? bar + 1 : 1}}, // and the bar across from the height
        {{400, 300}, {0, 0}},                                            // all of it: no bars
        {{500, 400}, {0, 0}},                                            // and surround
        {{200, 150}, {0, 0}},
    };
    for (const auto& [size, scroll] : steps) {
        view.ResizePane(size);
        const QImage pane = view.Pane();
        EXPECT_EQ(view.Scroll(), scroll) << size.width() << 'x' << size.height();
        EXPECT_TRUE(showsNaturalSize(pane, scroll, picture));
        EXPECT_EQ(view.ScrollRange(), QPoint(std::max(0, 400 - pane.width()), std::max(0, 300 - pane.height())));
    }
}

TEST(ScrollMode, MovesOnTheScreenWhatIsThereAndPaintsTheRest) {
    const QSize picture(400, 300);
    TestView view({200, 150}, picture);
    view.OnCommand(scrollModeCommand);
    view.Pane();
    const auto onScreen = [&] {
        QCoreApplication::processEvents();
        const QImage all = view.screen()->grabWindow(view.winId()).toImage();
        return all.convertToFormat(QImage::Format_RGB32).copy(view.viewport()->geometry());
    };
    EXPECT_TRUE(showsNaturalSize(onScreen(), {0, 0}, picture));
    for (const QPoint to : {QPoint(3, 0), QPoint(40, 25), QPoint(10, 140), QPoint(0, 0)}) {
        view.horizontalScrollBar()->setValue(to.x());
        view.verticalScrollBar()->setValue(to.y());
        EXPECT_TRUE(showsNaturalSize(onScreen(), to, picture));
    }
}

TEST(ScrollMode, IsLeftWithTheBarsAtTheirStart) {
    TestView view({200, 150}, {400, 300});
    view.OnCommand(scrollModeCommand);
    view.Pane();
    view.horizontalScrollBar()->setValue(60);
    view.OnCommand(fitModeCommand);
    EXPECT_EQS((shownRect(view.Pane()), QRect(7, 5, 187, 140)), (view.ScrollRange(), QPoint(0, 0)));
    view.OnCommand(scrollModeCommand);
    EXPECT_TRUE(showsNaturalSize(view.Pane(), {0, 0}, {400, 300}));
}

TEST(ScreenScale, DrawsInThePixelsOfTheScreen) {
    CChartLayout layout = codedLayout({300, 100});
    layout.m_useWallPaper = false;
    layout.m_backColor.m_color = 0xffffff;
    layout.m_edgeColor.m_color = 0x123456;
    TestView view({200, 150}, {300, 100});
    const double scale = view.devicePixelRatioF();
    const auto edgeWidth = [&] {
        const QImage pane = view.Pane();
        const int row = pane.height() * 11 / 24; // within the picture in both modes
        int width = 0;
        for (int x = 0; x < pane.width() / 2; ++x) width += pane.pixel(x, row) == 0xff123456;
        return width;
    };
    view.m_ownLayout = layout;
    view.RefreshPreview();
    EXPECT_EQ(edgeWidth(), std::max(1, qRound(scale * 190 / 300))) << "shown smaller";
    EXPECT_EQ(QSize(view.m_pictureWidth, view.m_pictureHeight), QSize(300, 100));
    view.OnCommand(scrollModeCommand);
    EXPECT_EQ(edgeWidth(), qRound(scale));
    EXPECT_EQ(view.ScrollRange(), QPoint(100, 0)) << "in numbers of the layout";
}
} // namespace
