#include "dump_options.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

#include "base/text.h"
#include "codepages/pages.h"

namespace folioscope {

namespace {

enum class Option : std::uint8_t {
    Output,
    Save,
    Tree,
    Messages,
    Language,
    CodePage,
    CodePageNOP,
    CodePageTLE,
    NoAutoCodePage,
    Measurement,
    Help,
    Version
};

struct OptionRow {
    std::string_view name, letter, value;  // value: what stands for it in the help; empty: takes none
    Option option;
    Label help;
};

// clang-format off
constexpr OptionRow kOptions[] = {
    {"--output",            "-o", "OUT",      Option::Output,         U("Write the dump of one file to OUT, in code page 1252 with CR LF")},
    {"--save",              "",   "",         Option::Save,           U("Write each dump to FILE.txt, in code page 1252 with CR LF")},
    {"--tree",              "",   "",         Option::Tree,           U("Print the tree in place of the dump: caption, start byte, length, ! for a fault")},
    {"--messages",          "",   "",         Option::Messages,       U("Print the messages to standard error: source, severity, description")},
    {"--language",          "",   "en|de|fr", Option::Language,       U("Language of the dump and of all messages")},
    {"--code-page",         "",   "N",        Option::CodePage,       U("Code page of texts for which the file names none (37)")},
    {"--code-page-nop",     "",   "N",        Option::CodePageNOP,    U("Code page of NOP contents")},
    {"--code-page-tle",     "",   "N",        Option::CodePageTLE,    U("Code page of TLE contents")},
    {"--no-auto-code-page", "",   "",         Option::NoAutoCodePage, U("Do not follow the code pages that the file names")},
    {"--measurement",       "",   "0..6",     Option::Measurement,    U("Unit of sizes: 0 inch, 1 cm, 2 mm, 3 points, 4 to 6 pels at 240, 300, 600 ppi")},
    {"--help",              "-h", "",         Option::Help,           U("Show this help and end")},
    {"--version",           "-V", "",         Option::Version,        U("Show the version and end")},
};

struct LanguageRow {
    std::string_view name;
    std::int32_t number;
};
constexpr LanguageRow kLanguages[] = {{"en", 1}, {"de", 2}, {"fr", 3}};
// clang-format on

constexpr std::int32_t kMeasurements = 7;

class Parser {
public:
    explicit Parser(DumpOptions& options) : options_(options) {}

    void Parse(int argc, char** argv)
    {
        bool onlyFiles = false;
        for (int i = 1; i < argc; ++i) {
            const std::string_view word = argv[i];
            if (onlyFiles || word == "-" || !word.starts_with('-')) {
                options_.files.emplace_back(word);
            } else if (word == "--") {
                onlyFiles = true;
            } else {
                TakeOption(word, i + 1 < argc ? argv[i + 1] : nullptr, i);
            }
        }
        if (!pageNOP_) options_.settings.CodepageNOP = options_.settings.Codepage;
        if (!pageTLE_) options_.settings.CodepageTLE = options_.settings.Codepage;
        if (!Decided()) CheckTogether();
        TellFault();
    }

private:
    // The first of these on the command line says what is to be done; what follows it can still choose the language.
    bool Decided() const { return fault_ != Label::None || options_.help || options_.version; }

    void TakeOption(std::string_view word, const char* next, int& index)
    {
        for (const OptionRow& row : kOptions) {
            std::optional<std::string_view> value;
            if (!IsNamed(row, word, value)) continue;
            if (row.value.empty()) return value ? Fault(U("%1 takes no value."), row.name) : Take(row, {});
            if (!value && next != nullptr) {
                value = next;
                ++index;
            }
            if (!value || value->empty()) return Fault(U("%1 needs a value."), word.substr(0, word.find('=')));
            return Take(row, *value);
        }
        Fault(U("There is no option %1."), word.substr(0, word.find('=')));
    }

    // --name, --name=value, -l and, if it takes one, -lvalue.
    static bool IsNamed(const OptionRow& row, std::string_view word, std::optional<std::string_view>& value)
    {
        if (word == row.name || (!row.letter.empty() && word == row.letter)) return true;
        const bool isLong = word.starts_with("--");
        const std::size_t end = isLong ? word.find('=') : row.letter.size();
        if (word.substr(0, end) != (isLong ? row.name : row.letter)) return false;
        if (!isLong && (row.letter.empty() || row.value.empty())) return false;
        value = word.substr(isLong ? end + 1 : end);
        return true;
    }

    void Take(const OptionRow& row, std::string_view value)
    {
        Settings& settings = options_.settings;
        switch (row.option) {
        case Option::Output:
            if (!options_.output.empty()) return Fault(U("-o is given twice."), {});
            options_.output = value;
            break;
        case Option::Save: options_.save = true; break;
        case Option::Tree: options_.tree = true; break;
        case Option::Messages: options_.messages = true; break;
        case Option::Language: return TakeLanguage(value);
        case Option::CodePage: return TakePage(value, settings.Codepage);
        case Option::CodePageNOP: pageNOP_ = true; return TakePage(value, settings.CodepageNOP);
        case Option::CodePageTLE: pageTLE_ = true; return TakePage(value, settings.CodepageTLE);
        case Option::NoAutoCodePage: settings.CodePageAutoDetect = 0; break;
        case Option::Measurement: return TakeMeasurement(value);
        case Option::Help: options_.help = true; break;
        case Option::Version: options_.version = true; break;
        }
    }

    void TakeLanguage(std::string_view value)
    {
        for (const auto& [name, number] : kLanguages)
            if (value == name) {
                options_.settings.Language = number;
                return;
            }
        Fault(U("The language is en, de or fr, not %1."), value);
    }

    static std::optional<std::int32_t> NumberOf(std::string_view text)
    {
        std::int32_t number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || end != text.data() + text.size()) return {};
        return number;
    }

    void TakePage(std::string_view value, std::int32_t& page)
    {
        const auto number = NumberOf(value);
        if (!number || FindCodePage(*number) == nullptr) return Fault(U("There is no code page %1."), value);
        page = *number;
    }

    void TakeMeasurement(std::string_view value)
    {
        const auto number = NumberOf(value);
        if (!number || *number < 0 || *number >= kMeasurements)
            return Fault(U("The measurement is a number from 0 to 6, not %1."), value);
        options_.settings.DefaultMeasurement = *number;
    }

    void CheckTogether()
    {
        if (options_.files.empty()) return Fault(U("No file is given."), {});
        if (!options_.output.empty() && (options_.files.size() > 1 || options_.save || options_.tree))
            return Fault(U("-o goes with one file, and neither with --save nor with --tree."), {});
        if (options_.save && options_.tree) return Fault(U("--save and --tree do not go together."), {});
        for (const std::string& file : options_.files)
            if (file == "-" && options_.save)
                return Fault(U("--save needs the name of a file; use -o for standard input."), {});
    }

    void Fault(Label label, std::string_view value)
    {
        if (Decided()) return;
        fault_ = label;
        faultValue_ = value;
    }

    void TellFault()
    {
        if (fault_ == Label::None) return;
        options_.fault = Labels(options_.settings.InterfaceLanguage())[fault_];
        ChangeString(options_.fault, "%1", OnOneLine(faultValue_));
    }

    DumpOptions& options_;
    bool pageNOP_ = false, pageTLE_ = false;
    Label fault_ = Label::None;
    std::string_view faultValue_;
};

}  // namespace

DumpOptions ParseOptions(int argc, char** argv)
{
    DumpOptions options;
    Parser(options).Parse(argc, argv);
    return options;
}

std::string HelpText(Labels labels)
{
    constexpr std::size_t kColumn = 28;
    std::string help(labels[U("Usage: fsv-dump [OPTION]... FILE...")]);
    help += "\n\n";
    help += labels[U("Prints the readable text of AFP files: each structured field with its place and its values.")];
    help += "\n";
    help += labels[U("FILE - is standard input, OUT - standard output. Options end at --.")];
    help += "\n\n";
    for (const OptionRow& row : kOptions) {
        std::string line = row.letter.empty() ? "      " : "  " + std::string(row.letter) + ", ";
        line += row.name;
        if (!row.value.empty()) line += " " + std::string(row.value);
        line.resize(std::max(line.size() + 2, kColumn), ' ');
        help += line;
        help += labels[row.help];
        help += "\n";
    }
    help += "\n";
    help += labels[U("Exit status: 0 no faults, 1 faults were found, 2 wrong use, 3 input failed, 4 output failed.")];
    return help += "\n";
}

}  // namespace folioscope
