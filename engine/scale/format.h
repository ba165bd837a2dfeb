#pragma once
// The format language of labels, legends and tooltips: text with fields in braces.
//
//   text   := { character | field }
//   field  := "{" name "}"  |  "{" name "|" spec "}"
//
// A field of a known name is replaced by its value. What a name means is up to the place of the text, for
// example {value}, {label}, {xLabel}, {percent}, {dataSetName}. A field of a name that the place does not
// know stays as it stands, braces included; so does a brace that opens or closes nothing. Of "{{value}" the
// last opening brace counts, so braces around a field give the value in braces.
//
// A spec tells how a number is shown. On a field that is a text, and where it is no valid spec, it is
// ignored.
//
//   number := mode [ thousand [ point [ negative ] ] ]
//   mode   := digits        exactly so many decimals (20 at most): "2" shows 3.14159 as 3.14
//           | "G" [digits]  shortest form, at most so many significant digits (6 when not given), without
//                           trailing zeros; digits before the point are never rounded away
//           | "P" [digits]  exactly so many significant digits (3 when not given)
//           | "E" [digits]  with exponent, exactly so many decimals (3 when not given)
//   thousand, point, negative := any one character but a letter, a digit, "{", "}" or "|".
//           "~" stands for what would be there without: no thousand separator, the point ".", the sign "-".
//           A "+" in place of the sign shows "+" before numbers above zero too.
//
// so that "{value|2,.}" shows 1,234.50 and "{value|0~.+}" shows +1234. Without a spec a number is shown with
// up to 15 significant digits, no trailing zeros and no exponent between 1e-5 and 1e15, and {percent} with
// two decimals at most. Rounding is half away from zero; zero has no sign.
//
//   date   := letter forms and other characters, of a chart time (seconds since 1 January of year 1)
//     yyyy 2003   yy 03   mmmm January   mmm Jan   MMM JAN   mm 01   m 1
//     dddd Monday   ddd Mon   dd 05   d 5   hh 09   h 9   nn 05 (minutes)   ss 07   fff 250 (milliseconds)
//     a  am or pm, and the hours of the whole spec count from 1 to 12
//   A run of letters that is not made of these forms only stands for itself ("of", "at"), and so do all other
//   characters; a backslash makes the next character stand for itself. A spec is a date when it begins with a
//   run of forms.
//
//   list   := tab text { tab text }
//   Instead of a number, one of the texts: the first for 0, the second for 1 and so on, by the nearest whole
//   number; nothing where there is none. A backslash makes the next character of a text stand for itself,
//   which "}", "{", a tab and the backslash need.
//
// NaN, infinities and missing values are shown as empty text.

#include "engine/scale/number_text.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace chartdraw {

/// What a field is at one point of the data.
struct FieldValue {
    enum class Kind : std::uint8_t { Unknown, Number, Text };
    Kind kind = Kind::Unknown;
    double value = 0;
    std::string_view shown; ///< the text; of a number, how it is shown without a spec (empty: its plain form)

    static FieldValue unknown() { return {}; }
    static FieldValue number(double value) { return {Kind::Number, value, {}}; }
    /// A number that has a text of its own, such as a tick's label.
    static FieldValue number(double value, std::string_view shown) { return {Kind::Number, value, shown}; }
    static FieldValue text(std::string_view text) { return {Kind::Text, 0, text}; }
};

/// Where the values of the fields come from. Texts returned must live until the format has been applied.
class FieldSource {
public:
    virtual FieldValue field(std::string_view name) const = 0;

protected:
    ~FieldSource() = default;
};

/// A format text, parsed once and applied to many points. Parsing and applying are linear in its length.
class Format {
public:
    Format() = default;
    explicit Format(std::string_view text);

    bool isEmpty() const { return m_text.empty(); }
    const std::string& text() const { return m_text; }
    /// Whether there is a field of that name, known or not to a source.
    bool has(std::string_view name) const;

    void appendTo(std::string& out, const FieldSource& fields) const;
    std::string apply(const FieldSource& fields) const;

private:
    struct Piece {
        enum class Kind : std::uint8_t { Literal, Field, NumberField, DateField, ListField };
        Kind kind;
        std::size_t begin, end; // the piece in m_text, braces included
        std::size_t nameEnd;    // of fields: the name is [begin + 1, nameEnd)
        std::size_t spec;       // of number fields: index into m_specs; of list fields: into m_lists
    };
    std::string_view name(const Piece& piece) const;
    void addField(std::size_t open, std::size_t close);
    std::size_t addList(std::size_t open, std::size_t bar);
    void appendField(std::string& out, const Piece& piece, const FieldValue& value) const;

    std::string m_text;
    std::vector<Piece> m_pieces;
    std::vector<NumberSpec> m_specs;
    std::vector<std::vector<std::string>> m_lists;
};

/// A single value by a format: a bare spec ("2,.", "G", "yyyy-mm-dd") is applied to the value, a text with
/// fields has the field {value}, the empty text gives the plain form, and any other text stands as it is.
std::string formatValue(double value, std::string_view format);

} // namespace chartdraw
