#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "analysis/decode/rows.h"

namespace folioscope {

class clsAFPFunctions;

// Where one triplet stands: the buffer index of its length byte, and that byte.
struct TripletPlace {
    std::int32_t start;
    std::int32_t length;
};

// What a triplet says in a word or two, for a tree that wants to show it.
enum class Summary : std::uint8_t { None, Text, Number, Count, Degrees };

// One triplet. The rows come first, then the procedure.
struct TripletRow {
    std::uint8_t id;
    std::string_view name;
    std::span<const Row> rows = {};
    void (*procedure)(clsAFPFunctions&, TripletPlace) = nullptr;
    Summary summary = Summary::None;
    std::string_view summaryText = {};
};

// The triplets from FieldPosition on; FieldPosition ends behind the last one. `lastPosition` is the buffer index of the
// last byte to look at.
void AnalyzeTriplets(clsAFPFunctions& afp, std::int32_t lastPosition);

// What triplets leave behind for the fields that hold them.
struct TripletState {
    bool colorManagement = false;  // the object in hand is a colour management resource
    bool metadata = false;         // or a metadata object
    bool linkTarget = false;       // a URL is one to follow
    std::string attributeName;     // of a TLE: the name of type x'0B', then the value
    std::string attributeValue;
    bool hasValue = false;
    std::uint8_t resourceType = 0;  // of a BRS, from x'21'
    // Names of type x'8D', x'8E', x'86', x'85', for AddResource.
    std::string resource, codedFont, characterSet, codePage;
};

}  // namespace folioscope
