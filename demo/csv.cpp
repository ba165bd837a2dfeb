#include "csv.h"

#include <QDateTime>
#include <QFile>
#include <QStringDecoder>
#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 kMostBytes = 1 << 20;

/// Takes a text apart into records and cells.
class Splitter {
public:
    explicit Splitter(const QString& text) : m_text(text), m_separator(FindSeparator(text)) {}

    QChar Separator() const { return m_separator; }
    int Line() const { return m_line; }
    bool AtEnd() const { return m_at >= m_text.size(); }

    /// The next record; its cells are trimmed. Nothing if a quote is never closed.
    std::optional<CsvRow> Next() {
        CsvRow record{m_line, {}};
        do {
            const std::optional<QString> cell = NextCell();
            if (!cell)
                return std::nullopt;
            record.cells.append(*cell);
        } while (Take(m_separator));
        TakeLineEnd();
        return record;
    }

private:
    static QChar FindSeparator(const QString& text) {
        const QString first = text.left(std::max<qsizetype>(text.indexOf(u'\n'), 0));
        const QString& where = first.trimmed().isEmpty() ? text : first;
        return where.contains(u'\t') ? u'\t' : where.contains(u';') ? u';' : u',';
    }

    QChar Peek() const { return AtEnd() ? QChar() : m_text[m_at]; }

    bool Take(QChar wanted) {
        const bool found = !AtEnd() && Peek() == wanted;
        m_at += found ? 1 : 0;
        return found;
    }

    void TakeLineEnd() {
        const bool carriage = Take(u'\r');
        if (Take(u'\n') || carriage)
            ++m_line;
    }

    bool AtCellEnd() const { return AtEnd() || Peek() == m_separator || Peek() == u'\n' || Peek() == u'\r'; }

    std::optional<QString> NextCell() {
        while (Peek() == u' ')
            ++m_at;
        QString quoted;
        if (Take(u'"')) {
            do {
                const qsizetype end = m_text.indexOf(u'"', m_at);
                if (end < 0)
                    return std::nullopt;
                quoted += m_text.mid(m_at, end - m_at);
                m_at = end + 1;
                if (Peek() == u'"')
                    quoted += u'"'; // a doubled quote stands for one, and the text goes on
            } while (Take(u'"'));
            m_line += static_cast<int>(quoted.count(u'\n'));
        }
        const qsizetype from = m_at;
        while (!AtCellEnd())
            ++m_at;
        return quoted + m_text.mid(from, m_at - from).trimmed();
    }

    const QString& m_text;
    QChar m_separator;
    qsizetype m_at = 0;
    int m_line = 1;
};

CsvTable Failed(const QString& error) {
    CsvTable failed;
    failed.error = error;
    return failed;
}

bool IsHeading(const CsvRow& row, QChar separator) {
    return row.cells.size() > 1 &&
           std::none_of(
               row.cells.begin() + 1, row.cells.end(),
               [separator](const QString& cell) { return ToNumber(cell, separator).has_value(); });
}

CsvTable ReadTable(const QString& text) {
    CsvTable table;
    Splitter records(text);
    table.separator = records.Separator();
    qsizetype columns = 0;
    while (!records.AtEnd()) {
        const std::optional<CsvRow> row = records.Next();
        if (!row)
            return Failed(AtLine(records.Line(), QStringLiteral("a quote is opened and never closed.")));
        if (row->cells.size() == 1 && row->cells[0].isEmpty())
            continue;
        if (columns != 0 && row->cells.size() != columns)
            return Failed(AtLine(row->line, QStringLiteral("%1 columns, where the lines before have %2.")
                                                .arg(row->cells.size())
                                                .arg(columns)));
        if (columns == 0 && IsHeading(*row, table.separator))
            table.heading = row->cells;
        else
            table.rows.push_back(*row);
        columns = row->cells.size();
    }
    return table.rows.empty() ? Failed(QStringLiteral("The file has no line with a value.")) : table;
}

} // namespace

QString AtLine(int line, const QString& what) {
    return QStringLiteral("Line %1: %2").arg(line).arg(what);
}

std::optional<double> ToNumber(QString text, QChar separator) {
    if (separator != u',')
        text.replace(u',', u'.');
    bool good = false;
    const double value = text.toDouble(&good);
    return good && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> ToTime(const QString& text) {
    QDateTime time = QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd HH:mm"));
    for (const char* format : {"yyyy-MM-dd", "dd.MM.yyyy"})
        if (!time.isValid())
            time = QDate::fromString(text, QString::fromUtf8(format)).startOfDay(Qt::UTC);
    if (!time.isValid() || time.date().year() < 1)
        return std::nullopt;
    constexpr double kDay = 86400; // seconds
    return static_cast<double>(QDate(1, 1, 1).daysTo(time.date())) * kDay +
           time.time().msecsSinceStartOfDay() / 1000.0;
}

CsvTable ReadCsv(const QByteArray& bytes) {
    if (bytes.size() > kMostBytes)
        return Failed(QStringLiteral("The file is larger than a megabyte."));
    QStringDecoder decoder(QStringDecoder::Utf8); // drops the mark at the start, if there is one
    const QString text = decoder(bytes);
    if (decoder.hasError() || text.contains(QChar(0)))
        return Failed(QStringLiteral("The file is not a text in UTF-8."));
    return ReadTable(text);
}

CsvTable ReadCsvFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failed(QStringLiteral("The file cannot be read: %1.").arg(file.errorString()));
    return ReadCsv(file.read(kMostBytes + 1));
}
