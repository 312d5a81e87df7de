#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace folioscope {

inline constexpr std::string_view kCrLf = "\r\n";

// Markers travel inside a property text and take effect only where it is shown.
inline constexpr std::string_view kMarker = "°^°";
inline constexpr std::string_view kBold = "°^°B~", kNormal = "°^°N~";
inline constexpr std::string_view kRed = "°^°R~", kBlack = "°^°S~";
inline constexpr std::string_view kLink = "°^°H~", kLinkEnd = "°^°L~";

// The description of one record while it is written: at most 65,535 characters, markers included. An append that no
// longer fits leaves three dots, as long as these fit.
class PropertyText {
public:
    static constexpr std::size_t kCapacity = 65'536;

    void Clear();
    // Counts a text that somebody else keeps, such as the head lines, which a formula gives.
    void Pass(std::size_t characters) { position_ += characters; }
    void Append(std::string_view text);

    // One append made of pieces: write to the end of what Open gives, then Close.
    std::string& Open();
    std::string& Opened() { return text_; }
    void Close();

    std::string_view Text() const { return text_; }
    std::size_t Position() const { return position_; }  // of the next character, from 1

private:
    std::string text_;
    std::size_t opened_ = 0;
    std::size_t position_ = 1;
};

// The text without its markers. What follows the last marker, or the whole text without one, is lost if it is a
// single character, as in the pane.
std::string StripMarkup(std::string_view marked);

// The same for one line of a text file, where such a character counts.
void AppendWithoutMarkup(std::string& out, std::string_view line);

}  // namespace folioscope
