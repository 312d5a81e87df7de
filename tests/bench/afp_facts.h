#pragma once

// What the bench programs know of AFP. They share nothing with the program they measure, so that a fault
// there can't hide here.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace folioscope::bench {

// A structured field: the two bytes behind x'D3' and its short name.
struct Field {
    std::uint16_t pair;
    std::string_view name;
};

// clang-format off
constexpr Field kFields[] = {
    {0x8C'87, "CPI"},    {0x8C'89, "FNI"},    {0x8C'8A, "CFI"},
    {0xA0'88, "MFC"},    {0xA0'90, "TLE"},
    {0xA2'88, "MCC"},    {0xA2'89, "FNM"},
    {0xA6'6B, "OBD"},    {0xA6'7B, "IID"},    {0xA6'87, "CPD"},    {0xA6'88, "MDD"},    {0xA6'89, "FND"},
    {0xA6'92, "CDD"},    {0xA6'9B, "PTD-1"},  {0xA6'AF, "PGD"},    {0xA6'BB, "GDD"},    {0xA6'C5, "FGD"},
    {0xA6'E3, "DXD"},    {0xA6'E7, "LND"},    {0xA6'EB, "BDD"},    {0xA6'FB, "IDD"},
    {0xA7'7B, "IOC"},    {0xA7'87, "CPC"},    {0xA7'88, "MMC"},    {0xA7'89, "FNC"},    {0xA7'8A, "CFC"},
    {0xA7'9B, "CTC"},    {0xA7'A8, "PEC"},    {0xA7'AF, "PMC"},    {0xA7'CA, "CCP"},
    {0xA8'5F, "BPS"},    {0xA8'77, "BCA"},    {0xA8'7B, "BII"},    {0xA8'87, "BCP"},    {0xA8'89, "BFN"},
    {0xA8'8A, "BCF"},    {0xA8'92, "BOC"},    {0xA8'9B, "BPT"},    {0xA8'A5, "BPF"},    {0xA8'A7, "BDI"},
    {0xA8'A8, "BDT"},    {0xA8'AD, "BNG"},    {0xA8'AF, "BPG"},    {0xA8'BB, "BGR"},    {0xA8'C4, "BDG"},
    {0xA8'C5, "BFG"},    {0xA8'C6, "BRG"},    {0xA8'C7, "BOG"},    {0xA8'C9, "BAG"},    {0xA8'CA, "BDM"},
    {0xA8'CB, "BPM"},    {0xA8'CC, "BMM"},    {0xA8'CD, "BFM"},    {0xA8'CE, "BRS"},    {0xA8'D9, "BSG"},
    {0xA8'DF, "BMO"},    {0xA8'E3, "BDX"},    {0xA8'EB, "BBC"},    {0xA8'FB, "BIM"},
    {0xA9'5F, "EPS"},    {0xA9'77, "ECA"},    {0xA9'7B, "EII"},    {0xA9'87, "ECP"},    {0xA9'89, "EFN"},
    {0xA9'8A, "ECF"},    {0xA9'92, "EOC"},    {0xA9'9B, "EPT"},    {0xA9'A5, "EPF"},    {0xA9'A7, "EDI"},
    {0xA9'A8, "EDT"},    {0xA9'AD, "ENG"},    {0xA9'AF, "EPG"},    {0xA9'BB, "EGR"},    {0xA9'C4, "EDG"},
    {0xA9'C5, "EFG"},    {0xA9'C6, "ERG"},    {0xA9'C7, "EOG"},    {0xA9'C9, "EAG"},    {0xA9'CA, "EDM"},
    {0xA9'CB, "EPM"},    {0xA9'CC, "EMM"},    {0xA9'CD, "EFM"},    {0xA9'CE, "ERS"},    {0xA9'D9, "ESG"},
    {0xA9'DF, "EMO"},    {0xA9'E3, "EDX"},    {0xA9'EB, "EBC"},    {0xA9'FB, "EIM"},
    {0xAA'E7, "LNC"},    {0xAA'EC, "FDS"},
    {0xAB'77, "MCA"},    {0xAB'88, "MMT"},    {0xAB'89, "FNN"},    {0xAB'8A, "MCF-2"},  {0xAB'92, "MCD"},
    {0xAB'9B, "MPT"},    {0xAB'AF, "MPG"},    {0xAB'BB, "MGO"},    {0xAB'C3, "MDR"},    {0xAB'CA, "IDM"},
    {0xAB'CC, "IMM"},    {0xAB'CD, "MMD"},    {0xAB'D8, "MPO"},    {0xAB'EA, "MSU"},    {0xAB'EB, "MBC"},
    {0xAB'FB, "MIO"},
    {0xAC'6B, "OBP"},    {0xAC'7B, "ICP"},    {0xAC'89, "FNP"},    {0xAC'AF, "PGP-1"},
    {0xAD'C3, "PPO"},
    {0xAE'89, "FNO"},
    {0xAF'5F, "IPS"},    {0xAF'AF, "IPG"},    {0xAF'C3, "IOB"},    {0xAF'D8, "IPO"},
    {0xB0'77, "CAT"},
    {0xB1'5F, "MPS"},    {0xB1'8A, "MCF-1"},  {0xB1'9B, "PTD-2"},  {0xB1'AF, "PGP-2"},  {0xB1'DF, "MMO"},
    {0xB2'88, "PFC"},    {0xB2'A7, "IEL"},
    {0xB4'90, "LLE"},
    {0xEE'7B, "IRD"},    {0xEE'89, "FNG"},    {0xEE'92, "OCD"},    {0xEE'9B, "PTX"},    {0xEE'BB, "GAD"},
    {0xEE'EB, "BDA"},    {0xEE'EC, "FDX"},    {0xEE'EE, "NOP"},    {0xEE'FB, "IPD"},
};
// clang-format on

// Pair -> row of kFields + 1; 0: no known field.
constexpr auto kRowOfPair = [] {
    std::array<std::uint8_t, 65536> rows{};
    for (std::size_t i = 0; i < std::size(kFields); ++i) rows[kFields[i].pair] = static_cast<std::uint8_t>(i + 1);
    return rows;
}();

// 0 if there is no field of that name.
constexpr std::uint16_t PairOf(std::string_view name)
{
    for (const Field& field : kFields)
        if (field.name == name) return field.pair;
    return 0;
}

// Runs of characters that follow each other in Latin 1 and in code page 37 alike.
struct CharacterRun {
    std::uint8_t first, last, ebcdic;
};

// clang-format off
constexpr CharacterRun kCharacterRuns[] = {
    {'a', 'i', 0x81}, {'j', 'r', 0x91}, {'s', 'z', 0xA2}, {'A', 'I', 0xC1}, {'J', 'R', 0xD1}, {'S', 'Z', 0xE2},
    {'0', '9', 0xF0}, {' ', ' ', 0x40}, {'.', '.', 0x4B}, {'+', '+', 0x4E}, {'&', '&', 0x50}, {'*', '*', 0x5C},
    {'-', '-', 0x60}, {'/', '/', 0x61}, {',', ',', 0x6B}, {'%', '%', 0x6C}, {':', ':', 0x7A}, {'#', '#', 0x7B},
    {'@', '@', 0x7C}, {'\'', '\'', 0x7D}, {'=', '=', 0x7E},
    {0xE1, 0xE1, 0x45}, {0xE5, 0xE5, 0x47}, {0xE7, 0xE7, 0x48}, {0xF1, 0xF1, 0x49}, {0xE9, 0xE9, 0x51},     // á å ç ñ é
    {0xE8, 0xE8, 0x54}, {0xED, 0xED, 0x55}, {0xDF, 0xDF, 0x59}, {0xF6, 0xF6, 0xCC}, {0xFC, 0xFC, 0xDC},     // è í ß ö ü
    {0xC5, 0xC5, 0x67}, {0xC7, 0xC7, 0x68}, {0xD6, 0xD6, 0xEC}, {0xE4, 0xE4, 0x43},                         // Å Ç Ö ä
};
// clang-format on

constexpr std::uint8_t kEbcdicQuestionMark = 0x6F;

// Latin 1 -> code page 37, a question mark for what isn't in the runs.
constexpr auto kToEbcdic = [] {
    std::array<std::uint8_t, 256> table{};
    table.fill(kEbcdicQuestionMark);
    for (const auto [first, last, ebcdic] : kCharacterRuns)
        for (unsigned c = first; c <= last; ++c) table[c] = static_cast<std::uint8_t>(ebcdic + c - first);
    return table;
}();

// Code page 37 -> ASCII, a dot for everything else.
constexpr auto kToAscii = [] {
    std::array<char, 256> table{};
    table.fill('.');
    for (const auto [first, last, ebcdic] : kCharacterRuns)
        for (unsigned c = first; c <= last && c < 0x80; ++c) table[ebcdic + c - first] = static_cast<char>(c);
    return table;
}();

}  // namespace folioscope::bench
