#include "analysis/render/property_text.h"

#include <algorithm>

#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::string_view kDots = "...";

// The place behind a marker that starts at `at`: the marker and two characters, whatever they are.
std::size_t BehindMarker(std::string_view text, std::size_t at)
{
    at += kMarker.size();
    for (std::size_t units = 0; units < 2 && at < text.size();) {
        const std::size_t step = Utf8Step(text[at]);
        units += step == 4 ? 2 : 1;
        at += step;
    }
    return std::min(at, text.size());
}

std::size_t AppendBetweenMarkers(std::string& out, std::string_view text)
{
    std::size_t from = 0;
    for (std::size_t at; (at = text.find(kMarker, from)) != std::string_view::npos; from = BehindMarker(text, at))
        out += text.substr(from, at - from);
    return from;
}

}  // namespace

void PropertyText::Clear()
{
    text_.clear();
    position_ = 1;
}

std::string& PropertyText::Open()
{
    opened_ = text_.size();
    return text_;
}

void PropertyText::Close()
{
    const std::size_t length = Utf16Length(std::string_view(text_).substr(opened_));
    if (position_ + length <= kCapacity) {
        position_ += length;
        return;
    }
    text_.resize(opened_);
    if (position_ + kDots.size() > kCapacity) return;
    text_ += kDots;
    position_ += kDots.size();
}

void PropertyText::Append(std::string_view text)
{
    Open() += text;
    Close();
}

std::string StripMarkup(std::string_view marked)
{
    std::string plain;
    const std::size_t from = AppendBetweenMarkers(plain, marked);
    if (Utf16Length(marked.substr(from)) > 1) plain += marked.substr(from);
    return plain;
}

void AppendWithoutMarkup(std::string& out, std::string_view line)
{
    const std::size_t from = AppendBetweenMarkers(out, line);
    out += line.substr(from);
}

}  // namespace folioscope
