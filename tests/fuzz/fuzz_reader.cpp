// The record reader over any bytes: it ends, moves forward, and a jump to a record gives the bytes of the walk.

#include <cstddef>

#include "fuzz_file.h"
#include "stream/known_fields.h"
#include "stream/record_reader.h"

using namespace folioscope;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const test::FuzzFile file(data, size);
    // Kept from input to input: making their buffers costs more than most inputs, and opening resets all they know.
    static RecordReader reader, again;
    reader.SetFile(file.Path());
    again.SetFile(file.Path());
    FUZZ_CHECK(reader.OpenAFPFile() == kOpen);
    FUZZ_CHECK(again.OpenAFPFile() == kOpen);
    FUZZ_CHECK(reader.FileSize() == static_cast<std::int32_t>(size));

    std::size_t records = 0;
    for (std::int32_t before = -1; reader.GetNextRecord2() == kRecord; ++records) {
        FUZZ_CHECK(records <= size);
        FUZZ_CHECK(reader.ProcessedBytes() > before);
        before = reader.ProcessedBytes();

        const std::int32_t start = reader.BufferFilePos() + reader.RecordStart() - 1;
        FUZZ_CHECK(start >= 1 && static_cast<std::size_t>(start) + 4 <= size);
        FUZZ_CHECK(data[start + 1] == 0xD3 && IsKnownSF(data[start + 2], data[start + 3]));
        FUZZ_CHECK(reader.FieldLength() == (data[start - 1] << 8 | data[start]));

        FUZZ_CHECK(!again.SetNextRecord(start));
        FUZZ_CHECK(again.FieldLength() == reader.FieldLength());
        FUZZ_CHECK(again.BufferFilePos() + again.RecordStart() - 1 == start);
    }
    reader.CloseAFPFile();
    again.CloseAFPFile();
    return 0;
}
