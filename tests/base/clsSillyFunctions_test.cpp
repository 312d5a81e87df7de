#include "base/clsSillyFunctions.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "base/processes.h"
#include "support/temporary_file.h"

namespace folioscope {
namespace {

constexpr std::string_view kKey = R"(HKEY_CURRENT_USER\Software\Marrowgate\Folioscope)";

TEST(SillyFunctions, StandOverTheUsersStore)
{
    const test::TemporaryFolder folder;
    const test::ScopedVariable config("XDG_CONFIG_HOME", folder.Path());
    clsSillyFunctions functions;
    EXPECT_EQ(functions.CreateRegistryKey(kKey), 0);
    EXPECT_EQ(test::ReadWhole(folder / "Marrowgate/registry.ini"), "[" + std::string(kKey) + "]\n");
}

TEST(SillyFunctions, ForwardTheRegistry)
{
    const test::TemporaryFolder folder;
    clsSillyFunctions functions(folder / "registry.ini");
    EXPECT_EQ(functions.TestRegistryKey(kKey), 2);
    EXPECT_EQ(functions.CreateRegistryKey(std::string(kKey) + "\\Sub"), 0);
    EXPECT_EQ(functions.SetRegistryValue(kKey, "Width", 1.5), 0);
    EXPECT_EQ(functions.TestRegistryKey(kKey), 0);

    TaggedValue value;
    EXPECT_EQ(functions.GetRegistryValue(kKey, "Width", value, std::int32_t{9}), 0);
    EXPECT_EQ(std::get<std::int32_t>(value), 2);
    EXPECT_EQ(functions.GetRegistryValue(kKey, "Height", value, std::int32_t{9}), 2);
    EXPECT_EQ(std::get<std::int32_t>(value), 9);

    std::string list;
    EXPECT_EQ(functions.GetValueList(kKey, list), 0);
    EXPECT_EQ(functions.GetRegKeyList(kKey, list), 0);
    EXPECT_EQ(list, "\\Width\\Sub");
    EXPECT_EQ(functions.DeleteRegistryValue(kKey, "Width"), 0);
    EXPECT_EQ(functions.GetRegistryValue(kKey, "Width", value, std::int32_t{9}), 2);
    EXPECT_EQ(functions.DeleteRegistryKey(std::string(kKey) + "\\Sub"), 0);
    EXPECT_EQ(functions.TestRegistryKey(std::string(kKey) + "\\Sub"), 2);
}

TEST(SillyFunctions, ForwardIniFiles)
{
    const test::TemporaryFolder folder;
    const clsSillyFunctions functions(folder / "registry.ini");
    const std::string file = folder / "a.ini";
    EXPECT_TRUE(functions.WritePrivateProfile(file, "section", "key", "value"));
    EXPECT_EQ(functions.GetPrivateProfile(file, "section", "key", "default"), "value");
    EXPECT_EQ(functions.GetPrivateProfile(file, "section", "other", "default"), "default");
    EXPECT_EQ(functions.GetKeyList(file, "section"), std::vector<std::string>{"key"});
}

TEST(SillyFunctions, ForwardTextsAndArrays)
{
    const clsSillyFunctions functions{std::string()};
    EXPECT_EQ(functions.ChangeString("abab", "b", "c"), "acab");
    EXPECT_EQ(functions.Extract("a,b,c", ",", 2), "b");

    BoundedArray<std::uint8_t> bytes = {{0, 0}, 1};
    functions.FillByteArray(2, bytes, {8});
    EXPECT_EQ(bytes.elements, (std::vector<std::uint8_t>{0, 8}));
    BoundedArray<std::int16_t> integers = {{0, 0}, 1};
    functions.FillIntegerArray(1, integers, {-8, 9});
    EXPECT_EQ(integers.elements, (std::vector<std::int16_t>{-8, 9}));
    EXPECT_EQ(functions.FindIntegerValueInArray(integers, 9), 2);
    EXPECT_EQ(functions.FindIntegerValueInArray(integers, 10), 0);
    EXPECT_EQ(functions.FindStringValueInArray({{"x", "y"}, 1}, "y"), 2);

    BoundedArray<TaggedValue> values;
    functions.AddToAnyArray(values, std::string("last"));
    EXPECT_EQ(std::get<std::string>(values.elements.at(0)), "last");
}

TEST(SillyFunctions, ForwardFolders)
{
    const test::TemporaryFolder folder;
    const test::ScopedCurrentFolder current(folder.Path());
    const test::ScopedVariable temporary("TMPDIR", folder.Path());
    clsSillyFunctions functions(folder / "registry.ini");
    EXPECT_EQ(functions.GetTempDir(), folder.Path() + "/");
    EXPECT_TRUE(functions.MakeDir(folder / "a/b"));
    EXPECT_TRUE(std::filesystem::is_directory(folder / "a/b"));
    ASSERT_EQ(functions.SetRegistryValue(
                  R"(HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders)",
                  "Common AppData", folder / "shared"),
              0);
    EXPECT_EQ(functions.GetAllUsersAppDir(), folder / "shared/Marrowgate");
}

}  // namespace
}  // namespace folioscope
