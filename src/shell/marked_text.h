#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <functional>
#include <string_view>

namespace folioscope {

enum class TextColour : std::uint8_t { Black, Red, Blue };

// How characters stand in a marked text.
struct TextLook {
    bool bold = false, underlined = false;
    TextColour colour = TextColour::Black;
    friend bool operator==(const TextLook&, const TextLook&) = default;
};

// Tells a marked text in pieces of one look each, with its markers taken out. What is no marker of ours stays text. A
// single character behind the last marker is lost.
void ForEachPiece(const QString& marked, const std::function<void(QStringView, const TextLook&)>& take);

}  // namespace folioscope
