// The analysis run: one pass over the file, each record a node with its finished text.

#include <filesystem>

#include "analysis/decode/dispatch.h"
#include "base/text.h"
#include "codepages/system_page.h"
#include "document/document.h"

namespace folioscope {

namespace {

constexpr std::int64_t kLargestFile = 2'147'483'647;  // every position is a signed 32-bit number
constexpr std::int32_t kProgressEvery = 65'536;       // input bytes between two moments for the user
constexpr std::int32_t kPagesTold = 500;
constexpr std::string_view kStop = "Stop";

}  // namespace

bool Document::ProcessAFPFile(const std::string& strAFPFile, std::string_view shownName)
{
    bolProcessing_ = true;
    if (!OpenFile(strAFPFile)) {
        bolProcessing_ = false;
        return false;
    }
    const std::string fileName = std::filesystem::path(strAFPFile).filename().string();
    tree_->AddRoot(shownName.empty() ? fileName : shownName,
                   RootText(shownName.empty() ? strAFPFile : std::string(shownName)));
    Walk();
    FinishRun();
    return true;
}

bool Document::OpenFile(const std::string& strAFPFile)
{
    clsAFP_.InitializeProcessing2(strAFPFile, {settings_.Codepage, settings_.CodepageNOP, settings_.CodepageTLE,
                                               kSystemCodePage, settings_.CodePageAutoDetect == 1});
    std::error_code error;
    const auto status = std::filesystem::status(strAFPFile, error);
    if (status.type() == std::filesystem::file_type::not_found) {
        failure_ = kFileNotFound;
        Refuse(RunOutcome::Missing, "File does not exist", "");
        return false;
    }
    const auto size = std::filesystem::file_size(strAFPFile, error);
    if (!error && size > kLargestFile) {
        Refuse(RunOutcome::TooBig, "File too big", "Files over 2 GB are not supported.");
        return false;
    }
    clsAFP_.Reader().onScan = [this](std::int32_t lngProcessedBytes) {
        lngProcessedBytes_ = lngProcessedBytes;
        TellProgress();
        return !bolOperationInterupted_;
    };
    // The search for the first record can be a long way already.
    host_.OperationStarts(error ? 0 : static_cast<std::int64_t>(size));
    if (clsAFP_.OpenAFPFile() != kFailure) return true;
    host_.OperationEnds();
    ReportFailure(RunOutcome::OpenFailed, clsAFP_.Reader().Failure());
    clsAFP_.CloseAFPFile();
    return false;
}

void Document::Refuse(RunOutcome outcome, std::string_view second, std::string_view third)
{
    outcome_ = outcome;
    const Labels interface(settings_.InterfaceLanguage());
    std::string text(interface[U("File %1 could not be opened! Following error occured: NEWLINE %2, %3")]);
    ChangeString(text, "%1", clsAFP_.Reader().File());
    ChangeString(text, "%2", second);
    ChangeString(text, "%3", third);
    ChangeString(text, " NEWLINE ", "\r");
    host_.MessageBox(BoxIcon::Stop, kStop, text);
}

void Document::ReportFailure(RunOutcome outcome, const FileFailure& failure)
{
    failure_ = failure;
    std::string number;
    AppendNumber(number, std::int64_t{failure.number});
    Refuse(outcome, number, failure.description);
}

// The root's own text: the file and its packaging.
std::string Document::RootText(const std::string& strAFPFile) const
{
    const Labels analysis(settings_.AnalysisLanguage()), interface(settings_.InterfaceLanguage());
    const Framing& frame = clsAFP_.Frame();
    std::string text(analysis[L("Filename & -path")]);
    text += ": \"" + strAFPFile + "\"\r\n\r\n";
    text += analysis[L("Filesize")];
    text += ": ";
    AppendFormatted(text, std::int64_t{clsAFP_.Reader().FileSize()}, Picture::Grouped, style_);
    text += " Bytes\r\n\r\n";
    text += interface[frame.intRDWLength != 0 ? U("This file contains Record Descriptor Words (RDW).")
                                              : U("This file does NOT contain Record Descriptor Words (RDW).")];
    text += kCrLf;
    text += interface[frame.int5ALength != 0 ? U("This file contains 5A bytes.")
                                             : U("This file does NOT contain 5A bytes.")];
    text += kCrLf;
    if (frame.strLinefeed.empty()) {
        text += interface[U("This file does NOT contain any record delimiters.")];
        return text;
    }
    text += interface[U("Record delimiter contained:")];
    text += "x'";
    for (const char c : frame.strLinefeed) {
        AppendHex(text, static_cast<unsigned char>(c), 2);
        text += ' ';
    }
    text.back() = '\'';
    return text;
}

void Document::Walk()
{
    lngNextProgress_ = kProgressEvery;
    Status status = clsAFP_.GetNextRecord(lngProcessedBytes_, false);
    while (status == kRecord && !bolOperationInterupted_) {
        if (lngProcessedBytes_ > lngNextProgress_) TellProgress();
        TakeRecord();
        status = clsAFP_.GetNextRecord(lngProcessedBytes_, false);
        ++lngSFCount_;
    }
    if (status != kFailure) return;
    ReportFailure(RunOutcome::ReadFailed, clsAFP_.Reader().Failure());
    bolOperationInterupted_ = true;
}

void Document::TellProgress()
{
    host_.Progress(lngProcessedBytes_ - 1);
    host_.Counters(lngSFCount_, tree_->PageCount());
    host_.GiveWay();
    lngNextProgress_ = lngProcessedBytes_ > kLargestFile - kProgressEvery ? static_cast<std::int32_t>(kLargestFile)
                                                                          : lngProcessedBytes_ + kProgressEvery;
}

// A record whose equal was seen before is told from memory; others are decoded, and remembered if they may come again.
void Document::TakeRecord()
{
    clsAFP_.LookAtRecord();
    const std::string_view bytes = clsAFP_.RecordBytes(RecordMemo::kBehind);
    if (!remembers_ || !RecordMemo::Repeats(clsAFP_.Field(), bytes.size())) return AnalyzeAndRender();
    const MemoState before = StateNow();
    memo_.Ask(bytes, before);
    if (RecallRecord()) return;
    const std::uint64_t faults = tree_->Faults();
    AnalyzeAndRender();
    MemoState after = StateNow();
    after.units = before.units;
    after.lines = before.lines;
    const NodeRecord& node = tree_->Nodes()[tree_->Current()];
    if (tree_->Faults() == faults && after == before && clsAFP_.ReadNoFurtherThan(RecordMemo::kBehind))
        memo_.Learn(tree_->CurrentStatus(), renderer_->units, renderer_->lines, node);
}

bool Document::RecallRecord()
{
    const RecordMemo::Entry* entry = memo_.Answer();
    if (entry == nullptr) return false;
    clsAFP_.PassRecord();
    tree_->AddNodes(entry->status, clsAFP_.Field());
    tree_->StoreRepeated(entry->node, clsAFP_.FilePosition(clsAFP_.Reader().RecordStart()));
    renderer_->units = entry->units;
    renderer_->lines = entry->lines;
    return true;
}

MemoState Document::StateNow() const
{
    return {renderer_->units,
            renderer_->lines,
            clsAFP_.CurrentCodePage(),
            clsAFP_.Pages.lngInputCPNOP,
            clsAFP_.Pages.lngInputCPTLE,
            clsAFP_.CarryOverBytes,
            clsAFP_.Triplets.colorManagement,
            clsAFP_.Triplets.metadata};
}

void Document::AnalyzeAndRender()
{
    renderer_->text.Clear();
    renderer_->deferredText.Clear();
    renderer_->IndentText.clear();
    const Status status = clsAFP_.AnalyzeRecord();
    if ((status & kRecord) < kRecord || !tree_->AddNodes(status, clsAFP_.Field())) return;
    renderer_->RenderStructuredField(clsAFP_.List());
    AppendIntroducerNotes();
    if (renderer_->text.Position() >= 2)
        tree_->StoreNodeRecord(renderer_->text.Text(), clsAFP_.Field() != kFieldCount, renderer_->SFStart,
                               renderer_->SFLength);
    if (!renderer_->deferredText.Text().empty()) tree_->AppendDeferred(renderer_->deferredText.Text());
    tree_->CloseFolder(status);
}

// What the introducer holds besides the field: both stand right behind SFStart and SFLength.
void Document::AppendIntroducerNotes()
{
    constexpr std::size_t kFixed = 2;
    const auto elements = clsAFP_.List().Elements();
    if (elements.size() <= kFixed) return;
    const auto labels = renderer_->labels;
    const auto note = [&](Label label, std::int64_t count) {
        std::string number, text(labels[label]);
        AppendFormatted(number, count, Picture::Grouped, style_);
        ChangeString(text, "%1", number);
        renderer_->text.Append(std::string(kCrLf) + renderer_->IndentText + text + std::string(kCrLf));
    };
    std::size_t next = kFixed;
    if (elements[next].key == Key::SFIExt) {
        note(L("This record contains extended information with a length of %1 bytes with"), elements[next].number);
        std::string& out = renderer_->BeginLine(L("Content"));
        out += '"';
        out += clsAFP_.List().TextOf(elements[next + 1]);
        out += '"';
        renderer_->EndLine();
        next += 2;
    }
    if (next < elements.size() && elements[next].key == Key::Padding)
        note(L("This record contains %1 padding bytes up to the end of the record."), elements[next].number);
}

void Document::PageCounted(std::int32_t lngPageCount)
{
    if (lngPageCount != kPagesTold) return;  // once a file, not once for so many pages
    std::string text(Labels(settings_.InterfaceLanguage())[U(
        "Already %1 pages processed! Aborting with ESC key or STOP button is possible at every time.")]);
    std::string number;
    AppendNumber(number, std::int64_t{lngPageCount});
    ChangeString(text, "%1", number);
    messages_.addMessage(MessageSource::General, MessageSeverity::Information, text, false);
    messages_.ShowWithBeep();
}

void Document::FinishRun()
{
    host_.Progress(clsAFP_.Reader().FileSize());
    host_.OperationEnds();
    host_.Counters(lngSFCount_, tree_->PageCount());
    host_.RunFinished();
    const std::uint32_t current = tree_->Current();
    const bool insideFolder = current != NodeStore::kRoot && tree_->Nodes()[current].parent != NodeStore::kRoot;
    if (insideFolder && !bolOperationInterupted_) {
        const Labels interface(settings_.InterfaceLanguage());
        messages_.addMessage(MessageSource::Structure, MessageSeverity::Error,
                             interface[U("This file seems to be truncated! Processing was canceled!")], true);
    }
    clsAFP_.CloseAFPFile();
    bolProcessing_ = false;
    ForgetBodiesOfRun();
    if (messages_.hasMessages() && settings_.MessageWindow == 1) messages_.ShowWithBeep();
}

}  // namespace folioscope
