#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/decode/byte_view.h"
#include "analysis/decode/code_page_stack.h"
#include "analysis/decode/fields_fonts.h"
#include "analysis/decode/rows.h"
#include "analysis/decode/triplets.h"
#include "analysis/elements/element_list.h"
#include "codepages/clsCPConversions.h"
#include "stream/record_reader.h"

namespace folioscope {

class clsAFPFunctions;
struct FieldBody;
enum class Port : std::uint8_t;

// Decoders that lie above this floor: each reads from FieldPosition to FieldEnd, those of objects all of ObjectBuffer.
// Data whose decoder is missing add no Elements.
using PortDecoder = void (*)(clsAFPFunctions&);
struct DecodePorts {
    PortDecoder Sequences = nullptr;       // PTX, the tail of PTD-2
    PortDecoder Orders = nullptr;          // GAD
    PortDecoder Fields = nullptr;          // IPD, the tail of IDD
    PortDecoder FontGroups = nullptr;      // FNI, FNM
    PortDecoder ColourResource = nullptr;  // EOC, a colour management resource
    PortDecoder Metadata = nullptr;        // EOC, a metadata object
};

// The code pages that a run is told.
struct InputPages {
    std::int32_t lngInputCP = 37;
    std::int32_t lngInputCPNOP = 37;
    std::int32_t lngInputCPTLE = 37;
    std::int32_t lngOutputCP = 1252;
    bool CPAutoDetect = true;
};

// What Begin fields leave behind for the fields inside of them.
struct ResourceState {
    std::string name;       // trimmed Name of the latest named field
    std::string groupName;  // of the latest BNG
    std::string formMap;    // of the latest BRS
    bool inResourceGroup = false;
};

// Reader and analyser of one file: it turns the record in hand into Elements. Positions count from 1 into the record
// buffer; every read outside of it gives 0.
class clsAFPFunctions {
public:
    clsAFPFunctions();
    ~clsAFPFunctions();

    void InitializeProcessing(std::string strAFPFile, std::int32_t lngInputCP, std::int32_t lngOutputCP,
                              bool CPAutoDetect);
    void InitializeProcessing2(std::string strAFPFile, const InputPages& pages);
    void SetPorts(const DecodePorts& ports) { ports_ = ports; }
    // For one that reads single records again while another one walks the same file. It takes over what bodies depend
    // on, as it is in the walk at this moment, but for CarryOverBytes, which follows its own readings.
    void FollowWalk(const clsAFPFunctions& walk);

    // Each clears the Elements first. OpenAFPFile adds FileSize, RDW, FiveAByte, Linefeed; a failure adds ErrorNumber
    // and ErrorDescription and gives kFailure.
    Status OpenAFPFile();
    Status GetNextRecord(std::int32_t& lngProcessedBytes, bool bolReturnSF);
    FileFailure OpenAFPFileRandom();
    Status CloseAFPFile();

    // Keeps the Elements.
    Status GetNextRecord2(std::int32_t& lngProcessedBytes, bool bolReturnSF);
    FileFailure SetNextRecord(std::int32_t lngProcessedStart) { return reader_.SetNextRecord(lngProcessedStart); }

    // Finds out which field the current record is, and where its bytes are. AnalyzeRecord begins with it.
    void LookAtRecord();
    // The current record will not be analysed: the next one follows it all the same.
    void PassRecord();
    // The current record's Elements. Reads no file.
    Status AnalyzeRecord();
    // The Elements of the body that AnalyzeRecord left for later (Unread).
    void AnalyzeSpecificRecord();

    ElementList& List() { return list_; }
    const ElementList& List() const { return list_; }
    RecordReader& Reader() { return reader_; }
    const RecordReader& Reader() const { return reader_; }
    const Framing& Frame() const { return reader_.Frame(); }

    // The row of the current record's field in kFields; kFieldCount for one that isn't known.
    std::size_t Field() const { return field_; }

    // The bytes of the current record from the length field on, and `behind` more; fewer at the end of the file.
    std::string_view RecordBytes(std::int32_t behind) const;
    // Whether its analysis has read no further than that: a short field reads what follows it.
    bool ReadNoFurtherThan(std::int32_t behind) const;

    // For decoders -------------------------------------------------------------------------------------------------

    std::int32_t FieldPosition = 1;  // the next byte to read
    std::int32_t FieldEnd = 0;       // the record's last byte
    std::int32_t FieldLength = 0;    // bytes from the length field on, without padding

    std::uint8_t ByteAt(std::int64_t position) const { return Reach(position).At(position); }
    std::int32_t ReadUnsigned(std::int64_t position, int length) const
    {
        return Reach(position + length - 1).Unsigned(position, length);
    }
    std::int32_t ReadSigned(std::int64_t position, int length) const
    {
        return Reach(position + length - 1).Signed(position, length);
    }
    bool ReadBit(std::int64_t position, int bit) const { return Reach(position + bit / 8).Bit(position, bit); }

    void AddElement(const Element& element) { list_.AddElement(element); }
    void AddSequenceElement(const Element& element) { list_.AddSequenceElement(element); }
    void Add(AddTo to, const Element& element)
    {
        if (to == AddTo::Record)
            list_.AddElement(element);
        else
            list_.AddSequenceElement(element);
    }

    // Text in a code page, for `key`. Two bytes x'0000' or x'FFFF' at the position stand for a text that isn't given
    // and read as the one character U+0000 or U+00FF, whatever the length.
    Element ReadTextCP(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length);
    Element ReadText(Key key, std::int64_t position, std::int64_t length);
    // One byte of the current code page as text behind U+0000; empty if it can't be converted.
    Element ReadCharacter(Key key, std::int64_t position);
    // "0F A1": at most 2,048 bytes, then three dots.
    Element ReadHex(Key key, std::int64_t position, std::int64_t length);
    std::vector<std::uint8_t> CopyRecordBytes(std::int64_t position, std::int64_t length) const;

    // The twins over ObjectBuffer, whose positions count from 0. Text knows no marks for "not given" there, and hex is
    // laid out in groups of 8 and lines of 32 bytes.
    ByteView Object() const { return {ObjectBuffer, 0}; }
    int ObjByteAt(std::int64_t position) const { return Object().At(position); }
    std::int32_t ObjReadUnsigned(std::int64_t position, int length) const
    {
        return Object().Unsigned(position, length);
    }
    std::int32_t ObjReadSigned(std::int64_t position, int length) const { return Object().Signed(position, length); }
    bool ObjReadBit(std::int64_t position, int bit) const { return Object().Bit(position, bit); }
    Element ObjReadTextCP(Key key, std::int32_t lngCodepage, std::int64_t position, std::int64_t length);
    Element ObjReadText(Key key, std::int64_t position, std::int64_t length);
    Element ObjReadHex(Key key, std::int64_t position, std::int64_t length);
    std::vector<std::uint8_t> CopyObjectBytes(std::int64_t position, std::int64_t length) const;
    // Appends bytes of the record to ObjectBuffer.
    void GatherObject(std::int64_t position, std::int64_t length);
    // Has the data decoded by whoever is there for them.
    void DecodeThrough(Port port);

    // How many bytes of the last item of a text, graphics or image field lay behind its end, 0 to 65,535: the next walk
    // of any of them passes so many.
    std::int32_t CarryOverBytes = 0;

    std::vector<std::uint8_t> ObjectBuffer;  // object container data, gathered over many records
    ResourceState Resources;
    TripletState Triplets;
    FontState Fonts;
    InputPages Pages;
    CodePageStack CodePages;
    std::int32_t CurrentCodePage() const { return CodePages.Current(); }
    // A code page that the file names holds for the scope in hand, and for TLE and NOP contents from here on. One that
    // isn't known is passed over.
    void FollowCodePage(std::int32_t page);
    std::uint32_t Identifier() const { return identifier_; }  // 0xD3A8AF
    std::int32_t FilePosition(std::int32_t bufferIndex) const { return reader_.BufferFilePos() + bufferIndex - 1; }
    const std::string& IdentifierText();          // "D3 A8 AF"
    const std::string& PreviousIdentifierText();  // the same of the record before

private:
    struct TextPage;

    // The record buffer, for a read up to this position.
    ByteView Reach(std::int64_t position) const
    {
        if (position > reached_) reached_ = position;
        return {reader_.RecordBuffer(), 1};
    }
    void AddFailure();
    void TakePadding();
    void DecodeBody(const FieldBody& body);
    void AddUnknown();
    void AppendText(const ByteView& bytes, std::int32_t lngCodepage, std::int64_t position, std::int64_t length);
    const ByteTexts* TextsOf(std::int32_t lngCodepage);

    RecordReader reader_;
    ElementList list_;
    clsCPConversions conversions_;
    std::vector<std::unique_ptr<TextPage>> textPages_;
    const TextPage* lastTextPage_ = nullptr;
    DecodePorts ports_;
    std::size_t field_ = 0;
    mutable std::int64_t reached_ = 0;  // the highest position that was read of the current record
    std::uint32_t identifier_ = 0, previousIdentifier_ = 0;
    std::string identifierText_, previousIdentifierText_;
};

}  // namespace folioscope
