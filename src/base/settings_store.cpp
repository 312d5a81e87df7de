#include "base/settings_store.h"

#include <algorithm>
#include <iterator>

namespace folioscope {
namespace {

struct SettingRow {
    std::string_view name;
    std::int32_t Settings::*member;             // none: written as 1, and only its presence counts
    std::int32_t Settings::*follows = nullptr;  // the setting whose value is the default; none: the struct's own
};

constexpr std::string_view kConfirmed = "InitResourcePaths";

// In the order in which they are read and written.
// clang-format off
constexpr SettingRow kSettingRows[] = {
    {"Codepage",           &Settings::Codepage},
    {"CodepageNOP",        &Settings::CodepageNOP, &Settings::Codepage},
    {"CodepageTLE",        &Settings::CodepageTLE, &Settings::Codepage},
    {"Language",           &Settings::Language},
    {"TechnicalEnglish",   &Settings::TechnicalEnglish},
    {"ShowNOP",            &Settings::ShowNOP},
    {"ShowBESF",           &Settings::ShowBESF},
    {"ShowIISF",           &Settings::ShowIISF},
    {"FolderBold",         &Settings::FolderBold},
    {"FolderColored",      &Settings::FolderColored},
    {"FolderColor",        &Settings::FolderColor},
    {"DefaultMeasurement", &Settings::DefaultMeasurement},
    {"NormalLineWidth",    &Settings::NormalLineWidth},
    {kConfirmed,           nullptr},
    {"CodePageAutoDetect", &Settings::CodePageAutoDetect},
    {"UsePreviewWindow",   &Settings::UsePreviewWindow},
    {"HexViewer",          &Settings::HexViewer},
    {"MessageWindow",      &Settings::MessageWindow},
    {"UseAutoRotation",    &Settings::UseAutoRotation},
};
// clang-format on

std::int32_t ReadNumber(const clsSillyFunctions& store, std::string_view name, std::int32_t standard)
{
    TaggedValue value;
    store.GetRegistryValue(kSettingsKey, name, value, standard);
    const auto* const number = std::get_if<std::int32_t>(&value);
    return number != nullptr ? *number : standard;
}

}  // namespace

Settings ReadSettings(const clsSillyFunctions& store)
{
    Settings settings;
    for (const auto& row : kSettingRows) {
        if (row.member == nullptr) continue;
        const auto standard = row.follows != nullptr ? row.follows : row.member;
        settings.*row.member = ReadNumber(store, row.name, settings.*standard);
    }
    return settings;
}

void WriteSettings(clsSillyFunctions& store, const Settings& settings)
{
    for (const auto& row : kSettingRows)
        store.SetRegistryValue(kSettingsKey, row.name, row.member != nullptr ? settings.*row.member : 1);
}

bool HasSetting(const clsSillyFunctions& store, std::string_view name)
{
    TaggedValue value;
    return store.GetRegistryValue(kSettingsKey, name, value, EmptyValue()) == 0;
}

bool IsFirstStart(const clsSillyFunctions& store)
{
    constexpr std::string_view kAsked[] = {kConfirmed, "Codepage", "TechnicalEnglish"};
    return !std::ranges::all_of(kAsked, [&](std::string_view name) { return HasSetting(store, name); });
}

double ReadWindowValue(const clsSillyFunctions& store, std::string_view name, Screen screen)
{
    const auto row = std::ranges::find(kWindowValues, name, &WindowValue::name);
    if (row == std::end(kWindowValues)) return 0;
    const double standard = row->unit == WindowUnit::ScreenWidth    ? screen.width * row->standard / 100
                            : row->unit == WindowUnit::ScreenHeight ? screen.height * row->standard / 100
                                                                    : row->standard;
    TaggedValue value;
    store.GetRegistryValue(kSettingsKey, name, value, EmptyValue());
    const auto* const number = std::get_if<std::int32_t>(&value);
    return number != nullptr ? *number : standard;
}

}  // namespace folioscope
