#include "objects/ioca_render.h"

#include "analysis/render/units.h"
#include "analysis/render/words_colors.h"
#include "objects/item_lines.h"

namespace folioscope {

namespace {

Element Kept(Renderer& renderer, Key key) { return renderer.record.kept.Of(key); }

void RenderBeginSegment(Renderer& renderer, const Element& number)
{
    std::string& out = renderer.text.Open();
    out += renderer.IndentText;
    out += renderer.Say(L("Begin segment"));
    if (number.number > 0) {
        out += ' ';
        renderer.AppendValue(out, number);
    }
    renderer.EndLine();
}

// Two values in one line, each with its label.
void PutPair(Renderer& renderer, Label firstLabel, const Element& first, Label secondLabel, const Element& second)
{
    std::string& out = renderer.BeginLine(firstLabel);
    AppendGrouped(renderer, out, first);
    out += ", ";
    out += renderer.Say(secondLabel);
    out += ": ";
    AppendGrouped(renderer, out, second);
    renderer.EndLine();
}

template <Label firstLabel, Key firstKey, Label secondLabel> void RenderPair(Renderer& renderer, const Element& second)
{
    PutPair(renderer, firstLabel, Kept(renderer, firstKey), secondLabel, second);
}

void AppendImageSize(Renderer& renderer, std::string& out, const Element& size)
{
    if (size.number == 0)
        out += renderer.Say(L("From image data"));
    else
        AppendGrouped(renderer, out, size);
}

void RenderImageSize(Renderer& renderer, const Element& height)
{
    std::string& out = renderer.BeginLine(L("Size in X direction"));
    AppendImageSize(renderer, out, Kept(renderer, Key::ObjectSizeX));
    out += ", ";
    out += renderer.Say(L("Size in Y direction"));
    out += ": ";
    AppendImageSize(renderer, out, height);
    renderer.EndLine();
}

// A table without tiles shows its name alone.
void RenderTileNumber(Renderer& renderer, const Element& number)
{
    std::string& out = renderer.text.Open();
    if (number.number == 0) {
        out.append(renderer.IndentText, 0, renderer.IndentText.size() - std::string_view(": ").size());
        return renderer.EndLine();
    }
    out += renderer.IndentText;
    out += renderer.Say(L("Tile"));
    out += ':';
    renderer.AppendValue(out, number);
    renderer.EndLine();
}

void PutBand(Renderer& renderer, Label label, const Element& value, Picture picture)
{
    std::string& out = renderer.BeginLine(L("Band"));
    renderer.AppendValue(out, Kept(renderer, Key::BandNo));
    out += ", ";
    out += renderer.Say(label);
    out += ": ";
    renderer.AppendNumber(out, value, picture);
    renderer.EndLine();
}

void RenderBitCount(Renderer& renderer, const Element& count)
{
    PutBand(renderer, L("Bit count"), count, Picture::Grouped);
}

void RenderBandData(Renderer& renderer, const Element& count)
{
    PutBand(renderer, L("No. of bytes with image data"), count, Picture::Grouped);
}

void RenderPointOrder(Renderer& renderer, const Element&)
{
    renderer.PutLine(L("Image point order"), renderer.Say(L("Down-to-Up, Left-to-Right")));  // sic, whatever the value
}

void RenderFieldUnknown(Renderer& renderer, const Element&)
{
    PutUnknownItem(renderer, L("Unknown Self Defining Field"), "IPD: ");
}

// clang-format off
constexpr Word kRelRes[] = {{1, L("Equals image resolution")}, {2, L("Half of image resolution")}};
constexpr Word kRecording[] = {
    {1, "RIDIC"}, {3, "Bottom-to-top"}, {4, "Unpadded RIDIC"},
    {254, "-> see External Algorithm Specification parameter"},
};
constexpr Word kBitorder[] = {{0, L("Left to right")}, {-1, L("Right to left")}};
constexpr Word kLUTID[] = {{0, L("Default")}};
constexpr Word kASFlag[] = {{0, L("Additive")}, {1, L("Subtractive")}};
constexpr Word kTileOrder[] = {{0, L("Left-to-Right, Up-to-Down")}, {1, L("Down-to-Up, Left-to-Right")}};
constexpr Word kAlgorithmType[] = {{0, L("Recording algorithm")}, {-1, L("Compression algorithm")}};
constexpr Word kColorSpace[] = {
    {1, "RGB"}, {2, "YCrCb"}, {4, "CMYK"}, {6, "Highlight Color"}, {8, "CieLab"}, {0x12, "YCbCr"}, {0x40, "Standard"},
};
constexpr Word kCompression[] = {                      // spelled as users know the words
    {1,    "IBM MMR-Modified READ"},
    {3,    "No Compression"},
    {6,    "RL4 (Run-Length 4)"},
    {8,    "ABIC (bilevel Q-coder)"},
    {9,    "TIFF algorithm 2"},
    {10,   "Concatenated ABIC"},
    {11,   "OS/2 color compression"},
    {12,   "TIFF Packbits"},
    {13,   "TIFF LZW"},
    {14,   "TIFF LZW with Differencing Predictor"},
    {0x20, "Solid Fill Rectangle"},
    {0x80, "G3 MH (Modified Huffman)"},
    {0x81, "G3 MR (Modified READ)"},
    {0x82, "G4 MMR (Modified Modified READ)"},
    {0x83, "JPEG"},
    {0x84, "JBIG2"},
    {0xC0, "JPEG, Non-differental Huffman, Baseline DCT"},
    {0xC1, "JPEG, Non-differental Huffman, Extended sequential DCT"},
    {0xC2, "JPEG, Non-differental Huffman, Progressive DCT"},
    {0xC3, "JPEG, Non-differental Huffman, Lossless"},
    {0xC5, "JPEG, Differental Huffman, Sequential DCT"},
    {0xC6, "JPEG, Differental Huffman, Progressive DCT"},
    {0xC7, "JPEG, Differental Huffman, Lossless"},
    {0xC9, "JPEG, Non-differental arithmetic, Extended sequential DCT"},
    {0xCA, "JPEG, Non-differental arithmetic, Progressive DCT"},
    {0xCB, "JPEG, Non-differental arithmetic, Losless"},
    {0xCD, "JPEG, Differental arithmetic, Sequential DCT"},
    {0xCE, "JPEG, Differental arithmetic, Progressive DCT"},
    {0xCF, "JPEG, Differental arithmetic, Losless"},
    {0xFE, "User-defined -> see External Algorithm Specification parameter"},
};

constexpr LineRow kLines[] = {
    Own(Key::BeginSDF,          RenderItemName),
    Own(Key::ForegroundColor,   RenderColor, L("Foreground Color")),
    Own(Key::BeginSegment,      RenderBeginSegment),
    Own(Key::EndSegment,        RenderWordAlone<L("End segment")>),
    Own(Key::BeginImgContent,   RenderWordAlone<L("Begin image content")>),
    Own(Key::EndImgContent,     RenderWordAlone<L("End image content")>),
    Own(Key::BeginTile,         RenderWordAlone<L("Begin Tile")>),
    Own(Key::EndTile,           RenderWordAlone<L("End Tile")>),
    Own(Key::BeginTransparency, RenderWordAlone<L("Begin transparency mask")>),
    Own(Key::EndTransparency,   RenderWordAlone<L("End transparency mask")>),
    {Key::FunctionSet,       Line::Plain, L("Function set")},
    {Key::TileID,            Line::Plain, L("Tile Resource local ID")},
    {Key::DataPos,           Line::Hex,   L("Offset of image data")},
    {Key::RelRes,            Line::Words, L("Tile resolution"), kRelRes, Other::Unknown},
    Own(Key::UnitBase,          RenderUnitBase, L("Unit Base")),
    {Key::BasePixelX,        Line::Keep},
    Own(Key::BasePixelY,        RenderPair<L("Image points per unit base X axis"), Key::BasePixelX,
                                           L("Image points per unit base Y axis")>),
    {Key::ObjectSizeX,       Line::Keep},
    Own(Key::ObjectSizeY,       RenderImageSize),
    Own(Key::TileNo,            RenderTileNumber),
    {Key::Compression,       Line::Words, L("Compression algorithm"), kCompression, Other::Unknown},
    {Key::Recording,         Line::Words, L("Recording algorithm"), kRecording, Other::Unknown},
    {Key::Bitorder,          Line::Words, L("Bit order"), kBitorder, Other::Last},
    {Key::IDEBits,           Line::Plain, L("No. of data bits per image point")},
    {Key::LUTID,             Line::Words, L("Color look-up table"), kLUTID, Other::Number},
    {Key::BandNo,            Line::Keep},
    Own(Key::BitCount,          RenderBitCount),
    {Key::ASFlag,            Line::Words, L("AS-Flag"), kASFlag},
    {Key::GrayCoding,        Line::Flag,  L("Gray coding")},
    {Key::ColorSpace,        Line::Words, L("Color Space"), kColorSpace, Other::Unknown},
    {Key::CellSizeX,         Line::Keep},
    Own(Key::CellSizeY,         RenderPair<L("Image cell size in X direction"), Key::CellSizeX,
                                           L("Image cell size in Y direction")>),
    {Key::TileCountX,        Line::Keep},
    Own(Key::TileCountY,        RenderPair<L("No. of Tiles in X direction"), Key::TileCountX,
                                           L("No. of Tiles in Y direction")>),
    {Key::TileOrder,         Line::Words, L("Tile order"), kTileOrder},
    {Key::OffsetX,           Line::Count, L("Offset in X direction")},
    {Key::OffsetY,           Line::Count, L("Offset in Y direction")},
    {Key::ImageWidth,        Line::Count, L("Image width")},
    {Key::ImageHeight,       Line::Count, L("Image height")},
    {Key::AlgorithmType,     Line::Words, L("Algorithm type"), kAlgorithmType, Other::Last},
    Own(Key::IDEOrder,          RenderPointOrder),
    {Key::ImageData,         Line::Count, L("No. of bytes with image data")},
    Own(Key::BandImageData,     RenderBandData),
    Own(Key::SDFUnknown,        RenderFieldUnknown),

    {Key::EndSDF,            Line::Silent},
    {Key::HexCode,           Line::Silent},            // the hex pane shows the bytes
};
// clang-format on

constexpr LineIndex kLineOf = IndexOf(kLines, kColorLines);

}  // namespace

const LineIndex& FieldLines() { return kLineOf; }

void RenderFields(Renderer& renderer, std::span<const Element> sequence)
{
    renderer.RenderItems(sequence, kLineOf, "IPD-");
}

}  // namespace folioscope
