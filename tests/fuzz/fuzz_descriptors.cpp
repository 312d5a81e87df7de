// Any bytes as descriptors of drawings and tables of colours.

#include "fuzz_items.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr folioscope::test::FieldId kFields[] = {0xA6BB, 0xB077};
    folioscope::test::RunItems(data, size, kFields);
    return 0;
}
