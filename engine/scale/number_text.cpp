#include "engine/scale/number_text.h"

#include "engine/data/no_value.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace chartdraw {
namespace {

constexpr int kMaxDigits = 20;
constexpr int kGroup = 3;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The shortest decimal digits that stand for a double: 0.d1d2d3... times 10 to the power of `point`.
struct Decimal {
    std::array<char, 20> digits{};
    int count = 0; // 0: the value is zero
    int point = 0;
    bool negative = false;

    explicit Decimal(double value);
    /// Keeps the first `keep` digits, rounded half away from zero.
    void round(int keep);
    char digit(int index) const {
        return index >= 0 && index < count ? digits[static_cast<std::size_t>(index)] : '0';
    }
    /// The power of ten of the first digit.
    int exponent() const { return count == 0 ? 0 : point - 1; }
};

Decimal::Decimal(double value) {
    if (value == 0 || !std::isfinite(value))
        return;
    std::array<char, 32> text{};
    const char* end =
        std::to_chars(text.data(), text.data() + text.size(), std::abs(value), std::chars_format::scientific)
            .ptr;
    const char* at = text.data();
    for (; at != end && *at != 'e'; ++at)
        if (isDigit(*at))
            digits[static_cast<std::size_t>(count++)] = *at;
    at += at[1] == '+' ? 2 : 1; // from_chars takes no plus sign
    std::from_chars(at, end, point);
    ++point;
    negative = value < 0;
    round(count);
}

void Decimal::round(int keep) {
    const bool up = keep >= 0 && digit(keep) >= '5';
    count = std::clamp(keep, 0, count);
    if (up) {
        while (count > 0 && digit(count - 1) == '9')
            --count;
        if (count > 0) {
            ++digits[static_cast<std::size_t>(count - 1)];
        } else {
            digits[0] = '1';
            count = 1;
            ++point;
        }
    }
    while (count > 0 && digit(count - 1) == '0')
        --count;
    if (count == 0) {
        point = 0;
        negative = false;
    }
}

void appendDecimals(std::string& out, const Decimal& number, int first, int decimals,
                    const NumberSpec& spec) {
    if (decimals <= 0)
        return;
    out += spec.point.view();
    for (int i = 0; i < decimals; ++i)
        out += number.digit(first + i);
}

void appendPositional(std::string& out, const Decimal& number, int decimals, const NumberSpec& spec) {
    if (number.point <= 0)
        out += '0';
    for (int i = 0; i < number.point; ++i) {
        if (i > 0 && (number.point - i) % kGroup == 0)
            out += spec.thousand.view();
        out += number.digit(i);
    }
    appendDecimals(out, number, number.point, decimals, spec);
}

void appendExponent(std::string& out, Decimal number, int decimals, const NumberSpec& spec) {
    const int power = spec.power.value_or(number.exponent());
    number.point -= number.count > 0 ? power : 0;
    appendPositional(out, number, decimals, spec);
    out += 'e';
    std::array<char, 8> text{};
    out.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), power).ptr);
}

bool needsExponent(const Decimal& number) {
    return number.exponent() < -5 || number.exponent() >= 15;
}

/// Without trailing zeros, and with an exponent outside the usual range.
void appendShort(std::string& out, const Decimal& number, const NumberSpec& spec) {
    if (needsExponent(number))
        appendExponent(out, number, number.count - 1, spec);
    else
        appendPositional(out, number, std::max(0, number.count - number.point), spec);
}

void roundFor(Decimal& number, const NumberSpec& spec, int digits) {
    switch (spec.form) {
    case NumberSpec::Form::Plain:
    case NumberSpec::Form::Precision:
        return number.round(std::max(1, digits));
    case NumberSpec::Form::General:
        return number.round(std::max({1, digits, number.point > 15 ? 0 : number.point}));
    case NumberSpec::Form::Fixed:
    case NumberSpec::Form::AtMost:
        return number.round(number.point + digits);
    case NumberSpec::Form::Exponent:
        return number.round(digits + 1 + (spec.power ? number.exponent() - *spec.power : 0));
    }
}

void appendMagnitude(std::string& out, const Decimal& number, const NumberSpec& spec, int digits) {
    switch (spec.form) {
    case NumberSpec::Form::Plain:
    case NumberSpec::Form::General:
    case NumberSpec::Form::AtMost:
        return appendShort(out, number, spec);
    case NumberSpec::Form::Fixed:
        return appendPositional(out, number, digits, spec);
    case NumberSpec::Form::Exponent:
        return appendExponent(out, number, digits, spec);
    case NumberSpec::Form::Precision:
        if (needsExponent(number))
            return appendExponent(out, number, digits - 1, spec);
        return appendPositional(out, number, std::max(0, digits - 1 - number.exponent()), spec);
    }
}

/// Takes one character of UTF-8, or a single byte where it is none, off the front of `text`.
Glyph takeGlyph(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t wanted = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : lead >= 0xc0 ? 2 : 1;
    Glyph glyph;
    do {
        glyph.bytes[glyph.size++] = text.front();
        text.remove_prefix(1);
    } while (glyph.size < wanted && !text.empty() &&
             (static_cast<unsigned char>(text.front()) & 0xc0) == 0x80);
    return glyph;
}

bool mayBeSeparator(char c) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return !letter && !isDigit(c) && c != '{' && c != '}' && c != '|';
}

/// Takes the digits off the front of `text`; `otherwise` if there are none.
int takeCount(std::string_view& text, int otherwise) {
    if (text.empty() || !isDigit(text.front()))
        return otherwise;
    int count = 0;
    for (; !text.empty() && isDigit(text.front()); text.remove_prefix(1))
        count = std::min(kMaxDigits, count * 10 + (text.front() - '0'));
    return count;
}

bool takeMode(std::string_view& text, NumberSpec& spec) {
    if (text.empty())
        return false;
    int otherwise = -1;
    switch (text.front()) {
    case 'G':
        spec.form = NumberSpec::Form::General, otherwise = 6;
        break;
    case 'P':
        spec.form = NumberSpec::Form::Precision, otherwise = 3;
        break;
    case 'E':
        spec.form = NumberSpec::Form::Exponent, otherwise = 3;
        break;
    default:
        spec.form = NumberSpec::Form::Fixed;
    }
    if (otherwise >= 0)
        text.remove_prefix(1);
    spec.digits = takeCount(text, otherwise);
    return spec.digits >= 0;
}

} // namespace

bool parseNumberSpec(std::string_view text, NumberSpec& spec) {
    NumberSpec read;
    if (!takeMode(text, read))
        return false;
    for (Glyph* part : {&read.thousand, &read.point, &read.negative}) {
        if (text.empty())
            break;
        if (!mayBeSeparator(text.front()))
            return false;
        const Glyph glyph = takeGlyph(text);
        if (part == &read.negative && glyph.view() == "+")
            read.alwaysSigned = true;
        else if (glyph.view() != "~")
            *part = glyph;
    }
    if (!text.empty())
        return false;
    spec = read;
    return true;
}

void appendNumber(std::string& out, double value, const NumberSpec& spec) {
    if (!isValue(value))
        return;
    Decimal number(value);
    NumberSpec used = spec;
    const bool decimals = spec.form == NumberSpec::Form::Fixed || spec.form == NumberSpec::Form::AtMost;
    if (decimals && number.point > 21)
        used.form = NumberSpec::Form::Plain, used.digits = 15;
    const bool significant = used.form == NumberSpec::Form::Precision;
    const int digits = std::clamp(used.digits, significant ? 1 : 0, kMaxDigits);
    roundFor(number, used, digits);
    if (number.negative)
        out += used.negative.view();
    else if (used.alwaysSigned && number.count > 0)
        out += '+';
    appendMagnitude(out, number, used, digits);
}

std::string numberText(double value, const NumberSpec& spec) {
    std::string out;
    appendNumber(out, value, spec);
    return out;
}

int decimalsOf(double value) {
    Decimal number(value);
    number.round(15);
    return number.count - number.point;
}

int exponentOf(double value) {
    Decimal number(value);
    number.round(15);
    return number.exponent();
}

} // namespace chartdraw
