#pragma once
// Text files of rows and columns.

#include <QByteArray>
#include <QStringList>
#include <optional>
#include <vector>

struct CsvRow {
    int line = 1; ///< where it begins
    QStringList cells;
};

struct CsvTable {
    QStringList heading;      ///< of the columns; empty if the file has none
    std::vector<CsvRow> rows; ///< all with the same number of cells, at least one row
    QChar separator;
    QString error; ///< What is wrong, with the line where it is; empty for a good file.
};

/// Reads a text in UTF-8 whose columns are separated by commas, semicolons or tabs. Cells may be quoted, with
/// a doubled quote for a quote, and may then have line breaks; empty lines are skipped. The first line is a
/// heading if none of its cells but the first is a number.
CsvTable ReadCsv(const QByteArray& bytes);

/// The same from a file. The error of one that cannot be read says so.
CsvTable ReadCsvFile(const QString& path);

/// "Line 7: ..."
QString AtLine(int line, const QString& what);

/// The number of a cell, which may have a decimal comma where commas do not separate.
std::optional<double> ToNumber(QString text, QChar separator);

/// The date of a cell, "2024-01-31", "2024-01-31 15:30" or "31.01.2024", in seconds since 1 January of
/// year 1.
std::optional<double> ToTime(const QString& text);
