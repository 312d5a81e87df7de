// What must not happen to the user's settings: loss, tearing, overwriting of what couldn't be read.

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <vector>

#include "base/mdlRegistry.h"
#include "base/processes.h"
#include "support/temporary_file.h"

namespace folioscope {
namespace {

namespace fs = std::filesystem;
using test::ReadWhole;

constexpr std::string_view kKey = R"(HKEY_CURRENT_USER\Software\Marrowgate\Folioscope)";
const std::string kOld = "[HKEY_CURRENT_USER\\Software\\Marrowgate\\Folioscope]\nold=dword:1\n";

std::int32_t NumberIn(const mdlRegistry& registry, std::string_view name)
{
    TaggedValue value;
    registry.GetRegistryValue(kKey, name, value, std::int32_t{-1});
    const auto* const number = std::get_if<std::int32_t>(&value);
    return number != nullptr ? *number : -2;
}

std::vector<std::string> NamesIn(const test::TemporaryFolder& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.Path())) names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

TEST(RegistrySafety, SeveralProcessesLoseNoValue)
{
    constexpr int kChildren = 6, kValues = 12;
    const test::TemporaryFolder folder;
    const std::string path = folder / "sub/registry.ini";
    std::vector<pid_t> children;
    children.reserve(kChildren);
    for (int child = 0; child < kChildren; ++child) {
        children.push_back(test::StartChild([&path, child] {
            mdlRegistry registry(path);
            int failures = 0;
            for (int i = 0; i < kValues; ++i) {
                const std::string name = "value" + std::to_string(child) + "_" + std::to_string(i);
                failures += registry.SetRegistryValue(kKey, name, child * 1000 + i) != 0;
                failures += registry.SetRegistryValue(kKey, "shared", child) != 0;
                failures += NumberIn(registry, name) != child * 1000 + i;
            }
            return failures;
        }));
    }
    for (const pid_t child : children) EXPECT_EQ(test::ResultOf(child), 0);

    const mdlRegistry registry(path);
    for (int child = 0; child < kChildren; ++child)
        for (int i = 0; i < kValues; ++i)
            EXPECT_EQ(NumberIn(registry, "value" + std::to_string(child) + "_" + std::to_string(i)), child * 1000 + i);
    EXPECT_GE(NumberIn(registry, "shared"), 0);
    EXPECT_LT(NumberIn(registry, "shared"), kChildren);
}

TEST(RegistrySafety, ReadersNeverSeeHalfAStore)
{
    const test::TemporaryFolder folder;
    const std::string path = folder / "registry.ini";
    mdlRegistry registry(path);
    ASSERT_EQ(registry.SetRegistryValue(kKey, "z", std::int32_t{7}), 0);  // the last line of the file
    const pid_t writer = test::StartChild([&path] {
        mdlRegistry other(path);
        int failures = 0;
        for (int i = 0; i < 60; ++i)
            failures += other.SetRegistryValue(kKey, "a", std::string(static_cast<std::size_t>(i) * 1000, 'x')) != 0;
        return failures;
    });
    while (test::IsRunning(writer)) ASSERT_EQ(NumberIn(registry, "z"), 7);
    EXPECT_EQ(test::ResultOf(writer), 0);
    EXPECT_EQ(NumberIn(registry, "z"), 7);
}

TEST(RegistrySafety, AKilledWriterLeavesAWholeStoreThatCanBeWritten)
{
    const test::TemporaryFolder folder;
    const std::string path = folder / "registry.ini";
    mdlRegistry registry(path);
    for (int round = 1; round <= 5; ++round) {
        ASSERT_EQ(registry.SetRegistryValue(kKey, "count", std::int32_t{0}), 0);
        const pid_t writer = test::StartChild([&path] {
            mdlRegistry other(path);
            for (int i = 1;; ++i)
                if (other.SetRegistryValue(kKey, "count", i) != 0) return 1;
        });
        while (NumberIn(registry, "count") < 3 * round && test::IsRunning(writer)) {
        }
        ASSERT_EQ(::kill(writer, SIGKILL), 0);
        EXPECT_EQ(test::ResultOf(writer), -1);
        EXPECT_GE(NumberIn(registry, "count"), 3 * round);
        EXPECT_EQ(registry.SetRegistryValue(kKey, "round", round), 0);
        EXPECT_EQ(NumberIn(registry, "round"), round);
    }
    EXPECT_EQ(NamesIn(folder), (std::vector<std::string>{"registry.ini", "registry.ini.lock"}));
}

TEST(RegistrySafety, ABinaryStoreGivesDefaultsAndIsKept)
{
    const test::TemporaryFolder folder;
    const std::string noise = kOld + std::string("\0\x01\xFF\xFE noise", 10);
    const std::string path = folder.File("registry.ini", noise);
    mdlRegistry registry(path);
    EXPECT_EQ(NumberIn(registry, "old"), -1);
    EXPECT_EQ(registry.TestRegistryKey(kKey), 2);
    EXPECT_EQ(ReadWhole(path), noise);

    EXPECT_EQ(registry.SetRegistryValue(kKey, "new", std::int32_t{2}), 0);
    EXPECT_EQ(NumberIn(registry, "new"), 2);
    EXPECT_EQ(ReadWhole(path + ".damaged"), noise);
}

TEST(RegistrySafety, OfADamagedStoreTheGoodLinesAreUsed)
{
    const test::TemporaryFolder folder;
    const std::string damaged = kOld + "bad=dwo";
    const std::string path = folder.File("registry.ini", damaged);
    mdlRegistry registry(path);
    EXPECT_EQ(NumberIn(registry, "old"), 1);
    EXPECT_EQ(NumberIn(registry, "bad"), -1);
    EXPECT_EQ(registry.SetRegistryValue(kKey, "new", std::int32_t{2}), 0);
    EXPECT_EQ(NumberIn(registry, "old"), 1);
    EXPECT_EQ(NumberIn(registry, "new"), 2);
    EXPECT_EQ(ReadWhole(path + ".damaged"), damaged);
}

TEST(RegistrySafety, EveryDamagedStoreIsKept)
{
    const test::TemporaryFolder folder;
    const std::string path = folder / "registry.ini";
    mdlRegistry registry(path);
    for (int i = 1; i <= 3; ++i) {
        folder.File("registry.ini", "damage " + std::to_string(i));
        ASSERT_EQ(registry.SetRegistryValue(kKey, "n", i), 0);
        ASSERT_EQ(registry.SetRegistryValue(kKey, "m", i), 0);  // the store is sound now, and isn't kept again
    }
    EXPECT_EQ(ReadWhole(path + ".damaged"), "damage 1");
    EXPECT_EQ(ReadWhole(path + ".damaged-2"), "damage 2");
    EXPECT_EQ(ReadWhole(path + ".damaged-3"), "damage 3");
    EXPECT_FALSE(fs::exists(path + ".damaged-4"));
}

TEST(RegistrySafety, AnEndlessStoreIsDamage)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("registry.ini", kOld);
    fs::resize_file(path, std::uintmax_t{1} << 33);  // sparse
    mdlRegistry registry(path);
    EXPECT_EQ(NumberIn(registry, "old"), -1);
    EXPECT_EQ(registry.SetRegistryValue(kKey, "new", std::int32_t{2}), 0);
    EXPECT_EQ(NumberIn(registry, "new"), 2);
    EXPECT_EQ(fs::file_size(path + ".damaged"), std::uintmax_t{1} << 33);
}

TEST(RegistrySafety, WhatCouldNotBeReadBackIsNotWritten)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("registry.ini", kOld);
    mdlRegistry registry(path);
    EXPECT_EQ(registry.SetRegistryValue(kKey, "long", std::string(5'000'000, 'x')), EFBIG);
    EXPECT_EQ(ReadWhole(path), kOld);
}

TEST(RegistrySafety, AFullDiskLeavesTheOldStore)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("registry.ini", kOld);
    const int status = test::InChild([&] {
        const rlimit limit = {1000, 1000};
        std::signal(SIGXFSZ, SIG_IGN);
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return 255;
        mdlRegistry registry(path);
        return registry.SetRegistryValue(kKey, "long", std::string(5000, 'x'));
    });
    EXPECT_EQ(status, EFBIG);
    EXPECT_EQ(ReadWhole(path), kOld);
    EXPECT_EQ(NamesIn(folder), (std::vector<std::string>{"registry.ini", "registry.ini.lock"}));
}

TEST(RegistrySafety, AnUnreadableStoreIsNotOverwritten)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("registry.ini", kOld);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
    ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    EXPECT_EQ(test::AsOrdinaryUser([&] {
                  TaggedValue value;
                  return mdlRegistry(path).GetRegistryValue(kKey, "old", value, std::int32_t{9}) == EACCES &&
                                 std::get<std::int32_t>(value) == 9
                             ? 0
                             : 1;
              }),
              0);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return mdlRegistry(path).TestRegistryKey(kKey); }), EACCES);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return mdlRegistry(path).SetRegistryValue(kKey, "new", std::int32_t{2}); }),
              EACCES);
    ASSERT_EQ(::chmod(path.c_str(), 0600), 0);
    EXPECT_EQ(ReadWhole(path), kOld);
}

TEST(RegistrySafety, AnUnwritableFolderIsAStatusOnly)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("registry.ini", kOld);
    ASSERT_EQ(::chmod(path.c_str(), 0644), 0);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return NumberIn(mdlRegistry(path), "old"); }), 1);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return mdlRegistry(path).SetRegistryValue(kKey, "new", std::int32_t{2}); }),
              EACCES);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return mdlRegistry(path).SetRegistryValue(kKey, "old", std::int32_t{1}); }), 0)
        << "a write that changes nothing needs no folder";
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0700), 0);
    EXPECT_EQ(ReadWhole(path), kOld);
}

TEST(RegistrySafety, AnUnreadableFolderIsAStatusOnly)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("registry.ini", kOld);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0), 0);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return mdlRegistry(path).TestRegistryKey(kKey); }), EACCES);
    EXPECT_EQ(test::AsOrdinaryUser([&] { return mdlRegistry(path).CreateRegistryKey(kKey); }), EACCES);
    ASSERT_EQ(::chmod(folder.Path().c_str(), 0700), 0);
    EXPECT_EQ(ReadWhole(path), kOld);
}

TEST(RegistrySafety, AFileInPlaceOfTheFolderIsAStatusOnly)
{
    const test::TemporaryFolder folder;
    const std::string file = folder.File("Marrowgate", "mine");
    mdlRegistry registry(file + "/registry.ini");
    EXPECT_EQ(registry.SetRegistryValue(kKey, "a", std::int32_t{1}), ENOTDIR);
    EXPECT_EQ(NumberIn(registry, "a"), -1);
    EXPECT_EQ(ReadWhole(file), "mine");
}

TEST(RegistrySafety, WhatIsNoFileIsNeitherReadNorReplaced)
{
    const test::TemporaryFolder folder;
    fs::create_directory(folder / "directory");
    fs::create_symlink("/dev/null", folder / "null");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    for (const auto* name : {"directory", "null", "pipe"}) {
        mdlRegistry registry(folder / name);
        EXPECT_GT(registry.SetRegistryValue(kKey, "a", std::int32_t{1}), 0) << name;
        EXPECT_EQ(NumberIn(registry, "a"), -1) << name;
    }
    EXPECT_EQ(NamesIn(folder), (std::vector<std::string>{"directory", "null", "pipe"}));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(RegistrySafety, ALinkedStoreStaysLinked)
{
    const test::TemporaryFolder folder;
    fs::create_directory(folder / "dotfiles");
    const std::string target = folder.File("dotfiles/registry.ini", kOld);
    const std::string path = folder / "registry.ini";
    fs::create_symlink("dotfiles/registry.ini", path);
    mdlRegistry registry(path);
    EXPECT_EQ(NumberIn(registry, "old"), 1);
    EXPECT_EQ(registry.SetRegistryValue(kKey, "new", std::int32_t{2}), 0);
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(target)));
    EXPECT_EQ(NumberIn(mdlRegistry(target), "new"), 2);
    EXPECT_EQ(NumberIn(mdlRegistry(target), "old"), 1);
}

TEST(RegistrySafety, ALinkToNothingIsFilled)
{
    const test::TemporaryFolder folder;
    const std::string path = folder / "registry.ini";
    fs::create_symlink("dotfiles/registry.ini", path);
    mdlRegistry registry(path);
    EXPECT_EQ(registry.SetRegistryValue(kKey, "new", std::int32_t{2}), 0);
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_TRUE(fs::is_regular_file(folder / "dotfiles/registry.ini"));
    EXPECT_EQ(NumberIn(registry, "new"), 2);
}

TEST(RegistrySafety, ALinkToItselfIsAStatusOnly)
{
    const test::TemporaryFolder folder;
    const std::string path = folder / "registry.ini";
    fs::create_symlink("registry.ini", path);
    mdlRegistry registry(path);
    EXPECT_EQ(registry.SetRegistryValue(kKey, "a", std::int32_t{1}), ELOOP);
    EXPECT_TRUE(fs::is_symlink(path));
}

TEST(RegistrySafety, AWriteThatChangesNothingLeavesTheFile)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.File("registry.ini", "  " + kOld + "\n\n");
    mdlRegistry registry(path);
    EXPECT_EQ(registry.SetRegistryValue(kKey, "old", std::int32_t{1}), 0);
    EXPECT_EQ(registry.CreateRegistryKey(kKey), 0);
    EXPECT_EQ(registry.DeleteRegistryValue(kKey, "none"), 2);
    EXPECT_EQ(ReadWhole(path), "  " + kOld + "\n\n");
    EXPECT_EQ(NamesIn(folder), (std::vector<std::string>{"registry.ini"}));
}

}  // namespace
}  // namespace folioscope
