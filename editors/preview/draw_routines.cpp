#include "editors/preview/draw_routines.h"
#include "render/pie.h"
#include "render/samples.h"

static constexpr DrawRoutine routines[] = {
    DrawColorSample, // PreviewColor
    DrawFontSample,  // PreviewFont
    DrawImageSample, // PreviewImage
    nullptr,         // PreviewLayout
    nullptr,         // PreviewXYChart
    DrawPieChart,    // PreviewPieChart
    nullptr,         // PreviewFinanceChart
    nullptr,         // PreviewAngularMeter
    nullptr,         // PreviewLinearMeter
    nullptr,         // PreviewPolarChart
};

DrawRoutine FindDrawRoutine(int kind) {
    return kind >= 0 && kind < std::ssize(routines) ? routines[kind] : nullptr;
}
