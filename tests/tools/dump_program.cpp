#include "dump_program.h"

#include <algorithm>
#include <filesystem>

#include "base/version.h"
#include "codepages/system_page.h"

namespace folioscope::test {

Call DumpCall(const std::vector<std::string>& arguments)
{
    Call call;
    call.words = {FOLIOSCOPE_DUMP};
    call.words.insert(call.words.end(), arguments.begin(), arguments.end());
    return call;
}

Ended Dump(const std::vector<std::string>& arguments) { return RunToEnd(DumpCall(arguments)); }

Bytes Statement()
{
    return AfpFile()
        .Add("BDT", Ebcdic8("DOC00001") + Zeros(2))
        .Add("BPG", Ebcdic8("PAGE0001"))
        .Add("NOP", Ebcdic("Gr") + Raw({0xDC, 0x59}) + Ebcdic("e"))  // Grüße
        .Add("EPG", Ebcdic8("PAGE0001"))
        .Add("EDT", Ebcdic8("DOC00001"))
        .Content();
}

Bytes Damaged() { return AfpFile().Add("BDT", Ebcdic8("DOC00001")).Add("EPG", Ebcdic8("PAGE0001")).Content(); }

Bytes Nested(std::size_t levels)
{
    AfpFile file;
    for (std::size_t i = 0; i < levels; ++i) file.Add("BNG");
    for (std::size_t i = 0; i < levels; ++i) file.Add("ENG");
    return file.Content();
}

std::string Header(std::string_view name)
{
    std::string header(name);
    header += ":\n\n\tDump created by Folioscope Professional Version ";
    header += kVersion;
    header += "\n\tFolioscope, (c) ";
    header += kReleaseDate.substr(kReleaseDate.size() - 4);
    header += "\n\thttp://www.marrowgate.example/\n\n";
    return header;
}

std::string StatementDump(std::string_view name)
{
    return Header(name) + "     ---------\n"
                          ">\tBDT\tName:\tDOC00001\n"
                          "     ---------\n"
                          ">>\tBPG\tName:\tPAGE0001\n"
                          "     ---------\n"
                          ">>\tNOP\tContent:\tGrüße\n"
                          "     ---------\n"
                          ">>\tEPG\tName:\tPAGE0001\n"
                          "     ---------\n"
                          ">\tEDT\tName:\tDOC00001\n";
}

std::string InSystemPage(std::string_view dump)
{
    std::string lines, bytes;
    for (const char c : dump) lines += c == '\n' ? std::string("\r\n") : std::string(1, c);
    AppendInSystemPage(lines, bytes);
    return bytes;
}

std::vector<std::string> FilesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace folioscope::test
