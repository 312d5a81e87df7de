#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "analysis/decode/clsAFPFunctions.h"
#include "analysis/render/renderer.h"
#include "base/numbers.h"
#include "base/settings.h"
#include "document/dump_sink.h"
#include "document/messages.h"
#include "document/ports.h"
#include "document/record_memo.h"
#include "document/run_host.h"
#include "document/structure_tree.h"

namespace folioscope {

enum class RunOutcome : std::uint8_t {
    Walked,      // to the end, or to where the user stopped it
    Missing,     // no such file
    TooBig,      // 2 GB and more
    OpenFailed,  // Failure() tells why
    ReadFailed,  // the same; the tree holds what came before
};

enum class DumpEncoding : std::uint8_t {
    SystemPage,  // code page 1252, lines end in CR LF
    Utf8,        // lines end in LF
};

struct DumpResult {
    FileFailure input;   // a deferred record could not be read
    FileFailure output;  // the sink took no more
    bool cancelled = false;
    std::uint64_t bytes = 0;
    bool Whole() const { return !input && !output && !cancelled; }
};

// What is searched for, in any case.
struct FindTerm {
    std::string strSearch;
    bool bolNOPOnly = false, bolTLEOnly = false;  // both: records of either kind
};

enum class FindOutcome : std::uint8_t { Found, NoMore, Cancelled, ReadFailed };

struct FindResult {
    FindOutcome outcome = FindOutcome::NoMore;
    std::uint32_t node = 0;  // that was found, or at which the search was stopped
    FileFailure failure;
};

// One open file: the run that walks it once, its tree, the texts of its nodes, its dump. Node numbers are lngNodeCode:
// they count from 1 in tree order. One thread; the user acts only in RunHost::GiveWay.
class Document final : private TreeListener {
public:
    Document(const Settings& settings, NumberStyle numbers, MessageList& messages, RunHost& host,
             const DecodePorts& ports = Decoders());
    ~Document() override;

    // Walks the file. `shownName` stands in the tree in place of the file's name. True if the file was analysed.
    bool ProcessAFPFile(const std::string& strAFPFile, std::string_view shownName = {});
    RunOutcome Outcome() const { return outcome_; }
    const FileFailure& Failure() const { return failure_; }

    bool Processing() const { return bolProcessing_; }
    bool GetOperationInteruptedFlag() const { return bolOperationInterupted_; }
    void SetOperationInteruptedFlag(bool interrupt) { bolOperationInterupted_ = interrupt; }

    // Whether records that come again are told from memory, which is the default. It changes nothing but the speed.
    void TellRepeatedFromMemory(bool remember) { remembers_ = remember; }

    // What other settings change in an open document: DefaultMeasurement and NormalLineWidth for the texts that are
    // made from now on, also in a run, and the language of message boxes and of the dump's head. Texts that are there
    // stay as they are, and the analysis keeps its language.
    void TakeSettings(const Settings& settings);

    std::int32_t SFCount() const { return lngSFCount_; }
    const StructureTree& Tree() const { return *tree_; }
    MessageList& Messages() { return messages_; }

    // Node details. A record whose body was deferred is read again while the file is open for it, also in a run, whose
    // own reading goes on undisturbed.
    FileFailure RedirectOpenAFPFileRandom();
    void RedirectCloseAFPFile();
    FileFailure LookupMissingData(std::uint32_t lngNodeCode);
    std::int32_t GetNodeContents_lngStart(std::uint32_t lngNodeCode) const;
    std::int32_t GetNodeContents_lngLength(std::uint32_t lngNodeCode) const;
    bool GetNodeContents_bolUnread(std::uint32_t lngNodeCode) const;
    // The property text with its markup. Of a deferred record that was read before it is made again if need be.
    std::string GetNodeContents_strContent(std::uint32_t lngNodeCode);
    void AppendContent(std::string& out, std::uint32_t lngNodeCode);  // the same, behind what is there

    // The next node behind `selected` in tree order whose text, a slash and its property text with all markup hold the
    // term. Bodies that were left for later are read on the way. The user can stop the search where one is read.
    FindResult FindNext(std::uint32_t selected, const FindTerm& term);

    // Writes the readable text of all nodes, reading what was deferred. Its memory doesn't grow with the dump.
    DumpResult WriteDump(DumpSink& sink, DumpEncoding encoding);
    // The same into a file, with the message boxes that a user expects.
    void SaveDump(const std::string& strSaveName);

private:
    friend class DumpWriter;

    void PageCounted(std::int32_t lngPageCount) override;
    void PreviewOffered() override { host_.PreviewOffered(); }

    void Refuse(RunOutcome outcome, std::string_view second, std::string_view third);
    void ReportFailure(RunOutcome outcome, const FileFailure& failure);
    bool OpenFile(const std::string& strAFPFile);
    std::string RootText(const std::string& strAFPFile) const;
    void Walk();
    void TakeRecord();
    bool RecallRecord();
    void AnalyzeAndRender();
    MemoState StateNow() const;
    void AppendIntroducerNotes();
    void TellProgress();
    void FinishRun();
    clsAFPFunctions& BodyReader();
    void ForgetBodiesOfRun();
    FileFailure ReadBody(std::uint32_t node, std::string& body);
    void AnalyzeBody(clsAFPFunctions& afp, std::uint32_t node);
    void RenderBody(const ElementList& elements, std::uint32_t node, std::string& body);
    FindResult Search(std::uint32_t selected, const FindTerm& term);
    void KeepBody(std::uint32_t node, const std::string& body);

    Settings settings_;
    NumberStyle style_;
    MessageList& messages_;
    RunHost& host_;
    clsAFPFunctions clsAFP_;
    std::unique_ptr<clsAFPFunctions> bodyReader_;  // of a run, from the first body on that somebody asks for
    std::unique_ptr<StructureTree> tree_;
    std::unique_ptr<Renderer> renderer_;
    RecordMemo memo_;
    bool remembers_ = true;
    RunOutcome outcome_ = RunOutcome::Walked;
    FileFailure failure_;
    bool bolProcessing_ = false, bolOperationInterupted_ = false;
    std::int32_t lngNextProgress_ = 0, lngProcessedBytes_ = 0, lngSFCount_ = 0;

    // What the record read before them left over of its last item: the body of such a record begins so much later, also
    // when it is made again. Records that nothing was left for are not in it.
    std::unordered_map<std::uint32_t, std::int32_t> carriedInto_;
    // Bodies of deferred records that were asked for lately. Older ones are made again from the file.
    std::unordered_map<std::uint32_t, std::string> bodies_;
    std::deque<std::uint32_t> bodyOrder_;
    std::size_t bodyBytes_ = 0;
};

}  // namespace folioscope
