#include "data.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr std::size_t kMostSectors = 1000; // a pie of more shows nothing
constexpr qsizetype kMostColumns = 50;
constexpr std::array kPriceNames{"date", "open", "high", "low", "close", "volume"};
constexpr std::size_t kVolume = kPriceNames.size() - 1;

Understood NotUnderstood(const QString& error) {
    return {{}, error};
}

QString NoNumber(const CsvRow& row, qsizetype column) {
    return AtLine(row.line, QStringLiteral("\"%1\" is not a number.").arg(row.cells[column]));
}

QString NoDate(const CsvRow& row, qsizetype column) {
    return AtLine(row.line,
                  QStringLiteral("\"%1\" is not a date such as 2024-01-31.").arg(row.cells[column]));
}

bool AllDates(const CsvTable& table) {
    return std::all_of(
        table.rows.begin(), table.rows.end(),
        [](const CsvRow& row) { return ToTime(row.cells[0]).has_value(); });
}

/// The place of a name in the heading, -1 for none.
qsizetype ColumnOf(const CsvTable& table, const char* name) {
    for (qsizetype i = 0; i < table.heading.size(); ++i)
        if (table.heading[i].compare(QLatin1String(name), Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

/// The columns from the second on; empty cells are gaps.
QString ReadColumns(const CsvTable& table, std::vector<NamedColumn>& columns) {
    const qsizetype count = table.rows[0].cells.size();
    if (count - 1 > kMostColumns)
        return QStringLiteral("More than %1 columns.").arg(kMostColumns);
    for (qsizetype i = 1; i < count; ++i)
        columns.push_back({table.heading.value(i, QStringLiteral("Column %1").arg(i + 1)), {}});
    for (const CsvRow& row : table.rows) {
        for (qsizetype i = 1; i < count; ++i) {
            const QString& cell = row.cells[i];
            const auto value =
                cell.isEmpty() ? std::numeric_limits<double>::quiet_NaN() : ToNumber(cell, table.separator);
            if (!value)
                return NoNumber(row, i);
            columns[static_cast<std::size_t>(i - 1)].values.push_back(*value);
        }
    }
    return {};
}

Understood ReadShares(const CsvTable& table) {
    LabelledValues shares;
    for (const CsvRow& row : table.rows) {
        const auto value = ToNumber(row.cells[1], table.separator);
        if (!value)
            return NotUnderstood(NoNumber(row, 1));
        if (*value < 0)
            return NotUnderstood(AtLine(
                row.line, QStringLiteral("%1 is below 0, and a pie has no place for it.").arg(row.cells[1])));
        if (shares.values.size() == kMostSectors)
            return NotUnderstood(AtLine(row.line, QStringLiteral("more than %1 rows.").arg(kMostSectors)));
        shares.labels.push_back(row.cells[0]);
        shares.values.push_back(*value);
    }
    if (*std::max_element(shares.values.begin(), shares.values.end()) <= 0)
        return NotUnderstood(QStringLiteral("All values are 0: there is nothing to share out."));
    return {shares, {}};
}

Understood ReadPrices(const CsvTable& table) {
    std::array<qsizetype, kPriceNames.size()> places;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto unnamed =
            static_cast<qsizetype>(i) < table.rows[0].cells.size() ? static_cast<qsizetype>(i) : -1;
        places[i] = table.heading.isEmpty() ? unnamed : ColumnOf(table, kPriceNames[i]);
        if (places[i] < 0 && i != kVolume)
            return NotUnderstood(
                QStringLiteral("Prices want the columns date, open, high, low and close; there is no \"%1\".")
                    .arg(QLatin1String(kPriceNames[i])));
    }
    Prices prices;
    const std::array columns{&prices.dates, &prices.open,  &prices.high,
                             &prices.low,   &prices.close, &prices.volume};
    for (const CsvRow& row : table.rows) {
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (places[i] < 0)
                continue;
            const auto value =
                i == 0 ? ToTime(row.cells[places[i]]) : ToNumber(row.cells[places[i]], table.separator);
            if (!value)
                return NotUnderstood(i == 0 ? NoDate(row, places[i]) : NoNumber(row, places[i]));
            columns[i]->push_back(*value);
        }
    }
    return {prices, {}};
}

Understood ReadPolar(const CsvTable& table) {
    PolarRows polar;
    for (const CsvRow& row : table.rows) {
        const auto angle = ToNumber(row.cells[0], table.separator);
        if (!angle)
            return NotUnderstood(NoNumber(row, 0));
        polar.angles.push_back(*angle);
    }
    const QString error = ReadColumns(table, polar.columns);
    return {polar, error};
}

Understood ReadRows(const CsvTable& table) {
    Rows rows;
    const bool dates = AllDates(table);
    for (const CsvRow& row : table.rows) {
        rows.labels.push_back(row.cells[0]);
        if (dates)
            rows.times.push_back(*ToTime(row.cells[0]));
    }
    const QString error = ReadColumns(table, rows.columns);
    return {rows, error};
}

} // namespace

Understood Understand(const CsvTable& table) {
    if (!table.error.isEmpty())
        return NotUnderstood(table.error);
    const qsizetype columns = table.rows[0].cells.size();
    if (columns < 2)
        return NotUnderstood(
            QStringLiteral("The file has one column. Shares want two, a label and a value; rows want a "
                           "label or a date and a column for each data set; prices want date, open, high, "
                           "low and close."));
    const bool namedPrices = ColumnOf(table, "open") >= 0 && ColumnOf(table, "close") >= 0;
    const bool plainPrices = table.heading.isEmpty() && (columns == 5 || columns == 6) && AllDates(table);
    if (namedPrices || plainPrices)
        return ReadPrices(table);
    if (ColumnOf(table, "angle") == 0)
        return ReadPolar(table);
    return columns == 2 && !AllDates(table) ? ReadShares(table) : ReadRows(table);
}
