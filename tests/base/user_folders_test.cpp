#include "base/user_folders.h"

#include <gtest/gtest.h>

#include "base/processes.h"

namespace folioscope {
namespace {

using test::ScopedVariable;

TEST(UserFolders, TheirOwnVariablesNameThem)
{
    const ScopedVariable home("HOME", "/home/anna");
    const ScopedVariable config("XDG_CONFIG_HOME", "/c/d");
    const ScopedVariable data("XDG_DATA_HOME", "/e/f/");
    EXPECT_EQ(ConfigFolder(), "/c/d");
    EXPECT_EQ(DataFolder(), "/e/f");
}

TEST(UserFolders, LieBelowHomeOtherwise)
{
    const ScopedVariable home("HOME", "/home/anna/");
    for (const auto& unset : {std::optional<std::string>(), std::optional<std::string>("")}) {
        const ScopedVariable config("XDG_CONFIG_HOME", unset);
        const ScopedVariable data("XDG_DATA_HOME", unset);
        EXPECT_EQ(ConfigFolder(), "/home/anna/.config");
        EXPECT_EQ(DataFolder(), "/home/anna/.local/share");
    }
}

TEST(UserFolders, ARelativePathCountsAsNotSet)
{
    const ScopedVariable config("XDG_CONFIG_HOME", "c/d");
    {
        const ScopedVariable home("HOME", "/home/anna");
        EXPECT_EQ(ConfigFolder(), "/home/anna/.config");
    }
    const ScopedVariable home("HOME", "anna");
    EXPECT_EQ(ConfigFolder(), "");
}

TEST(UserFolders, HomeMayBeTheRoot)
{
    const ScopedVariable home("HOME", "/");
    const ScopedVariable config("XDG_CONFIG_HOME", std::nullopt);
    EXPECT_EQ(ConfigFolder(), "/.config");
}

TEST(UserFolders, WithoutHomeThereAreNone)
{
    const ScopedVariable home("HOME", std::nullopt);
    const ScopedVariable config("XDG_CONFIG_HOME", std::nullopt);
    const ScopedVariable data("XDG_DATA_HOME", std::nullopt);
    EXPECT_EQ(ConfigFolder(), "");
    EXPECT_EQ(DataFolder(), "");
}

TEST(UserFolders, TemporaryFolderIsThereInAnyCase)
{
    {
        const ScopedVariable variable("TMPDIR", "/t/u");
        EXPECT_EQ(TemporaryFolder(), "/t/u");
    }
    const ScopedVariable variable("TMPDIR", std::nullopt);
    EXPECT_EQ(TemporaryFolder(), "/tmp");
}

}  // namespace
}  // namespace folioscope
