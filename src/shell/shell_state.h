#pragma once

#include <optional>

#include "base/clsSillyFunctions.h"
#include "base/settings.h"
#include "document/document.h"
#include "document/messages.h"
#include "shell/recent_files.h"

namespace folioscope {

// Where the dividers stand, in percent of the document window's inner width or height.
struct PaneLayout {
    float TreeWidthPercentual = 30;
    float CPVWidthPercentual = 30;
    float HexWindowHeight = 20;
};

// What all windows of the process share. It outlives them.
struct ShellState {
    clsSillyFunctions store;
    Settings settings;
    NumberStyle numbers;
    RecentFiles recentFiles;
    PaneLayout panes;
    MessageList messages;
    FindTerm find;              // the term in capitals
    std::string strReloadNode;  // to be selected in the next document, with ^ between the levels
    bool bolFromFSV = false;    // another process of the program has started this one
    bool bolExtract = false;    // write the dump and end
    bool extractFailed = false;

    // The language that is being tried out in the options, until they are closed.
    std::optional<Language> triedLanguage;

    Labels InterfaceTexts() const { return Labels(triedLanguage.value_or(settings.InterfaceLanguage())); }
};

// The window's numbers and the recent files.
void ReadWindowState(ShellState& state);
void WriteWindowState(ShellState& state);

}  // namespace folioscope
