// Each key under which a value travels has a line or is listed as silent: what is decoded can't be forgotten.

#include <gtest/gtest.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/render/lines.h"
#include "colour/colour_lines.h"
#include "objects/goca_render.h"
#include "objects/ioca_render.h"
#include "objects/ptoca_render.h"

namespace folioscope {
namespace {

using Faults = std::vector<std::string>;

struct NamedKey {
    Key key;
    std::string_view name;
};

constexpr NamedKey kKeys[] = {
#define KEY(name) {Key::name, #name},
#include "analysis/elements/element_keys.def"
#undef KEY
};

template <class Lookup> Faults KeysWithoutALine(std::span<const NamedKey> keys, Lookup lineOf)
{
    Faults faults;
    for (const auto& [key, name] : keys)
        if (lineOf(key) == nullptr) faults.emplace_back(name);
    return faults;
}

// In a field, or in an item of a data object.
const LineRow* LineAnywhere(Key key)
{
    const auto at = static_cast<std::size_t>(key);
    for (const LineRow* row : {LineOf(key), SequenceLines()[at], OrderLines()[at], FieldLines()[at]})
        if (row != nullptr) return row;
    return ColourLineOf(key);
}

TEST(Keys, EachHasALineOrIsSilent) { EXPECT_EQ(KeysWithoutALine(kKeys, LineAnywhere), Faults{}); }

TEST(KeysCheck, FindsAKeyThatWasForgotten)
{
    const auto forgetful = [](Key key) {
        return key == Key::NOPContent || key == Key::OriginY ? nullptr : LineAnywhere(key);
    };
    EXPECT_EQ(KeysWithoutALine(kKeys, forgetful), (Faults{"NOPContent", "OriginY"}));
}

}  // namespace
}  // namespace folioscope
