#include "shell/main_commands.h"

#include <Qt>

#include "shell/frmMainWindow.h"

namespace folioscope {

namespace {

using Main = frmMainWindow;

constexpr int kCtrl = static_cast<int>(Qt::ControlModifier), kShift = static_cast<int>(Qt::ShiftModifier);

constexpr MainCommand Separator(Menu menu)
{
    return {menu, nullptr, nullptr, nullptr, Label::None, When::Always, nullptr};
}

constexpr MainCommand ViewSeparator(const char* name)
{
    return {Menu::None, nullptr, name, nullptr, Label::None, When::PagesShown, nullptr};
}

// clang-format off
constexpr MainCommand kCommands[] = {
    {Menu::File,    "mnuFileOpen",           "tlbOpen",       "open",            U("&Open ..."),             When::Always,      &Main::mnuFileOpen,              kCtrl | Qt::Key_O},
    {Menu::File,    "mnuFileClose",          "tlbClose",      "close",           U("&Close"),                When::Document,    &Main::mnuFileClose,             kCtrl | Qt::Key_W},
    {Menu::File,    "mnuFileReload",         "tlbReload",     "reload",          U("&Reload"),               When::Idle,        &Main::mnuFileReload,            Qt::Key_F5},
    Separator(Menu::File),
    {Menu::File,    "mnuFileSaveDump",       "tlbTextdump",   "textdump",        U("&Save text dump"),       When::Idle,        &Main::mnuFileSaveDump,          kCtrl | Qt::Key_S},
    {Menu::File,    "mnuFileSaveDumpAs",     nullptr,         nullptr,           U("&Save text dump as ..."), When::Idle,       &Main::mnuFileSaveDumpAs,        kCtrl | kShift | Qt::Key_S},
    {Menu::None,    nullptr,                 "tlbExtractResource", "extract_resource", U("&Extract resource ..."), When::Document, nullptr},
    Separator(Menu::File),
    {Menu::File,    "mnuFileExit",           nullptr,         nullptr,           U("E&xit"),                 When::Always,      &Main::mnuFileExit,              kCtrl | Qt::Key_Q},
    Separator(Menu::None),
    {Menu::Edit,    "mnuEditFind",           "tlbFind",       "find",            U("&Find ..."),             When::Idle,        &Main::mnuEditFind,              kCtrl | Qt::Key_F},
    {Menu::Edit,    "mnuEditFindNext",       "tlbFindNext",   "find_next",       U("Find &next"),            When::Idle,        &Main::mnuEditFindNext,          Qt::Key_F3},
    Separator(Menu::Edit),
    {Menu::Extras,  "mnuExtrasOptions",      "tlbOptions",    "options",         U("&Options ..."),          When::Always,      &Main::mnuExtrasOptions,         kCtrl | Qt::Key_Comma},
    Separator(Menu::None),
    {Menu::Edit,    "mnuEditTreeExpand",     "tlbExpand",     "expand",          U("&Expand Tree"),          When::Document,    &Main::mnuEditTreeExpand,        kCtrl | Qt::Key_E},
    {Menu::Edit,    "mnuEditTreeCollapse",   "tlbCollapse",   "collapse",        U("&Collapse Tree"),        When::Document,    &Main::mnuEditTreeCollapse,      kCtrl | kShift | Qt::Key_E},
    Separator(Menu::None),
    {Menu::None,    nullptr,                 "tlbPreview",    "preview",         U("&Preview"),              When::HasPages,    &Main::tlbPreview,               Qt::Key_F4},
    {Menu::Windows, "mnuWindowsMessages",    "tlbMessages",   "messages",        U("&Messages ..."),         When::HasMessages, &Main::mnuWindowsMessages,       kCtrl | Qt::Key_M},
    Separator(Menu::Windows),
    {Menu::Windows, "mnuWindowsCascade",     "tlbCascade",    "cascade",         U("&Cascade"),              When::Document,    &Main::mnuWindowsCascade},
    {Menu::Windows, "mnuWindowsTileVertical", "tlbVertical",  "tile_vertical",   U("Tile &vertical"),        When::Document,    &Main::mnuWindowsTileVertical},
    {Menu::Windows, "mnuWindowsTileHorizontal", "tlbHorizontal", "tile_horizontal", U("Tile &horizontal"),   When::Document,    &Main::mnuWindowsTileHorizontal},
    Separator(Menu::Windows),
    {Menu::Windows, "mnuWindowsCloseAll",    nullptr,         nullptr,           U("&Close all"),            When::Document,    &Main::mnuWindowsCloseAll},
    {Menu::Help,    "mnuHelpHelp",           "tlbHelp",       "help",            U("&Help ..."),             When::Always,      &Main::mnuHelpHelp,              Qt::Key_F1},
    {Menu::Help,    "mnuHelpWebsite",        nullptr,         nullptr,           U("&Website ..."),          When::Always,      &Main::mnuHelpWebsite},
    Separator(Menu::Help),
    {Menu::Help,    "mnuHelpAbout",          nullptr,         nullptr,           U("&About ..."),            When::Always,      &Main::mnuHelpAbout},
    {Menu::None,    nullptr,                 "tlbCancel",     "cancel",          U("Cancel"),                When::Busy,        &Main::tlbCancel,                Qt::Key_Escape},
    ViewSeparator("tlbSeparator8"),
    {Menu::None,    nullptr,                 "tlbTurnLeft",   "turn_left",       U("Rotate left"),           When::PagesShown,  &Main::tlbTurnLeft,              kCtrl | Qt::Key_L},
    {Menu::None,    nullptr,                 "tlbTurnRight",  "turn_right",      U("Rotate right"),          When::PagesShown,  &Main::tlbTurnRight,             kCtrl | Qt::Key_R},
    ViewSeparator("tlbSeparator9"),
    {Menu::None,    nullptr,                 "tlbFitToWidth", "fit_width",       U("Zoom to page width"),    When::PagesShown,  &Main::tlbFitToWidth,            kCtrl | Qt::Key_1},
    {Menu::None,    nullptr,                 "tlbFitToSize",  "fit_page",        U("Zoom to whole page"),    When::PagesShown,  &Main::tlbFitToSize,             kCtrl | Qt::Key_2},
    ViewSeparator("tlbSeparator10"),
    {Menu::None,    nullptr,                 "tlbZoomOut",    "zoom_out",        U("Zoom out"),              When::PagesShown,  &Main::tlbZoomOut,               kCtrl | Qt::Key_Minus},
    {Menu::None,    nullptr,                 "tlbZoom100",    "zoom_100",        U("Zoom 100%"),             When::PagesShown,  &Main::tlbZoom100,               kCtrl | Qt::Key_0},
    {Menu::None,    nullptr,                 "tlbZoomIn",     "zoom_in",         U("Zoom in"),               When::PagesShown,  &Main::tlbZoomIn,                kCtrl | Qt::Key_Plus},
    ViewSeparator("tlbSeparator11"),
    {Menu::None,    nullptr,                 "tlbPrint",      "print",           U("Print this page"),       When::PagesShown,  &Main::tlbPrint,                 kCtrl | Qt::Key_P},
};
// clang-format on

}  // namespace

std::span<const MainCommand> MainCommands() { return kCommands; }

}  // namespace folioscope
