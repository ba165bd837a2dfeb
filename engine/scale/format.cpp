#include "engine/scale/format.h"

#include "engine/scale/date_text.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {
namespace {

constexpr int kPercentDecimals = 2;
constexpr std::string_view kListStart = "|\t";

void appendEntry(std::string& out, double value, const std::vector<std::string>& texts) {
    const double place = std::floor(value + 0.5);
    if (place >= 0 && place < static_cast<double>(texts.size()))
        out += texts[static_cast<std::size_t>(place)];
}

} // namespace

Format::Format(std::string_view text) : m_text(text) {
    const auto addLiteral = [&](std::size_t begin, std::size_t end) {
        if (begin < end)
            m_pieces.push_back({Piece::Kind::Literal, begin, end, 0, 0});
    };
    std::size_t literal = 0;
    std::size_t open = m_text.find('{');
    while (open != std::string::npos) {
        const std::size_t next = m_text.find_first_of("{}", open + 1);
        if (next == std::string::npos)
            break;
        const std::size_t bar = std::string_view(m_text).substr(open, next - open).find(kListStart);
        const bool list = bar != std::string::npos;
        if (m_text[next] == '{' && !list) {
            open = next;
            continue;
        }
        addLiteral(literal, open);
        if (list) {
            literal = addList(open, open + bar);
        } else {
            addField(open, next);
            literal = next + 1;
        }
        open = m_text.find('{', literal);
    }
    addLiteral(literal, m_text.size());
}

void Format::addField(std::size_t open, std::size_t close) {
    const auto field = std::string_view(m_text).substr(open, close - open);
    const std::size_t nameEnd = open + std::min(field.find('|'), field.size());
    Piece piece{Piece::Kind::Field, open, close + 1, nameEnd, 0};
    if (nameEnd < close) {
        const auto spec = std::string_view(m_text).substr(nameEnd + 1, close - nameEnd - 1);
        NumberSpec number;
        if (parseNumberSpec(spec, number)) {
            piece.kind = Piece::Kind::NumberField;
            piece.spec = m_specs.size();
            m_specs.push_back(number);
        } else if (isDateSpec(spec)) {
            piece.kind = Piece::Kind::DateField;
        }
    }
    m_pieces.push_back(piece);
}

/// Reads a list of texts that begins at `bar`, and gives the place behind its field. An open end closes it.
std::size_t Format::addList(std::size_t open, std::size_t bar) {
    std::vector<std::string> texts(1);
    std::size_t i = bar + kListStart.size();
    for (; i < m_text.size() && m_text[i] != '}'; ++i) {
        if (m_text[i] == '\t') {
            texts.emplace_back();
            continue;
        }
        if (m_text[i] == '\\' && i + 1 < m_text.size())
            ++i;
        texts.back() += m_text[i];
    }
    const std::size_t end = std::min(i + 1, m_text.size());
    m_pieces.push_back({Piece::Kind::ListField, open, end, bar, m_lists.size()});
    m_lists.push_back(std::move(texts));
    return end;
}

std::string_view Format::name(const Piece& piece) const {
    return std::string_view(m_text).substr(piece.begin + 1, piece.nameEnd - piece.begin - 1);
}

bool Format::has(std::string_view wanted) const {
    return std::any_of(
        m_pieces.begin(), m_pieces.end(),
        [&](const Piece& piece) { return piece.kind != Piece::Kind::Literal && name(piece) == wanted; });
}

void Format::appendField(std::string& out, const Piece& piece, const FieldValue& value) const {
    const auto whole = std::string_view(m_text).substr(piece.begin, piece.end - piece.begin);
    if (value.kind == FieldValue::Kind::Unknown)
        out += whole;
    else if (value.kind == FieldValue::Kind::Text)
        out += value.shown;
    else if (piece.kind == Piece::Kind::NumberField)
        appendNumber(out, value.value, m_specs[piece.spec]);
    else if (piece.kind == Piece::Kind::ListField)
        appendEntry(out, value.value, m_lists[piece.spec]);
    else if (piece.kind == Piece::Kind::DateField)
        appendDate(out, value.value,
                   whole.substr(piece.nameEnd + 1 - piece.begin, piece.end - piece.nameEnd - 2));
    else if (!value.shown.empty())
        out += value.shown;
    else
        appendNumber(out, value.value,
                     name(piece) == "percent" ? NumberSpec::atMost(kPercentDecimals) : NumberSpec::plain());
}

void Format::appendTo(std::string& out, const FieldSource& fields) const {
    for (const Piece& piece : m_pieces)
        if (piece.kind == Piece::Kind::Literal)
            out.append(m_text, piece.begin, piece.end - piece.begin);
        else
            appendField(out, piece, fields.field(name(piece)));
}

std::string Format::apply(const FieldSource& fields) const {
    std::string out;
    appendTo(out, fields);
    return out;
}

std::string formatValue(double value, std::string_view format) {
    struct OneValue final : FieldSource {
        double value = 0;
        FieldValue field(std::string_view name) const override {
            return name == "value" ? FieldValue::number(value) : FieldValue::unknown();
        }
    };
    NumberSpec spec;
    if (format.empty() || parseNumberSpec(format, spec))
        return numberText(value, spec);
    if (format.find('{') == std::string_view::npos)
        return isDateSpec(format) ? dateText(value, format) : std::string(format);
    OneValue fields;
    fields.value = value;
    return Format(format).apply(fields);
}

} // namespace chartdraw
