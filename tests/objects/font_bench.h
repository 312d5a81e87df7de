#pragma once

#include <string>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope::test {

// A Font Control field with a pattern technology and the lengths of its FNI and FNN groups.
Bytes FontControl(unsigned technology, unsigned indexLength, unsigned nameLength = 12, unsigned names = 0);

// A file of font fields: all records are analysed, then the array of one of them is read.
class FontBench {
public:
    explicit FontBench(const AfpFile& file, int records, Language language = Language::English);

    // The entries of the array of the record at a place, counted from 0: "Int16 Length 6". Deferred fields are read
    // the second time for it.
    std::vector<std::string> Array(int record);
    // The lines of the array.
    std::string Text(int record);

    RecordWalk walk;
    LineBench lines;

private:
    void Read(int record);

    std::vector<std::int32_t> starts_;
};

}  // namespace folioscope::test
