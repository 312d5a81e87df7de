#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "analysis/decode/rows.h"

namespace folioscope {

class clsAFPFunctions;

// Who reads data that belong to another architecture: text, graphics, images, fonts, objects in containers.
enum class Port : std::uint8_t { None, Sequences, Orders, Fields, FontGroups, ColourResource, Metadata };

// What follows behind the fixed part of a field. Unread: data that the run leaves for later.
enum class Then : std::uint8_t { Nothing, Triplets, TripletGroups, Port, Unread };

// How the data of a field are read: fixed rows, then a step to what follows, or a procedure in place of both.
struct FieldBody {
    std::span<const Row> rows = {};  // offsets count from the first data byte
    std::int16_t pass = 0;           // bytes from there to what follows
    Then then = Then::Nothing;
    void (*procedure)(clsAFPFunctions&) = nullptr;
    Port port = Port::None;
};

constexpr FieldBody Fixed(std::span<const Row> rows, std::int16_t pass = 0, Then then = Then::Nothing)
{
    return {rows, pass, then};
}
constexpr FieldBody Fixed(std::span<const Row> rows, std::int16_t pass, Port port)
{
    return {rows, pass, Then::Port, nullptr, port};
}
constexpr FieldBody Through(Port port) { return {{}, 0, Then::Port, nullptr, port}; }
constexpr FieldBody Behind(std::int16_t pass, Then then) { return {{}, pass, then}; }
constexpr FieldBody By(void (*procedure)(clsAFPFunctions&)) { return {{}, 0, Then::Nothing, procedure}; }
constexpr FieldBody Later(Port port) { return {{}, 0, Then::Unread, nullptr, port}; }

// One structured field. `id` is the category and the type byte behind x'D3'.
struct FieldRow {
    std::uint16_t id;
    std::string_view NodeText, SFName;
    FieldBody body = {};
};

std::span<const FieldRow> Fields();

inline constexpr std::size_t kFieldCount = 136;

// The row of an identifier, or kFieldCount if no row has it.
std::size_t FindField(std::uint8_t category, std::uint8_t type);

inline constexpr std::uint8_t kBeginCategory = 0xA8;
inline constexpr std::uint8_t kEndCategory = 0xA9;

}  // namespace folioscope
