// The header in the oldest C++ that is served, in a program that looks at nothing but it.
#include <chartdraw/surface.h>

static_assert(CHART_TEXT_COLOR == CHART_PALETTE + 2, "palette entries follow each other");

double lastClose(RanTable* table) {
    const double* data = nullptr;
    int count = 0;
    CRanTable_getCol(table, 3, &data, &count);
    return count > 0 ? data[count - 1] : CHART_NO_VALUE;
}
