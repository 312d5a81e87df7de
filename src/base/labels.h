#pragma once

#include <cstdint>
#include <string_view>

namespace folioscope {

// A row of the language catalog; 0 is no row.
enum class Label : std::uint16_t { None };

enum class Language : std::uint8_t { English = 1, German = 2, French = 3 };

struct CatalogKey {
    std::string_view english;
    std::uint16_t row;
};

#include "labels_index.inc"  // kAnalysisLabels and kInterfaceLabels, sorted by their English text; kCatalogRows

namespace detail {

template <std::size_t N> consteval Label FindLabel(const CatalogKey (&keys)[N], std::string_view english)
{
    std::size_t low = 0, high = N;
    while (low < high) {
        const std::size_t middle = (low + high) / 2;
        if (keys[middle].english < english)
            low = middle + 1;
        else
            high = middle;
    }
    if (low == N || keys[low].english != english) throw "the catalog has no such text";
    return Label{keys[low].row};
}

}  // namespace detail

// A text of the analysis or of the interface, quoted by its English wording. One that the catalog lacks doesn't
// compile.
consteval Label L(std::string_view english) { return detail::FindLabel(kAnalysisLabels, english); }
consteval Label U(std::string_view english) { return detail::FindLabel(kInterfaceLabels, english); }

std::string_view TextOf(Label label, Language language);

// The texts of one language. Two of them are in force at any time: one for the analysis, one for the interface.
class Labels {
public:
    explicit Labels(Language language) : language_(language) {}
    std::string_view operator[](Label label) const { return TextOf(label, language_); }
    Language InForce() const { return language_; }

private:
    Language language_;
};

// The texts of the analysis in one language. A run takes them at its start and keeps them to its end.
inline Labels AnalysingTexts(Language intAnalysisLanguage) { return Labels(intAnalysisLanguage); }

// What a table says: a text of the catalog, or a literal that is the same in every language.
struct Wording {
    constexpr Wording() = default;
    constexpr Wording(Label catalog) : label(catalog) {}
    constexpr Wording(const char* text) : literal(text) {}
    Label label = Label::None;
    std::string_view literal;
};

}  // namespace folioscope
