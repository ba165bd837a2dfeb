#pragma once
// What a layout does to a chart of each kind.

#include "render/chart_preview.h"

/// The routine of PreviewLayout: a chart of fixed data, of the kind that the layout names. No picture for
/// another kind.
void DrawLayoutSample(CChartPreview& view);
