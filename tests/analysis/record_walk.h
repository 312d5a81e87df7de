#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/decode/clsAFPFunctions.h"
#include "support/afp_builder.h"
#include "support/temporary_file.h"

namespace folioscope::test {

std::string_view NameOf(Key key);

// One line an Element: "Int32 SFStart 2", "Text Name PAGE0001", "Boolean Unknown 1".
std::string DescriptionOf(const ElementList& list, const Element& element);
std::vector<std::string> LinesOf(const ElementList& list);
// The same without the four Elements that head every known record: SFStart, SFLength, NodeText, SFName.
std::vector<std::string> BodyOf(const ElementList& list);

// A file of some bytes, opened for the analysis.
class RecordWalk {
public:
    explicit RecordWalk(const Bytes& content, const InputPages& pages = {});
    explicit RecordWalk(const AfpFile& file, const InputPages& pages = {}) : RecordWalk(file.Content(), pages) {}

    // Steps to the next record and analyses it; what is no record fails the test.
    Status Next();
    // Steps to the next record and leaves it as it is.
    void Step();
    // Analyses what stands at a file position (from 1), be it a record to the reader or not.
    Status At(std::int32_t lngStart);

    std::vector<std::string> Lines() const { return LinesOf(afp.List()); }
    std::vector<std::string> Body() const { return BodyOf(afp.List()); }
    bool Has(Key key) const { return afp.List().Find(key) != nullptr; }
    std::string Text(Key key) const;
    std::int64_t Number(Key key) const;

    clsAFPFunctions afp;

private:
    TemporaryFolder folder_;
};

}  // namespace folioscope::test
