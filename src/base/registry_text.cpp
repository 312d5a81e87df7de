#include "base/registry_text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"

namespace folioscope {
namespace {

struct Root {
    std::string_view name;
    std::uint32_t handle;
};

// clang-format off
constexpr Root kRoots[] = {
    {"HKEY_CLASSES_ROOT",     0x80000000},
    {"HKEY_CURRENT_USER",     0x80000001},
    {"HKEY_LOCAL_MACHINE",    0x80000002},
    {"HKEY_USERS",            0x80000003},
    {"HKEY_PERFORMANCE_DATA", 0x80000004},
    {"HKEY_CURRENT_CONFIG",   0x80000005},
    {"HKEY_DYN_DATA",         0x80000006},
};

struct Escape {
    char character, letter;
};

constexpr Escape kEscapes[] = {
    {'\\', '\\'},
    {'\n', 'n'},
    {'\r', 'r'},
    {'\t', 't'},
};
// clang-format on

constexpr std::string_view kText = "sz:";
constexpr std::string_view kNumber = "dword:";

bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

// Bytes of the well-formed UTF-8 character at the front of a text that isn't empty; 0 if there is none.
std::size_t CharacterLength(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned first = byte(0);
    if (first < 0x80) return 1;
    const std::size_t length = Utf8Step(text[0]);
    if (length == 1 || first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80) return 0;
    const unsigned second = byte(1);
    const bool wrong = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                       (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
    return wrong ? 0 : length;
}

template <typename Refuses> bool IsText(std::string_view text, Refuses refuses)
{
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        if (length == 0 || refuses(text[0])) return false;
        text.remove_prefix(length);
    }
    return true;
}

void AppendByte(std::string& out, char c)
{
    out += "\\x";
    AppendHex(out, static_cast<unsigned char>(c), 2);
}

enum class Part { Name, Text };

void AppendEscaped(std::string& out, std::string_view text, Part part)
{
    for (std::size_t at = 0; at < text.size();) {
        const char c = text[at];
        const std::size_t length = CharacterLength(text.substr(at));
        const bool blankAtEnd = c == ' ' && (at == 0 || at + 1 == text.size());
        const bool divides = part == Part::Name && (c == '=' || (c == '[' && at == 0));
        const auto escape = std::ranges::find(kEscapes, c, &Escape::character);
        if (escape != std::end(kEscapes))
            (out += '\\') += escape->letter;
        else if (length == 0 || IsControl(c) || blankAtEnd || divides)
            AppendByte(out, c);
        else
            out += text.substr(at, length);
        at += length == 0 ? 1 : length;
    }
}

void AppendData(std::string& out, const RegistryData& data)
{
    if (const auto* const text = std::get_if<std::string>(&data)) {
        out += kText;
        AppendEscaped(out, *text, Part::Text);
    } else if (const auto* const number = std::get_if<std::int32_t>(&data)) {
        out += kNumber;
        AppendNumber(out, std::int64_t{*number});
    }
}

std::optional<char> ByteOf(std::string_view digits)
{
    unsigned value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (digits.size() != 2 || error != std::errc() || end != digits.data() + 2) return {};
    return static_cast<char>(value);
}

std::optional<std::string> Unescaped(std::string_view text)
{
    std::string out;
    while (!text.empty()) {
        const auto plain = std::min(text.find('\\'), text.size());
        out += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty()) break;
        if (text.size() < 2) return {};
        const auto escape = std::ranges::find(kEscapes, text[1], &Escape::letter);
        const auto byte = text[1] == 'x' ? ByteOf(text.substr(2, 2)) : std::nullopt;
        if (escape == std::end(kEscapes) && !byte) return {};
        out += byte ? *byte : escape->character;
        text.remove_prefix(byte ? 4 : 2);
    }
    return out;
}

std::optional<RegistryData> DataOf(std::string_view text)
{
    if (text.starts_with(kText)) return Unescaped(TrimLine(text.substr(kText.size())));
    if (!text.starts_with(kNumber)) return {};
    text = TrimLine(text.substr(kNumber.size()));
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return {};
    if (number < std::numeric_limits<std::int32_t>::min() || number > std::numeric_limits<std::uint32_t>::max())
        return {};
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(number));
}

bool AddEntry(RegistryValues& values, std::string_view line)
{
    const auto divider = line.find('=');
    if (divider == std::string_view::npos) return false;
    auto name = Unescaped(TrimLine(line.substr(0, divider)));
    auto data = DataOf(TrimLine(line.substr(divider + 1)));
    if (!name || !data) return false;
    values.insert_or_assign(std::move(*name), std::move(*data));
    return true;
}

// The key that a line in brackets begins, or none.
RegistryValues* BeginKey(RegistryKeys& keys, std::string_view line)
{
    if (!line.ends_with(']')) return nullptr;
    const std::string name(line.substr(1, line.size() - 2));
    if (CanonicalKey(name + '\\') != name) return nullptr;
    return &keys[name];
}

}  // namespace

std::uint32_t RootHandle(std::string_view fullKey)
{
    const auto end = fullKey.find('\\');
    if (end == std::string_view::npos) return 0;
    const auto root = std::ranges::find(kRoots, fullKey.substr(0, end), &Root::name);
    return root == std::end(kRoots) ? 0 : root->handle;
}

std::optional<std::string> CanonicalKey(std::string_view fullKey)
{
    if (RootHandle(fullKey) == 0 || !IsText(fullKey, IsControl)) return {};
    std::string key;
    for (std::size_t at = 0; at < fullKey.size();) {
        const auto end = std::min(fullKey.find('\\', at), fullKey.size());
        if (end > at && at > 0) key += '\\';
        key += fullKey.substr(at, end - at);
        at = end + 1;
    }
    return key;
}

RegistryContent ParseRegistry(std::string_view text)
{
    if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    const auto isNoText = [](char c) { return IsControl(c) && c != '\n' && c != '\r' && c != '\t'; };
    if (!IsText(text, isNoText)) return {{}, true};

    RegistryContent content;
    RegistryValues* values = nullptr;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        const auto line = TrimLine(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty()) continue;
        if (line.front() == '[') {
            values = BeginKey(content.keys, line);
            content.damaged |= values == nullptr;
        } else if (values == nullptr || !AddEntry(*values, line)) {
            content.damaged = true;
        }
    }
    return content;
}

std::string RegistryText(const RegistryKeys& keys)
{
    std::string out;
    for (const auto& [key, values] : keys) {
        if (!out.empty()) out += '\n';
        ((out += '[') += key) += "]\n";
        for (const auto& [name, data] : values) {
            AppendEscaped(out, name, Part::Name);
            out += '=';
            AppendData(out, data);
            out += '\n';
        }
    }
    return out;
}

}  // namespace folioscope
