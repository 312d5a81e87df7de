// Any bytes as drawing orders.

#include "fuzz_items.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr folioscope::test::FieldId kFields[] = {0xEEBB};
    folioscope::test::RunItems(data, size, kFields);
    return 0;
}
