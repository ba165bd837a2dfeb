// Operations of random tables, array maths, chart time and label filters.

#include "engine/api/convert.h"
#include "engine/data/array_math.h"
#include "engine/data/chart_time.h"
#include "engine/data/label_filter.h"
#include "engine/data/ran_table.h"
#include <chartdraw/surface.h>

using chartdraw::edit;
using chartdraw::handle;
using chartdraw::object;
using chartdraw::read;
using chartdraw::toSpan;

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
    return handle<RanTable>(new chartdraw::RanTable(seed, columns, rows));
}

void CRanTable_destroy(RanTable* table) {
    delete object<chartdraw::RanTable>(table);
}

void CRanTable_setCol(RanTable* table, int column, double minimum, double maximum) {
    if (auto* target = edit<chartdraw::RanTable>(table))
        target->setCol(column, minimum, maximum);
}

void CRanTable_setDateCol(RanTable* table, int column, double start, double step, bool weekdaysOnly) {
    if (auto* target = edit<chartdraw::RanTable>(table))
        target->setDateCol(column, start, step, weekdaysOnly);
}

void CRanTable_setHLOCCols(RanTable* table, int firstColumn, double start, double minimumDelta,
                           double maximumDelta, double lower, double upper) {
    if (auto* target = edit<chartdraw::RanTable>(table))
        target->setHLOCCols(firstColumn, start, minimumDelta, maximumDelta, lower, upper);
}

void CRanTable_getCol(RanTable* table, int column, const double** data, int* count) {
    const auto* source = read<chartdraw::RanTable>(table);
    giveOut(source != nullptr ? source->column(column) : std::span<const double>(), data, count);
}

ArrayMath* CArrayMath_create(const double* data, int count) {
    return handle<ArrayMath>(new chartdraw::ArrayMath(toSpan(data, count)));
}

void CArrayMath_destroy(ArrayMath* array) {
    delete object<chartdraw::ArrayMath>(array);
}

void CArrayMath_result(ArrayMath* array, const double** data, int* count) {
    const auto* source = read<chartdraw::ArrayMath>(array);
    giveOut(source != nullptr ? source->result() : std::span<const double>(), data, count);
}

void CArrayMath_add(ArrayMath* array, const double* data, int count) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->add(toSpan(data, count));
}

void CArrayMath_sub(ArrayMath* array, const double* data, int count) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->sub(toSpan(data, count));
}

void CArrayMath_mul2(ArrayMath* array, double factor) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->mul(factor);
}

void CArrayMath_div2(ArrayMath* array, double divisor) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->div(divisor);
}

void CArrayMath_financeDiv(ArrayMath* array, const double* divisor, int count, double zeroByZero) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->financeDiv(toSpan(divisor, count), zeroByZero);
}

void CArrayMath_abs(ArrayMath* array) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->abs();
}

void CArrayMath_delta(ArrayMath* array, int offset) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->delta(offset);
}

void CArrayMath_movAvg(ArrayMath* array, int interval) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->movAvg(interval);
}

void CArrayMath_movMax(ArrayMath* array, int interval) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->movMax(interval);
}

void CArrayMath_movMin(ArrayMath* array, int interval) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->movMin(interval);
}

void CArrayMath_movStdDev(ArrayMath* array, int interval) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->movStdDev(interval);
}

void CArrayMath_expAvg(ArrayMath* array, double smoothing) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->expAvg(smoothing);
}

void CArrayMath_selectGTZ(ArrayMath* array, const double* data, int count, double fill) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->selectGTZ(toSpan(data, count), fill);
}

void CArrayMath_selectLTZ(ArrayMath* array, const double* data, int count, double fill) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->selectLTZ(toSpan(data, count), fill);
}

void CArrayMath_selectEQZ(ArrayMath* array, const double* data, int count, double fill) {
    if (auto* target = edit<chartdraw::ArrayMath>(array))
        target->selectEQZ(toSpan(data, count), fill);
}

double CArrayMath_max(ArrayMath* array) {
    const auto* source = read<chartdraw::ArrayMath>(array);
    return source != nullptr ? source->max() : 0;
}

} // extern "C"
