#include "base/mdlRegistry.h"

#include <cerrno>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
#include <set>
#include <utility>

#include "base/ini_lines.h"
#include "base/numbers.h"
#include "base/user_folders.h"
#include "base/whole_file.h"

namespace folioscope {
namespace {

constexpr int kDone = 0;
constexpr int kNoKey = 1;
constexpr int kNotThere = 2;

constexpr std::size_t kLongestStore = std::size_t{4} << 20;
constexpr std::size_t kLongestName = 255;

std::string UsersStore()
{
    const std::string folder = ConfigFolder();
    return folder.empty() ? folder : folder + "/Marrowgate/registry.ini";
}

// The numbers that the interface gives a meaning of its own don't come from the system.
int StatusOf(int systemError) { return systemError == EPERM ? EACCES : systemError; }

int Load(const std::string& path, RegistryContent& content)
{
    if (path.empty()) return kDone;
    const FileText file = ReadWholeFile(path, kLongestStore);
    if (file.error == 0) content = ParseRegistry(file.text);
    content.damaged |= file.error == EFBIG;
    return file.error == ENOENT || file.error == EFBIG ? kDone : StatusOf(file.error);
}

int Save(const std::string& path, const RegistryContent& content)
{
    const std::string text = RegistryText(content.keys);
    if (text.size() > kLongestStore) return EFBIG;
    if (content.damaged)
        if (const int error = KeepBeside(path); error != 0) return StatusOf(error);
    return StatusOf(ReplaceWholeFile(path, path + ".new", text, 0600));
}

bool IsRoot(const std::string& key) { return key.find('\\') == std::string::npos; }

// The keys that begin with a text; `visit` gets what stands behind it.
void EachBelow(const RegistryKeys& keys, const std::string& key, const std::function<bool(std::string_view)>& visit)
{
    const std::string front = key + '\\';
    for (auto at = keys.lower_bound(front); at != keys.end(); ++at) {
        const std::string_view name = at->first;
        if (!SameName(name.substr(0, front.size()), front) || !visit(name.substr(front.size()))) return;
    }
}

bool HasSubkeys(const RegistryKeys& keys, const std::string& key)
{
    bool found = false;
    EachBelow(keys, key, [&](std::string_view) {
        found = true;
        return false;
    });
    return found;
}

// Parents aren't listed for their own sake, and the roots are always there.
bool KeyExists(const RegistryKeys& keys, const std::string& key)
{
    return IsRoot(key) || keys.contains(key) || HasSubkeys(keys, key);
}

int DeleteKey(RegistryKeys& keys, const std::string& key)
{
    if (IsRoot(key)) return EACCES;
    if (HasSubkeys(keys, key)) return ENOTEMPTY;
    const auto at = keys.find(key);
    if (at == keys.end()) return kNotThere;
    keys.erase(at);
    const std::string parent = key.substr(0, key.rfind('\\'));
    if (!KeyExists(keys, parent)) keys.try_emplace(parent);
    return kDone;
}

int DeleteValue(RegistryKeys& keys, const std::string& key, std::string_view name)
{
    const auto values = keys.find(key);
    if (values == keys.end()) return kNotThere;
    const auto at = values->second.find(name);
    if (at == values->second.end()) return kNotThere;
    values->second.erase(at);
    return kDone;
}

int ReadValue(const RegistryKeys& keys, const std::string& key, std::string_view name, TaggedValue& value)
{
    const auto values = keys.find(key);
    if (values == keys.end()) return kNotThere;
    const auto at = values->second.find(name);
    if (at == values->second.end()) return kNotThere;
    std::visit([&](const auto& data) { value = data; }, at->second);
    return kDone;
}

void AppendName(std::string& list, std::string_view name) { (list += '\\') += FirstCharacters(name, kLongestName); }

std::optional<std::int64_t> Rounded(double number)
{
    if (!(std::abs(number) < 1e12)) return {};  // also what is no number
    return RoundHalfToEven(number);
}

std::optional<std::int64_t> Rounded(const DecimalValue& decimal)
{
    std::int64_t whole = decimal.units;
    int digit = 0;
    bool rest = false;
    for (int i = 0; i < decimal.places; ++i) {
        rest |= digit != 0;
        digit = std::abs(static_cast<int>(whole % 10));
        whole /= 10;
    }
    if (digit > 5 || (digit == 5 && (rest || whole % 2 != 0))) whole += decimal.units < 0 ? -1 : 1;
    return whole;
}

struct StoredData {
    int status = kDone;
    std::optional<RegistryData> data;
};

StoredData NumberData(std::optional<std::int64_t> number)
{
    using Limits = std::numeric_limits<std::int32_t>;
    if (!number || *number < Limits::min() || *number > Limits::max()) return {ERANGE, {}};
    return {kDone, static_cast<std::int32_t>(*number)};
}

struct ToStored {
    StoredData operator()(EmptyValue) const { return {kDone, std::string()}; }
    StoredData operator()(NullValue) const { return {kDone, std::string()}; }
    StoredData operator()(const std::string& text) const { return {kDone, text}; }
    StoredData operator()(bool) const { return {}; }
    template <std::integral Integer> StoredData operator()(Integer number) const
    {
        return NumberData(std::int64_t{number});
    }
    StoredData operator()(float number) const { return NumberData(Rounded(double{number})); }
    StoredData operator()(double number) const { return NumberData(Rounded(number)); }
    StoredData operator()(const DecimalValue& number) const { return NumberData(Rounded(number)); }
};

}  // namespace

mdlRegistry::mdlRegistry() : mdlRegistry(UsersStore()) {}

mdlRegistry::mdlRegistry(std::string storePath) : storePath_(std::move(storePath)) {}

int mdlRegistry::Apply(const Change& change)
{
    RegistryContent content;
    if (const int status = Load(storePath_, content); status != kDone) return status;
    // What would change nothing needs neither lock nor write.
    RegistryKeys keys = content.keys;
    if (const int status = change(keys); status != kDone || keys == content.keys) return status;

    if (storePath_.empty()) return kNotThere;
    const std::string path = BehindLinks(storePath_);
    if (const int error = MakeFolders(FolderOf(path)); error != 0) return StatusOf(error);
    const FileLock lock(path + ".lock");
    if (lock.Error() != 0) return StatusOf(lock.Error());

    content = {};
    if (const int status = Load(path, content); status != kDone) return status;
    if (const int status = change(content.keys); status != kDone) return status;
    return Save(path, content);
}

int mdlRegistry::CreateRegistryKey(std::string_view strFullKey)
{
    const auto key = CanonicalKey(strFullKey);
    if (!key) return kNoKey;
    return Apply([&](RegistryKeys& keys) {
        if (!KeyExists(keys, *key)) keys.try_emplace(*key);
        return kDone;
    });
}

int mdlRegistry::TestRegistryKey(std::string_view strFullKey) const
{
    const auto key = CanonicalKey(strFullKey);
    if (!key) return kNoKey;
    RegistryContent content;
    if (const int status = Load(storePath_, content); status != kDone) return status;
    return KeyExists(content.keys, *key) ? kDone : kNotThere;
}

int mdlRegistry::DeleteRegistryKey(std::string_view strFullKey)
{
    const auto key = CanonicalKey(strFullKey);
    if (!key) return kNoKey;
    return Apply([&](RegistryKeys& keys) { return DeleteKey(keys, *key); });
}

int mdlRegistry::SetRegistryValue(std::string_view strFullKey, std::string_view strFieldName,
                                  const TaggedValue& varFieldValue)
{
    const auto key = CanonicalKey(strFullKey);
    if (!key) return kNoKey;
    const StoredData stored = std::visit(ToStored(), varFieldValue);
    if (!stored.data) return stored.status;
    return Apply([&](RegistryKeys& keys) {
        keys[*key].insert_or_assign(std::string(strFieldName), *stored.data);
        return kDone;
    });
}

int mdlRegistry::GetRegistryValue(std::string_view strFullKey, std::string_view strFieldName,
                                  TaggedValue& varFieldValue, const TaggedValue& varDefault) const
{
    const auto key = CanonicalKey(strFullKey);
    RegistryContent content;
    int status = key ? Load(storePath_, content) : kNoKey;
    if (status == kDone) status = ReadValue(content.keys, *key, strFieldName, varFieldValue);
    if (status != kDone) varFieldValue = varDefault;
    return status;
}

int mdlRegistry::DeleteRegistryValue(std::string_view strFullKey, std::string_view strFieldName)
{
    const auto key = CanonicalKey(strFullKey);
    if (!key) return kNoKey;
    return Apply([&](RegistryKeys& keys) { return DeleteValue(keys, *key, strFieldName); });
}

int mdlRegistry::GetValueList(std::string_view strFullKey, std::string& strValueList) const
{
    const auto key = CanonicalKey(strFullKey);
    if (!key) return kNoKey;
    RegistryContent content;
    if (const int status = Load(storePath_, content); status != kDone) return status;
    if (!KeyExists(content.keys, *key)) return kNotThere;
    if (const auto values = content.keys.find(*key); values != content.keys.end())
        for (const auto& entry : values->second) AppendName(strValueList, entry.first);
    return kDone;
}

int mdlRegistry::GetRegKeyList(std::string_view strFullKey, std::string& strKeyList) const
{
    const auto key = CanonicalKey(strFullKey);
    if (!key) return kNoKey;
    RegistryContent content;
    if (const int status = Load(storePath_, content); status != kDone) return status;
    if (!KeyExists(content.keys, *key)) return kNotThere;
    std::set<std::string_view, NameOrder> names;
    EachBelow(content.keys, *key, [&](std::string_view below) {
        names.insert(below.substr(0, below.find('\\')));
        return true;
    });
    for (const auto name : names) AppendName(strKeyList, name);
    return kDone;
}

}  // namespace folioscope
