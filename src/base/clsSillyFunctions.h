#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "base/mdlOther.h"
#include "base/mdlRegistry.h"
#include "base/tagged_value.h"

namespace folioscope {

// Small services under one roof; each forwards to mdlRegistry, mdlINIFiles or mdlOther, where it is told.
// Whoever owns the program's start makes one object and hands it on.
class clsSillyFunctions {
public:
    clsSillyFunctions() = default;  // over the user's own store
    explicit clsSillyFunctions(std::string storePath);

    std::vector<std::string> GetKeyList(std::string_view strFilename, std::string_view strSection) const;
    std::string GetPrivateProfile(std::string_view strINIFile, std::string_view strSection, std::string_view strKey,
                                  std::string_view strDefault) const;
    bool WritePrivateProfile(std::string_view strINIFile, std::string_view strSection, std::string_view strKey,
                             std::string_view strValue) const;

    int CreateRegistryKey(std::string_view strFullKey);
    int TestRegistryKey(std::string_view strFullKey) const;
    int DeleteRegistryKey(std::string_view strFullKey);
    int SetRegistryValue(std::string_view strFullKey, std::string_view strFieldName, const TaggedValue& varFieldValue);
    int GetRegistryValue(std::string_view strFullKey, std::string_view strFieldName, TaggedValue& varFieldValue,
                         const TaggedValue& varDefault) const;
    int DeleteRegistryValue(std::string_view strFullKey, std::string_view strFieldName);
    int GetValueList(std::string_view strFullKey, std::string& strValueList) const;
    int GetRegKeyList(std::string_view strFullKey, std::string& strKeyList) const;

    std::string ChangeString(std::string_view strString, std::string_view strOldPart,
                             std::string_view strNewPart) const;
    void FillByteArray(int intStartIndex, BoundedArray<std::uint8_t>& bytTheArray,
                       std::initializer_list<std::uint8_t> bytValues) const;
    void FillIntegerArray(int intStartIndex, BoundedArray<std::int16_t>& intTheArray,
                          std::initializer_list<std::int16_t> intValues) const;
    int FindIntegerValueInArray(const BoundedArray<std::int16_t>& intTheArray, std::int16_t intValue) const;
    int FindStringValueInArray(const BoundedArray<std::string>& strTheArray, std::string_view strValue) const;
    std::string GetTempDir() const;
    std::string Extract(std::string_view strSourceString, std::string_view strDivider, int intPart) const;
    bool MakeDir(std::string_view strPath) const;
    std::string GetAllUsersAppDir() const;
    void AddToAnyArray(BoundedArray<TaggedValue>& AnyArray, const TaggedValue& AnyValue) const;

private:
    mdlRegistry registry_;
};

}  // namespace folioscope
