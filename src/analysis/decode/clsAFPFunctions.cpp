#include "analysis/decode/clsAFPFunctions.h"

#include <algorithm>
#include <cstring>

#include "analysis/decode/dispatch.h"
#include "analysis/decode/groups.h"
#include "base/text.h"

namespace folioscope {

namespace {

constexpr std::int64_t kMostHexBytes = 2048;
constexpr std::int32_t kUtf16BE = 1200;
constexpr std::int32_t kPlusExtension = 0, kSegmentedBit = 2, kPaddingBit = 4;  // of the flag byte

void AppendHexByte(std::string& out, std::uint8_t byte)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    out += kDigits[byte >> 4];
    out += kDigits[byte & 15];
    out += ' ';
}

void TrimEnd(std::string& out, std::size_t from)
{
    while (out.size() > from && out.back() == ' ') out.pop_back();
}

std::string IdentifierTextOf(std::uint32_t identifier)
{
    std::string text;
    for (const int shift : {16, 8, 0}) AppendHexByte(text, static_cast<std::uint8_t>(identifier >> shift));
    text.pop_back();
    return text;
}

// Bytes as the 16-bit characters that they make in pairs; an odd last byte is dropped.
void AppendPairs(std::string& out, std::span<const std::uint8_t> bytes, bool highFirst)
{
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        const auto unit = [&](std::size_t at) {
            return static_cast<char32_t>(highFirst ? bytes[at] << 8 | bytes[at + 1] : bytes[at + 1] << 8 | bytes[at]);
        };
        char32_t character = unit(i);
        if (character >= 0xD800 && character < 0xDC00 && i + 3 < bytes.size()) {
            const char32_t low = unit(i + 2);
            if (low >= 0xDC00 && low < 0xE000) {
                character = 0x10000 + ((character - 0xD800) << 10) + (low - 0xDC00);
                i += 2;
            }
        }
        AppendUtf8(out, character);
    }
}

}  // namespace

// The texts of the 256 bytes of a code page. A zero byte stands for a blank of the value x'20' on every page.
struct clsAFPFunctions::TextPage {
    std::int32_t number;
    bool known;
    ByteTexts texts;
};

clsAFPFunctions::clsAFPFunctions() { CodePages.Reset(Pages.lngInputCP); }

clsAFPFunctions::~clsAFPFunctions() = default;

void clsAFPFunctions::InitializeProcessing(std::string strAFPFile, std::int32_t lngInputCP, std::int32_t lngOutputCP,
                                           bool CPAutoDetect)
{
    InitializeProcessing2(std::move(strAFPFile), {lngInputCP, lngInputCP, lngInputCP, lngOutputCP, CPAutoDetect});
}

void clsAFPFunctions::InitializeProcessing2(std::string strAFPFile, const InputPages& pages)
{
    reader_.SetFile(std::move(strAFPFile));
    Pages = pages;
    CodePages.Reset(pages.lngInputCP);
    Fonts = {};
    textPages_.clear();
    lastTextPage_ = nullptr;
}

void clsAFPFunctions::FollowWalk(const clsAFPFunctions& walk)
{
    reader_.FollowWalk(walk.reader_);
    ports_ = walk.ports_;
    Pages = walk.Pages;
    CodePages.Reset(walk.CurrentCodePage());
    Fonts = walk.Fonts;
}

Status clsAFPFunctions::OpenAFPFile()
{
    list_.ClearCollections();
    const Status status = reader_.OpenAFPFile();
    if (status == kFailure) {
        AddFailure();
        return status;
    }
    AddElement(Element::Int32(Key::FileSize, reader_.FileSize()));
    AddElement(Element::Int16(Key::RDW, Frame().intRDWLength));
    AddElement(Element::Int16(Key::FiveAByte, Frame().int5ALength));
    AddElement(Element::Literal(Key::Linefeed, Frame().strLinefeed));
    return status;
}

void clsAFPFunctions::AddFailure()
{
    AddElement(Element::Int32(Key::ErrorNumber, reader_.Failure().number));
    AddElement(Element::Literal(Key::ErrorDescription, reader_.Failure().description));
}

Status clsAFPFunctions::GetNextRecord(std::int32_t& lngProcessedBytes, bool bolReturnSF)
{
    list_.ClearCollections();
    return GetNextRecord2(lngProcessedBytes, bolReturnSF);
}

Status clsAFPFunctions::GetNextRecord2(std::int32_t& lngProcessedBytes, bool bolReturnSF)
{
    const Status status = reader_.GetNextRecord2();
    lngProcessedBytes = reader_.ProcessedBytes();
    if (status == kFailure) AddFailure();
    if (status == kRecord && bolReturnSF) {
        const auto from = list_.Pool().size();
        for (std::int32_t i = 0; i < reader_.FieldLength(); ++i)
            list_.Pool() += static_cast<char>(ByteAt(std::int64_t{reader_.RecordStart()} + i));
        AddElement(list_.PooledText(Key::FullSF, from));
    }
    return status;
}

FileFailure clsAFPFunctions::OpenAFPFileRandom()
{
    list_.ClearCollections();
    return reader_.OpenAFPFileRandom();
}

Status clsAFPFunctions::CloseAFPFile()
{
    list_.ClearCollections();
    return reader_.CloseAFPFile();
}

// Where the record's bytes are and which field it is, as its length field and identifier say.
void clsAFPFunctions::LookAtRecord()
{
    reached_ = 0;
    const std::int32_t start = reader_.RecordStart();
    FieldLength = reader_.FieldLength();
    FieldEnd = start + FieldLength - 1;
    FieldPosition = start + 8;
    field_ = ByteAt(start + 2) == 0xD3 ? FindField(ByteAt(start + 3), ByteAt(start + 4)) : kFieldCount;
}

void clsAFPFunctions::PassRecord()
{
    previousIdentifier_ = identifier_;
    identifier_ = static_cast<std::uint32_t>(ReadUnsigned(reader_.RecordStart() + 2, 3));
}

std::string_view clsAFPFunctions::RecordBytes(std::int32_t behind) const
{
    const auto buffer = reader_.RecordBuffer();
    const auto from = static_cast<std::size_t>(reader_.RecordStart() - 1);
    if (from >= buffer.size()) return {};
    const auto length = static_cast<std::size_t>(reader_.FieldLength() + behind);
    const auto bytes = buffer.subspan(from, std::min(length, buffer.size() - from));
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

bool clsAFPFunctions::ReadNoFurtherThan(std::int32_t behind) const
{
    return reached_ < std::int64_t{reader_.RecordStart()} + reader_.FieldLength() + behind;
}

Status clsAFPFunctions::AnalyzeRecord()
{
    LookAtRecord();
    PassRecord();
    const std::int32_t start = reader_.RecordStart();
    const std::uint8_t category = ByteAt(start + 2) == 0xD3 ? ByteAt(start + 3) : 0;
    AddElement(Element::Int32(Key::SFStart, std::int64_t{reader_.BufferFilePos()} + start - 1));
    AddElement(Element::Int32(Key::SFLength, FieldLength));

    const std::int64_t flags = start + 5;
    std::int16_t recordFlags = kRecord;
    if (ReadBit(flags, kPlusExtension)) {
        const std::int32_t length = ByteAt(FieldPosition);
        AddElement(Element::Int16(Key::SFIExt, length - 1));
        AddElement(ReadText(Key::SFIExtText, FieldPosition + 1, length - 1));
        FieldPosition += length;
    }
    if (ReadBit(flags, kSegmentedBit)) recordFlags |= kSegmented;
    if (ReadBit(flags, kPaddingBit)) TakePadding();
    CodePages.Push();

    if (category == kBeginCategory) recordFlags |= kBegin;
    if (category == kEndCategory) recordFlags |= kEnd;
    if (category == kBeginCategory) CodePages.Push();
    if (field_ == kFieldCount) {
        AddUnknown();
    } else {
        const FieldRow& row = Fields()[field_];
        AddElement(Element::Literal(Key::NodeText, row.NodeText));
        AddElement(Element::Literal(Key::SFName, row.SFName));
        DecodeBody(row.body);
    }
    // What a Begin field sets holds for its scope, so its net effect is one level more; an End's is one less.
    if (category == kBeginCategory) CodePages.HandDown();
    if (category == kEndCategory) CodePages.Pop();
    CodePages.Pop();
    return static_cast<Status>(recordFlags);
}

void clsAFPFunctions::DecodeBody(const FieldBody& body)
{
    if (body.procedure != nullptr) return body.procedure(*this);
    ReadRows(*this, body.rows, FieldPosition, FieldEnd - FieldPosition + 1);
    FieldPosition += body.pass;
    if (body.then == Then::Triplets) AnalyzeTriplets(*this, FieldEnd);
    if (body.then == Then::TripletGroups) AnalyzeTripletGroups(*this);
    if (FieldPosition >= FieldEnd) return;
    if (body.then == Then::Port) DecodeThrough(body.port);
    if (body.then == Then::Unread) AddElement(Element::Int16(Key::Unread, 1));
}

void clsAFPFunctions::DecodeThrough(Port port)
{
    PortDecoder decoder = nullptr;
    switch (port) {
    case Port::None: break;
    case Port::Sequences: decoder = ports_.Sequences; break;
    case Port::Orders: decoder = ports_.Orders; break;
    case Port::Fields: decoder = ports_.Fields; break;
    case Port::FontGroups: decoder = ports_.FontGroups; break;
    case Port::ColourResource: decoder = ports_.ColourResource; break;
    case Port::Metadata: decoder = ports_.Metadata; break;
    }
    if (decoder != nullptr) decoder(*this);
}

void clsAFPFunctions::FollowCodePage(std::int32_t page)
{
    if (!conversions_.LoadCodepage(page)) return;
    CodePages.SetTop(page);
    Pages.lngInputCPNOP = Pages.lngInputCPTLE = page;
}

// The last byte is the count of padding bytes; if it is 0, the two bytes before it are.
void clsAFPFunctions::TakePadding()
{
    std::int32_t padding = ByteAt(FieldEnd);
    if (padding == 0) padding = ReadUnsigned(FieldEnd - 2, 2);
    AddElement(Element::Int32(Key::Padding, padding));
    FieldLength -= padding;
    FieldEnd -= padding;
}

void clsAFPFunctions::AddUnknown()
{
    AddElement(Element::Boolean(Key::Unknown, true));
    const auto from = list_.Pool().size();
    list_.Pool() += IdentifierTextOf(identifier_);
    AddElement(list_.PooledText(Key::HexCode, from));
}

void clsAFPFunctions::AnalyzeSpecificRecord()
{
    LookAtRecord();
    CodePages.Push();
    if (field_ != kFieldCount && Fields()[field_].body.then == Then::Unread) DecodeThrough(Fields()[field_].body.port);
    CodePages.Pop();
}

const std::string& clsAFPFunctions::IdentifierText() { return identifierText_ = IdentifierTextOf(identifier_); }

const std::string& clsAFPFunctions::PreviousIdentifierText()
{
    return previousIdentifierText_ = IdentifierTextOf(previousIdentifier_);
}

const ByteTexts* clsAFPFunctions::TextsOf(std::int32_t lngCodepage)
{
    if (lastTextPage_ == nullptr || lastTextPage_->number != lngCodepage) {
        const auto found = std::find_if(textPages_.begin(), textPages_.end(),
                                        [&](const auto& page) { return page->number == lngCodepage; });
        if (found == textPages_.end()) {
            const ByteTexts* texts = conversions_.TextsOf(lngCodepage, Pages.lngOutputCP);
            textPages_.push_back(std::make_unique<TextPage>());
            *textPages_.back() = {lngCodepage, texts != nullptr, texts != nullptr ? *texts : ByteTexts{}};
            textPages_.back()->texts[0] = textPages_.back()->texts[0x20];
            lastTextPage_ = textPages_.back().get();
        } else {
            lastTextPage_ = found->get();
        }
    }
    return lastTextPage_->known ? &lastTextPage_->texts : nullptr;
}

void clsAFPFunctions::AppendText(const ByteView& bytes, std::int32_t lngCodepage, std::int64_t position,
                                 std::int64_t length)
{
    std::string& pool = list_.Pool();
    if (const ByteTexts* texts = lngCodepage == kUtf16BE ? nullptr : TextsOf(lngCodepage)) {
        const auto from = pool.size();
        pool.resize(from + static_cast<std::size_t>(length) * sizeof(ByteText::utf8));
        char* out = pool.data() + from;
        for (std::int64_t i = 0; i < length; ++i) {
            const ByteText& text = (*texts)[bytes.At(position + i)];
            std::memcpy(out, text.utf8, sizeof text.utf8);
            out += text.size;
        }
        pool.resize(static_cast<std::size_t>(out - pool.data()));
        return;
    }
    // Without a table the bytes themselves are the result, as 16-bit characters.
    std::vector<std::uint8_t> work(static_cast<std::size_t>(length));
    for (std::size_t i = 0; i < work.size(); ++i) {
        work[i] = bytes.At(position + static_cast<std::int64_t>(i));
        if (work[i] == 0 && lngCodepage != kUtf16BE) work[i] = 0x20;
    }
    AppendPairs(pool, work, lngCodepage == kUtf16BE);
}

Element clsAFPFunctions::ReadTextCP(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length)
{
    const auto from = list_.Pool().size();
    const int first = ByteAt(position), second = ByteAt(position + 1);
    if (first == second && (first == 0 || first == 0xFF))
        AppendUtf8(list_.Pool(), static_cast<char32_t>(first));
    else if (length > 0)
        AppendText(Reach(position + length - 1), lngCodepage, position, length);
    return list_.PooledText(key, from);
}

Element clsAFPFunctions::ReadText(Key key, std::int64_t position, std::int64_t length)
{
    return ReadTextCP(key, CurrentCodePage(), position, length);
}

Element clsAFPFunctions::ReadCharacter(Key key, std::int64_t position)
{
    std::string& pool = list_.Pool();
    const auto from = pool.size();
    if (const ByteTexts* texts = conversions_.TextsOf(CurrentCodePage(), Pages.lngOutputCP)) {
        const ByteText& text = (*texts)[ByteAt(position)];
        pool += '\0';
        pool.append(text.utf8, text.size);
    }
    return list_.PooledText(key, from);
}

Element clsAFPFunctions::ObjReadTextCP(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length)
{
    const auto from = list_.Pool().size();
    if (length > 0) AppendText(Object(), lngCodepage, position, length);
    return list_.PooledText(key, from);
}

Element clsAFPFunctions::ObjReadText(Key key, std::int64_t position, std::int64_t length)
{
    return ObjReadTextCP(key, CurrentCodePage(), position, length);
}

Element clsAFPFunctions::ReadHex(Key key, std::int64_t position, std::int64_t length)
{
    std::string& pool = list_.Pool();
    const auto from = pool.size();
    for (std::int64_t i = 0; i < std::min(length, kMostHexBytes); ++i) AppendHexByte(pool, ByteAt(position + i));
    if (length > kMostHexBytes) pool += "...";
    TrimEnd(pool, from);
    return list_.PooledText(key, from);
}

Element clsAFPFunctions::ObjReadHex(Key key, std::int64_t position, std::int64_t length)
{
    std::string& pool = list_.Pool();
    const auto from = pool.size();
    for (std::int64_t i = 1; i <= std::min(length, kMostHexBytes); ++i) {
        AppendHexByte(pool, Object().At(position + i - 1));
        if (i % 8 == 0) pool += "\t\t";
        if (i % 32 == 0) pool += "\r\n\t    ";
    }
    if (length > kMostHexBytes) pool += "...";
    TrimEnd(pool, from);
    return list_.PooledText(key, from);
}

std::vector<std::uint8_t> clsAFPFunctions::CopyRecordBytes(std::int64_t position, std::int64_t length) const
{
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(std::max<std::int64_t>(length, 0)));
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = ByteAt(position + static_cast<std::int64_t>(i));
    return bytes;
}

// In one piece, since an object can have thousands of fields. What lies behind the buffer is 0 here too.
void clsAFPFunctions::GatherObject(std::int64_t position, std::int64_t length)
{
    if (length <= 0) return;
    Reach(position + length - 1);
    const auto buffer = reader_.RecordBuffer();
    const auto from = std::min(static_cast<std::size_t>(std::max<std::int64_t>(position - 1, 0)), buffer.size());
    const auto bytes = buffer.subspan(from, std::min(static_cast<std::size_t>(length), buffer.size() - from));
    const std::size_t whole = ObjectBuffer.size() + static_cast<std::size_t>(length);
    ObjectBuffer.insert(ObjectBuffer.end(), bytes.begin(), bytes.end());
    ObjectBuffer.resize(whole);
}

std::vector<std::uint8_t> clsAFPFunctions::CopyObjectBytes(std::int64_t position, std::int64_t length) const
{
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(std::max<std::int64_t>(length, 0)));
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = Object().At(position + static_cast<std::int64_t>(i));
    return bytes;
}

}  // namespace folioscope
