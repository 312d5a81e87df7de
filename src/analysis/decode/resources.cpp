#include "analysis/decode/resources.h"

#include <algorithm>
#include <string>

#include "analysis/decode/clsAFPFunctions.h"
#include "base/numbers.h"
#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::int32_t kNameLength = 8;

void AddResource(clsAFPFunctions& afp, int kind, char scope, std::string_view key, std::string_view name)
{
    std::string& pool = afp.List().Pool();
    const auto from = pool.size();
    AppendNumber(pool, std::int64_t{kind});
    pool += '/';
    pool += scope;
    pool += '/';
    pool += key;
    pool += '/';
    pool += name;
    afp.AddElement(afp.List().PooledText(Key::AddResource, from));
}

}  // namespace

void AddInternalResource(clsAFPFunctions& afp, int kind, std::string_view key, std::string_view name)
{
    AddResource(afp, kind, 'I', key, name);
}

void AddExternalResource(clsAFPFunctions& afp, ResourceKind kind, std::string_view name)
{
    if (!name.empty()) AddExternalResource(afp, kind, name, name);
}

void AddExternalResource(clsAFPFunctions& afp, ResourceKind kind, std::string_view key, std::string_view name)
{
    if (!afp.Resources.inResourceGroup) AddResource(afp, static_cast<int>(kind), 'E', key, name);
}

void ShowName(clsAFPFunctions& afp, std::string_view name)
{
    const auto from = afp.List().Pool().size();
    afp.List().Pool() += name;
    afp.AddElement(afp.List().PooledText(Key::ShowResName, from));
}

std::string_view WithoutKind(std::string_view name)
{
    constexpr int kKindCharacters = 2;
    for (int i = 0; i < kKindCharacters && !name.empty(); ++i)
        name.remove_prefix(std::min(Utf8Step(name.front()), name.size()));
    return name;
}

void ReadName(clsAFPFunctions& afp, std::int32_t lngCodepage)
{
    const Element name = afp.ReadTextCP(Key::Name, lngCodepage, afp.FieldPosition, kNameLength);
    afp.AddElement(name);
    afp.Resources.name = TrimBlanks(afp.List().TextOf(name));
}

}  // namespace folioscope
