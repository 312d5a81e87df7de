// Each folder includes from itself and from the floors below, never from its neighbours or from above. The user
// interface's library begins above the core.

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <string_view>
#include <vector>

#include "architecture/source_files.h"

namespace folioscope {
namespace {

using test::IncludesOf;
using test::Place;
using test::ProgramFiles;
using test::SourceFile;

using Faults = std::vector<std::string>;

struct Folder {
    std::string_view path;
    int floor;
    bool core;  // free of the user interface
};

constexpr Folder kFolders[] = {
    {"src/base", 0, true},
    {"src/stream", 1, true},
    {"src/codepages", 1, true},
    {"src/analysis/elements", 2, true},
    {"src/analysis/decode", 2, true},
    {"src/analysis/render", 2, true},
    {"src/objects", 3, true},
    {"src/colour", 3, true},
    {"src/document", 4, true},
    {"src/viewers", 5, false},
    {"tools", 5, true},
    {"src/shell", 6, false},
};

const Folder* FolderOf(std::string_view file)
{
    for (const Folder& folder : kFolders)
        if (file.starts_with(std::string(folder.path) + '/')) return &folder;
    return nullptr;
}

bool MayInclude(const Folder& from, const Folder& to)
{
    if (&from == &to || to.floor < from.floor) return true;
    // The Elements are what passes between decoding and rendering, so they lie under both.
    return to.path == "src/analysis/elements" && from.path.starts_with("src/analysis/");
}

Faults FloorFaults(const std::vector<SourceFile>& files)
{
    Faults faults;
    for (const auto& [path, text] : files) {
        const Folder* const from = FolderOf(path);
        if (from == nullptr) {
            faults.push_back(path + " stands on no floor");
            continue;
        }
        for (const auto& [line, name, quoted] : IncludesOf(text)) {
            if (!quoted || name.find('/') == std::string::npos) continue;  // of the same folder, or generated for it
            const Folder* const to = FolderOf("src/" + name);
            if (to == nullptr || !MayInclude(*from, *to)) faults.push_back(Place(path, line) + " includes " + name);
        }
    }
    return faults;
}

// QString, QtGlobal, QtCore/QString, qglobal.h; not queue, nor Quiet.h.
bool IsInterfaceHeader(std::string_view name)
{
    if (name.starts_with('q')) return name.ends_with(".h");
    if (!name.starts_with('Q')) return false;
    name.remove_prefix(name.starts_with("Qt") ? 2 : 1);
    return !name.empty() && std::isupper(static_cast<unsigned char>(name[0])) != 0;
}

Faults InterfaceFaults(const std::vector<SourceFile>& files)
{
    Faults faults;
    for (const auto& [path, text] : files) {
        const Folder* const folder = FolderOf(path);
        if (folder == nullptr || !folder->core) continue;
        for (const auto& [line, name, quoted] : IncludesOf(text))
            if (IsInterfaceHeader(name)) faults.push_back(Place(path, line) + " includes " + name);
    }
    return faults;
}

TEST(Floors, EachIncludeLeadsToTheSameFolderOrBelow) { EXPECT_EQ(FloorFaults(ProgramFiles()), Faults{}); }

TEST(Floors, TheCoreIsFreeOfTheUserInterface) { EXPECT_EQ(InterfaceFaults(ProgramFiles()), Faults{}); }

struct Sample {
    std::string path, include;
};

Faults FaultsOf(const Sample& sample)
{
    return FloorFaults({{sample.path, "#pragma once\n#include <map>\n#include \"" + sample.include + "\"\n"}});
}

TEST(FloorsCheck, FindsIncludesUpwardsAndSideways)
{
    const Sample kPlanted[] = {
        {"src/base/text.h", "stream/record_reader.h"},
        {"src/base/text.h", "document/run.h"},
        {"src/stream/a.h", "codepages/pages.h"},
        {"src/codepages/a.h", "stream/input_file.h"},
        {"src/analysis/decode/a.cpp", "analysis/render/renderer.h"},
        {"src/analysis/render/a.cpp", "analysis/decode/dispatch.h"},
        {"src/analysis/elements/a.h", "analysis/decode/dispatch.h"},
        {"src/analysis/elements/a.h", "analysis/render/lines.h"},
        {"src/analysis/decode/a.cpp", "objects/ptoca_decode.h"},
        {"src/objects/a.cpp", "colour/icc_decode.h"},
        {"src/objects/a.cpp", "document/ports.h"},
        {"src/document/a.cpp", "viewers/hex_pane.h"},
        {"tools/a.cpp", "viewers/hex_pane.h"},
        {"src/viewers/a.cpp", "shell/frmMainWindow.h"},
        {"src/base/a.cpp", "nowhere/a.h"},
    };
    for (const Sample& sample : kPlanted)
        EXPECT_EQ(FaultsOf(sample), Faults{sample.path + ":3 includes " + sample.include});
    EXPECT_EQ(FaultsOf({"src/nowhere/a.h", "base/text.h"}), Faults{"src/nowhere/a.h stands on no floor"});
}

TEST(FloorsCheck, AllowsIncludesDownwards)
{
    const Sample kRight[] = {
        {"src/base/a.cpp", "base/text.h"},
        {"src/base/a.cpp", "labels_index.inc"},
        {"src/analysis/decode/a.cpp", "stream/record_reader.h"},
        {"src/analysis/decode/a.cpp", "analysis/elements/element.h"},
        {"src/analysis/render/a.cpp", "analysis/elements/element.h"},
        {"src/colour/a.cpp", "analysis/decode/dispatch.h"},
        {"src/document/a.cpp", "objects/ptoca_decode.h"},
        {"tools/a.cpp", "document/document.h"},
        {"tools/a.cpp", "dump_options.h"},
        {"src/shell/a.cpp", "viewers/hex_pane.h"},
    };
    for (const Sample& sample : kRight) EXPECT_EQ(FaultsOf(sample), Faults{}) << sample.path << ' ' << sample.include;
}

TEST(InterfaceCheck, FindsTheLibraryInTheCoreOnly)
{
    for (const std::string header : {"<QString>", "<QtGlobal>", "<QtCore/QString>", "<qglobal.h>", "\"QWidget\""}) {
        for (const std::string path : {"src/base/a.h", "src/document/a.cpp", "tools/a.cpp"})
            EXPECT_EQ(InterfaceFaults({{path, "#include " + header + "\n"}}).size(), 1u) << path << ' ' << header;
        EXPECT_EQ(InterfaceFaults({{"src/shell/a.cpp", "#include " + header + "\n"}}), Faults{});
    }
    EXPECT_EQ(InterfaceFaults({{"src/base/a.h", "#include <queue>\n#include <Quiet.h>\n#include \"base/Queue.h\"\n"}}),
              Faults{});
}

}  // namespace
}  // namespace folioscope
