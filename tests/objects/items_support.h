#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope::test {

// What became of a record that holds a data object.
struct ShownItems {
    std::vector<std::string> items;   // its sequence: "Int32 AbsoluteInline 16"
    std::vector<std::string> record;  // what else the record holds: "Boolean ContInNextSF 1"
    std::string keys;                 // of the sequence's two halves: "ArrayElementType ArrayElementValue"
    std::string text;                 // readable, see Readable
    std::vector<std::string> heard;
};

// A file, decoded and rendered record by record with all decoders and renderers. Data that a run leaves for later are
// decoded at once, in the place of the record's other Elements. Lines are 0.01 inches wide at the start.
class ItemWalk {
public:
    explicit ItemWalk(const AfpFile& file, Language language = Language::English, NumberStyle style = {},
                      const InputPages& pages = {});

    ShownItems Next();
    // The records to the last one, whose outcome is given.
    ShownItems Last(int records);

    RecordWalk walk;
    LineBench bench;
};

ShownItems ShowItems(std::string_view field, const Bytes& data);
// Elements of one key in the sequence: their values.
std::vector<std::string> ValuesOf(const ShownItems& shown, std::string_view key);
// The keys of the sequence behind its first element, one blank between.
std::string KeysOf(const ShownItems& shown);

// Holds a record that consists of a sequence against one line an Element, see ExpectShown. Nothing is heard of it.
void ExpectItems(std::string_view field, std::string_view pieces, std::string_view expected);
// The same for a record of which one fault is told.
void ExpectFault(std::string_view field, std::string_view pieces, std::string_view message, std::string_view expected);

// The words of a key, one for each value that has one.
struct WordCase {
    Key key;
    std::string_view label;
    struct {
        int value;
        std::string_view word;
    } words[30];
};

// What a bench shows of one Element behind the one that begins an item by the name of X.
struct ShownWord {
    std::string text;
    std::vector<std::string> heard;
};
using ShowWord = std::function<ShownWord(const Element&)>;

// Holds the lines of all 256 values of a key against the words: a value that has none is a fault of `origin`.
void ExpectWords(const WordCase& row, std::string_view origin, const ShowWord& show);

// One control sequence with its prefix and the length that it needs; the pieces begin with its function byte.
Bytes Sequence(std::string_view pieces);
// The same behind a chained one: without a prefix.
Bytes Chained(std::string_view pieces);
// An order or a short self-defining field: code, the length that it needs, data.
Bytes Long(std::string_view pieces);

}  // namespace folioscope::test
