#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"
#include "support/afp_builder.h"

namespace folioscope::test {

using Lines = std::vector<std::string>;

Bytes Wide(std::string_view ascii);                      // UTF-16BE
Bytes Filled(std::string_view ascii, std::size_t size);  // the same, filled with "@" to a size in bytes

// A colour management resource in the making: a header, the entries of its tag table, and what these point to. The end
// tag closes the table.
class Cmr {
public:
    // Replaces bytes of the header.
    Cmr& Header(std::size_t at, const Bytes& bytes);
    // An entry that holds its value itself, in up to four bytes.
    Cmr& Inside(unsigned id, unsigned type, std::uint32_t count, const Bytes& value = {});
    // An entry that points to its value.
    Cmr& Behind(unsigned id, unsigned type, std::uint32_t count, const Bytes& value);
    // An entry that points somewhere, counted from the end of the header.
    Cmr& Pointing(unsigned id, unsigned type, std::uint32_t count, std::uint32_t offset);
    Cmr& WithoutEnd();

    Bytes Whole() const;

private:
    struct Entry {
        Bytes head, value;  // a value of more than four bytes stands behind the table
        bool behind = false;
    };
    Bytes header_ = Zeros(164);
    std::vector<Entry> entries_;
    bool end_ = true;
};

// An ICC profile in the making (ICC.1): a header of 128 bytes, the tag table, the tags' data.
class IccProfile {
public:
    IccProfile& Header(std::size_t at, const Bytes& bytes);
    IccProfile& Tag(std::string_view signature, const Bytes& data);
    // An entry that says of its data what it likes. The offset counts from the profile's first byte.
    IccProfile& Entry(std::string_view signature, std::uint32_t offset, std::uint32_t size);
    IccProfile& Count(std::uint32_t count);  // in place of the real one

    Bytes Whole() const;

private:
    struct TagEntry {
        Bytes signature, data;
        std::uint32_t offset = 0, size = 0;
    };
    Bytes header_ = Zeros(128), count_;
    std::vector<TagEntry> tags_;
};

enum class ObjectKind { ColourResource, Metadata, Other };

// The object in a container, cut into fields of so many data bytes.
AfpFile InContainer(const Bytes& object, ObjectKind kind, std::size_t step = 8000);

// What became of a colour resource: what its sequence holds ("Int32 CMRSize 164"), the text that it leaves for the
// node of its data, and the text of the End record.
struct ColourShown {
    Lines elements;
    std::string text, own;
    Lines heard;
};

ColourShown ShowColour(const AfpFile& container);
ColourShown ShowColour(const Bytes& object);
inline ColourShown ShowColour(const Cmr& cmr) { return ShowColour(cmr.Whole()); }

// Of the n-th tag (from 1): what stands between the elements that frame it, and the lines of that without their tab.
ColourShown ShowTag(const Cmr& cmr, int number = 1);
// Holds both against one line an Element, as ExpectShown does.
void ExpectTag(const Cmr& cmr, std::string_view expected, int number = 1);

// The values of a key: "16".
Lines ValuesIn(const Lines& elements, std::string_view key);

// The line of one value, as it stands in the text of a colour resource.
ColourShown ShowValue(Key key, std::int64_t value);
ColourShown ShowValue(Key key, std::string_view value);

}  // namespace folioscope::test
