#include "analysis/decode/dispatch.h"

#include <array>

#include "analysis/decode/fields_barcode.h"
#include "analysis/decode/fields_begin_end.h"
#include "analysis/decode/fields_descriptors.h"
#include "analysis/decode/fields_fonts.h"
#include "analysis/decode/fields_forms.h"
#include "analysis/decode/fields_graphics.h"
#include "analysis/decode/fields_object_data.h"
#include "analysis/decode/fields_page_definitions.h"

namespace folioscope {

namespace {

// clang-format off
constexpr FieldRow kFields[] = {
    {0x8C'87, "CPI",     "CPI (Code Page Index, x'D3 8C 87')", By(DecodeCPI)},
    {0x8C'89, "FNI",     "FNI (Font Index, x'D3 8C 89')", Later(Port::FontGroups)},
    {0x8C'8A, "CFI",     "CFI (Coded Font Index, x'D3 8C 8A')", By(DecodeCFI)},
    {0xA0'88, "MFC",     "MFC (Medium Finishing Control, x'D3 A0 88')", By(DecodeMFC)},
    {0xA0'90, "TLE",     "TLE (Tag Logical Element, x'D3 A0 90')", By(DecodeTLE)},
    {0xA2'88, "MCC",     "MCC (Medium Copy Count, x'D3 A2 88')", By(DecodeMCC)},
    {0xA2'89, "FNM",     "FNM (Font Pattern Map, x'D3 A2 89')", Later(Port::FontGroups)},
    {0xA6'6B, "OBD",     "OBD (Object Area Descriptor, x'D3 A6 6B')", Behind(0, Then::Triplets)},
    {0xA6'7B, "IID",     "IID (IM Image Input Descriptor, x'D3 A6 7B')", Fixed(kIID)},
    {0xA6'87, "CPD",     "CPD (Code Page Descriptor, x'D3 A6 87')", Fixed(kCPD)},
    {0xA6'88, "MDD",     "MDD (Medium Descriptor, x'D3 A6 88')", By(DecodeMDD)},
    {0xA6'89, "FND",     "FND (Font Descriptor, x'D3 A6 89')", By(DecodeFND)},
    {0xA6'8D, "RCD",     "RCD (Record Descriptor, x'D3 A6 8D')", By(DecodeRCD)},
    {0xA6'8E, "XMD",     "XMD (XML Descriptor, x'D3 A6 8E')", By(DecodeXMD)},
    {0xA6'92, "CDD",     "CDD (Container Data Descriptor, x'D3 A6 92')", By(DecodeCDD)},
    {0xA6'9B, "PTD-1",   "PTD-1 (Presentation Text Descriptor [Older Format 1], x'D3 A6 9B')", Fixed(kPTD1)},
    {0xA6'AF, "PGD",     "PGD (Page Descriptor, x'D3 A6 AF')", Fixed(kPGD, 15, Then::Triplets)},
    {0xA6'BB, "GDD",     "GDD (Graphics Data Descriptor, x'D3 A6 BB')", By(DecodeGDD)},
    {0xA6'C5, "FGD",     "FGD (Form Environment Group Descriptor, x'D3 A6 C5')"},
    {0xA6'E3, "DXD",     "DXD (Data Map Transmission Subcase Descriptor, x'D3 A6 E3')"},
    {0xA6'E7, "LND",     "LND (Line Descriptor, x'D3 A6 E7)", By(DecodeLND)},  // sic, no closing quote
    {0xA6'EB, "BDD/BSD", "BDD/BSD (Bar Code Data Descriptor/Bar Code Symbol Descriptor, x'D3 A6 EB')", By(DecodeBDD)},
    {0xA6'FB, "IDD",     "IDD (Image Data Descriptor, 'D3 A6 FB')", Fixed(kIDD, 9, Port::Fields)},  // sic, no x
    {0xA7'7B, "IOC",     "IOC (IM Image Output Control, x'D3 A7 7B')", Fixed(kIOC)},
    {0xA7'87, "CPC",     "CPC (Code Page Control, x'D3 A7 87')", By(DecodeCPC)},
    {0xA7'88, "MMC",     "MMC (Medium Modification Control, x'D3 A7 88')", By(DecodeMMC)},
    {0xA7'89, "FNC",     "FNC (Font Control, x'D3 A7 89')", By(DecodeFNC)},
    {0xA7'8A, "CFC",     "CFC (Coded Font Control, x'D3 A7 8A')", By(DecodeCFC)},
    {0xA7'9B, "CTC",     "CTC (Composed Text Control, x'D3 A7 9B')", Behind(2, Then::Triplets)},
    {0xA7'A8, "PEC",     "PEC (Presentation Environment Control, x'D3 A7 A8')", Behind(2, Then::Triplets)},
    {0xA7'AF, "PMC",     "PMC (Page Modification Control, x'D3 A7 AF')", Fixed(kPMC, 2, Then::Triplets)},
    {0xA7'CA, "CCP",     "CCP (Conditional Processing Control, x'D3 A7 CA')", By(DecodeCCP)},
    {0xA8'5F, "BPS",     "BPS (Begin Page Segment, x'D3 A8 5F')", By(DecodeBeginData)},
    {0xA8'77, "BCA",     "BCA (Begin Color Attribute Table, x'D3 A8 77')", By(DecodeBeginData)},
    {0xA8'7B, "BII",     "BII (Begin IM Image, x'D3 A8 7B')", By(DecodeNameOnly)},
    {0xA8'87, "BCP",     "BCP (Begin Code Page, x'D3 A8 87')", By(DecodeNameAndTriplets)},
    {0xA8'89, "BFN",     "BFN (Begin Font, x'D3 A8 89')", By(DecodeNamed)},
    {0xA8'8A, "BCF",     "BCF (Begin Coded Font, x'D3 A8 8A')", By(DecodeNameOnly)},
    {0xA8'92, "BOC",     "BOC (Begin Object Container, x'D3 A8 92')", By(DecodeBOC)},
    {0xA8'9B, "BPT",     "BPT (Begin Presentation Text Object, x'D3 A8 9B')", By(DecodeBeginData)},
    {0xA8'A5, "BPF",     "BPF (Begin Print File, x'D3 A8 A5')", By(DecodeNamed)},
    {0xA8'A7, "BDI",     "BDI (Begin Document Index, x'D3 A8 A7')", By(DecodeNamed)},
    {0xA8'A8, "BDT",     "BDT (Begin Document, x'D3 A8 A8')", By(DecodeNamedReserved)},
    {0xA8'AD, "BNG",     "BNG (Begin Named Group, x'D3 A8 AD')", By(DecodeBNG)},
    {0xA8'AF, "BPG",     "BPG (Begin Page, x'D3 A8 AF')", By(DecodeNamed)},
    {0xA8'BB, "BGR",     "BGR (Begin Graphics Object, x'D3 A8 BB')", By(DecodeBeginData)},
    {0xA8'C4, "BDG",     "BDG (Begin Document Environment Group, x'D3 A8 C4')", By(DecodeNamed)},
    {0xA8'C5, "BFG",     "BFG (Begin Form Environment Group, x'D3 A8 C5')", By(DecodeNameOnly)},
    {0xA8'C6, "BRG",     "BRG (Begin Resource Group, x'D3 A8 C6')", By(DecodeBRG)},
    {0xA8'C7, "BOG",     "BOG (Begin Object Environment Group, x'D3 A8 C7')", By(DecodeNamed)},
    {0xA8'C9, "BAG",     "BAG (Begin Active Environment Group, x'D3 A8 C9')", By(DecodeNamed)},
    {0xA8'CA, "BDM",     "BDM (Begin Data Map, x'D3 A8 CA')", By(DecodeBDM)},
    {0xA8'CB, "BPM",     "BPM (Begin Page Map, x'D3 A8 CB')", By(DecodeNameOnly)},
    {0xA8'CC, "BMM",     "BMM (Begin Medium Map, x'D3 A8 CC')", By(DecodeBMM)},
    {0xA8'CD, "BFM",     "BFM (Begin Form Map, x'D3 A8 CD')", By(DecodeNamed)},
    {0xA8'CE, "BRS",     "BRS (Begin Resource, x'D3 A8 CE')", By(DecodeBRS)},
    {0xA8'D9, "BSG",     "BSG (Begin Resource Environment Group, x'D3 A8 D9')", By(DecodeNamed)},
    {0xA8'DF, "BMO",     "BMO (Begin Overlay, x'D3 A8 DF')", By(DecodeNamed)},
    {0xA8'E3, "BDX",     "BDX (Begin Data Map Transmission Subcase, x'D3 A8 E3')", By(DecodeNameOnly)},
    {0xA8'EB, "BBC",     "BBC (Begin Bar Code Object, x'D3 A8 EB')", By(DecodeNamed)},
    {0xA8'FB, "BIM",     "BIM (Begin Image Object, x'D3 A8 FB')", By(DecodeNamed)},
    {0xA9'5F, "EPS",     "EPS (End Page Segment, x'D3 A9 5F')", By(DecodeEPS)},
    {0xA9'77, "ECA",     "ECA (End Color Attribute Table, x'D3 A9 77')", By(DecodeNamed)},
    {0xA9'7B, "EII",     "EII (End IM Image, x'D3 A9 7B')", By(DecodeNameOnly)},
    {0xA9'87, "ECP",     "ECP (End Code Page, x'D3 A9 87')", By(DecodeNameOnly)},
    {0xA9'89, "EFN",     "EFN (End Font, x'D3 A9 89')", By(DecodeNameOnly)},
    {0xA9'8A, "ECF",     "ECF (End Coded Font, x'D3 A9 8A')", By(DecodeNameOnly)},
    {0xA9'92, "EOC",     "EOC (End Object Container, x'D3 A9 92')", By(DecodeEOC)},
    {0xA9'9B, "EPT",     "EPT (End Presentation Text Object, x'D3 A9 9B')", By(DecodeNamed)},
    {0xA9'A5, "EPF",     "EPF (End Print File, x'D3 A9 A5')", By(DecodeNamed)},
    {0xA9'A7, "EDI",     "EDI (End Document Index, x'D3 A9 A7')", By(DecodeNamed)},
    {0xA9'A8, "EDT",     "EDT (End Document, x'D3 A9 A8')", By(DecodeNamed)},
    {0xA9'AD, "ENG",     "ENG (End Named Group, x'D3 A9 AD')", By(DecodeNamed)},
    {0xA9'AF, "EPG",     "EPG (End Page, x'D3 A9 AF')", By(DecodeNamed)},
    {0xA9'BB, "EGR",     "EGR (End Graphics Object, x'D3 A9 BB')", By(DecodeNamed)},
    {0xA9'C4, "EDG",     "EDG (End Document Environment Group, x'D3 A9 C4')", By(DecodeNameOnly)},
    {0xA9'C5, "EFG",     "EFG (End Form Environment Group, x'D3 A9 C5')", By(DecodeNameOnly)},
    {0xA9'C6, "ERG",     "ERG (End Resource Group, x'D3 A9 C6')", By(DecodeERG)},
    {0xA9'C7, "EOG",     "EOG (End Object Environment Group, x'D3 A9 C7')", By(DecodeNameOnly)},
    {0xA9'C9, "EAG",     "EAG (End Active Environment Group, x'D3 A9 C9')", By(DecodeNameOnly)},
    {0xA9'CA, "EDM",     "EDM (End Data Map, x'D3 A9 CA')", By(DecodeNameOnly)},
    {0xA9'CB, "EPM",     "EPM (End Page Map, x'D3 A9 CB')", By(DecodeNameOnly)},
    {0xA9'CC, "EMM",     "EMM (End Medium Map, x'D3 A9 CC')", By(DecodeNameAlone)},
    {0xA9'CD, "EFM",     "EFM (End Form Map, x'D3 A9 CD')", By(DecodeNameOnly)},
    {0xA9'CE, "ERS",     "ERS (End Resource, x'D3 A9 CE')", By(DecodeNameOnly)},
    {0xA9'D9, "ESG",     "ESG (End Resource Environment Group, x'D3 A9 D9')", By(DecodeNameOnly)},
    {0xA9'DF, "EMO",     "EMO (End Overlay, x'D3 A9 DF')", By(DecodeNamed)},
    {0xA9'E3, "EDX",     "EDX (End Data Map Transmission Subcase, x'D3 A9 E3')", By(DecodeNameOnly)},
    {0xA9'EB, "EBC",     "EBC (End Bar Code Object, x'D3 A9 EB')", By(DecodeNamed)},
    {0xA9'FB, "EIM",     "EIM (End Image Object, x'D3 A9 FB')", By(DecodeNamed)},
    {0xAA'E7, "LNC",     "LNC (Line Descriptor Count, x'D3 AA E7')", Fixed(kLNC)},
    {0xAA'EC, "FDS",     "FDS (Fixed Data Text Size, x'D3 AA EC')", Fixed(kFDS)},
    {0xAB'77, "MCA",     "MCA (Map Color Attribute Table, x'D3 AB 77')", Behind(0, Then::TripletGroups)},
    {0xAB'88, "MMT",     "MMT (Map Media Type, x'D3 AB 88')", Behind(0, Then::TripletGroups)},
    {0xAB'89, "FNN",     "FNN (Font Name Map, x'D3 AB 89')", By(DecodeFNN)},
    {0xAB'8A, "MCF-2",   "MCF (Map Coded Font [Newer Format 2], x'D3 AB 8A')", By(DecodeMapGroups)},  // sic, no number
    {0xAB'92, "MCD",     "MCD (Map Container Data, x'D3 AB 92')", Behind(2, Then::Triplets)},
    {0xAB'9B, "MPT",     "MPT (Map Presentation Text, x'D3 AB 9B')", Behind(2, Then::Triplets)},
    {0xAB'AF, "MPG",     "MPG (Map Page, x'D3 AB AF')", Behind(2, Then::Triplets)},
    {0xAB'BB, "MGO",     "MGO (Map Graphics Object, x'D3 AB BB')", Behind(2, Then::Triplets)},
    {0xAB'C3, "MDR",     "MDR (Map Data Resource, x'D3 AB C3')", By(DecodeMapGroups)},
    {0xAB'CA, "IDM",     "IDM (Invoke Data Map, x'D3 AB CA')", By(DecodeIDM)},
    {0xAB'CC, "IMM",     "IMM (Invoke Medium Map, x'D3 AB CC')", By(DecodeIMM)},
    {0xAB'CD, "MMD",     "MMD (Map Media Destination, x'D3 AB CD')", Behind(0, Then::TripletGroups)},
    {0xAB'D8, "MPO",     "MPO (Map Page Overlay, x'D3 AB D8')", By(DecodeMPO)},
    {0xAB'EA, "MSU",     "MSU (Map Suppression, x'D3 AB EA')", By(DecodeMSU)},
    {0xAB'EB, "MBC",     "MBC (Map Bar Code Object, x'D3 AB EB')", Behind(2, Then::Triplets)},
    {0xAB'FB, "MIO",     "MIO (Map Image Object, x'D3 AB FB')", Behind(2, Then::Triplets)},
    {0xAC'6B, "OBP",     "OBP (Object Area Position, x'D3 AC 6B')", By(DecodeOBP)},
    {0xAC'7B, "ICP",     "ICP (IM Image Cell Position, x'D3 AC 7B')", Fixed(kICP)},
    {0xAC'89, "FNP",     "FNP (Font Position, x'D3 AC 89')", By(DecodeFNP)},
    {0xAC'AF, "PGP-1",   "PGP-1 (Page Position [Older Format 1], x'D3 AC AF')", Fixed(kPGP1)},
    {0xAD'C3, "PPO",     "PPO (Preprocess Presentation Object, x'D3 AD C3')", By(DecodePPO)},
    {0xAE'89, "FNO",     "FNO (Font Orientation, x'D3 AE 89')", By(DecodeFNO)},
    {0xAF'5F, "IPS",     "IPS (Include Page Segment, x'D3 AF 5F')", By(DecodeIPS)},
    {0xAF'AF, "IPG",     "IPG (Include Page, x'D3 AF AF')", By(DecodeIPG)},
    {0xAF'C3, "IOB",     "IOB (Include Object, x'D3 AF C3')", By(DecodeIOB)},
    {0xAF'D8, "IPO",     "IPO (Include Page Overlay, x'D3 AF D8')", By(DecodeIPO)},
    {0xB0'77, "CAT",     "CAT (Color Attribute Table, x'D3 B0 77')", By(DecodeCAT)},
    {0xB1'5F, "MPS",     "MPS (Map Page Segment, x'D3 B1 5F')", By(DecodeMPS)},
    {0xB1'8A, "MCF-1",   "MCF-1 (Map Coded Font [Older Format 1], x'D3 B1 8A')", By(DecodeMCF1)},
    {0xB1'9B, "PTD-2",   "PTD-2 (Presentation Text Data Descriptor [Newer Format 2], x'D3 B1 9B')", Fixed(kPTD2, 14, Port::Sequences)},
    {0xB1'AF, "PGP-2",   "PGP (Page Position [Newer Format 2], x'D3 B1 AF')", By(DecodePGP2)},  // sic, no number
    {0xB1'DF, "MMO",     "MMO (Map Medium Overlay, x'D3 B1 DF')", By(DecodeMMO)},
    {0xB2'88, "PFC",     "PFC (Presentation Fidelity Control, x'D3 B2 88')", By(DecodePFC)},
    {0xB2'A7, "IEL",     "IEL (Index Element, x'D3 B2 A7')", Behind(0, Then::Triplets)},
    {0xB4'90, "LLE",     "LLE (Link Logical Element, x'D3 B4 90')", By(DecodeLLE)},
    {0xEE'7B, "IRD",     "IRD (IM Image Raster Data, x'D3 EE 7B')", By(DecodeIRD)},
    {0xEE'89, "FNG",     "FNG (Font Patterns, x'D3 EE 89')", By(DecodeFNG)},
    {0xEE'92, "OCD",     "OCD (Object Container Data, x'D3 EE 92')", By(DecodeOCD)},
    {0xEE'9B, "PTX",     "PTX (Presentation Text Data, x'D3 EE 9B')", Later(Port::Sequences)},
    {0xEE'BB, "GAD",     "GAD (Graphics Data, x'D3 EE BB')", Through(Port::Orders)},
    {0xEE'EB, "BDA/BSA", "BDA/BSA (Bar Code Data/Bar Code Symbol Data, x'D3 EE EB')", By(DecodeBDA)},
    {0xEE'EC, "FDX",     "FDX (Fix Data Text, x'D3 EE EC')", By(DecodeFDX)},
    {0xEE'EE, "NOP",     "NOP (No Operation, x'D3 EE EE')", By(DecodeNOP)},
    {0xEE'FB, "IPD",     "IPD (Image Picture Data, x'D3 EE FB')", Later(Port::Fields)},
};
// clang-format on

static_assert(std::size(kFields) == kFieldCount);

// Two small steps in place of one table over all 65,536 identifiers: the rows of a category, then the type.
struct FieldIndex {
    std::array<std::uint8_t, 256> category{};             // 1 and on; 0: no category of ours
    std::array<std::array<std::uint8_t, 256>, 19> row{};  // by category and type: row + 1
};

constexpr FieldIndex kFieldIndex = [] {
    FieldIndex index;
    std::uint8_t categories = 0;
    for (std::size_t i = 0; i < kFieldCount; ++i) {
        auto& category = index.category[kFields[i].id >> 8];
        if (category == 0) category = ++categories;
        auto& row = index.row.at(category)[kFields[i].id & 0xFF];
        if (row != 0) throw "two rows for one identifier";
        row = static_cast<std::uint8_t>(i + 1);
    }
    return index;
}();

}  // namespace

std::span<const FieldRow> Fields() { return kFields; }

std::size_t FindField(std::uint8_t category, std::uint8_t type)
{
    const std::uint8_t row = kFieldIndex.row[kFieldIndex.category[category]][type];
    return row == 0 ? kFieldCount : row - 1u;
}

}  // namespace folioscope
