#include "render/samples.h"
#include "render/chart_holder.h"
#include "render/utf8_text.h"
#include <array>

namespace {

constexpr int kSquare = 5; // pixels a side of the chequer board's squares
constexpr int kTile = 2 * kSquare;

constexpr auto kChequerBoard = [] {
    std::array<int, kTile * kTile> pixels{};
    for (int i = 0; i < kTile * kTile; ++i) {
        const bool white = (i / kTile < kSquare) == (i % kTile < kSquare);
        pixels[static_cast<std::size_t>(i)] = white ? 0xffffff : 0x000000;
    }
    return pixels;
}();

CChartHolder MakeSampleChart(const CChartPreview& view) {
    return CChartHolder(XYChart2BaseChart(CXYChart_create(view.ClientWidth(), view.ClientHeight(),
                                                          CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0)));
}

void PaintChart(CChartPreview& view, BaseChart* chart) {
    const char* bytes = nullptr;
    int length = 0;
    CBaseChart_makeChart2(chart, view.PictureFormat(), &bytes, &length);
    view.PaintSample(bytes, length);
}

} // namespace

void DrawColorSample(CChartPreview& view) {
    const CChartHolder holder = MakeSampleChart(view);
    BaseChart* chart = holder.Get();
    // A pattern is shown over black; one without an image is nothing at all, which is what the board stands
    // for.
    const bool pattern = view.m_sampleColor.m_type == 1 && !view.m_sampleColor.m_patternFile.empty();
    const int background =
        pattern ? 0
                : CBaseChart_patternColor(chart, kChequerBoard.data(),
                                          static_cast<int>(std::ssize(kChequerBoard)), kTile, 0, 0);
    CBaseChart_setBackground(chart, background, CHART_TRANSPARENT, 0);
    // A title without text: its background is the colour.
    TextBox* title = CBaseChart_addTitle(chart, "", "timesbi.ttf", 15.0, 0,
                                         view.m_sampleColor.GetChartColor(chart), CHART_TRANSPARENT);
    CTextBox_setHeight(title, view.ClientHeight());
    PaintChart(view, chart);
}

void DrawFontSample(CChartPreview& view) {
    const CChartHolder holder = MakeSampleChart(view);
    BaseChart* chart = holder.Get();
    const CChartFont& font = view.m_sampleFont;
    CBaseChart_setBackground(chart, 0xffffff, CHART_TRANSPARENT, 0);
    TextBox* title = CBaseChart_addTitle(chart, CUtf8Text(font.m_faceName), CUtf8Text(font.m_fileName),
                                         font.m_size, 0, 0xffffff, CHART_TRANSPARENT);
    CTextBox_setMargin(title, 0);
    CTextBox_setAlignment(title, 4); // a long name is cut at its end, not at both
    Box* box = TextBox2Box(title);
    CBox_setPos(box, 0, (view.ClientHeight() - CBox_getHeight(box)) / 2);
    PaintChart(view, chart);
}

void DrawImageSample(CChartPreview& view) {
    const CChartHolder holder = MakeSampleChart(view);
    BaseChart* chart = holder.Get();
    DrawArea* area = CBaseChart_getDrawArea(chart);
    view.m_fitMode = CDrawArea_load(area, CUtf8Text(view.m_sampleImage));
    if (view.m_fitMode) {
        const int width = CDrawArea_getWidth(area);
        CBaseChart_setSize(chart, width, CDrawArea_getHeight(area));
    }
    StorePicture(&view, chart);
}
