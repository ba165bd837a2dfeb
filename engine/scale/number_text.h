#pragma once
// Numbers as text, the same in every locale: the number forms of the format language and the tick labels are
// made here. Rounding is done on the shortest decimal digits of a value, half away from zero, so that 2.5
// gives 3 and 1.005 with two decimals gives 1.01, as a reader of the chart computes it.

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace chartdraw {

/// One character of UTF-8 text; empty means none.
struct Glyph {
    std::array<char, 4> bytes{};
    std::uint8_t size = 0;

    constexpr Glyph() = default;
    constexpr explicit Glyph(char c) : bytes{c}, size(1) {}
    std::string_view view() const { return {bytes.data(), size}; }
};

/// How a number is written.
struct NumberSpec {
    enum class Form : std::uint8_t {
        Plain,     ///< up to `digits` significant digits, no trailing zeros, exponent outside 1e-5..1e15
        General,   ///< as Plain, but the digits before the point are never rounded away below 1e15
        Fixed,     ///< exactly `digits` decimals; from 1e21 on as Plain
        AtMost,    ///< up to `digits` decimals, no trailing zeros; from 1e21 on as Plain
        Exponent,  ///< d.ddde5 with `digits` decimals; at `power` of ten, where that is given
        Precision, ///< exactly `digits` significant digits, trailing zeros kept
    };
    Form form = Form::Plain;
    int digits = 15;            ///< limited to 0..20, as the form's comment tells
    std::optional<int> power{}; ///< of ten, that numbers beside each other share: 0.5e-9 beside 1.0e-9
    Glyph thousand{};           ///< between groups of three digits before the point; none
    Glyph point{'.'};           ///< decimal point
    Glyph negative{'-'};        ///< before a negative number
    bool alwaysSigned = false;  ///< "+" before a number above zero

    static NumberSpec plain() { return {}; }
    static NumberSpec fixed(int decimals) { return {.form = Form::Fixed, .digits = decimals}; }
    /// All at 10 to the `power`, as finely as `decimals` of the number itself tell.
    static NumberSpec atPower(int power, int decimals) {
        return {.form = Form::Exponent, .digits = std::max(0, power + decimals), .power = power};
    }
    static NumberSpec atMost(int decimals) { return {.form = Form::AtMost, .digits = decimals}; }
};

/// Reads a number spec of the format language (see format.h); false, and `spec` untouched, where `text` is
/// none.
bool parseNumberSpec(std::string_view text, NumberSpec& spec);

/// Appends `value` as `spec` tells; nothing for NaN, an infinity or kNoValue. A value that rounds to zero has
/// no sign.
void appendNumber(std::string& out, double value, const NumberSpec& spec = {});
std::string numberText(double value, const NumberSpec& spec = {});

/// The number of decimals that it takes to write `value` with at most 15 significant digits: 2 for 0.25,
/// 0 for 7, -3 for 5000. 0 for zero and for what is no finite number.
int decimalsOf(double value);

/// The power of ten of the first digit of `value` so written: 2 for 250, -1 for 0.25; 0 for zero and for what
/// is no finite number.
int exponentOf(double value);

} // namespace chartdraw
