// The modes of drawing in 3-D scenes, and how a scene shows its axes. The
// 3-D drawing modes are numbered on their own: fewer shapes can be drawn
// on a scene than on an image.
//
//   tool->SetDrawingMode(Drawing::ThreeD::dmPolyline);
//   axes->SetFlyMode(Drawing::ThreeD::fmClosestTriad);
//   System::ToString(Drawing::ThreeD::tlBoth);      // "tlBoth"
#pragma once

#include "Quilon_/Config.h"

#include <cstdint>
#include <string>

namespace Quilon_::Drawing::ThreeD {

enum DrawingModeEnumTag : std::int32_t {
    dmNone = 0,
    dmSelect = 1,
    dmLine = 2,
    dmRectangle = 3,
    dmPolyline = 4,
    dmPolylineFreeHand = 5,
    dmPolygon = 6,
    dmPolygonFreeHand = 7,
    dmArrow = 8,
    dmDoubleArrow = 9,
    dmText = 10,
    dmCaliper1 = 11,
};
using DrawingModeEnum = DrawingModeEnumTag;

enum PostDrawingModeEnumTag : std::int32_t {
    pdmNone = 0,
    pdmSelect = 1,
    pdmDraw = 2,
    pdmSelectThenDraw = 3,
};
using PostDrawingModeEnum = PostDrawingModeEnumTag;

// On which edges of the bounding box the axes are drawn as the scene turns.
enum FlyModeEnumTag : std::int32_t {
    fmOuterEdges = 0,
    fmClosestTriad = 1,
    fmFurthestTriad = 2,
    fmStaticTriad = 3,
    fmStaticEdges = 4,
};
using FlyModeEnum = FlyModeEnumTag;

// Where the tick marks of an axis point, as seen from the box.
enum TickLocationEnumTag : std::int32_t {
    tlInside = 0,
    tlOutside = 1,
    tlBoth = 2,
};
using TickLocationEnum = TickLocationEnumTag;

} // namespace Quilon_::Drawing::ThreeD

namespace Quilon_::System {
QUILON_API std::wstring ToString(Drawing::ThreeD::DrawingModeEnum value);
QUILON_API std::wstring ToString(Drawing::ThreeD::PostDrawingModeEnum value);
QUILON_API std::wstring ToString(Drawing::ThreeD::FlyModeEnum value);
QUILON_API std::wstring ToString(Drawing::ThreeD::TickLocationEnum value);
} // namespace Quilon_::System
