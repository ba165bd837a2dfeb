#pragma once
// Lists to choose from: the texts that show and the codes that are stored for them.

#include <QString>
#include <cstddef>
#include <utility>
#include <vector>

/// One row of a list. Without a code the number of the row is stored.
struct CChoice {
    CChoice(const char* shown) : text(shown) {}
    CChoice(const char* shown, int stored) : text(shown), code(stored) {}

    const char* text;
    int code = -1;
};

class CChoices {
public:
    explicit CChoices(std::vector<CChoice> rows) : m_rows(std::move(rows)) {
        for (std::size_t row = 0; row < m_rows.size(); ++row)
            if (m_rows[row].code < 0)
                m_rows[row].code = static_cast<int>(row);
    }

    const std::vector<CChoice>& Rows() const { return m_rows; }
    /// The first row with that code; `otherwise` if there is none.
    int RowOf(int code, int otherwise) const {
        for (std::size_t row = 0; row < m_rows.size(); ++row)
            if (m_rows[row].code == code)
                return static_cast<int>(row);
        return otherwise;
    }
    /// The code of a row; `otherwise` if there is no such row.
    int CodeOf(int row, int otherwise) const {
        return row >= 0 && row < std::ssize(m_rows) ? m_rows[static_cast<std::size_t>(row)].code : otherwise;
    }

    /// The text of a code; its number if it has none.
    QString TextOf(int code) const {
        const int row = RowOf(code, -1);
        return row < 0 ? QString::number(code)
                       : QString::fromUtf8(m_rows[static_cast<std::size_t>(row)].text);
    }

private:
    std::vector<CChoice> m_rows;
};
