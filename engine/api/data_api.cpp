// Operations of random tables, array maths, chart time and label filters.

#include "engine/api/call.h"
#include "engine/api/convert.h"
#include "engine/data/array_math.h"
#include "engine/data/chart_time.h"
#include "engine/data/label_filter.h"
#include "engine/data/ran_table.h"
#include <chartdraw/surface.h>

using chartdraw::create;
using chartdraw::edit;
using chartdraw::read;
using chartdraw::toSpan;
using chartdraw::use;

namespace {

void giveOut(std::span<const double> numbers, const double** data, int* count) {
    if (data != nullptr)
        *data = numbers.empty() ? nullptr : numbers.data();
    if (count != nullptr)
        *count = static_cast<int>(numbers.size());
}

} // namespace

extern "C" {

double CChart_chartTime(int year, int month, int day, int hour, int minute, int second) {
    return chartdraw::chartTime(year, month, day, hour, minute, second);
}

int CChart_getChartYMD(double time) {
    return chartdraw::getChartYMD(time);
}

int CChart_encodeFilter(int type, int labelStep, double initialMargin) {
    return chartdraw::encodeFilter(type, labelStep, initialMargin);
}

RanTable* CRanTable_create(int seed, int columns, int rows) {
    return create<chartdraw::RanTable, RanTable>(seed, columns, rows);
}

void CRanTable_destroy(RanTable* table) {
    use(
        table, [](chartdraw::RanTable& target) { delete &target; });
}

void CRanTable_setCol(RanTable* table, int column, double minimum, double maximum) {
    return edit(
        table, [&](chartdraw::RanTable& target) { target.setCol(column, minimum, maximum); });
}

void CRanTable_setDateCol(RanTable* table, int column, double start, double step, bool weekdaysOnly) {
    return edit(
        table, [&](chartdraw::RanTable& target) { target.setDateCol(column, start, step, weekdaysOnly); });
}

void CRanTable_setHLOCCols(RanTable* table, int firstColumn, double start, double minimumDelta,
                           double maximumDelta, double lower, double upper) {
    return edit(
        table,
        [&](chartdraw::RanTable& target) {
            target.setHLOCCols(firstColumn, start, minimumDelta, maximumDelta, lower, upper);
        });
}

void CRanTable_getCol(RanTable* table, int column, const double** data, int* count) {
    giveOut(read(
                table, [&](const chartdraw::RanTable& source) { return source.column(column); }),
            data, count);
}

ArrayMath* CArrayMath_create(const double* data, int count) {
    return create<chartdraw::ArrayMath, ArrayMath>(toSpan(data, count));
}

void CArrayMath_destroy(ArrayMath* array) {
    use(
        array, [](chartdraw::ArrayMath& target) { delete &target; });
}

void CArrayMath_result(ArrayMath* array, const double** data, int* count) {
    giveOut(read(
                array, [](const chartdraw::ArrayMath& source) { return source.result(); }),
            data, count);
}

void CArrayMath_add(ArrayMath* array, const double* data, int count) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.add(toSpan(data, count)); });
}

void CArrayMath_sub(ArrayMath* array, const double* data, int count) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.sub(toSpan(data, count)); });
}

void CArrayMath_mul2(ArrayMath* array, double factor) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.mul(factor); });
}

void CArrayMath_div2(ArrayMath* array, double divisor) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.div(divisor); });
}

void CArrayMath_financeDiv(ArrayMath* array, const double* divisor, int count, double zeroByZero) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.financeDiv(toSpan(divisor, count), zeroByZero); });
}

void CArrayMath_abs(ArrayMath* array) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.abs(); });
}

void CArrayMath_delta(ArrayMath* array, int offset) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.delta(offset); });
}

void CArrayMath_movAvg(ArrayMath* array, int interval) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.movAvg(interval); });
}

void CArrayMath_movMax(ArrayMath* array, int interval) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.movMax(interval); });
}

void CArrayMath_movMin(ArrayMath* array, int interval) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.movMin(interval); });
}

void CArrayMath_movStdDev(ArrayMath* array, int interval) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.movStdDev(interval); });
}

void CArrayMath_expAvg(ArrayMath* array, double smoothing) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.expAvg(smoothing); });
}

void CArrayMath_selectGTZ(ArrayMath* array, const double* data, int count, double fill) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.selectGTZ(toSpan(data, count), fill); });
}

void CArrayMath_selectLTZ(ArrayMath* array, const double* data, int count, double fill) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.selectLTZ(toSpan(data, count), fill); });
}

void CArrayMath_selectEQZ(ArrayMath* array, const double* data, int count, double fill) {
    return edit(
        array, [&](chartdraw::ArrayMath& target) { target.selectEQZ(toSpan(data, count), fill); });
}

double CArrayMath_max(ArrayMath* array) {
    return read(
        array, [](const chartdraw::ArrayMath& source) { return source.max(); });
}

} // extern "C"
