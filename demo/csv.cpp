#include "csv.h"

#include <QFile>
#include <QStringDecoder>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr qint64 kMostBytes = 1 << 20;
constexpr std::size_t kMostRows = 1000; // a pie of more sectors shows nothing

struct Record {
    int line = 1; ///< where it begins
    QStringList cells;
};

/// Takes a text apart into records and cells.
class Splitter {
public:
    explicit Splitter(const QString& text) : m_text(text), m_separator(FindSeparator(text)) {}

    QChar Separator() const { return m_separator; }
    int Line() const { return m_line; }
    bool AtEnd() const { return m_at >= m_text.size(); }

    /// The next record; its cells are trimmed. Nothing if a quote is never closed.
    std::optional<Record> Next() {
        Record record{m_line, {}};
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

std::optional<double> ToNumber(QString text, QChar separator) {
    if (separator != u',')
        text.replace(u',', u'.');
    bool good = false;
    const double value = text.toDouble(&good);
    return good && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

QString AtLine(int line, const QString& what) {
    return QStringLiteral("Line %1: %2").arg(line).arg(what);
}

/// What is wrong with a record that ought to be a label and a value; empty if nothing is.
QString FaultOf(const Record& record, const std::optional<double>& value) {
    if (record.cells.size() != 2) {
        return QStringLiteral("a label and a value are wanted, and here are %1 columns.")
            .arg(record.cells.size());
    }
    if (!value)
        return QStringLiteral("\"%1\" is not a number.").arg(record.cells[1]);
    return *value < 0 ? QStringLiteral("%1 is below 0, and a pie has no place for it.").arg(record.cells[1])
                      : QString();
}

CsvResult Failed(const QString& error) {
    return {{}, error};
}

CsvResult ReadRecords(const QString& text) {
    CsvResult result;
    Splitter records(text);
    for (bool first = true; !records.AtEnd();) {
        const std::optional<Record> record = records.Next();
        if (!record)
            return Failed(AtLine(records.Line(), QStringLiteral("a quote is opened and never closed.")));
        if (record->cells.size() == 1 && record->cells[0].isEmpty())
            continue;
        const std::optional<double> value = ToNumber(record->cells.value(1), records.Separator());
        const bool heading = first && record->cells.size() == 2 && !value;
        first = false;
        if (heading)
            continue;
        if (const QString fault = FaultOf(*record, value); !fault.isEmpty())
            return Failed(AtLine(record->line, fault));
        if (result.data.values.size() == kMostRows)
            return Failed(AtLine(record->line, QStringLiteral("more than %1 rows.").arg(kMostRows)));
        result.data.labels.push_back(record->cells[0]);
        result.data.values.push_back(*value);
    }
    return result;
}

} // namespace

CsvResult ReadCsv(const QByteArray& bytes) {
    if (bytes.size() > kMostBytes)
        return Failed(QStringLiteral("The file is larger than a megabyte."));
    QStringDecoder decoder(QStringDecoder::Utf8); // drops the mark at the start, if there is one
    const QString text = decoder(bytes);
    if (decoder.hasError() || text.contains(QChar(0)))
        return Failed(QStringLiteral("The file is not a text in UTF-8."));
    CsvResult result = ReadRecords(text);
    const std::vector<double>& values = result.data.values;
    if (!result.error.isEmpty())
        return result;
    if (values.empty())
        return Failed(QStringLiteral("The file has no line with a label and a value."));
    if (*std::max_element(values.begin(), values.end()) <= 0)
        return Failed(QStringLiteral("All values are 0: there is nothing to share out."));
    return result;
}

CsvResult ReadCsvFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failed(QStringLiteral("The file cannot be read: %1.").arg(file.errorString()));
    return ReadCsv(file.read(kMostBytes + 1));
}
