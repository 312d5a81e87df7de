#pragma once

#include <string_view>

namespace folioscope::test {

// The identifiers that are records, a line for each category: its byte, then the bytes of its types. Written down
// once more, so that a slip in the reader's own list is seen.
inline constexpr std::string_view kKnownPairs = R"(
8C 87 89 8A
A0 88 90
A2 88 89
A6 6B 7B 87 88 89 92 9B AF BB C5 E3 E7 EB FB
A7 7B 87 88 89 8A 9B A8 AF CA
A8 5F 77 7B 87 89 8A 92 9B A5 A7 A8 AD AF BB C4 C5 C6 C7 C9 CA CB CC CD CE D9 DF E3 EB FB
A9 5F 77 7B 87 89 8A 92 9B A5 A7 A8 AD AF BB C4 C5 C6 C7 C9 CA CB CC CD CE D9 DF E3 EB FB
AA E7 EC
AB 77 88 89 8A 92 9B AF BB C3 CA CC CD D8 EA EB FB
AC 6B 7B 89 AF
AD C3
AE 89
AF 5F AF C3 D8
B0 77
B1 5F 8A 9B AF DF
B2 88 A7
B4 90
EE 7B 89 92 9B BB EB EC EE FB
)";

// Calls `visit(category, type)` for each of them.
template <typename Visit> void ForEachKnownPair(Visit visit)
{
    constexpr auto digit = [](char c) { return c <= '9' ? c - '0' : c - 'A' + 10; };
    int category = -1;
    for (std::size_t at = 0; at + 1 < kKnownPairs.size(); ++at) {
        if (kKnownPairs[at] == ' ') continue;
        if (kKnownPairs[at] == '\n') {
            category = -1;
            continue;
        }
        const int byte = digit(kKnownPairs[at]) << 4 | digit(kKnownPairs[at + 1]);
        if (category < 0)
            category = byte;
        else
            visit(category, byte);
        ++at;
    }
}

}  // namespace folioscope::test
