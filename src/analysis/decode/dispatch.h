#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace folioscope {

class clsAFPFunctions;

// What reads the body of a field that was deferred in the run.
enum class Port : std::uint8_t { None, Sequences, Fields, FontGroups };

// One structured field. `id` is the category and the type byte behind x'D3'.
struct FieldRow {
    std::uint16_t id;
    std::string_view NodeText, SFName;
    void (*procedure)(clsAFPFunctions&) = nullptr;  // the field's own Elements
    Port port = Port::None;                         // the body is left for later (Unread) and read through this port
};

std::span<const FieldRow> Fields();

inline constexpr std::size_t kFieldCount = 136;

// The row of an identifier, or kFieldCount if no row has it.
std::size_t FindField(std::uint8_t category, std::uint8_t type);


inline constexpr std::uint8_t kBeginCategory = 0xA8;
inline constexpr std::uint8_t kEndCategory = 0xA9;

}  // namespace folioscope
