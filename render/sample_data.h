#pragma once
// Made-up data for previews: a model describes looks only. The seeds are fixed, so a preview shows the same
// numbers at every redraw.

#include <chartdraw/surface.h>
#include <span>
#include <string>
#include <vector>

/// Owns a table of random numbers.
class CRandomTable {
public:
    CRandomTable(int seed, int columns, int rows) : m_table(CRanTable_create(seed, columns, rows)) {}
    ~CRandomTable() { CRanTable_destroy(m_table); }
    CRandomTable(const CRandomTable&) = delete;
    CRandomTable& operator=(const CRandomTable&) = delete;

    RanTable* Get() const { return m_table; }
    /// The numbers of a column; they belong to the table.
    std::span<const double> Column(int column) const;

private:
    RanTable* m_table;
};

/// A column of a table rounded to whole numbers, halves upward.
class CRoundedData {
public:
    CRoundedData(const CRandomTable& table, int column);

    void SortDown(); ///< From the largest to the smallest.

    operator std::span<const double>() const { return m_values; }

private:
    std::vector<double> m_values;
};

/// A text of the string table with a number in the place of its "%d", as "Sector 1".
std::string FormatChartString(int number, int value);

/// The texts as an array argument of the drawing surface takes them; good as long as `texts` is unchanged.
std::vector<const char*> TextPointers(const std::vector<std::string>& texts);
