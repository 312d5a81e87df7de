#include "base/mdlRegistry.h"

#include <cerrno>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "base/processes.h"
#include "support/temporary_file.h"

namespace folioscope {
namespace {

namespace fs = std::filesystem;
using test::ReadWhole;

constexpr std::string_view kKey = R"(HKEY_CURRENT_USER\Software\Marrowgate\Folioscope)";
constexpr std::string_view kNoKeys[] = {"", "HKEY_CURRENT_USER", R"(HKEY_NOBODY\Software)", R"(Software\Marrowgate)"};

class Registry : public testing::Test {
protected:
    int Set(std::string_view name, const TaggedValue& value) { return registry.SetRegistryValue(kKey, name, value); }

    // The number in the store, or -99999.
    std::int32_t Number(std::string_view name) const
    {
        TaggedValue value;
        registry.GetRegistryValue(kKey, name, value, std::int32_t{-99999});
        const auto* const number = std::get_if<std::int32_t>(&value);
        return number != nullptr ? *number : -99999;
    }

    std::string Text(std::string_view name) const
    {
        TaggedValue value;
        registry.GetRegistryValue(kKey, name, value, std::string("default"));
        const auto* const text = std::get_if<std::string>(&value);
        return text != nullptr ? *text : "no text";
    }

    test::TemporaryFolder folder;
    std::string path = folder / "registry.ini";
    mdlRegistry registry{path};
};

TEST_F(Registry, ABadFullKeyGivesOneAndDoesNothing)
{
    for (const auto key : kNoKeys) {
        TaggedValue value;
        std::string list = "list";
        EXPECT_EQ(registry.CreateRegistryKey(key), 1);
        EXPECT_EQ(registry.TestRegistryKey(key), 1);
        EXPECT_EQ(registry.DeleteRegistryKey(key), 1);
        EXPECT_EQ(registry.SetRegistryValue(key, "a", std::int32_t{1}), 1);
        EXPECT_EQ(registry.SetRegistryValue(key, "a", true), 1);
        EXPECT_EQ(registry.GetRegistryValue(key, "a", value, std::int32_t{5}), 1);
        EXPECT_EQ(std::get<std::int32_t>(value), 5);
        EXPECT_EQ(registry.DeleteRegistryValue(key, "a"), 1);
        EXPECT_EQ(registry.GetValueList(key, list), 1);
        EXPECT_EQ(registry.GetRegKeyList(key, list), 1);
        EXPECT_EQ(list, "list");
    }
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST_F(Registry, CreatesAKeyAndItsParents)
{
    EXPECT_EQ(registry.TestRegistryKey(kKey), 2);
    EXPECT_EQ(registry.CreateRegistryKey(kKey), 0);
    EXPECT_EQ(registry.TestRegistryKey(kKey), 0);
    EXPECT_EQ(registry.TestRegistryKey(R"(HKEY_CURRENT_USER\Software\Marrowgate)"), 0);
    EXPECT_EQ(registry.TestRegistryKey(R"(hkey)"), 1);
    EXPECT_EQ(registry.TestRegistryKey(R"(HKEY_CURRENT_USER\Software\Marrow)"), 2);
    EXPECT_EQ(registry.TestRegistryKey(R"(HKEY_LOCAL_MACHINE\Software\Marrowgate)"), 2);
}

TEST_F(Registry, CreatingAKeyThatExistsIsDoneToo)
{
    ASSERT_EQ(registry.CreateRegistryKey(kKey), 0);
    ASSERT_EQ(Set("a", std::int32_t{1}), 0);
    EXPECT_EQ(registry.CreateRegistryKey(kKey), 0);
    EXPECT_EQ(Number("a"), 1);
}

TEST_F(Registry, RootsAreAlwaysThere)
{
    EXPECT_EQ(registry.TestRegistryKey(R"(HKEY_USERS\)"), 0);
    EXPECT_EQ(registry.CreateRegistryKey(R"(HKEY_USERS\)"), 0);
    EXPECT_EQ(registry.DeleteRegistryKey(R"(HKEY_USERS\)"), EACCES);
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(Registry, DeletesAKeyWithItsValues)
{
    ASSERT_EQ(Set("a", std::int32_t{1}), 0);
    EXPECT_EQ(registry.DeleteRegistryKey(kKey), 0);
    EXPECT_EQ(registry.TestRegistryKey(kKey), 2);
    EXPECT_EQ(Number("a"), -99999);
    EXPECT_EQ(registry.TestRegistryKey(R"(HKEY_CURRENT_USER\Software\Marrowgate)"), 0);
    EXPECT_EQ(registry.DeleteRegistryKey(kKey), 2);
}

TEST_F(Registry, AKeyWithSubkeysStays)
{
    ASSERT_EQ(registry.CreateRegistryKey(R"(HKEY_USERS\a)"), 0);
    ASSERT_EQ(registry.CreateRegistryKey(R"(HKEY_USERS\a\b)"), 0);
    EXPECT_EQ(registry.DeleteRegistryKey(R"(HKEY_USERS\a)"), ENOTEMPTY);
    EXPECT_EQ(registry.TestRegistryKey(R"(HKEY_USERS\a\b)"), 0);
    EXPECT_EQ(registry.DeleteRegistryKey(R"(HKEY_USERS\a\b)"), 0);
    EXPECT_EQ(registry.DeleteRegistryKey(R"(HKEY_USERS\a)"), 0);
}

TEST_F(Registry, ANeighbourWithALongerNameIsNoSubkey)
{
    ASSERT_EQ(registry.CreateRegistryKey(R"(HKEY_USERS\a)"), 0);
    ASSERT_EQ(registry.CreateRegistryKey(R"(HKEY_USERS\a b)"), 0);
    ASSERT_EQ(registry.CreateRegistryKey(R"(HKEY_USERS\ab\c)"), 0);
    EXPECT_EQ(registry.DeleteRegistryKey(R"(HKEY_USERS\a)"), 0);
    EXPECT_EQ(registry.TestRegistryKey(R"(HKEY_USERS\a b)"), 0);
}

TEST_F(Registry, LetterCaseDoesNotTellKeysOrNamesApart)
{
    ASSERT_EQ(Set("Codepage", std::int32_t{37}), 0);
    ASSERT_EQ(registry.SetRegistryValue(R"(HKEY_CURRENT_USER\SOFTWARE\marrowgate\FOLIOSCOPE\)", "CODEPAGE", 273.0), 0);
    EXPECT_EQ(Number("codepage"), 273);
    EXPECT_EQ(ReadWhole(path), "[HKEY_CURRENT_USER\\Software\\Marrowgate\\Folioscope]\nCodepage=dword:273\n");
}

TEST_F(Registry, TextEmptyAndNullAreTexts)
{
    EXPECT_EQ(Set("text", std::string(" a\n=b\\ ")), 0);
    EXPECT_EQ(Text("text"), " a\n=b\\ ");
    EXPECT_EQ(Set("none", std::string()), 0);
    EXPECT_EQ(Text("none"), "");
    EXPECT_EQ(Set("empty", EmptyValue()), 0);
    EXPECT_EQ(Text("empty"), "");
    EXPECT_EQ(Set("null", NullValue()), 0);
    EXPECT_EQ(Text("null"), "");
    EXPECT_EQ(Set("", std::string("standard")), 0);
    EXPECT_EQ(Text(""), "standard");
}

TEST_F(Registry, NumbersOfAllKindsAre32BitNumbers)
{
    EXPECT_EQ(Set("n", std::uint8_t{255}), 0);
    EXPECT_EQ(Number("n"), 255);
    EXPECT_EQ(Set("n", std::int16_t{-32768}), 0);
    EXPECT_EQ(Number("n"), -32768);
    EXPECT_EQ(Set("n", std::int32_t{0xFF8080}), 0);
    EXPECT_EQ(Number("n"), 0xFF8080);
    EXPECT_EQ(Set("n", 30.25F), 0);
    EXPECT_EQ(Number("n"), 30);
    EXPECT_EQ(Set("n", -7.75), 0);
    EXPECT_EQ(Number("n"), -8);
    EXPECT_EQ(Set("n", DecimalValue{12345, 2}), 0);
    EXPECT_EQ(Number("n"), 123);
}

TEST_F(Registry, RoundsHalfToEven)
{
    struct {
        double value;
        std::int32_t stored;
    } constexpr kRows[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},  {3.5, 4},   {-0.5, 0},
                           {-1.5, -2}, {-2.5, -2}, {2.51, 3}, {-2.51, -3}};
    for (const auto& row : kRows) {
        EXPECT_EQ(Set("n", row.value), 0);
        EXPECT_EQ(Number("n"), row.stored) << row.value;
        EXPECT_EQ(Set("n", static_cast<float>(row.value)), 0);
        EXPECT_EQ(Number("n"), row.stored) << row.value;
        EXPECT_EQ(Set("n", DecimalValue{std::llround(row.value * 100), 2}), 0);
        EXPECT_EQ(Number("n"), row.stored) << row.value;
    }
}

TEST_F(Registry, RoundsDecimalsOnAllTheirDigits)
{
    const auto rounded = [&](DecimalValue value) {
        EXPECT_EQ(Set("n", value), 0);
        return Number("n");
    };
    EXPECT_EQ(rounded({25, 1}), 2);
    EXPECT_EQ(rounded({2501, 3}), 3);
    EXPECT_EQ(rounded({2500000000000000001, 18}), 3);
    EXPECT_EQ(rounded({2500000000000000000, 18}), 2);
    EXPECT_EQ(rounded({-2500000000000000001, 18}), -3);
    EXPECT_EQ(rounded({9, 1}), 1);
    EXPECT_EQ(rounded({9, 2}), 0);
    EXPECT_EQ(rounded({std::numeric_limits<std::int64_t>::max(), 19}), 1);
    EXPECT_EQ(rounded({std::numeric_limits<std::int64_t>::min(), 255}), 0);
    EXPECT_EQ(rounded({37, 0}), 37);
}

TEST_F(Registry, NumbersBeyond32BitsAreRefused)
{
    using Double = std::numeric_limits<double>;
    EXPECT_EQ(Set("n", 2147483647.0), 0);
    EXPECT_EQ(Number("n"), 2147483647);
    EXPECT_EQ(Set("n", -2147483648.5), 0);
    EXPECT_EQ(Number("n"), -2147483647 - 1);
    for (const double value : {2147483647.5, 2147483648.0, -2147483649.0, 1e300, -1e300, Double::infinity(),
                               -Double::infinity(), Double::quiet_NaN()})
        EXPECT_EQ(Set("n", value), ERANGE) << value;
    EXPECT_EQ(Set("n", DecimalValue{2147483648, 0}), ERANGE);
    EXPECT_EQ(Number("n"), -2147483647 - 1);
}

TEST_F(Registry, AnotherKindWritesNothing)
{
    EXPECT_EQ(Set("b", true), 0);
    EXPECT_FALSE(fs::exists(path));
    ASSERT_EQ(Set("b", std::int32_t{5}), 0);
    EXPECT_EQ(Set("b", false), 0);
    EXPECT_EQ(Number("b"), 5);
}

TEST_F(Registry, AMissingValueIsTheDefaultOfAnyKind)
{
    TaggedValue value = std::string("old");
    EXPECT_EQ(registry.GetRegistryValue(kKey, "n", value, 1.5F), 2);
    EXPECT_EQ(std::get<float>(value), 1.5F);
    ASSERT_EQ(registry.CreateRegistryKey(kKey), 0);
    EXPECT_EQ(registry.GetRegistryValue(kKey, "n", value, NullValue()), 2);
    EXPECT_TRUE(std::holds_alternative<NullValue>(value));
}

TEST_F(Registry, AFoundValueKeepsItsKindWhateverTheDefault)
{
    ASSERT_EQ(Set("n", std::int32_t{5}), 0);
    ASSERT_EQ(Set("t", std::string("5")), 0);
    TaggedValue value;
    EXPECT_EQ(registry.GetRegistryValue(kKey, "n", value, std::string("x")), 0);
    EXPECT_EQ(std::get<std::int32_t>(value), 5);
    EXPECT_EQ(registry.GetRegistryValue(kKey, "t", value, std::int32_t{7}), 0);
    EXPECT_EQ(std::get<std::string>(value), "5");
}

TEST_F(Registry, AValueMayChangeItsKind)
{
    ASSERT_EQ(Set("n", std::int32_t{5}), 0);
    ASSERT_EQ(Set("n", std::string("five")), 0);
    EXPECT_EQ(Text("n"), "five");
}

TEST_F(Registry, DeletesAValue)
{
    EXPECT_EQ(registry.DeleteRegistryValue(kKey, "a"), 2);
    ASSERT_EQ(Set("a", std::int32_t{1}), 0);
    ASSERT_EQ(Set("b", std::int32_t{2}), 0);
    EXPECT_EQ(registry.DeleteRegistryValue(kKey, "A"), 0);
    EXPECT_EQ(registry.DeleteRegistryValue(kKey, "a"), 2);
    EXPECT_EQ(Number("a"), -99999);
    EXPECT_EQ(Number("b"), 2);
    EXPECT_EQ(registry.DeleteRegistryValue(kKey, "b"), 0);
    EXPECT_EQ(registry.TestRegistryKey(kKey), 0);
}

TEST_F(Registry, ListsValuesBehindBackslashes)
{
    std::string list = "list:";
    EXPECT_EQ(registry.GetValueList(kKey, list), 2);
    ASSERT_EQ(registry.CreateRegistryKey(std::string(kKey) + "\\sub"), 0);
    EXPECT_EQ(registry.GetValueList(kKey, list), 0);
    EXPECT_EQ(list, "list:");
    ASSERT_EQ(Set("b", std::int32_t{1}), 0);
    ASSERT_EQ(Set("A", std::string("x")), 0);
    EXPECT_EQ(registry.GetValueList(kKey, list), 0);
    EXPECT_EQ(list, R"(list:\A\b)");
}

TEST_F(Registry, ListsEachSubkeyOnce)
{
    for (const auto* key : {R"(HKEY_USERS\a\b)", R"(HKEY_USERS\a\b x\y)", R"(HKEY_USERS\a\b\c)", R"(HKEY_USERS\a\B\d)",
                            R"(HKEY_USERS\ab\e)", R"(HKEY_USERS\a\f\g)"})
        ASSERT_EQ(registry.CreateRegistryKey(key), 0);
    std::string list = "list:";
    EXPECT_EQ(registry.GetRegKeyList(R"(HKEY_USERS\a)", list), 0);
    EXPECT_EQ(list, R"(list:\b\b x\f)");
    EXPECT_EQ(registry.GetRegKeyList(R"(HKEY_USERS\none)", list), 2);
    list.clear();
    EXPECT_EQ(registry.GetRegKeyList(R"(HKEY_USERS\)", list), 0);
    EXPECT_EQ(list, R"(\a\ab)");
}

TEST_F(Registry, ListedNamesHaveAtMost255Characters)
{
    ASSERT_EQ(Set(std::string(255, 'a'), std::int32_t{1}), 0);
    ASSERT_EQ(Set(std::string(256, 'b'), std::int32_t{1}), 0);
    std::string list;
    EXPECT_EQ(registry.GetValueList(kKey, list), 0);
    EXPECT_EQ(list, "\\" + std::string(255, 'a') + "\\" + std::string(255, 'b'));
    list.clear();
    ASSERT_EQ(registry.CreateRegistryKey(R"(HKEY_USERS\)" + std::string(300, 'k')), 0);
    EXPECT_EQ(registry.GetRegKeyList(R"(HKEY_USERS\)", list), 0);
    EXPECT_EQ(list, "\\" + std::string(255, 'k'));
}

TEST_F(Registry, KeysKeepTheirValuesApart)
{
    ASSERT_EQ(Set("a", std::int32_t{1}), 0);
    ASSERT_EQ(registry.SetRegistryValue(R"(HKEY_LOCAL_MACHINE\Software\Marrowgate\Folioscope)", "a", std::int32_t{2}),
              0);
    EXPECT_EQ(Number("a"), 1);
}

TEST_F(Registry, EveryObjectSeesEveryWrite)
{
    mdlRegistry other(path);
    ASSERT_EQ(Set("a", std::int32_t{1}), 0);
    ASSERT_EQ(other.SetRegistryValue(kKey, "b", std::int32_t{2}), 0);
    ASSERT_EQ(Set("c", std::int32_t{3}), 0);
    EXPECT_EQ(Number("a"), 1);
    EXPECT_EQ(Number("b"), 2);
    EXPECT_EQ(Number("c"), 3);
}

TEST(RegistryPlace, IsTheUsersConfigurationFolder)
{
    const test::TemporaryFolder folder;
    const test::ScopedVariable home("HOME", folder / "home");
    {
        const test::ScopedVariable config("XDG_CONFIG_HOME", folder / "config");
        mdlRegistry registry;
        ASSERT_EQ(registry.SetRegistryValue(kKey, "a", std::int32_t{1}), 0);
    }
    EXPECT_TRUE(fs::is_regular_file(folder / "config/Marrowgate/registry.ini"));
    const test::ScopedVariable config("XDG_CONFIG_HOME", std::nullopt);
    mdlRegistry registry;
    ASSERT_EQ(registry.SetRegistryValue(kKey, "a", std::int32_t{1}), 0);
    EXPECT_TRUE(fs::is_regular_file(folder / "home/.config/Marrowgate/registry.ini"));
}

TEST(RegistryPlace, TheFileIsTheUsersAlone)
{
    const test::TemporaryFolder folder;
    mdlRegistry registry(folder / "new/registry.ini");
    ASSERT_EQ(registry.SetRegistryValue(kKey, "a", std::int32_t{1}), 0);
    EXPECT_EQ(fs::status(folder / "new/registry.ini").permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::status(folder / "new").permissions(), fs::perms::owner_all);
}

TEST(RegistryPlace, MayBeARelativePath)
{
    const test::TemporaryFolder folder;
    const test::ScopedCurrentFolder current(folder.Path());
    mdlRegistry registry("registry.ini");
    ASSERT_EQ(registry.SetRegistryValue(kKey, "a", std::int32_t{1}), 0);
    EXPECT_TRUE(fs::is_regular_file(folder / "registry.ini"));
}

TEST(RegistryPlace, WithoutAHomeThereIsNone)
{
    const test::ScopedVariable home("HOME", std::nullopt);
    const test::ScopedVariable config("XDG_CONFIG_HOME", std::nullopt);
    mdlRegistry registry;
    EXPECT_EQ(registry.SetRegistryValue(kKey, "a", std::int32_t{1}), 2);
    EXPECT_EQ(registry.CreateRegistryKey(kKey), 2);
    EXPECT_EQ(registry.TestRegistryKey(kKey), 2);
    EXPECT_EQ(registry.DeleteRegistryKey(kKey), 2);
    TaggedValue value;
    EXPECT_EQ(registry.GetRegistryValue(kKey, "a", value, std::int32_t{5}), 2);
    EXPECT_EQ(std::get<std::int32_t>(value), 5);
}

}  // namespace
}  // namespace folioscope
