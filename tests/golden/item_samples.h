#pragma once

#include <string_view>

namespace folioscope::test {

// The items of text, graphics and images, each once with data that make sense.

// clang-format off
// Control sequences: the function, then the parameters. The length is put in front of them.
inline constexpr std::string_view kSequenceSamples[] = {
    "C0 0064",                                              // inline margin
    "D0 00F0",                                              // baseline increment
    "F6 0000 2D00",                                         // orientation
    "D2 0190", "C6 03E8", "C8 0010", "D4 FFF0",             // moves
    "F0 01", "C4 0040", "C2 0005 00", "C2 0005 01",
    "74 FF02 00", "76 01", "72 01 00 61",
    "80 00 01 00*4 08 08 08 00 FF 80 00",                   // RGB
    "80 00 04 00*4 08 08 08 08 00 40 80 FF",                // CMYK
    "80 00 06 00*4 10 08 08 00 0002 40 20",                 // a highlight colour
    "80 00 08 00*4 08 08 08 00 80 10 F0",                   // CIELAB
    "80 00 40 00*4 10 00*3 0001",                           // a named colour
    "78 02 00 0008", "78 03 00 0008", "78 01",
    "DA 'Transparent data'", "EE 0014 '-'",
    "E4 0640 0002 00", "E6 FF00",
    "F2 05", "F4 05", "F8 'a comment'", "D8",
    "8A 00*2 0001 0002", "8C 00*2 0010 FFF0", "8E 00*2 0001 0002",
    "6C 0020 00 00*2",
    "6A 01 00 0006 80 00 02 01 00*4 0010 0041 00C4 0042",
};

// Drawing orders: the code, then the value or, behind a length put in front of it, the data.
inline constexpr std::string_view kShortOrderSamples[] = {
    "0A 02", "0C 02", "0D 05", "18 07", "19 02", "1A 03", "1B 02", "08 00", "28 10", "29 0A",
    "38 00", "39 02", "3A 01", "3B 00", "3C 00",
};
inline constexpr std::string_view kOrderSamples[] = {
    "01 'A drawing'", "04 00", "11 0180", "20 01 80 00 40", "21 0064 00C8", "22 0010 0010 0000 0000", "25 00",
    "26 FF04", "33 000A 0014 8000 0000", "34 0000 0001", "35 00", "37 0000 0000 8000", "43 00",
    "B2 00 01 00*4 08 08 08 00 FF FF 00",
    "80 00*2 0100 0200", "81 0010 0010 0020 0020", "82 0005 0006", "83 'here'", "85 0010 0010", "87 0100",
    "A1 05 FB", "A3 0000 0000 0100 00000000 005A0000", "A5 0001 0002 0003 0004 0005 0006",
    "C0 00*2 0000 0000 0064 0032 000A 0005", "C1 0001 0002 0003 0004", "C2 0001 0002 0003 0004",
    "C3 0001 0002 'there'", "C5 0001 0002 0003 0004", "C7 0001 0002 0180", "E1 0001 0002 03 04",
    "E3 0001 0002 0003 0004 0100 002D0000 005A0000", "E5 0000 0000 0001 0002 0003 0004 0005 0006",
    "D1 0001 0002 00*2 0008 0001", "92 FF", "93 00", "91 00*2 0008 0001", "92 AA", "93 00",
    "A0 00*2 0001 0002", "DE 00 FE 01 00 0000 0010 0000 0010", "5E 00", "DF 00 FE 01 00",
};

// Self-defining fields of an image: the identifier, then, behind a length, the data.
inline constexpr std::string_view kImageFieldSamples[] = {
    "70 00000007", "91 FF", "94 00 0960 0960 0140 00F0", "95 03 01 01", "96 08", "97 00", "98 02 08 04",
    "9B 00 01 00*3 08 08 08 08", "9F 00 00 00", "9F 10 00*5 83", "F4 00 01 00*4 08 08 08 00 FF 80 00",
    "F6 00*2 FF02", "F7 01 0B", "9D 0040 0020 0005 0008 80 00000000 00000000 00000140 000000F0",
    "8C", "B5 00000000 00000040", "B6 00000040 00000020 01",
    "B7 40 00*3 10 00*3 FF03", "8E", "8F", "8D",
};
// Extended ones: the second identifier, then, behind a length, the data.
inline constexpr std::string_view kExtendedFieldSamples[] = {
    "92 F0 0F F0 0F", "9C 01 00 00 FF 00", "B8 00000001", "CE",
    "BB 00*2 00000000 00000000 00000040 00000020 01 83 00000000 00000100",
};

// The parts of a drawing's descriptor: the type, then, behind a length, the data.
inline constexpr std::string_view kDescriptorSamples[] = {
    "F7 B0 00 00 02 00 00 00", "F6 40 00 00 00 3840 3840 0000 0000 0640 0000 04B0",
    "21 00 8000 80 FF02", "21 01 F000 80 07 02 03 02", "21 02 F800 80 0000 0001 000A 0014 01 02 00",
    "21 03 5900 80 000A 0014 00 00 01", "21 04 0910 80 00 10 0001 0002", "21 0B F000 80 0001 0001 0000 0000",
    "21 10 2000 80 00 04 00*4 08 08 08 08 00 40 80 FF", "21 11 8000 80 0018", "21 00 0000 00",
};
// clang-format on

}  // namespace folioscope::test
