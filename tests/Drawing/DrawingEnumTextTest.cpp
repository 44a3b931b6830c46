// The texts of the drawing enumerations: every enumerator by its name, any
// other value as the empty text.
#include "Quilon_/Drawing/DrawingMode.h"
#include "Quilon_/Drawing/ThreeD/DrawingMode.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace Quilon_::Tests::DrawingEnumText {

namespace TwoD = Quilon_::Drawing;
namespace ThreeD = Quilon_::Drawing::ThreeD;

struct Table {
    const char* enumeration;
    std::function<std::wstring(int)> text;
    std::vector<const wchar_t*> names; // by value, from 0
};

template <class E>
std::function<std::wstring(int)> TextOf()
{
    return [](int value) { return System::ToString(static_cast<E>(value)); };
}

TEST(DrawingEnumText, NamesEveryValueAndNothingBeyond)
{
    const Table tables[] = {
        {"DrawingModeEnum",
         TextOf<TwoD::DrawingModeEnum>(),
         {L"dmNone",
          L"dmSelect",
          L"dmPoint",
          L"dmLine",
          L"dmCircleBoundingBox",
          L"dmCircle3Points",
          L"dmCircleDiameter",
          L"dmCircleRadius",
          L"dmEllipse",
          L"dmRectangle",
          L"dmRoundRectangle",
          L"dmArcRadius",
          L"dmArc3Points",
          L"dmAngle",
          L"dmBezierLine",
          L"dmBezierLoop",
          L"dmPolyline",
          L"dmPolylineFreeHand",
          L"dmPolygon",
          L"dmPolygonFreeHand",
          L"dmArrow",
          L"dmDoubleArrow",
          L"dmText",
          L"dmCaliper1",
          L"dmCaliper2",
          L"dmAssistedPolyline",
          L"dmAssistedPolygon",
          L"dmAngle90"}},
        {"PostDrawingModeEnum",
         TextOf<TwoD::PostDrawingModeEnum>(),
         {L"pdmNone", L"pdmSelect", L"pdmDraw", L"pdmSelectThenDraw"}},
        {"ThreeD::DrawingModeEnum",
         TextOf<ThreeD::DrawingModeEnum>(),
         {L"dmNone", L"dmSelect", L"dmLine", L"dmRectangle", L"dmPolyline", L"dmPolylineFreeHand",
          L"dmPolygon", L"dmPolygonFreeHand", L"dmArrow", L"dmDoubleArrow", L"dmText", L"dmCaliper1"}},
        {"ThreeD::PostDrawingModeEnum",
         TextOf<ThreeD::PostDrawingModeEnum>(),
         {L"pdmNone", L"pdmSelect", L"pdmDraw", L"pdmSelectThenDraw"}},
        {"ThreeD::FlyModeEnum",
         TextOf<ThreeD::FlyModeEnum>(),
         {L"fmOuterEdges", L"fmClosestTriad", L"fmFurthestTriad", L"fmStaticTriad", L"fmStaticEdges"}},
        {"ThreeD::TickLocationEnum",
         TextOf<ThreeD::TickLocationEnum>(),
         {L"tlInside", L"tlOutside", L"tlBoth"}},
    };
    for (const Table& table : tables) {
        for (std::size_t value = 0; value < table.names.size(); ++value)
            EXPECT_EQ(table.text(int(value)), table.names[value]) << table.enumeration << " " << value;
        EXPECT_EQ(table.text(int(table.names.size())), L"") << table.enumeration;
        EXPECT_EQ(table.text(-1), L"") << table.enumeration;
    }
}

} // namespace Quilon_::Tests::DrawingEnumText
