#pragma once

#include <cstdint>
#include <string_view>

#include "base/clsSillyFunctions.h"
#include "base/settings.h"

namespace folioscope {

inline constexpr std::string_view kSettingsKey = R"(HKEY_CURRENT_USER\Software\Marrowgate\Folioscope)";

// Every setting from its value under the key; one that isn't there or is no number has its default.
Settings ReadSettings(const clsSillyFunctions& store);

// Every setting, and the mark that the options were confirmed once. What can't be written is lost silently.
void WriteSettings(clsSillyFunctions& store, const Settings& settings);

bool HasSetting(const clsSillyFunctions& store, std::string_view name);

// True until the options were confirmed once.
bool IsFirstStart(const clsSillyFunctions& store);

// What else hangs under the key: numbers that belong to the windows. Texts beside them are LastFilesList1
// to LastFilesList9, the recent files from the newest on, empty by default.
enum class WindowUnit : std::uint8_t {
    Plain,
    ScreenWidth,  // the default is a percentage of it; the value is in twips
    ScreenHeight,
};

struct WindowValue {
    std::string_view name;
    std::int32_t standard;
    WindowUnit unit;
};

// clang-format off
inline constexpr WindowValue kWindowValues[] = {
    {"WindowTop",            5, WindowUnit::ScreenHeight},
    {"WindowLeft",           5, WindowUnit::ScreenWidth},
    {"WindowWidth",         90, WindowUnit::ScreenWidth},
    {"WindowHeight",        90, WindowUnit::ScreenHeight},
    {"WindowState",          0, WindowUnit::Plain},  // 0 normal, 1 minimised, 2 maximised
    {"TreeWidthPercentual", 30, WindowUnit::Plain},
    {"CPVWidthPercentual",  30, WindowUnit::Plain},
    {"HexWindowHeight",     20, WindowUnit::Plain},
};
// clang-format on

struct Screen {
    double width = 0, height = 0;  // twips
};

// A value of kWindowValues, as it stands in the store or by its default; 0 for another name.
double ReadWindowValue(const clsSillyFunctions& store, std::string_view name, Screen screen);

}  // namespace folioscope
