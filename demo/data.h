#pragma once
// What the columns of a file mean: which kind of chart they are for, and its numbers.

#include "csv.h"

#include <variant>

/// Shares of a whole.
struct LabelledValues {
    std::vector<QString> labels;
    std::vector<double> values;
};

struct NamedColumn {
    QString name;
    std::vector<double> values; ///< NaN for an empty cell
};

/// Rows along an axis, one data set a column.
struct Rows {
    std::vector<QString> labels;
    std::vector<double> times; ///< seconds since 1 January of year 1, where all labels are dates; else empty
    std::vector<NamedColumn> columns;
};

/// Trading days.
struct Prices {
    std::vector<double> dates, open, high, low, close;
    std::vector<double> volume; ///< empty if the file has none
};

/// Radii at angles, one line a column.
struct PolarRows {
    std::vector<double> angles; ///< degrees
    std::vector<NamedColumn> columns;
};

using ChartData = std::variant<LabelledValues, Rows, Prices, PolarRows>;

struct Understood {
    ChartData data;
    QString error; ///< What was not understood, and where; empty if all was.
};

/// Tells the kind of chart by the columns:
/// - named date, open, high, low, close and perhaps volume, or five or six without names that begin with a
/// date:
///   prices;
/// - the first one named "angle": lines around a circle;
/// - a label and a value: shares, 0 or more with at least one above 0;
/// - anything else that begins with labels or dates: rows, one data set a column.
Understood Understand(const CsvTable& table);
