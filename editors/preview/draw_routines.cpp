#include "editors/preview/draw_routines.h"
#include "render/angular_meter.h"
#include "render/finance/draw_finance.h"
#include "render/layout_sample.h"
#include "render/linear_meter.h"
#include "render/pie.h"
#include "render/polar.h"
#include "render/samples.h"
#include "render/xy_frame.h"

static constexpr DrawRoutine routines[] = {
    DrawColorSample,  // PreviewColor
    DrawFontSample,   // PreviewFont
    DrawImageSample,  // PreviewImage
    DrawLayoutSample, // PreviewLayout
    DrawXYChart,      // PreviewXYChart
    DrawPieChart,     // PreviewPieChart
    DrawFinanceChart, // PreviewFinanceChart
    DrawAngularMeter, // PreviewAngularMeter
    DrawLinearMeter,  // PreviewLinearMeter
    DrawPolarChart,   // PreviewPolarChart
};

DrawRoutine FindDrawRoutine(int kind) {
    return kind >= 0 && kind < std::ssize(routines) ? routines[kind] : nullptr;
}
