#include "shell/recent_files.h"

#include <algorithm>

#include "base/settings_store.h"
#include "base/text.h"

namespace folioscope {

namespace {

std::string ValueName(std::size_t place)
{
    std::string name = "LastFilesList";
    return name += std::to_string(place + 1);
}

std::string UpperCase(std::string_view text)
{
    std::string upper;
    AppendUpperCase(upper, text);
    return upper;
}

// So many characters from the start of a text, in bytes.
std::size_t BytesOf(std::string_view text, std::size_t characters)
{
    std::size_t at = 0;
    while (characters-- > 0 && at < text.size()) at += Utf8Step(text[at]);
    return std::min(at, text.size());
}

std::size_t CharactersIn(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += Utf8Step(text[at])) ++count;
    return count;
}

}  // namespace

void RecentFiles::Read(const clsSillyFunctions& store)
{
    for (std::size_t place = 0; place < kPlaces; ++place) {
        TaggedValue value;
        store.GetRegistryValue(kSettingsKey, ValueName(place), value, std::string());
        const auto* const text = std::get_if<std::string>(&value);
        strLastFiles_[place] = text != nullptr ? *text : std::string();
    }
}

void RecentFiles::Write(clsSillyFunctions& store) const
{
    for (std::size_t place = 0; place < kPlaces; ++place)
        store.SetRegistryValue(kSettingsKey, ValueName(place), strLastFiles_[place]);
}

void RecentFiles::Add(std::string_view path)
{
    const std::string wanted = UpperCase(path), added(path);
    const auto last = strLastFiles_.end() - 1;  // what stands there goes in any case
    const auto found =
        std::find_if(strLastFiles_.begin(), last, [&](const std::string& file) { return UpperCase(file) == wanted; });
    std::move_backward(strLastFiles_.begin(), found, found + 1);
    strLastFiles_.front() = added;
}

std::string RecentFileCaption(std::size_t place, std::string_view path)
{
    constexpr std::size_t kLongest = 53, kKept = 25;
    std::string caption = "&";
    caption += std::to_string(place + 1);
    caption += ' ';
    caption += path;
    const std::size_t count = CharactersIn(caption);
    if (count <= kLongest) return caption;
    const std::string_view whole = caption;
    std::string_view head = whole.substr(0, BytesOf(whole, kKept)), tail = whole.substr(BytesOf(whole, count - kKept));
    if (const auto slash = head.rfind('/'); slash != std::string_view::npos) head = head.substr(0, slash + 1);
    if (const auto slash = tail.find('/'); slash != std::string_view::npos) tail = tail.substr(slash);
    std::string shortened(head);
    shortened += "...";
    return shortened += tail;
}

}  // namespace folioscope
