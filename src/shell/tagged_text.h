#pragma once

#include <QColor>
#include <QString>

#include <string_view>

namespace folioscope {

// A node's text for the eye: its leading tags as properties, control characters as blanks.
struct TaggedText {
    QString text;
    QColor color;  // not valid: that of the palette
    bool bold = false;
    bool red = false;  // a fault lies in the node or below it
};

TaggedText ParseTaggedText(std::string_view nodeText);

// What is said of a node where there are no colours: the text without tags.
QString PlainNodeText(std::string_view nodeText);

// The contrast of two colours, from 1 to 21 (WCAG 2, contrast ratio).
double ContrastOf(const QColor& one, const QColor& other);
// The colour, made lighter or darker only as far as it must be to be read on that ground.
QColor ReadableOn(const QColor& ground, const QColor& color);

}  // namespace folioscope
