#pragma once
// A preview without a window, for drawing routines to draw into.

#include "render/chart_preview.h"
#include <string>

class PreviewFake : public CChartPreview {
public:
    PreviewFake() { m_layout = &m_ownLayout; }

    int ClientWidth() const override { return 120; }
    int ClientHeight() const override { return 61; }
    void SetScrollSizes() override { ++m_scrollSizesSet; }
    void PaintSample(const char* bytes, int length) override {
        m_painted.assign(bytes, static_cast<std::size_t>(length));
    }

    int m_scrollSizesSet = 0;
    std::string m_painted; ///< The bitmap file of the last direct painting.
};
