#include "style/style_text.h"
#include <QJsonDocument>
#include <algorithm>

namespace style {

namespace {

int LineAt(const QByteArray& text, qsizetype offset) {
    return 1 + static_cast<int>(std::count(text.begin(), text.begin() + std::min(offset, text.size()), '\n'));
}

/// Walks through a text that is known to be JSON.
class Walker {
public:
    explicit Walker(const QByteArray& text) : m_text(text) {}
    qsizetype Place() const { return m_place; }
    char Peek() {
        while (m_place < m_text.size() &&
               std::string_view(" \t\r\n,:").find(m_text[m_place]) != std::string_view::npos)
            ++m_place;
        return m_place < m_text.size() ? m_text[m_place] : '\0';
    }
    void Step() { ++m_place; }
    /// A string as it stands, without its quotes.
    QByteArray String() {
        const qsizetype begin = ++m_place;
        while (m_place < m_text.size() && m_text[m_place] != '"')
            m_place += m_text[m_place] == '\\' ? 2 : 1;
        return m_text.mid(begin, m_place++ - begin);
    }
    void Skip() {
        const char first = Peek();
        if (first == '"') {
            String();
        } else if (first == '{' || first == '[') {
            Step();
            while (Peek() != '}' && Peek() != ']' && Peek() != '\0')
                Skip();
            Step();
        } else {
            while (m_place < m_text.size() &&
                   std::string_view(",]} \t\r\n").find(m_text[m_place]) == std::string_view::npos)
                ++m_place;
        }
    }
    /// Into the member of that name, or the item of that index; false if there is none.
    bool Enter(const QByteArray& key) {
        const bool list = Peek() == '[';
        if (!list && Peek() != '{')
            return false;
        Step();
        for (int index = 0; Peek() != '}' && Peek() != ']' && Peek() != '\0'; ++index) {
            const qsizetype here = m_place;
            if (list ? QByteArray::number(index) == key : String() == key) {
                if (!list)
                    m_place = here;
                return list || (String(), Peek(), true);
            }
            Skip();
        }
        return false;
    }

private:
    const QByteArray& m_text;
    qsizetype m_place = 0;
};

void CheckLimits(const QByteArray& text) {
    if (text.size() > kMaxBytes)
        throw BadStyle(QStringLiteral("line 1"), "longer than 16 MB");
    int depth = 0;
    bool inString = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (inString) {
            if (c == '\\')
                ++i;
            inString = c != '"';
        } else if (c == '"') {
            inString = true;
        } else if (c == '{' || c == '[') {
            if (++depth > kMaxDepth)
                throw BadStyle(QStringLiteral("line %1").arg(LineAt(text, i)), "nested deeper than 32");
        } else if (c == '}' || c == ']') {
            --depth;
        }
    }
}

} // namespace

QJsonObject Parse(const QByteArray& text) {
    CheckLimits(text);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        throw BadStyle(QStringLiteral("line %1").arg(LineAt(text, error.offset)), "not a JSON object");
    return document.object();
}

int LineOf(const QByteArray& text, const QString& path) {
    Walker walker(text);
    walker.Peek();
    qsizetype place = walker.Place();
    QByteArray steps = path.toUtf8();
    steps.replace('[', '.').replace(']', "");
    for (const QByteArray& step : steps.split('.')) {
        if (!walker.Enter(step))
            break;
        place = walker.Place();
    }
    return LineAt(text, place);
}

} // namespace style
