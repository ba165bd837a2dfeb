#pragma once
// Labels and values from a text file of two columns.

#include <QByteArray>
#include <QString>
#include <vector>

struct LabelledValues {
    std::vector<QString> labels;
    std::vector<double> values;
};

struct CsvResult {
    LabelledValues data;
    QString error; ///< What is wrong, with the line where it is; empty for a good file.
};

/// Reads "label, value" lines in UTF-8. Columns are separated by commas, semicolons or tabs; a number may
/// have a decimal comma where commas do not separate. Labels may be quoted, with a doubled quote for a quote,
/// and may then have line breaks. The first line may be a heading; empty lines are skipped. Values are 0 or
/// more, with at least one above 0.
CsvResult ReadCsv(const QByteArray& bytes);

/// The same from a file. The error of one that cannot be read says so.
CsvResult ReadCsvFile(const QString& path);
