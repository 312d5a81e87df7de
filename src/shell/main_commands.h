#pragma once

#include <cstdint>
#include <span>

#include "base/labels.h"

namespace folioscope {

class frmMainWindow;

// When a command can be chosen.
enum class When : std::uint8_t {
    Always,
    Document,     // there is one
    Idle,         // there is one, and it is at rest
    Busy,         // it is at work
    HasMessages,  // there is one, and something was told of it
    HasPages,     // there is one, and it has pages to be looked at
    PagesShown,   // they are looked at; otherwise the command isn't there at all
};

enum class Menu : std::uint8_t { None, File, Edit, Extras, Windows, Help };

// One command: its item in a menu, its button in the toolbar, or both. A row without a text is a separator.
struct MainCommand {
    Menu menu;
    const char* item;  // object names; null: it has none
    const char* button;
    const char* icon;
    Label text;
    When when;
    void (frmMainWindow::*action)();
    int key = 0;  // a QKeySequence::StandardKey or a key with its modifiers
};

std::span<const MainCommand> MainCommands();

}  // namespace folioscope
