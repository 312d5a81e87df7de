#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"
#include "support/afp_builder.h"
#include "support/colour_builder.h"

namespace folioscope::test {

using Lines = std::vector<std::string>;

enum class ObjectKind { ColourResource, Metadata, Other };

// The object in a container, cut into fields of so many data bytes.
AfpFile InContainer(const Bytes& object, ObjectKind kind, std::size_t step = 8000);

// What became of a colour resource: what its sequence holds ("Int32 CMRSize 164"), the text that it leaves for the
// node of its data, and the text of the End record.
struct ColourShown {
    Lines elements;
    std::string text, own;
    Lines heard;
};

ColourShown ShowColour(const AfpFile& container);
ColourShown ShowColour(const Bytes& object);
inline ColourShown ShowColour(const Cmr& cmr) { return ShowColour(cmr.Whole()); }

// Of the n-th tag (from 1): what stands between the elements that frame it, and the lines of that without their tab.
ColourShown ShowTag(const Cmr& cmr, int number = 1);
// Holds both against one line an Element, as ExpectShown does.
void ExpectTag(const Cmr& cmr, std::string_view expected, int number = 1);

// The values of a key: "16".
Lines ValuesIn(const Lines& elements, std::string_view key);

// The line of one value, as it stands in the text of a colour resource.
ColourShown ShowValue(Key key, std::int64_t value);
ColourShown ShowValue(Key key, std::string_view value);

}  // namespace folioscope::test
