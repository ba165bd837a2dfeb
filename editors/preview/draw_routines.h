#pragma once
// The drawing routine of each preview kind.

#include "render/chart_preview.h"

using DrawRoutine = void (*)(CChartPreview& view);

/// The routine of a PreviewKind; null where there is none, and nothing is drawn.
DrawRoutine FindDrawRoutine(int kind);
