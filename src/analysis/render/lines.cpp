#include "analysis/render/lines.h"

#include "analysis/render/words_colors.h"
#include "analysis/render/words_common.h"
#include "analysis/render/words_fonts.h"
#include "analysis/render/words_forms.h"
#include "analysis/render/words_graphics.h"
#include "analysis/render/words_metadata.h"
#include "analysis/render/words_objects.h"
#include "analysis/render/words_triplets.h"
#include "analysis/render/words_values.h"

namespace folioscope {

namespace {

constexpr LineIndex kLineOf = IndexOf(kCommonLines, kValueLines, kTripletLines, kColorLines, kGraphicsLines,
                                      kObjectLines, kFormLines, kFontLines, kMetadataLines);

struct ColorRow {
    std::int32_t first, last;
    Label names[6];
};

// clang-format off
constexpr ColorRow kColorNames[] = {
    {0,      0,      {L("Drawing default")}},
    {1,      6,      {L("Blue"), L("Red"), L("Pink/Magenta"), L("Green"), L("Turquoise/Cyan"), L("Yellow")}},
    {7,      8,      {L("White"), L("Black")}},
    {9,      14,     {L("Dark blue"), L("Orange"), L("Purple"), L("Dark green"), L("Dark turquoise"), L("Mustard")}},
    {15,     16,     {L("Gray"), L("Brown")}},
    {0xFF00, 0xFF05, {L("Drawing default"), L("Blue"), L("Red"), L("Pink/Magenta"), L("Green"), L("Turquoise/Cyan")}},
    {0xFF06, 0xFF08, {L("Yellow"), L("Device default (normally black)"), L("Color of paper")}},
    {0xFFFF, 0xFFFF, {L("Default")}},
};
// clang-format on

}  // namespace

const LineRow* LineOf(Key key) { return kLineOf[static_cast<std::size_t>(key)]; }

Label ColorName(std::int32_t value)
{
    for (const ColorRow& row : kColorNames)
        if (value >= row.first && value <= row.last) return row.names[value - row.first];
    return Label::None;
}

}  // namespace folioscope
