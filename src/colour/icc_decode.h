#pragma once

#include <cstdint>

namespace folioscope {

class ObjectWalk;

// Header and tags of the ICC profile that begins at a position of the object (from 0). Of the tags' data, only texts
// are read.
void AddIccProfile(ObjectWalk& object, std::int64_t profile);

}  // namespace folioscope
