#include "editors/xy/layer_kinds.h"

#include "resources/string_table.h"

const char* LayerKindText(int type) {
    static constexpr int kTexts[kLayerKinds] = {
        ChartText::BarKind,  ChartText::LineKind,       ChartText::ScatterKind,
        ChartText::AreaKind, ChartText::BoxWhiskerKind, ChartText::BoxKind,
        ChartText::HlocKind, ChartText::GanttKind,      ChartText::CandleStickKind};
    return type >= 0 && type < kLayerKinds ? LoadChartString(kTexts[type]) : "";
}
