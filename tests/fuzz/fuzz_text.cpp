// Any bytes as presentation text: in PTX fields, or behind the fixed part of PTD.

#include "fuzz_items.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr folioscope::test::FieldId kFields[] = {0xEE9B, 0xEE9B, 0xEE9B, 0xB19B};
    folioscope::test::RunItems(data, size, kFields);
    return 0;
}
