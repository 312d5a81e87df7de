#include "objects/items.h"

#include "analysis/decode/colors.h"
#include "base/numbers.h"

namespace folioscope {

void BeginItems(clsAFPFunctions& afp)
{
    afp.List().ClearSequenceElements();
    if (afp.CarryOverBytes == 0) return;
    afp.AddElement(Element::Boolean(Key::ContFromLastSF, true));
    afp.FieldPosition += afp.CarryOverBytes;
    afp.CarryOverBytes = 0;
}

void EndItems(clsAFPFunctions& afp, Key types, Key values) { afp.List().PublishSequence(types, values); }

bool RunsOver(const clsAFPFunctions& afp, std::int32_t end) { return afp.FieldPosition - 1 > end; }

void CarryOver(clsAFPFunctions& afp, std::int32_t end)
{
    constexpr std::int32_t kLow = 0xFFFF;
    afp.AddElement(Element::Boolean(Key::ContInNextSF, true));
    afp.CarryOverBytes = (afp.FieldPosition - end - 1) & kLow;
}

void DecodeItemColor(clsAFPFunctions& afp, const Item& item)
{
    const std::int32_t p = item.at + 2;
    DecodeColor(afp, {p + 1, p + 6, p + 10, ColorSource::Item}, kToSequence);
}

void AddCode(clsAFPFunctions& afp, Key key, std::uint8_t code)
{
    std::string& pool = afp.List().Pool();
    const auto from = pool.size();
    AppendHex(pool, code, 2);
    afp.AddSequenceElement(afp.List().PooledText(key, from));
}

}  // namespace folioscope
