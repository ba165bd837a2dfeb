#include "editors/preview/draw_routines.h"
#include "render/finance/draw_finance.h"
#include "render/pie.h"
#include "render/samples.h"
#include "render/xy_frame.h"

static constexpr DrawRoutine routines[] = {
    DrawColorSample,  // PreviewColor
    DrawFontSample,   // PreviewFont
    DrawImageSample,  // PreviewImage
    nullptr,          // PreviewLayout
    DrawXYChart,      // PreviewXYChart
    DrawPieChart,     // PreviewPieChart
    DrawFinanceChart, // PreviewFinanceChart
    nullptr,          // PreviewAngularMeter
    nullptr,          // PreviewLinearMeter
    nullptr,          // PreviewPolarChart
};

DrawRoutine FindDrawRoutine(int kind) {
    return kind >= 0 && kind < std::ssize(routines) ? routines[kind] : nullptr;
}
