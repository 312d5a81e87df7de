#include "templates.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include "invoice_run.h"

namespace folioscope::bench {
namespace {

constexpr std::size_t kInvoices = 240, kSmallTemplates = 64, kSmallGroups = 20, kNoiseStretches = 40;
constexpr std::size_t kBodiesInGroup = 48;

std::vector<std::size_t> PlacesOf(const Bytes& bytes, std::string_view text)
{
    const Body wanted = Body().Text(text);
    std::vector<std::size_t> places;
    auto from = bytes.begin();
    for (;;) {
        from = std::search(from, bytes.end(), wanted.View().begin(), wanted.View().end());
        if (from == bytes.end()) return places;
        places.push_back(static_cast<std::size_t>(from - bytes.begin()));
        from += static_cast<std::ptrdiff_t>(wanted.Size());
    }
}

void PutSmallGroup(RecordBuilder& out, Dice& dice, std::size_t number, bool faults)
{
    static constexpr std::string_view kRemark = "small record", kKeys[] = {"A", "BC", "DEF"}, kValue = "204681";
    char label[9];
    std::snprintf(label, sizeof label, "SET%05zu", number % 100000);
    const Body name = number % 2 == 0 ? Body() : Body().Name(label);
    out.Put("BNG", name);
    for (std::size_t i = 0; i < kBodiesInGroup; ++i) {
        if (i % 2 == 0) {
            out.Put("NOP", Body().Text(kRemark.substr(0, dice.Between(0, kRemark.size()))));
        } else {
            const std::string_view key = dice.Pick(kKeys);
            PutTag(out, key, kValue.substr(0, dice.Between(1, kValue.size())));
        }
    }
    if (faults) PutFault(out);
    out.Put("ENG", name);
}

// Whether a known pair begins with each byte.
constexpr auto kCategories = [] {
    std::array<bool, 256> known{};
    for (const Field& field : kFields) known[field.pair >> 8] = true;
    return known;
}();

// What would look like the start of a pair behind x'D3' is changed.
void BreakPairs(Bytes& noise)
{
    static constexpr std::uint8_t kHarmless = 0x11;
    std::fill(noise.end() - static_cast<std::ptrdiff_t>(std::min<std::size_t>(noise.size(), 2)), noise.end(),
              kHarmless);
    for (std::size_t i = 0; i + 1 < noise.size(); ++i)
        if (noise[i] == 0xD3 && kCategories[noise[i + 1]]) noise[i + 1] = kHarmless;
}

}  // namespace

Template::Template(const RecordBuilder& records, unsigned pages)
    : bytes_(records.bytes()), records_(records.records()),
      pages_(pages), group_{PlacesOf(bytes_, kGroupSlot), kGroupSlot.size()},
      account_{PlacesOf(bytes_, kAccountSlot), kAccountSlot.size()}, amount_{PlacesOf(bytes_, kAmountSlot),
                                                                             kAmountSlot.size()}
{
}

const Bytes& Template::Numbered(std::uint64_t serial)
{
    constexpr std::uint64_t kMixer = 2654435761;  // odd and without a factor five, so accounts don't repeat
    const auto fill = [this](const Slots& slots, std::uint64_t number) {
        for (const std::size_t place : slots.places) {
            std::uint64_t rest = number;
            for (std::size_t i = slots.digits; i > 0; --i, rest /= 10)
                bytes_[place + i - 1] = static_cast<std::uint8_t>(kToEbcdic['0'] + rest % 10);
        }
    };
    fill(group_, serial);
    fill(account_, serial * kMixer);
    fill(amount_, serial * kMixer / 9973 % 1000000);
    return bytes_;
}

std::vector<Template> InvoiceTemplates(const Packaging& packaging, Dice& dice, bool faults)
{
    std::vector<Template> templates;
    for (std::size_t i = 0; i < kInvoices; ++i) {
        RecordBuilder records(packaging);
        const unsigned pages = PutInvoice(records, dice, i, faults);
        templates.emplace_back(records, pages);
    }
    return templates;
}

std::vector<Template> SmallTemplates(const Packaging& packaging, Dice& dice, bool faults)
{
    std::vector<Template> templates;
    for (std::size_t i = 0; i < kSmallTemplates; ++i) {
        RecordBuilder records(packaging);
        for (std::size_t group = 0; group < kSmallGroups; ++group)
            PutSmallGroup(records, dice, i * kSmallGroups + group, faults);
        templates.emplace_back(records);
    }
    return templates;
}

Template Tower(const Packaging& packaging, std::size_t depth, bool faults)
{
    const auto name = [](std::size_t level) {
        char label[9];
        std::snprintf(label, sizeof label, "%08zu", level % 100000000);
        return Body().Text(label);
    };
    RecordBuilder records(packaging);
    for (std::size_t level = 0; level < depth; ++level) {
        records.Put("BNG", name(level));
        if (faults) PutFault(records);
    }
    for (std::size_t level = depth; level > 0; --level) records.Put("ENG", name(level - 1));
    return Template(records);
}

std::vector<Bytes> NoiseStretches(Dice& dice, std::size_t longest)
{
    std::vector<Bytes> stretches(kNoiseStretches);
    for (Bytes& noise : stretches) {
        noise.resize(dice.Between(1, longest));
        for (std::uint8_t& byte : noise) {
            const std::uint64_t draw = dice.Next();
            byte = (draw >> 8) % 5 == 0 ? 0xD3 : static_cast<std::uint8_t>(draw);
        }
        BreakPairs(noise);
    }
    return stretches;
}

}  // namespace folioscope::bench
