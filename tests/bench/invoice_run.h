#pragma once

// A made-up print run: a telephone company's monthly invoices.

#include <cstddef>
#include <string_view>

#include "record_builder.h"

namespace folioscope::bench {

// Digits that each copy of a template gets anew stand where these texts do.
constexpr std::string_view kGroupSlot = "@GROUP@@", kAccountSlot = "@ACCOUNT@@", kAmountSlot = "@AMOUNT@@@";

// BRG to ERG: form map, overlay, page segment, code page and coded fonts.
void PutResourceGroup(RecordBuilder& out, Dice& dice);

// BNG to ENG with one to four pages; the number of pages is the result. The index decides what kinds of object the
// pages have, so that a run of indexes has them all in the right proportion.
unsigned PutInvoice(RecordBuilder& out, Dice& dice, std::size_t index, bool faults);

void PutTag(RecordBuilder& out, std::string_view name, std::string_view value);  // TLE
void PutFault(RecordBuilder& out);  // a page descriptor with unit bases that no table knows

}  // namespace folioscope::bench
