// The names of registered objects, by the bytes of their identifiers.

#include "analysis/decode/object_ids.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

struct Entry {
    unsigned number;
    std::string_view name;
};

// clang-format off
constexpr Entry kObjectTypes[] = {
    {5,   "IOCA Function Set 10"},
    {11,  "IOCA Function Set 11"},
    {12,  "IOCA Function Set 12"},
    {13,  "Encapsulated Postscript (EPS)"},
    {14,  "TIFF, Single-Page"},
    {15,  "Anacomp COM Setup File"},
    {16,  "MVS Tape Label Setup File"},
    {17,  "Device Independent Bitmap (DIB), Windows Version"},
    {18,  "Device Independent Bitmap (DIB), OS/2 Version"},
    {19,  "Paintbrush Picture (PCX)"},
    {20,  "Color Mapping Table (CMT)"},
    {22,  "Graphics Interchange Format (GIF)"},
    {23,  "AFPC JPEG Subset"},
    {24,  "Anacomp AnaStak Control Record"},
    {25,  "PDF Single-page Object"},
    {26,  "PDF Resource Object"},
    {34,  "PCL Page Object"},
    {45,  "IOCA Function Set 42"},
    {46,  "Resident Color Profile"},
    {47,  "IOCA FS45 Tile Resource"},
    {48,  "Encapsulated Postscript (EPS) with Transparency"},
    {49,  "PDF Single-page Object with Transparency"},
    {51,  "TrueType/OpenType Font Resource Object"},
    {53,  "TrueType/OpenType Collection Resource Object"},
    {54,  "Resource Access Table (RAT)"},
    {55,  "IOCA FS40"},
    {56,  "UP3i Print Data"},
    {57,  "Color Management Resource (CMR)"},
    {58,  "JPEG2000 (JP2) File Format"},
    {60,  "TIFF Single-Page without Transparency"},
    {61,  "TIFF Multiple-Page"},
    {62,  "TIFF Multiple-Page without Transparency"},
    {63,  "PDF Multiple-page File"},
    {64,  "PDF Multiple-page File with Transparency"},
    {65,  "AFPC PNG Subset"},
    {66,  "AFPC TIFF Subset"},
    {67,  "Metadata Object (MO)"},
    {68,  "AFPC SVG Subset"},
    {69,  "Non-OCA Resource Object"},
};
constexpr Entry kMediaTypes[] = {
    {0,   "ISO A4 white (210 x 297 mm)"},
    {1,   "ISO A4 colored (210 x 297 mm)"},
    {2,   "ISO A4 transparent (210 x 297 mm)"},
    {5,   "ISO A4 1/3 (210 x 99 mm)"},
    {7,   "ISO A4 tab (225 x 297 mm)"},
    {10,  "ISO A3 white (297 x 420 mm)"},
    {11,  "ISO A3 colored (297 x 420 mm)"},
    {20,  "ISO A5 white (148.5 x 210 mm)"},
    {21,  "ISO A5 colored (148.5 x 210 mm)"},
    {30,  "ISO B4 white (257 x 364 mm)"},
    {31,  "ISO B4 colored (257 x 364 mm)"},
    {40,  "ISO B5 white (176 x 250 mm)"},
    {41,  "ISO B5 colored (176 x 250 mm)"},
    {42,  "JIS B4 (257 x 364 mm)"},
    {43,  "JIS B5 (182 x 257 mm)"},
    {50,  "North American Letter white (8.5 x 11 in.)"},
    {51,  "North American Letter colored (8.5 x 11 in.)"},
    {52,  "North American Letter transparent (8.5 x 11 in.)"},
    {60,  "North American Legal white (8.5 x 14 in.)"},
    {61,  "North American Legal colored (8.5 x 14 in.)"},
    {63,  "North American Legal 13 (Folio) ( 8.5 x 13 in.)"},
    {65,  "North American Executive (7.25 x 10.5 in.)"},
    {67,  "North American Ledger (11 x 17 in.)"},
    {69,  "North American Statement (5.5 x 8.5 in.)"},
    {73,  "ISO B5 Envelope (250 x 176 mm)"},
    {75,  "Com10 Envelope (9.5 x 4.125 in.)"},
    {76,  "Monarch Envelope (7.5 x 3.875 in.)"},
    {77,  "DL Envelope (DIN Lang) (220 x 110 mm)"},
    {79,  "ISO C5 Envelope (229 x 162 mm)"},
    {80,  "Japan Postcard Envelope (200 x 150 mm)"},
    {81,  "Japan Postcard (Hagaki) (100 x 148 mm)"},
    {83,  "ISO B4 Envelope (353 x 250 mm)"},
    {93,  "ISO C4 Envelope (324 x 229 mm)"},
    {103, "ISO C5 Envelope (229 x 162 mm)"},
    {113, "ISO Long Envelope C6/C5 (229 x 114 mm)"},
    {123, "North American 10 x 13 Envelope"},
    {133, "North American 9 x 12 Envelope"},
    {143, "North American Business Envelope (9.5 x 4.125 in.)"},
    {145, "Letter tab (9 x 11 in.)"},
    {146, "Legal tab (9 x 14 in.)"},
    {147, "Manual (9 x 12 in.)"},
    {148, "Media (8 x 10.5 in.)"},
    {149, "Media (9 x 14 in.)"},
    {150, "Index Card"},
    {151, "US Postcard (4.25 x 6 in.)"},
    {152, "ISO A6 Postcard (105 x 148.5 mm)"},
    {153, "Oversize A3 (430 x 305 mm)"},
    {154, "Media (14 x 17 in.)"},
    {155, "Media (12 x 18 in.)"},
    {156, "Media (14 x 18 in.)"},
    {157, "Media (8.5 x 10 in.)"},
    {160, "Media (8 x 10 in.)"},
    {162, "Oversize A4 (215 x 305 mm)"},
    {163, "Media (8 x 13 in.)"},
    {164, "Media (8.25 x 13 in.)"},
    {165, "Media (8.25 x 14 in.)"},
    {166, "Media (8.5 x 12.4 in.)"},
    {167, "Media (10 x 14 in.)"},
    {168, "Media (10 x 15 in.)"},
    {169, "Media (11 x 14 in.)"},
    {170, "Media (11 x 15 in.)"},
    {171, "ISO B6 (128 × 182 mm)"},
    {172, "Reply-paid PC (148 × 200 mm)"},
    {173, "Media (170 x 210 in.)"},
    {174, "Media (182 × 210 in.)"},
    {175, "Media (210 × 340 in.)"},
    {176, "8KAI Media (267 × 290 mm)"},
    {177, "16KAI Media (195 × 267 mm)"},
};
// clang-format on

// An identifier by the three bytes that tell the object.
Bytes Oid(unsigned category, unsigned subcategory, unsigned entry)
{
    return Pieces("06072B120004") + U1(category) + U1(subcategory) + U1(entry) + Zeros(7);
}

std::string NameOfOid(const Bytes& oid)
{
    RecordWalk walk(AfpFile().Add("NOP", oid));
    walk.Next();
    const auto from = walk.afp.List().Pool().size();
    LookupOID(walk.afp, walk.afp.FieldPosition);
    return walk.afp.List().Pool().substr(from);
}

std::string NameOfOid(unsigned category, unsigned subcategory, unsigned entry)
{
    return NameOfOid(Oid(category, subcategory, entry));
}

// The names of all 256 entries, looked up in one record.
void ExpectEntries(unsigned category, unsigned subcategory, std::span<const Entry> entries)
{
    Bytes oids;
    for (unsigned entry = 0; entry < 256; ++entry) oids += Oid(category, subcategory, entry);
    RecordWalk walk(AfpFile().Add("NOP", oids));
    walk.Next();
    std::string& pool = walk.afp.List().Pool();
    for (unsigned entry = 0; entry < 256; ++entry) {
        const auto from = pool.size();
        LookupOID(walk.afp, walk.afp.FieldPosition + static_cast<std::int32_t>(16 * entry));
        const auto found = std::ranges::find_if(entries, [&](const Entry& e) { return e.number == entry; });
        const std::string expected =
            found != entries.end() ? std::string(found->name) : "Unknown(" + std::to_string(entry) + ")";
        EXPECT_EQ(pool.substr(from), ", " + expected);
    }
}

TEST(ObjectIds, NameObjectTypes)
{
    ExpectEntries(1, 1, kObjectTypes);
    EXPECT_EQ(NameOfOid(1, 1, 5), ", IOCA Function Set 10");
    EXPECT_EQ(NameOfOid(1, 1, 69), ", Non-OCA Resource Object");
}

TEST(ObjectIds, NameObjectTypesWhateverTheSubcategory)
{
    for (const unsigned subcategory : {0u, 2u, 3u, 255u})
        EXPECT_EQ(NameOfOid(1, subcategory, 13), ", Encapsulated Postscript (EPS)");
}

TEST(ObjectIds, NameMediaTypes)
{
    ExpectEntries(3, 1, kMediaTypes);
    EXPECT_EQ(NameOfOid(3, 1, 0), ", ISO A4 white (210 x 297 mm)");
    EXPECT_EQ(NameOfOid(3, 1, 177), ", 16KAI Media (195 × 267 mm)");
}

TEST(ObjectIds, NameInks)
{
    EXPECT_EQ(NameOfOid(3, 3, 0), ", CMYK SWOP");
    EXPECT_EQ(NameOfOid(3, 3, 1), ", CMYK Euroscale");
    EXPECT_EQ(NameOfOid(3, 3, 2), ", Unknown(2)");
}

TEST(ObjectIds, OfOtherClassesHaveNoName)
{
    for (const unsigned category : {0u, 2u, 4u, 255u}) EXPECT_EQ(NameOfOid(category, 1, 5), ", ");
    for (const unsigned subcategory : {0u, 2u, 4u, 255u}) EXPECT_EQ(NameOfOid(3, subcategory, 0), ", ");
}

TEST(ObjectIds, AreReadAtTheirPlacesOnly)
{
    EXPECT_EQ(NameOfOid(Pieces("FF*6 01 FF 16 FF*7")), ", Graphics Interchange Format (GIF)");
}

TEST(ObjectIds, TellTheObjectsThatAreDecodedFurther)
{
    EXPECT_EQ(NameOfOid(1, 1, 57), kColorManagementName);
    EXPECT_EQ(NameOfOid(1, 1, 67), kMetadataName);
    EXPECT_EQ(kColorManagementName, ", Color Management Resource (CMR)");
    EXPECT_EQ(kMetadataName, ", Metadata Object (MO)");
}

}  // namespace
}  // namespace folioscope
