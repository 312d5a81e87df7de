#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace folioscope {

namespace {

// 0.digits x 10^exponent; no digits: zero.
struct Decimal {
    bool negative = false;
    std::array<char, 24> digits{};
    int count = 0;
    int exponent = 0;
};

struct Layout {
    bool grouped;
    int wholeDigits, leastDecimals, mostDecimals;
    std::string_view positive, negative;
};

// clang-format off
constexpr Layout kLayouts[] = {
    /* Grouped      */ {true,  1, 0, 0, "",  "-"},
    /* GroupedThree */ {true,  3, 0, 0, "",  "-"},
    /* Signed       */ {true,  1, 0, 0, "+", "-"},
    /* Plus         */ {true,  1, 0, 0, "+", "-+"},
    /* UpToFour     */ {true,  1, 0, 4, "",  "-"},
    /* One          */ {false, 1, 1, 1, "",  "-"},
    /* OneToTwo     */ {false, 1, 1, 2, "",  "-"},
    /* OneToThree   */ {false, 1, 1, 3, "",  "-"},
    /* OneToFour    */ {false, 1, 1, 4, "",  "-"},
    /* TwoToFour    */ {false, 1, 2, 4, "",  "-"},
};
// clang-format on

void DropTrailingZeros(Decimal& decimal)
{
    while (decimal.count > 0 && decimal.digits[static_cast<std::size_t>(decimal.count - 1)] == '0') --decimal.count;
}

Decimal DecimalOf(std::int64_t value)
{
    Decimal decimal;
    decimal.negative = value < 0;
    const auto magnitude = decimal.negative ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    if (magnitude == 0) return decimal;
    const auto end = std::to_chars(decimal.digits.data(), decimal.digits.data() + decimal.digits.size(), magnitude).ptr;
    decimal.count = decimal.exponent = static_cast<int>(end - decimal.digits.data());
    return decimal;
}

Decimal DecimalOf(double value, int significant)
{
    Decimal decimal;
    if (!std::isfinite(value) || value == 0) return decimal;
    decimal.negative = value < 0;
    std::array<char, 40> text;  // d.ddddE+xx
    const auto end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                   std::chars_format::scientific, significant - 1)
                         .ptr;
    const auto mark = std::find(text.data(), end, 'e');
    std::from_chars(mark[1] == '+' ? mark + 2 : mark + 1, end, decimal.exponent);
    ++decimal.exponent;
    for (const char* c = text.data(); c != mark; ++c)
        if (*c != '.') decimal.digits[static_cast<std::size_t>(decimal.count++)] = *c;
    DropTrailingZeros(decimal);
    return decimal;
}

char DigitAt(const Decimal& decimal, int place)
{
    return place >= 0 && place < decimal.count ? decimal.digits[static_cast<std::size_t>(place)] : '0';
}

void RoundTo(Decimal& decimal, int decimals)
{
    const int kept = decimal.exponent + decimals;
    if (kept >= decimal.count) return;
    const bool up = kept >= 0 && DigitAt(decimal, kept) >= '5';
    decimal.count = std::max(kept, 0);
    int place = decimal.count - 1;
    for (; up && place >= 0 && decimal.digits[static_cast<std::size_t>(place)] == '9'; --place) --decimal.count;
    if (up && place >= 0) {
        ++decimal.digits[static_cast<std::size_t>(place)];
    } else if (up) {
        decimal.digits[0] = '1';
        decimal.count = 1;
        decimal.exponent = kept == 0 ? 1 - decimals : decimal.exponent + 1;
    }
    DropTrailingZeros(decimal);
    if (decimal.count == 0) decimal = {};
}

void AppendDecimal(std::string& out, Decimal decimal, Picture picture, const NumberStyle& style)
{
    const Layout& layout = kLayouts[static_cast<std::size_t>(picture)];
    RoundTo(decimal, layout.mostDecimals);
    const bool zero = decimal.count == 0;
    if (!(zero && picture == Picture::Signed)) out += decimal.negative && !zero ? layout.negative : layout.positive;
    const int whole = zero ? 0 : std::max(decimal.exponent, 0);
    const int shown = std::max(whole, layout.wholeDigits);
    for (int i = 0; i < shown; ++i) {
        out += i < shown - whole ? '0' : DigitAt(decimal, i - (shown - whole));
        const int left = shown - 1 - i;
        if (layout.grouped && left > 0 && left % 3 == 0) out += style.thousands;
    }
    if (layout.mostDecimals == 0) return;
    out += style.decimal;
    const int decimals = std::max(layout.leastDecimals, zero ? 0 : decimal.count - decimal.exponent);
    for (int i = 0; i < decimals; ++i) out += DigitAt(decimal, decimal.exponent + i);
}

void AppendGeneral(std::string& out, const Decimal& decimal, int significant, const NumberStyle& style)
{
    if (decimal.count == 0) {
        out += '0';
        return;
    }
    if (decimal.negative) out += '-';
    const bool scientific = decimal.exponent > significant || decimal.exponent < -3;
    const int whole = scientific ? 1 : decimal.exponent;
    if (whole <= 0) out += '0';
    for (int i = 0; i < whole; ++i) out += DigitAt(decimal, i);
    if (decimal.count > whole) out += style.decimal;
    for (int i = whole; i < decimal.count; ++i) out += DigitAt(decimal, i);
    if (!scientific) return;
    const int power = decimal.exponent - 1;
    out += power < 0 ? "E-" : "E+";
    if (std::abs(power) < 10) out += '0';
    AppendNumber(out, std::int64_t{std::abs(power)});
}

constexpr std::int64_t kThousand = 1000;

void AppendThreeDigits(std::string& out, std::int64_t value)
{
    out += static_cast<char>('0' + value / 100);
    out += static_cast<char>('0' + value / 10 % 10);
    out += static_cast<char>('0' + value % 10);
}

// Most numbers are whole, and have no more than two groups of digits.
bool IsSmall(std::int64_t value, Picture picture)
{
    return (picture == Picture::Grouped || picture == Picture::GroupedThree) && value >= 0 &&
           value < kThousand * kThousand;
}

void AppendSmall(std::string& out, std::int64_t value, Picture picture, const NumberStyle& style)
{
    if (value >= kThousand) {
        AppendNumber(out, value / kThousand);
        out += style.thousands;
        AppendThreeDigits(out, value % kThousand);
    } else if (picture == Picture::GroupedThree) {
        AppendThreeDigits(out, value);
    } else {
        AppendNumber(out, value);
    }
}

}  // namespace

void AppendFormatted(std::string& out, std::int64_t value, Picture picture, const NumberStyle& style)
{
    if (IsSmall(value, picture)) return AppendSmall(out, value, picture, style);
    AppendDecimal(out, DecimalOf(value), picture, style);
}

void AppendFormatted(std::string& out, double value, Picture picture, const NumberStyle& style)
{
    AppendDecimal(out, DecimalOf(value, 15), picture, style);
}

void AppendFormatted(std::string& out, float value, Picture picture, const NumberStyle& style)
{
    AppendDecimal(out, DecimalOf(double{value}, 7), picture, style);
}

void AppendNumber(std::string& out, std::int64_t value)
{
    std::array<char, 20> text;
    out.append(text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr);
}

void AppendNumber(std::string& out, double value, const NumberStyle& style)
{
    AppendGeneral(out, DecimalOf(value, 15), 15, style);
}

void AppendNumber(std::string& out, float value, const NumberStyle& style)
{
    AppendGeneral(out, DecimalOf(double{value}, 7), 7, style);
}

void AppendHex(std::string& out, std::uint64_t value, int digits)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::array<char, 16> text;
    int count = 0;
    for (; (value != 0 || count < digits) && count < 16; value >>= 4)
        text[static_cast<std::size_t>(count++)] = kDigits[value & 15];
    while (count > 0) out += text[static_cast<std::size_t>(--count)];
}

std::int64_t RoundHalfToEven(double value)
{
    const double floor = std::floor(value), rest = value - floor;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(floor, 2) != 0);
    return static_cast<std::int64_t>(floor) + (up ? 1 : 0);
}

}  // namespace folioscope
