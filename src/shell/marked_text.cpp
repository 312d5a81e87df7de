#include "shell/marked_text.h"

namespace folioscope {

namespace {

constexpr QStringView kMarkerStart = u"°^°";
constexpr qsizetype kPair = 2;  // a letter and a tilde

struct Marker {
    QStringView pair;
    void (*turn)(TextLook&);
};

// clang-format off
constexpr Marker kMarkers[] = {
    {u"B~", [](TextLook& look) { look.bold = true; }},
    {u"N~", [](TextLook& look) { look.bold = false; }},
    {u"R~", [](TextLook& look) { look.colour = TextColour::Red; }},
    {u"S~", [](TextLook& look) { look.colour = TextColour::Black; }},
    {u"H~", [](TextLook& look) { look.colour = TextColour::Blue;  look.underlined = true; }},
    {u"L~", [](TextLook& look) { look.colour = TextColour::Black; look.underlined = false; }},
};
// clang-format on

bool Turn(TextLook& look, QStringView pair)
{
    for (const Marker& marker : kMarkers) {
        if (marker.pair != pair) continue;
        marker.turn(look);
        return true;
    }
    return false;
}

}  // namespace

void ForEachPiece(const QString& marked, const std::function<void(QStringView, const TextLook&)>& take)
{
    const QStringView text = marked;
    TextLook look;
    qsizetype from = 0;
    for (qsizetype at; (at = text.indexOf(kMarkerStart, from)) >= 0;) {
        if (at > from) take(text.mid(from, at - from), look);
        from = at + kMarkerStart.size();
        if (Turn(look, text.mid(from, kPair)))
            from += kPair;
        else
            take(kMarkerStart, look);
    }
    if (from < text.size() - 1) take(text.mid(from), look);
}

}  // namespace folioscope
