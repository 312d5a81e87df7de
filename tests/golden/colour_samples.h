#pragma once

// A colour management resource with each of its tags, one with an ICC profile, and metadata objects.

#include "support/afp_builder.h"
#include "support/colour_builder.h"

namespace folioscope::test {

inline Cmr WithHeader(std::string_view type)
{
    return Cmr()
        .Header(10, Filled("SAMPLE", 16))
        .Header(26, Wide(type))
        .Header(30, Filled("001.000", 14))
        .Header(44, Filled("ACME", 10))
        .Header(54, Filled("LASER7", 12))
        .Header(66, Filled("M1", 6))
        .Header(72, Filled("092", 6))
        .Header(78, Filled("ivy", 6))
        .Header(84, Filled("sg", 4))
        .Header(88, Filled("080", 6))
        .Header(94, Filled("One", 10))
        .Header(104, Filled("", 60));
}

inline Bytes SampleHalftone()
{
    return WithHeader("HT")
        .Behind(0x0004, 6, 14, "Made by hand@@")
        .Behind(0x0008, 5, 10, U2(2005) + Raw({7, 9, 8, 5, 30, 1, 2, 0}))
        .Inside(0x0011, 1, 1, U1(4))
        .Inside(0x1011, 8, 1, U1(1))
        .Behind(0x1021, 2, 4, U2(16) + U2(16) + U2(32) + U2(32))
        .Inside(0x1025, 1, 4, Raw({16, 16, 32, 32}))
        .Inside(0x1030, 4, 1, U4(65535))
        .Inside(0x1035, 1, 1, U1(2))
        .Inside(0x1040, 1, 1, U1(0))
        .Behind(0x1045, 1, 256, Bytes(256, '\x80'))
        .Inside(0x1050, 1, 4, Raw({1, 2, 3, 4}))
        .Inside(0x1055, 1, 2, Raw({7, 5}))
        .Inside(0x1060, 1, 2, Raw({0, 1}))
        .Inside(0x1065, 8, 2, Raw({1, 2}))
        .Inside(0x1070, 8, 4, Raw({1, 2, 3, 4}))
        .Inside(0x1075, 1, 1, U1(128))
        .Inside(0x1080, 1, 1, U1(64))
        .Whole();
}

inline Bytes SampleCurvesAndLinks()
{
    const Bytes lut = Raw({3, 4, 17, 17, 17}) + Zeros(12) + Raw({1, 0x80, 0});
    return WithHeader("LK")
        .Inside(0x2004, 8, 1, U1(2))
        .Inside(0x2011, 8, 2, Raw({1, 2}))
        .Inside(0x2015, 5, 3, Raw({1, 2, 3}))
        .Inside(0x2020, 5, 3, Raw({3, 2, 1}))
        .Inside(0x4011, 8, 1, U1(1))
        .Behind(0x4015, 5, 9, Raw({6, 7, 0x2B, 0x12, 0, 4, 1, 1, 0x39}))
        .Inside(0x4020, 5, 2, Raw({6, 0}))
        .Behind(0x4025, 7, 36, Filled("LK001.000ACME", 36))
        .Inside(0x4030, 7, 2, Wide("LK"))
        .Inside(0x4035, 8, 1, U1(3))
        .Behind(0x4040, 5, 520, lut)
        .Behind(0x4045, 5, 520, lut)
        .Behind(0x4050, 5, 520, lut)
        .Behind(0x4055, 5, 520, lut)
        .Behind(0x4090, 7, 20, Filled("ENGINE", 20))
        .Inside(0x0011, 9, 4, U1(0xA0))
        .Inside(0xF001, 6, 4, "mine")
        .Whole();
}

inline Bytes SamplePalettes()
{
    const Bytes color = U2(1) + U2(0x8000) + U2(0x4000) + U2(0xC000);
    const auto twice = [&](const Bytes& colorants) { return color + colorants + color + colorants; };
    return WithHeader("IX")
        .Inside(0x5011, 8, 1, U1(1))
        .Inside(0x5015, 1, 1, U1(2))
        .Behind(0x5020, 5, 9, color + Raw({51}))
        .Behind(0x5025, 5, 24, twice(Raw({0, 64, 128, 255})))
        .Behind(0x5030, 5, 22, twice(Raw({0, 128, 255})))
        .Behind(0x5035, 5, 8, color)
        .Behind(0x5040, 5, 20, twice(Raw({51, 102})))
        .Behind(0x5045, 5, 22, U1(9) + Wide("Gold") + U1(13) + Wide("Silver"))
        .Whole();
}

inline Bytes SampleProfile()
{
    const auto text = [](std::string_view signature, std::string_view value) {
        return Bytes(signature) + Zeros(4) + U4(static_cast<std::uint32_t>(value.size()) + 1) + Bytes(value) +
               Zeros(79);
    };
    const Bytes profile = IccProfile()
                              .Header(4, "NONE")
                              .Header(8, Raw({4, 0x20}))
                              .Header(12, "mntrRGB XYZ ")
                              .Header(24, U2(2007) + U2(3) + U2(14) + U2(9) + U2(5) + U2(59))
                              .Header(36, "acspMSFT")
                              .Header(44, Raw({0x80}))
                              .Header(48, "ACMEM100")
                              .Header(56, Raw({0x50}))
                              .Header(64, U4(1))
                              .Header(80, "MAKE")
                              .Tag("desc", text("desc", "Sample display"))
                              .Tag("dmnd", "mluc" + Zeros(4) + U4(1) + U4(12) + "enUS" + U4(8) + U4(28) + Wide("Acme"))
                              .Tag("cprt", "text" + Zeros(4) + "No rights reserved" + Zeros(1))
                              .Tag("tech", "sig " + Zeros(4) + "fscn" + Zeros(1))
                              .Tag("wtpt", "XYZ " + Zeros(16))
                              .Tag("rTRC", "curv" + Zeros(8))
                              .Tag("targ", "data" + Zeros(8) + "CGATS")
                              .Tag("ADBE", "data" + Zeros(4) + U4(1) + Raw({1, 2, 3}))
                              .Tag("nony", "nony")
                              .Whole();
    return WithHeader("CC")
        .Inside(0x3011, 8, 1, U1(5))
        .Behind(0x3015, 5, static_cast<std::uint32_t>(profile.size()), profile)
        .Behind(0x3025, 6, 10, "sample.icc")
        .Whole();
}

// The header's length doesn't count the four bytes before it.
inline Bytes SampleMetadata(std::string_view compression, const Bytes& content)
{
    const Bytes header =
        U2(54) + Wide("XMP") + Filled("XML", 8) + Filled(compression, 20) + Zeros(8) + U2(8) + Wide("Note");
    return U4(static_cast<std::uint32_t>(4 + header.size() + content.size())) + header + content;
}

}  // namespace folioscope::test
