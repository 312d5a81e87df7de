#include "base/clsSillyFunctions.h"

#include <utility>

#include "base/mdlINIFiles.h"

namespace folioscope {

clsSillyFunctions::clsSillyFunctions(std::string storePath) : registry_(std::move(storePath)) {}

std::vector<std::string> clsSillyFunctions::GetKeyList(std::string_view strFilename, std::string_view strSection) const
{
    return mdlINIFiles::GetKeyList(strFilename, strSection);
}

std::string clsSillyFunctions::GetPrivateProfile(std::string_view strINIFile, std::string_view strSection,
                                                 std::string_view strKey, std::string_view strDefault) const
{
    return mdlINIFiles::GetPrivateProfile(strINIFile, strSection, strKey, strDefault);
}

bool clsSillyFunctions::WritePrivateProfile(std::string_view strINIFile, std::string_view strSection,
                                            std::string_view strKey, std::string_view strValue) const
{
    return mdlINIFiles::WritePrivateProfile(strINIFile, strSection, strKey, strValue);
}

int clsSillyFunctions::CreateRegistryKey(std::string_view strFullKey)
{
    return registry_.CreateRegistryKey(strFullKey);
}

int clsSillyFunctions::TestRegistryKey(std::string_view strFullKey) const
{
    return registry_.TestRegistryKey(strFullKey);
}

int clsSillyFunctions::DeleteRegistryKey(std::string_view strFullKey)
{
    return registry_.DeleteRegistryKey(strFullKey);
}

int clsSillyFunctions::SetRegistryValue(std::string_view strFullKey, std::string_view strFieldName,
                                        const TaggedValue& varFieldValue)
{
    return registry_.SetRegistryValue(strFullKey, strFieldName, varFieldValue);
}

int clsSillyFunctions::GetRegistryValue(std::string_view strFullKey, std::string_view strFieldName,
                                        TaggedValue& varFieldValue, const TaggedValue& varDefault) const
{
    return registry_.GetRegistryValue(strFullKey, strFieldName, varFieldValue, varDefault);
}

int clsSillyFunctions::DeleteRegistryValue(std::string_view strFullKey, std::string_view strFieldName)
{
    return registry_.DeleteRegistryValue(strFullKey, strFieldName);
}

int clsSillyFunctions::GetValueList(std::string_view strFullKey, std::string& strValueList) const
{
    return registry_.GetValueList(strFullKey, strValueList);
}

int clsSillyFunctions::GetRegKeyList(std::string_view strFullKey, std::string& strKeyList) const
{
    return registry_.GetRegKeyList(strFullKey, strKeyList);
}

std::string clsSillyFunctions::ChangeString(std::string_view strString, std::string_view strOldPart,
                                            std::string_view strNewPart) const
{
    return mdlOther::ChangeString(strString, strOldPart, strNewPart);
}

void clsSillyFunctions::FillByteArray(int intStartIndex, BoundedArray<std::uint8_t>& bytTheArray,
                                      std::initializer_list<std::uint8_t> bytValues) const
{
    mdlOther::FillArray(intStartIndex, bytTheArray, bytValues);
}

void clsSillyFunctions::FillIntegerArray(int intStartIndex, BoundedArray<std::int16_t>& intTheArray,
                                         std::initializer_list<std::int16_t> intValues) const
{
    mdlOther::FillArray(intStartIndex, intTheArray, intValues);
}

int clsSillyFunctions::FindIntegerValueInArray(const BoundedArray<std::int16_t>& intTheArray,
                                               std::int16_t intValue) const
{
    return mdlOther::FindInArray(intTheArray, intValue);
}

int clsSillyFunctions::FindStringValueInArray(const BoundedArray<std::string>& strTheArray,
                                              std::string_view strValue) const
{
    return mdlOther::FindInArray(strTheArray, strValue);
}

std::string clsSillyFunctions::GetTempDir() const { return mdlOther::GetTempDir(); }

std::string clsSillyFunctions::Extract(std::string_view strSourceString, std::string_view strDivider, int intPart) const
{
    return mdlOther::Extract(strSourceString, strDivider, intPart);
}

bool clsSillyFunctions::MakeDir(std::string_view strPath) const { return mdlOther::MakeDir(strPath); }

std::string clsSillyFunctions::GetAllUsersAppDir() const { return mdlOther::GetAllUsersAppDir(registry_); }

void clsSillyFunctions::AddToAnyArray(BoundedArray<TaggedValue>& AnyArray, const TaggedValue& AnyValue) const
{
    mdlOther::AddToAnyArray(AnyArray, AnyValue);
}

}  // namespace folioscope
