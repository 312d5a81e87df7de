// Lines of the fields that carry or describe the data of an object.

#include "analysis/render/objects.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "analysis/family_support.h"

namespace folioscope {
namespace {

using namespace test;

using Lines = std::vector<std::string>;

TEST(Continuations, StandAtTheMargin)
{
    LineBench bench;
    bench.renderer.IndentText = "\t";
    EXPECT_EQ(bench.Add(Element::Boolean(Key::ContFromLastSF, true)).Text(), "... preceding element exists ...\n");
    EXPECT_EQ(bench.Add(Element::Boolean(Key::ContInNextSF, true)).Text(), "... to be continued ...\n");
    EXPECT_EQ(bench.witness.heard, Lines{});
}

TEST(UnfinishedChain, IsAFault)
{
    LineBench bench;
    bench.renderer.IndentText = "\t";
    EXPECT_EQ(bench.Add(Element::Boolean(Key::ChainingActiveAtEnd, true)).Text(),
              "<red>Unfinished chaining flag on last control sequence!</red>\n");
    EXPECT_EQ(bench.witness.heard, (Lines{"Message Unfinished chaining flag on last control sequence!", "Invalid"}));
}

TEST(Continuations, AreTranslated)
{
    LineBench german(Language::German), french(Language::French);
    EXPECT_EQ(german.Add(Element::Boolean(Key::ContInNextSF, true)).Text(), "... wird fortgesetzt ...\n");
    EXPECT_EQ(german.Add(Element::Boolean(Key::ContFromLastSF, true)).Text(),
              "... vorhergehendes Element vorhanden ...\n");
    EXPECT_EQ(french.Add(Element::Boolean(Key::ContInNextSF, true)).Text(), "... à suivre ...\n");
    EXPECT_EQ(french.Add(Element::Boolean(Key::ContFromLastSF, true)).Text(), "... suite de l'élément précédent ...\n");
}

struct CountCase {
    Key key;
    std::string_view label;
};
constexpr CountCase kCounts[] = {
    {Key::ObjectData, "No. of bytes with object data"},
    {Key::ImageData, "No. of bytes with image data"},
    {Key::FontData, "No. of bytes with font pattern data"},
    {Key::MapX, "Mapping in X direction"},
    {Key::MapY, "Mapping in Y direction"},
    {Key::FillRectangleX, "Size of fill rectangle in X direction"},
    {Key::FillRectangleY, "Size of fill rectangle in Y direction"},
    {Key::ColorCount, "Color values to generate"},
    {Key::StartIndex, "Start index"},
    {Key::BCSymWidth, "Bar code symbol width"},
};

TEST(ObjectCounts, HaveSeparators)
{
    LineBench bench;
    for (const auto& [key, label] : kCounts)
        EXPECT_EQ(bench.Text(key, 1'234'567), std::string(label) + ": 1,234,567\n");
    EXPECT_EQ(bench.Text(Key::BCSymWidth, 0), "Bar code symbol width: Not specified\n");
    EXPECT_EQ(bench.Text(Key::ColorIndex, 1'234), "Color index: 1234\n");
    EXPECT_EQ(bench.Text(Key::LCTID, 255), "color table local ID: 255\n");
}

TEST(DrawingAttributes, StandInPairs)
{
    LineBench bench;
    bench.renderer.IndentText = "\t";
    EXPECT_EQ(bench.Text(Key::CellWidth, 5), "");
    EXPECT_EQ(bench.Add(Key::CellWidth, 1'000).Add(Key::CellHeight, -1).Text(),
              "→Cell Width: 1,000, Cell Height: -1\n");
    EXPECT_EQ(bench.Add(Element::Float64(Key::CellWidth, 2.5)).Add(Element::Float64(Key::CellHeight, -2.5)).Text(),
              "→Cell Width: 3, Cell Height: -3\n");
    EXPECT_EQ(bench.Add(Key::MarkerCellWidth, 16'777'215).Add(Key::MarkerCellHeight, 16'777'214).Text(),
              "→Marker cell width: Default, Marker cell height: 16,777,214\n");
    EXPECT_EQ(bench.Add(Key::PatternRefPointX, 0).Add(Key::PatternRefPointY, 1'000).Text(),
              "→Pattern reference point X: 0, Y: 1,000\n");
    EXPECT_EQ(bench.Add(Key::PatternRefPointX, 0).Add(Key::PatternRefPointY, 0).Text(),
              "→Pattern reference point X: Default, Y: Default\n");
    // What an earlier record kept is gone.
    EXPECT_EQ(bench.Text(Key::CellHeight, 7), "→Cell Width: 0, Cell Height: 7\n");
}

TEST(NormalLineWidthLine, HasTheFraction)
{
    LineBench bench;
    EXPECT_EQ(bench.Text(Key::NormalLineWidth, 1'440), "Normal line width: 1.00 Inch (1440/1440)\n");
    EXPECT_FLOAT_EQ(bench.renderer.lines.NormalLineWidth, 1.0f);
    EXPECT_EQ(bench.Text(Key::NormalLineWidth, 1), "Normal line width: 0.0007 Inch (1/1440)\n");
    EXPECT_EQ(bench.Text(Key::LineWidth, 0), "Line width: Drawing default\n");
    EXPECT_FLOAT_EQ(bench.renderer.lines.CurrentLineWidth, 1.0f / 1440);
}

TEST(SequencesWithoutARenderer, WriteNothing)
{
    LineBench bench;
    bench.list.ClearSequenceElements();
    bench.list.AddSequenceElement(Element::Boolean(Key::NewLine, true));
    bench.list.PublishSequence(Key::ArrayElementType, Key::ArrayElementValue);
    EXPECT_EQ(bench.Text(), "");
}

}  // namespace
}  // namespace folioscope
