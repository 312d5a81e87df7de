#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/registry_text.h"
#include "base/tagged_value.h"

namespace folioscope {

// Named values under full keys (HKEY_CURRENT_USER\Software\...), kept in one text file of the user; its form
// is told in registry_text.h. Letter case doesn't tell keys or names apart.
//
// Every operation reads the file anew, and a write that changes something replaces it whole under a lock, so
// that several processes can write at once: of each value the last writer wins. A damaged file gives what of
// it can be read, and is kept beside under another name before the first write.
//
// Results are a status: 0 done, 1 no full key, 2 not there, else the errno value of what failed.
class mdlRegistry {
public:
    mdlRegistry();  // $XDG_CONFIG_HOME/Marrowgate/registry.ini, as the environment has it now
    // An empty path is a store without a place: nothing is there, and nothing can be written.
    explicit mdlRegistry(std::string storePath);

    int CreateRegistryKey(std::string_view strFullKey);
    int TestRegistryKey(std::string_view strFullKey) const;
    // Takes the key's values along. A key with subkeys stays (ENOTEMPTY), and so does a root (EACCES).
    int DeleteRegistryKey(std::string_view strFullKey);

    // Makes the key if need be. Text, empty and null values become texts, numbers 32-bit numbers, half to
    // even; a number beyond 32 bits is refused (ERANGE). Another kind writes nothing, with status 0.
    int SetRegistryValue(std::string_view strFullKey, std::string_view strFieldName, const TaggedValue& varFieldValue);
    // A text or a std::int32_t; `varDefault` if the status is above 0.
    int GetRegistryValue(std::string_view strFullKey, std::string_view strFieldName, TaggedValue& varFieldValue,
                         const TaggedValue& varDefault) const;
    int DeleteRegistryValue(std::string_view strFullKey, std::string_view strFieldName);

    // Append each name behind a backslash, cut to 255 characters, in alphabetical order.
    int GetValueList(std::string_view strFullKey, std::string& strValueList) const;
    int GetRegKeyList(std::string_view strFullKey, std::string& strKeyList) const;

private:
    // A change of the keys; it leaves them alone if it can't be made.
    using Change = std::function<int(RegistryKeys&)>;
    int Apply(const Change& change);

    std::string storePath_;
};

}  // namespace folioscope
