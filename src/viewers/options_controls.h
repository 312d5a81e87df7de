#pragma once

#include <QString>

#include <cstdint>
#include <span>

#include "base/labels.h"
#include "base/settings.h"

class QLabel;
class QWidget;

namespace folioscope {

// What stands on the pages of the options: tables of pages, frames and controls, and what each kind of control shows.

struct OptionsPage {
    const char* key;
    Label caption;
};

struct OptionsFrame {
    const char* name;
    int page;  // place in OptionsPages()
    Label title;
};

struct Choice {
    const char* text;  // the same in every language
    std::int32_t data;
};

enum class OptionKind : std::uint8_t {
    List,      // the value is the data of the chosen item
    DropDown,  // the value is the place of the chosen item
    Check,
    Codepage,  // a button that shows the number
    Colour,
};

struct Option {
    const char* name;
    OptionKind kind;
    const char* frame;
    std::int32_t Settings::*member;
    Label text;
    std::span<const Choice> choices = {};
};

std::span<const OptionsPage> OptionsPages();
std::span<const OptionsFrame> OptionsFrames();
std::span<const Option> Options();  // in the order of the settings in the store

struct OptionControl {
    const Option* option;
    QWidget* control;
    QLabel* label = nullptr;     // in front of a control that doesn't show its own text
    QLabel* codepage = nullptr;  // the name of the page behind its number
};

// Made without parents, for a layout to take.
OptionControl MakeOptionControl(const Option& option);
void SetOptionText(const OptionControl& control, const Labels& texts);

void ShowOption(const OptionControl& control, std::int32_t value);
std::int32_t ValueShown(const OptionControl& control);

}  // namespace folioscope
