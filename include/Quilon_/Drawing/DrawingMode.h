// What a drawing tool draws with the next input, and what it does once a
// shape is finished.
//
//   tool->SetDrawingMode(Drawing::dmPolygon);
//   tool->SetPostDrawingMode(Drawing::pdmSelect);   // select the polygon when it is closed
//   System::ToString(Drawing::dmPolygon);           // "dmPolygon"
#pragma once

#include "Quilon_/Config.h"

#include <cstdint>
#include <string>

namespace Quilon_::Drawing {

enum DrawingModeEnumTag : std::int32_t {
    dmNone = 0,
    dmSelect = 1,
    dmPoint = 2,
    dmLine = 3,
    dmCircleBoundingBox = 4,
    dmCircle3Points = 5,
    dmCircleDiameter = 6,
    dmCircleRadius = 7,
    dmEllipse = 8,
    dmRectangle = 9,
    dmRoundRectangle = 10,
    dmArcRadius = 11,
    dmArc3Points = 12,
    dmAngle = 13,
    dmBezierLine = 14,
    dmBezierLoop = 15,
    dmPolyline = 16,
    dmPolylineFreeHand = 17,
    dmPolygon = 18,
    dmPolygonFreeHand = 19,
    dmArrow = 20,
    dmDoubleArrow = 21,
    dmText = 22,
    dmCaliper1 = 23,
    dmCaliper2 = 24,
    dmAssistedPolyline = 25,
    dmAssistedPolygon = 26,
    dmAngle90 = 27,
};
using DrawingModeEnum = DrawingModeEnumTag;

enum PostDrawingModeEnumTag : std::int32_t {
    pdmNone = 0,
    pdmSelect = 1,
    pdmDraw = 2,
    pdmSelectThenDraw = 3,
};
using PostDrawingModeEnum = PostDrawingModeEnumTag;

} // namespace Quilon_::Drawing

namespace Quilon_::System {
QUILON_API std::wstring ToString(Drawing::DrawingModeEnum value);
QUILON_API std::wstring ToString(Drawing::PostDrawingModeEnum value);
} // namespace Quilon_::System
