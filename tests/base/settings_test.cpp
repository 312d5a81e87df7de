#include "base/settings.h"

#include <gtest/gtest.h>

// The struct has a member of the name Language, so the enumeration goes by another one here.
using Tongue = folioscope::Language;

namespace folioscope {
namespace {

TEST(Settings, Defaults)
{
    const Settings settings;
    EXPECT_EQ(settings.Codepage, 37);
    EXPECT_EQ(settings.CodepageNOP, 37);
    EXPECT_EQ(settings.CodepageTLE, 37);
    EXPECT_EQ(settings.Language, 1);
    EXPECT_EQ(settings.TechnicalEnglish, 0);
    EXPECT_EQ(settings.ShowNOP, 1);
    EXPECT_EQ(settings.ShowBESF, 1);
    EXPECT_EQ(settings.ShowIISF, 1);
    EXPECT_EQ(settings.FolderBold, 1);
    EXPECT_EQ(settings.FolderColored, 1);
    EXPECT_EQ(settings.FolderColor, 0xFF8080);
    EXPECT_EQ(settings.DefaultMeasurement, 0);
    EXPECT_EQ(settings.NormalLineWidth, 1);
    EXPECT_EQ(settings.CodePageAutoDetect, 1);
    EXPECT_EQ(settings.UsePreviewWindow, 1);
    EXPECT_EQ(settings.HexViewer, 1);
    EXPECT_EQ(settings.MessageWindow, 1);
    EXPECT_EQ(settings.UseAutoRotation, 1);
}

TEST(Settings, TheLineWidthIsAHundredthOrAHundredAndTwentiethOfAnInch)
{
    Settings settings;
    EXPECT_EQ(settings.LineWidth(), 1.0F / 120);
    settings.NormalLineWidth = 0;
    EXPECT_EQ(settings.LineWidth(), 1.0F / 100);
    settings.NormalLineWidth = 2;
    EXPECT_EQ(settings.LineWidth(), 1.0F / 120);
}

TEST(Settings, BothLanguagesFollowTheSetting)
{
    constexpr Tongue kTongues[] = {Tongue::English, Tongue::German, Tongue::French};
    for (int number = 1; number <= 3; ++number) {
        Settings settings;
        settings.Language = number;
        EXPECT_EQ(settings.InterfaceLanguage(), kTongues[number - 1]);
        EXPECT_EQ(settings.AnalysisLanguage(), kTongues[number - 1]);
    }
}

TEST(Settings, TechnicalEnglishLeavesTheInterfaceAlone)
{
    for (int number = 1; number <= 3; ++number) {
        Settings settings;
        settings.Language = number;
        const Tongue interface = settings.InterfaceLanguage();
        settings.TechnicalEnglish = 1;
        EXPECT_EQ(settings.InterfaceLanguage(), interface);
        EXPECT_EQ(settings.AnalysisLanguage(), Tongue::English);
    }
}

TEST(Settings, ALanguageThatDoesNotExistIsEnglish)
{
    for (const int number : {0, 4, -1, 65536}) {
        Settings settings;
        settings.Language = number;
        EXPECT_EQ(settings.InterfaceLanguage(), Tongue::English);
        EXPECT_EQ(settings.AnalysisLanguage(), Tongue::English);
    }
}

}  // namespace
}  // namespace folioscope
