#include "shell/shell_state.h"

#include "base/settings_store.h"

namespace folioscope {

namespace {

struct PaneValue {
    const char* name;
    float PaneLayout::*member;
};
constexpr PaneValue kPaneValues[] = {
    {"TreeWidthPercentual", &PaneLayout::TreeWidthPercentual},
    {"CPVWidthPercentual", &PaneLayout::CPVWidthPercentual},
    {"HexWindowHeight", &PaneLayout::HexWindowHeight},
};

}  // namespace

void ReadWindowState(ShellState& state)
{
    state.recentFiles.Read(state.store);
    for (const auto& [name, member] : kPaneValues)
        state.panes.*member = static_cast<float>(ReadWindowValue(state.store, name, {}));
}

void WriteWindowState(ShellState& state)
{
    state.recentFiles.Write(state.store);
    for (const auto& [name, member] : kPaneValues)
        state.store.SetRegistryValue(kSettingsKey, name, static_cast<double>(state.panes.*member));
}

}  // namespace folioscope
