#pragma once
// What the host owns: the look of its charts, which the editors edit, and the numbers, which they never see.

#include "csv.h"

#include <charteditors/charteditors.h>
#include <chartrender/chartrender.h>
#include <span>

struct Charts {
    CChartLayout layout;
    CPieChart pie;
    LabelledValues data;
};

/// A kind of chart. One without functions has no editor yet.
struct ChartKind {
    const char* name;
    const char* file; ///< what the names of its pictures begin with
    bool (*edit)(Charts& charts);
    ChartRenderResult (*render)(const Charts& charts, ChartPictureFormat format, CChartPicture& picture);
};

std::span<const ChartKind> ChartKinds();

/// The charts that the demo starts with.
Charts ExampleCharts();

/// Puts other numbers in the place of those that `charts` has. The sectors follow them, in the library's own
/// colours, and `title` goes above.
void ShowData(Charts& charts, const LabelledValues& data, const QString& title);
