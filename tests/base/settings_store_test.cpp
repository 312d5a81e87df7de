#include "base/settings_store.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <type_traits>

#include "support/temporary_file.h"

namespace folioscope {
namespace {

struct Named {
    std::string_view name;
    std::int32_t Settings::*member;
    std::int32_t standard;
};

// clang-format off
constexpr Named kSettings[] = {
    {"Codepage",           &Settings::Codepage,           37},
    {"CodepageNOP",        &Settings::CodepageNOP,        37},
    {"CodepageTLE",        &Settings::CodepageTLE,        37},
    {"Language",           &Settings::Language,           1},
    {"TechnicalEnglish",   &Settings::TechnicalEnglish,   0},
    {"ShowNOP",            &Settings::ShowNOP,            1},
    {"ShowBESF",           &Settings::ShowBESF,           1},
    {"ShowIISF",           &Settings::ShowIISF,           1},
    {"FolderBold",         &Settings::FolderBold,         1},
    {"FolderColored",      &Settings::FolderColored,      1},
    {"FolderColor",        &Settings::FolderColor,        0xFF8080},
    {"DefaultMeasurement", &Settings::DefaultMeasurement, 0},
    {"NormalLineWidth",    &Settings::NormalLineWidth,    1},
    {"CodePageAutoDetect", &Settings::CodePageAutoDetect, 1},
    {"UsePreviewWindow",   &Settings::UsePreviewWindow,   1},
    {"HexViewer",          &Settings::HexViewer,          1},
    {"MessageWindow",      &Settings::MessageWindow,      1},
    {"UseAutoRotation",    &Settings::UseAutoRotation,    1},
};
// clang-format on

class SettingsStore : public testing::Test {
protected:
    void Set(std::string_view name, const TaggedValue& value)
    {
        ASSERT_EQ(store.SetRegistryValue(kSettingsKey, name, value), 0);
    }

    std::int32_t Stored(std::string_view name) const
    {
        TaggedValue value;
        const int status = store.GetRegistryValue(kSettingsKey, name, value, std::int32_t{0});
        EXPECT_EQ(status, 0) << name;
        return std::get<std::int32_t>(value);
    }

    test::TemporaryFolder folder;
    std::string path = folder / "registry.ini";
    clsSillyFunctions store{path};
};

TEST_F(SettingsStore, AnEmptyStoreGivesTheDefaults)
{
    const Settings settings = ReadSettings(store);
    for (const auto& row : kSettings) EXPECT_EQ(settings.*row.member, row.standard) << row.name;
}

TEST_F(SettingsStore, EachValueIsReadUnderItsName)
{
    std::int32_t number = 1000;
    for (const auto& row : kSettings) Set(row.name, ++number);
    const Settings settings = ReadSettings(store);
    number = 1000;
    for (const auto& row : kSettings) EXPECT_EQ(settings.*row.member, ++number) << row.name;
}

TEST_F(SettingsStore, EachValueAloneLeavesTheOthersAtTheirDefaults)
{
    for (const auto& row : kSettings) {
        const test::TemporaryFolder own;
        clsSillyFunctions alone(own / "registry.ini");
        ASSERT_EQ(alone.SetRegistryValue(kSettingsKey, row.name, std::int32_t{1234}), 0);
        const Settings settings = ReadSettings(alone);
        for (const auto& other : kSettings) {
            const bool follows = row.name == "Codepage" && other.name.starts_with("Codepage");
            EXPECT_EQ(settings.*other.member, other.name == row.name || follows ? 1234 : other.standard) << other.name;
        }
    }
}

TEST_F(SettingsStore, CodePagesNeverWrittenFollowTheFirstAsItStands)
{
    Set("Codepage", std::int32_t{273});
    EXPECT_EQ(ReadSettings(store).CodepageNOP, 273);
    EXPECT_EQ(ReadSettings(store).CodepageTLE, 273);
    Set("Codepage", std::int32_t{500});
    EXPECT_EQ(ReadSettings(store).CodepageNOP, 500);
    Set("CodepageNOP", std::int32_t{37});
    EXPECT_EQ(ReadSettings(store).CodepageNOP, 37);
    EXPECT_EQ(ReadSettings(store).CodepageTLE, 500);
}

TEST_F(SettingsStore, AllValuesAreWritten)
{
    Settings settings;
    std::int32_t number = -5;
    for (const auto& row : kSettings) settings.*row.member = ++number;
    WriteSettings(store, settings);
    for (const auto& row : kSettings) EXPECT_EQ(Stored(row.name), settings.*row.member) << row.name;
    EXPECT_EQ(Stored("InitResourcePaths"), 1);

    std::string names;
    ASSERT_EQ(store.GetValueList(kSettingsKey, names), 0);
    EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(names, '\\')), std::size(kSettings) + 1);

    const Settings read = ReadSettings(store);
    for (const auto& row : kSettings) EXPECT_EQ(read.*row.member, settings.*row.member) << row.name;
}

TEST_F(SettingsStore, WritingLeavesOtherValuesAlone)
{
    Set("LastFilesList1", std::string("/a b.afp"));
    Set("InitResourcePaths", std::int32_t{0});
    WriteSettings(store, Settings());
    TaggedValue value;
    EXPECT_EQ(store.GetRegistryValue(kSettingsKey, "LastFilesList1", value, std::string()), 0);
    EXPECT_EQ(std::get<std::string>(value), "/a b.afp");
    EXPECT_EQ(Stored("InitResourcePaths"), 1);
}

TEST_F(SettingsStore, ATextIsNoNumber)
{
    Set("Language", std::string("German"));
    Set("Codepage", std::string("273"));
    const Settings settings = ReadSettings(store);
    EXPECT_EQ(settings.Language, 1);
    EXPECT_EQ(settings.Codepage, 37);
    EXPECT_EQ(settings.CodepageNOP, 37);
}

TEST_F(SettingsStore, ADamagedStoreGivesDefaultsAndIsKept)
{
    folder.File("registry.ini", std::string("[HKEY\0", 6));
    EXPECT_EQ(ReadSettings(store).Codepage, 37);
    EXPECT_TRUE(IsFirstStart(store));
    Settings settings;
    settings.Codepage = 500;
    WriteSettings(store, settings);
    EXPECT_EQ(ReadSettings(store).Codepage, 500);
    EXPECT_FALSE(IsFirstStart(store));
    EXPECT_EQ(test::ReadWhole(path + ".damaged"), std::string("[HKEY\0", 6));
}

TEST_F(SettingsStore, AStoreWithoutAPlaceIsSilent)
{
    clsSillyFunctions none{std::string()};
    WriteSettings(none, Settings());
    EXPECT_EQ(ReadSettings(none).FolderColor, 0xFF8080);
    EXPECT_TRUE(IsFirstStart(none));
}

TEST_F(SettingsStore, TheFirstStartIsOverOnceTheThreeValuesAreThere)
{
    EXPECT_TRUE(IsFirstStart(store));
    ASSERT_EQ(store.CreateRegistryKey(kSettingsKey), 0);
    EXPECT_TRUE(IsFirstStart(store));
    constexpr std::string_view kAsked[] = {"InitResourcePaths", "Codepage", "TechnicalEnglish"};
    for (const auto name : kAsked) Set(name, std::int32_t{0});
    EXPECT_FALSE(IsFirstStart(store));
    for (const auto name : kAsked) {
        ASSERT_EQ(store.DeleteRegistryValue(kSettingsKey, name), 0);
        EXPECT_TRUE(IsFirstStart(store)) << name;
        Set(name, std::int32_t{0});
    }
    EXPECT_FALSE(IsFirstStart(store));
}

TEST_F(SettingsStore, WritingEndsTheFirstStart)
{
    WriteSettings(store, Settings());
    EXPECT_FALSE(IsFirstStart(store));
}

TEST_F(SettingsStore, OnlyThePresenceOfAValueIsAsked)
{
    EXPECT_FALSE(HasSetting(store, "InitResourcePaths"));
    Set("InitResourcePaths", std::int32_t{0});
    EXPECT_TRUE(HasSetting(store, "InitResourcePaths"));
    Set("InitResourcePaths", std::string());
    EXPECT_TRUE(HasSetting(store, "InitResourcePaths"));
}

TEST_F(SettingsStore, TheLineWidthIsA32BitNumberOfInches)
{
    Settings settings;
    EXPECT_EQ(settings.LineWidth(), 1.0F / 120);
    settings.NormalLineWidth = 0;
    EXPECT_EQ(settings.LineWidth(), 0.01F);
    for (const int other : {2, -1}) {
        settings.NormalLineWidth = other;
        EXPECT_EQ(settings.LineWidth(), 1.0F / 120);
    }
    static_assert(std::is_same_v<decltype(settings.LineWidth()), float>);
}

TEST_F(SettingsStore, WindowValuesHaveDefaults)
{
    constexpr Screen kScreen = {30000, 20000};
    EXPECT_EQ(ReadWindowValue(store, "WindowTop", kScreen), 1000);
    EXPECT_EQ(ReadWindowValue(store, "WindowLeft", kScreen), 1500);
    EXPECT_EQ(ReadWindowValue(store, "WindowWidth", kScreen), 27000);
    EXPECT_EQ(ReadWindowValue(store, "WindowHeight", kScreen), 18000);
    EXPECT_EQ(ReadWindowValue(store, "WindowState", kScreen), 0);
    EXPECT_EQ(ReadWindowValue(store, "TreeWidthPercentual", kScreen), 30);
    EXPECT_EQ(ReadWindowValue(store, "CPVWidthPercentual", kScreen), 30);
    EXPECT_EQ(ReadWindowValue(store, "HexWindowHeight", kScreen), 20);
    EXPECT_EQ(ReadWindowValue(store, "WindowDepth", kScreen), 0);
    EXPECT_EQ(ReadWindowValue(store, "WindowLeft", {101, 101}), 5.05);
}

TEST_F(SettingsStore, WindowValuesAreReadAsTheyStand)
{
    for (const auto& row : kWindowValues) {
        Set(row.name, -7.5);
        EXPECT_EQ(ReadWindowValue(store, row.name, {100, 100}), -8) << row.name;
    }
    Set("WindowTop", std::string("12"));
    EXPECT_EQ(ReadWindowValue(store, "WindowTop", {100, 100}), 5);
}

}  // namespace
}  // namespace folioscope
