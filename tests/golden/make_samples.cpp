// Makes the bundled samples: make_samples FOLDER
//
// They are small, they need no other producer's files, and together they show every packaging, every field and
// several kinds of damage. The same program always gives the same bytes.

#include <cstdio>
#include <fstream>
#include <string>

#include "analysis/decode/dispatch.h"
#include "golden/colour_samples.h"
#include "golden/item_samples.h"
#include "golden/triplet_samples.h"
#include "support/afp_builder.h"

namespace {

using namespace folioscope;
using namespace folioscope::test;

Bytes Name(std::string_view name) { return Ebcdic8(name); }

Bytes Fqn(unsigned type, std::string_view name) { return Triplet(0x02, U1(type) + U1(0) + Ebcdic(name)); }

// One control sequence; all of a chain but the last are chained.
Bytes Control(unsigned function, const Bytes& data, bool last = false)
{
    return U1(static_cast<unsigned>(data.size()) + 2) + U1(last ? function : function | 1) + data;
}

Bytes TextLine(unsigned y, std::string_view text)
{
    return Raw({0x2B, 0xD3}) + Control(0xD2, U2(y)) + Control(0xC6, U2(1000)) + Control(0xDA, Ebcdic(text), true);
}

Bytes PageDescriptor() { return Raw({0, 0}) + U2(14400) + U2(14400) + U3(11906) + U3(16838) + Zeros(3); }

void AddTag(AfpFile& file, std::string_view name, std::string_view value)
{
    file.Add("TLE", Fqn(0x0B, name) + Triplet(0x36, Zeros(2) + Ebcdic(value)));
}

void AddPage(AfpFile& file, unsigned number, std::string_view text)
{
    const std::string name = "PAGE000" + std::to_string(number);
    file.Add("BPG", Name(name));
    file.Add("BAG", Name("AEG00001"));
    file.Add("PGD", PageDescriptor());
    file.Add("PTD-2", Raw({0, 0}) + U2(14400) + U2(14400) + U3(11906) + U3(16838) + Zeros(2));
    file.Add("EAG", Name("AEG00001"));
    file.Add("BPT", Name("TEXT0001"));
    file.Add("PTX", TextLine(1200, text));
    file.Add("EPT", Name("TEXT0001"));
    file.Add("EPG", Name(name));
}

// A small print file: resources, a document with an index group and two pages.
AfpFile Statement(Packaging packaging)
{
    AfpFile file(packaging);
    file.Add("BPF", Name("RUN00001"));
    file.Add("BRG", Name("RESGROUP"));
    file.Add("BRS", Name("S1LOGO") + Zeros(2) + Triplet(0x21, U1(0xFB) + Zeros(7)));
    file.Add("BPS", Name("S1LOGO")).Add("EPS", Name("S1LOGO"));
    file.Add("ERS", Name("S1LOGO"));
    file.Add("ERG", Name("RESGROUP"));
    file.Add("BDT", Name("STATEMNT") + Zeros(2) + Fqn(0x01, "Statements"));
    file.Add("NOP", Ebcdic("Made by the sample maker"));
    file.Add("BNG", Name("GROUP001"));
    AddTag(file, "Account", "4711");
    AddTag(file, "Town", "Bern");
    file.Add("IMM", Name("DUPLEX"));
    AddPage(file, 1, "Statement of account 4711");
    AddPage(file, 2, "Balance carried forward");
    file.Add("ENG", Name("GROUP001"));
    file.Add("EDT", Name("STATEMNT"));
    file.Add("EPF", Name("RUN00001"));
    return file;
}

// Every field once, each Begin directly followed by its End, and some with an extension, padding or both flags.
AfpFile AllFields()
{
    AfpFile file;
    for (const FieldRow& row : Fields()) {
        const unsigned category = row.id >> 8;
        if (category == kEndCategory || row.NodeText == "RCD" || row.NodeText == "XMD") continue;
        file.Add(row.NodeText, Name("NAME0001"));
        if (category == kBeginCategory) file.Add("E" + std::string(row.NodeText.substr(1)), Name("NAME0001"));
    }
    file.Add(Field{"NOP", U1(5) + Ebcdic("more") + Ebcdic("Behind an extension"), 0x80});
    file.Add(Field{"NOP", Ebcdic("In front of padding") + Zeros(3) + U1(4), 0x08});
    file.Add(Field{"NOP", Ebcdic("In front of long padding") + Zeros(297) + U2(300) + U1(0), 0x08});
    file.Add(Field{"NOP", Ebcdic("Segmented"), 0x20});
    return file;
}

// Every triplet, each in a field that can hold it; those of a resource stand where they mean something of their own.
AfpFile AllTriplets()
{
    AfpFile file;
    file.Add("BDT", Name("TRIPLETS") + Zeros(2));
    for (const std::string_view sample : kTripletSamples) file.Add("OBD", TripletOf(sample));
    file.Add("BRS", Name("S1LOGO") + Zeros(2) + TripletOf("21 FB 00*7")).Add("ERS", Name("S1LOGO"));
    AddTag(file, "Account", "4711");
    file.Add("EDT", Name("TRIPLETS"));
    return file;
}

Bytes LengthAndRest(const Bytes& item, std::size_t head, const Bytes& length)
{
    return item.substr(0, head) + length + item.substr(head);
}

// A code, the length of what follows, and that.
Bytes CodeLengthData(std::string_view pieces)
{
    const Bytes item = Pieces(pieces);
    return LengthAndRest(item, 1, U1(static_cast<unsigned>(item.size()) - 1));
}

Bytes AllSequences()
{
    Bytes text;
    for (const std::string_view sample : kSequenceSamples) {
        const Bytes sequence = Pieces(sample);
        text += Raw({0x2B, 0xD3}) + U1(static_cast<unsigned>(sequence.size()) + 1) + sequence;
    }
    return text + Ebcdic("free text");
}

Bytes AllOrders()
{
    Bytes orders = CodeLengthData("70 0000 0000 00 0100 0000 0000 00");
    for (const std::string_view sample : kShortOrderSamples) orders += Pieces(sample);
    orders += Pieces("68 C0");
    for (const std::string_view sample : kOrderSamples) orders += CodeLengthData(sample);
    return orders + CodeLengthData("60") + Pieces("3E 00 71 00 00");
}

Bytes AllImageFields()
{
    Bytes image;
    for (const std::string_view sample : kImageFieldSamples) image += CodeLengthData(sample);
    for (const std::string_view sample : kExtendedFieldSamples) {
        const Bytes field = Pieces(sample);
        image += U1(0xFE) + LengthAndRest(field, 1, U2(static_cast<unsigned>(field.size()) - 1));
    }
    return image + CodeLengthData("93") + CodeLengthData("71");
}

// Text, graphics, an image and a bar code with each of their items, and what describes them.
AfpFile AllItems()
{
    AfpFile file;
    file.Add("BDT", Name("ITEMS") + Zeros(2));
    file.Add("BPT", Name("TEXT0001")).Add("PTX", AllSequences());
    file.Add("PTX", Raw({0x2B, 0xD3}) + U1(22) + U1(0xDA) + Ebcdic("Cut at the end"));
    file.Add("PTX", Ebcdic("______") + TextLine(1200, "and passed here")).Add("EPT", Name("TEXT0001"));
    Bytes descriptor;
    for (const std::string_view sample : kDescriptorSamples) descriptor += CodeLengthData(sample);
    file.Add("BGR", Name("DRAW0001")).Add("GDD", descriptor).Add("GAD", AllOrders()).Add("EGR", Name("DRAW0001"));
    file.Add("BIM", Name("IMAGE001")).Add("IDD", Pieces("00 0960 0960 0140 00F0") + CodeLengthData("F7 01 0B"));
    file.Add("IPD", AllImageFields()).Add("EIM", Name("IMAGE001"));
    file.Add("BII", Name("OLDIMAGE"));
    file.Add("IOC", Pieces("000064 0000C8 0000 2D00 00*8 03E8 03E8 FFFF"));
    file.Add("IID", Pieces("00*12 00 00 0960 0960 0140 00F0 00*6 0020 0010 0001 FFFF"));
    file.Add("ICP", Pieces("0010 0020 0020 0010 FFFF FFFF")).Add("IRD", Zeros(16)).Add("EII", Name("OLDIMAGE"));
    file.Add("BBC", Name("CODE0001"));
    file.Add("BDD/BSD", Pieces("00 00 3840 3840 0640 0320 0000 11 02 FF FFFF 0D 00F0 01 012C"));
    file.Add("BDA/BSA", Pieces("40 0064 00C8 '4711'")).Add("EBC", Name("CODE0001"));
    file.Add("BCA", Name("COLORS01"));
    file.Add("CAT", Pieces("40 00 01") + Pieces("11 01 00 02 01 00*3 08 08 08 00 0005 FF 80 00") +
                        Pieces("0E 02 80 00 01 00 0010 0001 08 08 08 00"));
    file.Add("ECA", Name("COLORS01"));
    file.Add("BOC", Name("OBJECT01")).Add("OCD", Ebcdic("data of another kind")).Add("EOC", Name("OBJECT01"));
    file.Add("FDX", Ebcdic("Fixed text"));
    file.Add("EDT", Name("ITEMS"));
    return file;
}

void AddObject(AfpFile& file, std::string_view entry, const Bytes& object)
{
    constexpr std::size_t kStep = 300;  // data bytes of a field
    file.Add("BOC",
             Name("OBJECT01") + TripletOf("10 00 01 0000 90 00 06072B1200040101" + std::string(entry) + " 00*7"));
    for (std::size_t at = 0; at < object.size(); at += kStep) file.Add("OCD", object.substr(at, kStep));
    file.Add("EOC", Name("OBJECT01"));
}

// Colour management resources with each of their tags, an ICC profile, and metadata.
AfpFile Colours()
{
    AfpFile file;
    file.Add("BDT", Name("COLOURS") + Zeros(2));
    for (const Bytes& object : {SampleHalftone(), SampleCurvesAndLinks(), SamplePalettes(), SampleProfile()})
        AddObject(file, "39", object);
    AddObject(file, "43", SampleMetadata("NONE", "<note>Sample</note>"));
    AddObject(file, "43", SampleMetadata("GZIP", Raw({0x1F, 0x8B, 8, 0})));
    file.Add("EDT", Name("COLOURS"));
    return file;
}

// What goes wrong in practice: Ends that don't fit, noise, an End too many, a file that stops in the middle.
AfpFile Damaged()
{
    AfpFile file;
    file.Add("BDT", Name("BROKEN") + Zeros(2));
    file.Add("BPG", Name("PAGE0001"));
    file.Add("BPT", Name("TEXT0001"));
    file.Add("PTX", TextLine(1200, "Left open"));
    file.Add("EPG", Name("PAGE0001"));
    file.Noise(Raw({0x00, 0xD3, 0xD3, 0xA8}) + Ebcdic("not a record"));
    file.Add("EDT", Name("BROKEN"));
    file.Add("EDT").Add("EDT").Add("EDT");
    file.Add("BPG");
    file.Add("NOP", Ebcdic("a > b"));
    file.Add(Field{"PTX", Ebcdic("cut off"), 0, 0x4000});
    return file;
}

void Write(const std::string& folder, const std::string& name, const AfpFile& file)
{
    const std::string path = folder + "/" + name;
    std::ofstream out(path, std::ios::binary);
    out.write(file.Content().data(), static_cast<std::streamsize>(file.Content().size()));
    if (!out.flush()) {
        std::fprintf(stderr, "%s can't be written\n", path.c_str());
        std::exit(1);
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_samples FOLDER\n");
        return 2;
    }
    const std::string folder = argv[1];
    Write(folder, "statement.afp", Statement(Packaging::FiveA));
    Write(folder, "statement-bare.afp", Statement(Packaging::Bare));
    Write(folder, "statement-rdw2.afp", Statement(Packaging::Rdw2));
    Write(folder, "statement-rdw4.afp", Statement(Packaging::Rdw4));
    Write(folder, "statement-cr.afp", Statement(Packaging::Cr));
    Write(folder, "statement-lf.afp", Statement(Packaging::Lf));
    Write(folder, "statement-crlf.afp", Statement(Packaging::CrLf));
    Write(folder, "all-fields.afp", AllFields());
    Write(folder, "all-triplets.afp", AllTriplets());
    Write(folder, "all-items.afp", AllItems());
    Write(folder, "colours.afp", Colours());
    Write(folder, "damaged.afp", Damaged());
    return 0;
}
