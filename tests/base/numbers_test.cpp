#include "base/numbers.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>

namespace folioscope {
namespace {

constexpr auto kLowest = std::numeric_limits<std::int64_t>::min();
constexpr auto kHighest = std::numeric_limits<std::int64_t>::max();

template <typename Number> std::string Formatted(Number value, Picture picture, const NumberStyle& style = {})
{
    std::string out;
    AppendFormatted(out, value, picture, style);
    return out;
}

std::string Whole(std::int64_t value, Picture picture) { return Formatted(value, picture); }

template <typename Number> std::string Plain(Number value, const NumberStyle& style = {})
{
    std::string out;
    if constexpr (std::is_same_v<Number, std::int64_t>)
        AppendNumber(out, value);
    else
        AppendNumber(out, value, style);
    return out;
}

std::string Hex(std::uint64_t value, int digits)
{
    std::string out;
    AppendHex(out, value, digits);
    return out;
}

TEST(Numbers, IntegersInEveryPicture)
{
    struct Case {
        Picture picture;
        std::int64_t value;
        const char* text;
    };
    // clang-format off
    constexpr Case kCases[] = {
        {Picture::Grouped,      0,        "0"},
        {Picture::Grouped,      7,        "7"},
        {Picture::Grouped,      999,      "999"},
        {Picture::Grouped,      1000,     "1,000"},
        {Picture::Grouped,      14400,    "14,400"},
        {Picture::Grouped,      999999,   "999,999"},
        {Picture::Grouped,      1000000,  "1,000,000"},
        {Picture::Grouped,      16777215, "16,777,215"},
        {Picture::Grouped,      -1,       "-1"},
        {Picture::Grouped,      -999,     "-999"},
        {Picture::Grouped,      -1000,    "-1,000"},
        {Picture::Grouped,      kHighest, "9,223,372,036,854,775,807"},
        {Picture::Grouped,      kLowest,  "-9,223,372,036,854,775,808"},
        {Picture::GroupedThree, 0,        "000"},
        {Picture::GroupedThree, 7,        "007"},
        {Picture::GroupedThree, 42,       "042"},
        {Picture::GroupedThree, -7,       "-007"},
        {Picture::GroupedThree, 999,      "999"},
        {Picture::GroupedThree, 1234,     "1,234"},
        {Picture::GroupedThree, 1002003,  "1,002,003"},
        {Picture::Signed,       0,        "0"},
        {Picture::Signed,       5,        "+5"},
        {Picture::Signed,       -5,       "-5"},
        {Picture::Signed,       32767,    "+32,767"},
        {Picture::Signed,       -32768,   "-32,768"},
        {Picture::Signed,       kHighest, "+9,223,372,036,854,775,807"},
        {Picture::Signed,       kLowest,  "-9,223,372,036,854,775,808"},
        {Picture::Plus,         0,        "+0"},
        {Picture::Plus,         5,        "+5"},
        {Picture::Plus,         1234,     "+1,234"},
        {Picture::Plus,         -5,       "-+5"},
        {Picture::Plus,         -1234,    "-+1,234"},
        {Picture::UpToFour,     0,        "0."},
        {Picture::UpToFour,     1000,     "1,000."},
        {Picture::UpToFour,     -1000,    "-1,000."},
        {Picture::One,          0,        "0.0"},
        {Picture::One,          1000,     "1000.0"},
        {Picture::OneToTwo,     -3,       "-3.0"},
        {Picture::OneToThree,   1234567,  "1234567.0"},
        {Picture::OneToFour,    kHighest, "9223372036854775807.0"},
        {Picture::TwoToFour,    1,        "1.00"},
        {Picture::TwoToFour,    kLowest,  "-9223372036854775808.00"},
    };
    // clang-format on
    for (const auto& [picture, value, text] : kCases)
        EXPECT_EQ(Whole(value, picture), text) << value << " in picture " << int(picture);
}

struct RealCase {
    Picture picture;
    double value;
    const char* text;
};

// clang-format off
constexpr RealCase kReals[] = {
    // Without a fraction
    {Picture::Grouped,      0.0,           "0"},
    {Picture::Grouped,      -0.0,          "0"},
    {Picture::Grouped,      0.4999,        "0"},
    {Picture::Grouped,      0.5,           "1"},
    {Picture::Grouped,      1.5,           "2"},
    {Picture::Grouped,      2.5,           "3"},
    {Picture::Grouped,      -0.4,          "0"},
    {Picture::Grouped,      -0.5,          "-1"},
    {Picture::Grouped,      -2.5,          "-3"},
    {Picture::Grouped,      999.5,         "1,000"},
    {Picture::Grouped,      999999.5,      "1,000,000"},
    {Picture::Grouped,      1e15,          "1,000,000,000,000,000"},
    {Picture::Grouped,      1e20,          "100,000,000,000,000,000,000"},
    {Picture::Grouped,      18446744073709551616.0, "18,446,744,073,709,600,000"},
    {Picture::GroupedThree, 0.5,           "001"},
    {Picture::GroupedThree, 9.5,           "010"},
    {Picture::Signed,       0.5,           "+1"},
    {Picture::Signed,       -0.5,          "-1"},
    {Picture::Signed,       0.4,           "0"},
    {Picture::Signed,       -0.4,          "0"},
    {Picture::Plus,         2.5,           "+3"},
    {Picture::Plus,         -2.5,          "-+3"},
    // Up to four decimals, none needed
    {Picture::UpToFour,     105.0,         "105."},
    {Picture::UpToFour,     105.8333333,   "105.8333"},
    {Picture::UpToFour,     1234.5,        "1,234.5"},
    {Picture::UpToFour,     0.25,          "0.25"},
    {Picture::UpToFour,     -0.125,        "-0.125"},
    {Picture::UpToFour,     0.00004,       "0."},
    {Picture::UpToFour,     -0.00004,      "0."},
    {Picture::UpToFour,     0.00005,       "0.0001"},
    {Picture::UpToFour,     1.00004,       "1."},
    {Picture::UpToFour,     1.20004,       "1.2"},
    {Picture::UpToFour,     999.99995,     "1,000."},
    {Picture::UpToFour,     0.15875,       "0.1588"},
    // At least one decimal
    {Picture::One,          0.0,           "0.0"},
    {Picture::One,          0.04,          "0.0"},
    {Picture::One,          0.05,          "0.1"},
    {Picture::One,          0.45,          "0.5"},
    {Picture::One,          9.95,          "10.0"},
    {Picture::One,          -100.25,       "-100.3"},
    {Picture::One,          1234567.0,     "1234567.0"},
    {Picture::OneToTwo,     1.005,         "1.01"},
    {Picture::OneToTwo,     1.004,         "1.0"},
    {Picture::OneToTwo,     1.1,           "1.1"},
    {Picture::OneToTwo,     1.204,         "1.2"},
    {Picture::OneToTwo,     99.995,        "100.0"},
    {Picture::OneToThree,   2.0,           "2.0"},
    {Picture::OneToThree,   0.0005,        "0.001"},
    {Picture::OneToThree,   22.5004,       "22.5"},
    {Picture::OneToThree,   0.3335,        "0.334"},
    {Picture::OneToThree,   -359.9995,     "-360.0"},
    {Picture::OneToFour,    0.00835,       "0.0084"},
    {Picture::OneToFour,    12.34565,      "12.3457"},
    {Picture::OneToFour,    3.00001,       "3.0"},
    {Picture::OneToFour,    3.10001,       "3.1"},
    {Picture::OneToFour,    10.00004,      "10.0"},
    {Picture::OneToFour,    0.00001,       "0.0"},
    // At least two decimals
    {Picture::TwoToFour,    0.0,           "0.00"},
    {Picture::TwoToFour,    1.0 / 120,     "0.0083"},
    {Picture::TwoToFour,    0.01,          "0.01"},
    {Picture::TwoToFour,    0.5,           "0.50"},
    {Picture::TwoToFour,    0.50001,       "0.50"},
    {Picture::TwoToFour,    0.12001,       "0.12"},
    {Picture::TwoToFour,    0.99995,       "1.00"},
    {Picture::TwoToFour,    -0.00005,      "-0.0001"},
    // Far beyond the digits that a picture shows
    {Picture::OneToFour,    1e-300,        "0.0"},
    {Picture::OneToFour,    1e22,          "10000000000000000000000.0"},
};
// clang-format on

TEST(Numbers, RealsInEveryPicture)
{
    for (const auto& [picture, value, text] : kReals)
        EXPECT_EQ(Formatted(value, picture), text) << value << " in picture " << int(picture);
}

// Binary, each of these lies a little below the half that its decimal digits show.
TEST(Numbers, RoundsOnTheDecimalDigitsNotOnTheBinaryValue)
{
    for (const double value : {1.005, 1.015, 1.025, 8.345, 2.675}) {
        char exact[40];
        std::snprintf(exact, sizeof exact, "%.2f", value);
        const std::string rounded = Formatted(value, Picture::OneToTwo);
        EXPECT_GT(std::stod(rounded), value) << exact;
    }
    EXPECT_EQ(Formatted(2.675, Picture::OneToTwo), "2.68");
}

TEST(Numbers, FloatsHaveSevenDigits)
{
    EXPECT_EQ(Formatted(0.15875F, Picture::UpToFour), "0.1588");
    EXPECT_EQ(Formatted(105.833336F, Picture::UpToFour), "105.8333");
    EXPECT_EQ(Formatted(0.1F, Picture::OneToFour), "0.1");
    EXPECT_EQ(Formatted(16777216.0F, Picture::Grouped), "16,777,220");
    EXPECT_EQ(Formatted(123456.78F, Picture::OneToFour), "123456.8");
    EXPECT_EQ(Formatted(1.0F / 120, Picture::TwoToFour), "0.0083");
    EXPECT_EQ(Formatted(-0.5F, Picture::Signed), "-1");
    EXPECT_EQ(Formatted(2.5F, Picture::Grouped), "3");
}

TEST(Numbers, RealsHaveFifteenDigits)
{
    EXPECT_EQ(Formatted(123456789012345678.0, Picture::Grouped), "123,456,789,012,346,000");
    EXPECT_EQ(Formatted(12345678901234.5678, Picture::OneToFour), "12345678901234.6");
    EXPECT_EQ(Formatted(99999999999999.97, Picture::One), "100000000000000.0");
}

TEST(Numbers, SeparatorsComeFromTheStyle)
{
    const NumberStyle german = {".", ","}, french = {"\u00A0", ","}, narrow = {"\u202F", ","}, swiss = {"’", "."};
    EXPECT_EQ(Formatted(std::int64_t{1234567}, Picture::Grouped, german), "1.234.567");
    EXPECT_EQ(Formatted(std::int64_t{1234567}, Picture::Grouped, french), "1\u00A0234\u00A0567");
    EXPECT_EQ(Formatted(std::int64_t{-1234567}, Picture::Signed, narrow), "-1\u202F234\u202F567");
    EXPECT_EQ(Formatted(1234.5, Picture::UpToFour, german), "1.234,5");
    EXPECT_EQ(Formatted(1234.5, Picture::UpToFour, french), "1\u00A0234,5");
    EXPECT_EQ(Formatted(-1234.0, Picture::UpToFour, french), "-1\u00A0234,");
    EXPECT_EQ(Formatted(1234.5F, Picture::UpToFour, swiss), "1’234.5");
    EXPECT_EQ(Formatted(1234.25, Picture::OneToFour, german), "1234,25");
    EXPECT_EQ(Formatted(std::int64_t{3}, Picture::TwoToFour, german), "3,00");
    EXPECT_EQ(Formatted(std::int64_t{1234}, Picture::Grouped, NumberStyle{"", "."}), "1234");
}

TEST(Numbers, AppendBehindWhatIsThere)
{
    std::string out = "(";
    AppendFormatted(out, std::int64_t{1200}, Picture::Grouped, {});
    out += "; ";
    AppendFormatted(out, 0.5, Picture::One, {});
    out += "; ";
    AppendNumber(out, std::int64_t{-3});
    out += "; ";
    AppendHex(out, 0xAB, 4);
    EXPECT_EQ(out, "(1,200; 0.5; -3; 00AB");
}

TEST(Numbers, WithoutAPictureIntegersStandAsTheyAre)
{
    EXPECT_EQ(Plain(std::int64_t{0}), "0");
    EXPECT_EQ(Plain(std::int64_t{-1}), "-1");
    EXPECT_EQ(Plain(std::int64_t{1234567}), "1234567");
    EXPECT_EQ(Plain(kHighest), "9223372036854775807");
    EXPECT_EQ(Plain(kLowest), "-9223372036854775808");
}

TEST(Numbers, WithoutAPictureRealsShowWhatIsSignificant)
{
    EXPECT_EQ(Plain(0.0), "0");
    EXPECT_EQ(Plain(1.0), "1");
    EXPECT_EQ(Plain(0.1), "0.1");
    EXPECT_EQ(Plain(-2.50), "-2.5");
    EXPECT_EQ(Plain(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(Plain(2.0 / 3), "0.666666666666667");
    EXPECT_EQ(Plain(1024.0), "1024");
    EXPECT_EQ(Plain(0.0001), "0.0001");
    EXPECT_EQ(Plain(1.0F / 3), "0.3333333");
    EXPECT_EQ(Plain(0.1F), "0.1");
    EXPECT_EQ(Plain(1234.5, NumberStyle{".", ","}), "1234,5");
    EXPECT_EQ(Plain(1234.5F, NumberStyle{".", ","}), "1234,5");
}

TEST(Numbers, ExponentFormBeginsAtTheCountOfDigits)
{
    EXPECT_EQ(Plain(999999999999999.0), "999999999999999");
    EXPECT_EQ(Plain(999999999999999.9), "1E+15");
    EXPECT_EQ(Plain(1e15), "1E+15");
    EXPECT_EQ(Plain(-1e15), "-1E+15");
    EXPECT_EQ(Plain(18446744073709551616.0), "1.84467440737096E+19");
    EXPECT_EQ(Plain(1.7976931348623157e308), "1.79769313486232E+308");
    EXPECT_EQ(Plain(2.5e20, NumberStyle{".", ","}), "2,5E+20");
    EXPECT_EQ(Plain(9999999.0F), "9999999");
    EXPECT_EQ(Plain(1e7F), "1E+07");
    EXPECT_EQ(Plain(16777216.0F), "1.677722E+07");
    EXPECT_EQ(Plain(0.00001), "1E-05");
    EXPECT_EQ(Plain(0.0000123F), "1.23E-05");
    EXPECT_EQ(Plain(-2.5e-100), "-2.5E-100");
}

TEST(Numbers, Hexadecimal)
{
    EXPECT_EQ(Hex(0, 2), "00");
    EXPECT_EQ(Hex(0, 0), "");
    EXPECT_EQ(Hex(0xA, 1), "A");
    EXPECT_EQ(Hex(0xA, 2), "0A");
    EXPECT_EQ(Hex(0xD3A8AF, 6), "D3A8AF");
    EXPECT_EQ(Hex(0x7FFFFFFE, 8), "7FFFFFFE");
    EXPECT_EQ(Hex(0x12345, 2), "12345");
    EXPECT_EQ(Hex(0xFFFFFFFFFFFFFFFF, 2), "FFFFFFFFFFFFFFFF");
}

TEST(Numbers, StoringToAnIntegerRoundsHalfToEven)
{
    struct Case {
        double value;
        std::int64_t stored;
    };
    // clang-format off
    constexpr Case kCases[] = {
        {0.0, 0},       {0.5, 0},      {1.5, 2},       {2.5, 2},       {3.5, 4},        {4.5, 4},
        {-0.5, 0},      {-1.5, -2},    {-2.5, -2},     {-3.5, -4},     {0.49999, 0},    {0.50001, 1},
        {-0.50001, -1}, {2.4, 2},      {2.6, 3},       {-2.4, -2},     {-2.6, -3},      {7.0, 7},
        {1440.5, 1440}, {1441.5, 1442}, {-32768.5, -32768}, {65534.5, 65534}, {65535.5, 65536},
        {4503599627370495.5, 4503599627370496}, {9007199254740993.0, 9007199254740992},
        {1e18, 1000000000000000000}, {-1e18, -1000000000000000000},
    };
    // clang-format on
    for (const auto& [value, stored] : kCases) EXPECT_EQ(RoundHalfToEven(value), stored) << value;
}

// A second way to the same texts: digits of the C library, then schoolbook rounding on a text.

std::string DecimalText(double value, int significant)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.*E", significant - 1, std::fabs(value));
    const std::string parts = text;
    const auto mark = parts.find('E');
    const int exponent = std::stoi(parts.substr(mark + 1));
    const std::string digits = parts.substr(0, 1) + parts.substr(2, mark - 2);
    const std::string padded = std::string(40, '0') + digits + std::string(40, '0');
    const auto point = static_cast<std::size_t>(41 + exponent);
    return padded.substr(0, point) + "." + padded.substr(point);
}

std::string RoundedText(std::string text, int decimals)
{
    const auto cut = text.find('.') + 1 + static_cast<std::size_t>(decimals);
    const bool up = text[cut] >= '5';
    text.resize(cut);
    for (auto at = text.size(); up && at-- > 0;) {
        if (text[at] == '.') continue;
        if (text[at] != '9') {
            ++text[at];
            break;
        }
        text[at] = '0';
    }
    return text;
}

std::string ExpectedText(double value, int significant, int least, int most)
{
    std::string text = RoundedText(DecimalText(value, significant), most);
    const bool zero = text.find_first_not_of("0.") == std::string::npos;
    const auto fewest = text.find('.') + 1 + static_cast<std::size_t>(least);
    while (text.size() > fewest && text.back() == '0') text.pop_back();
    text.erase(0, std::min(text.find_first_not_of('0'), text.find('.') - 1));
    return (value < 0 && !zero ? "-" : "") + text;
}

struct DecimalPicture {
    Picture picture;
    int least, most;
};
constexpr std::array kDecimalPictures = {DecimalPicture{Picture::One, 1, 1}, DecimalPicture{Picture::OneToTwo, 1, 2},
                                         DecimalPicture{Picture::OneToThree, 1, 3},
                                         DecimalPicture{Picture::OneToFour, 1, 4},
                                         DecimalPicture{Picture::TwoToFour, 2, 4}};

// Numbers of few decimals, so that halves and runs of nines and zeros are frequent.
template <typename Check> void ForManyDecimals(Check check)
{
    std::uint64_t state = 1;
    for (int i = 0; i < 20000 && !testing::Test::HasFatalFailure(); ++i) {
        state = state * 6364136223846793005U + 1442695040888963407U;
        const auto bits = state >> 20;
        const double scale = std::pow(10.0, static_cast<double>(bits % 8));
        const auto range = static_cast<std::uint64_t>(std::pow(10.0, static_cast<double>(bits / 8 % 9)));
        const auto whole = static_cast<double>((bits >> 8) % range);
        check((bits & 1 ? -whole : whole) / scale);
    }
    for (int i = 0; i < 2000 && !testing::Test::HasFatalFailure(); ++i)
        check(i / 20.0), check(-i / 200.0), check(i + 0.99995), check(i + 0.00004);
}

TEST(Numbers, AgreeWithSchoolbookRounding)
{
    ForManyDecimals([](double value) {
        for (const auto& [picture, least, most] : kDecimalPictures) {
            ASSERT_EQ(Formatted(value, picture), ExpectedText(value, 15, least, most));
            const auto narrow = static_cast<float>(value);
            ASSERT_EQ(Formatted(narrow, picture), ExpectedText(double{narrow}, 7, least, most));
        }
    });
}

TEST(Numbers, WithoutAPictureAgreeWithTheGeneralFormOfTheLibrary)
{
    const auto check = [](double value) {
        if (value == 0) return;
        char text[40];
        std::snprintf(text, sizeof text, "%.15G", value);
        ASSERT_EQ(Plain(value), text);
        const auto narrow = static_cast<float>(value);
        if (narrow == 0 || !std::isfinite(narrow)) return;
        std::snprintf(text, sizeof text, "%.7G", double{narrow});
        ASSERT_EQ(Plain(narrow), text);
    };
    ForManyDecimals(check);
    for (int power = -300; power <= 300; ++power)
        check(std::pow(10.0, power)), check(-1.2345678901234567 * std::pow(2.0, power));
}

}  // namespace
}  // namespace folioscope
