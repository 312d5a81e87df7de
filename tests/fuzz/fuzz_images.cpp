// Any bytes as self-defining fields of images: in IPD fields, or behind the fixed part of IDD.

#include "fuzz_items.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr folioscope::test::FieldId kFields[] = {0xEEFB, 0xEEFB, 0xEEFB, 0xA6FB};
    folioscope::test::RunItems(data, size, kFields);
    return 0;
}
