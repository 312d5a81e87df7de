#include "base/labels.h"

#include <cstddef>

namespace folioscope {

namespace {

struct CatalogRow {
    std::string_view text[3];
};

#include "labels_texts.inc"  // kCatalog: one row per label, row 0 empty

static_assert(std::size(kCatalog) == kCatalogRows + 1);

}  // namespace

std::string_view TextOf(Label label, Language language)
{
    return kCatalog[static_cast<std::size_t>(label)].text[static_cast<std::size_t>(language) - 1];
}

}  // namespace folioscope
