#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace folioscope {

// The separators in force. The core never asks the locale itself: whoever owns the settings fills this in.
struct NumberStyle {
    std::string thousands = ",";
    std::string decimal = ".";
};

// How a number is laid out. Pictures that differ only in the count of optional leading digits are one.
enum class Picture : std::uint8_t {
    Grouped,       // #,##0 and all its longer forms
    GroupedThree,  // #,000: at least three digits
    Signed,        // +##,##0;-##,##0;0
    Plus,          // +#,##0: the plus is a literal, so that -5 gives -+5
    UpToFour,      // #,##0.#### (leaves the separator behind a whole number)
    One,           // 0.0
    OneToTwo,      // 0.0#
    OneToThree,    // 0.0## and #0.0##
    OneToFour,     // 0.0###
    TwoToFour,     // 0.00##
};

// Rounds half away from zero at the last shown digit, on the decimal digits of the value: all digits of an
// integer, 15 significant ones of a double, 7 of a float.
void AppendFormatted(std::string& out, std::int64_t value, Picture picture, const NumberStyle& style);
void AppendFormatted(std::string& out, double value, Picture picture, const NumberStyle& style);
void AppendFormatted(std::string& out, float value, Picture picture, const NumberStyle& style);

// A number without a picture: no trailing zeros, exponent form from 1E+15 (double) or 1E+7 (float) on.
void AppendNumber(std::string& out, std::int64_t value);
void AppendNumber(std::string& out, double value, const NumberStyle& style);
void AppendNumber(std::string& out, float value, const NumberStyle& style);

// Upper-case hexadecimal, at least `digits` long.
void AppendHex(std::string& out, std::uint64_t value, int digits);

// Storing to an integer rounds half to even.
std::int64_t RoundHalfToEven(double value);

}  // namespace folioscope
