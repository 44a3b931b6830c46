#include "Quilon_/Drawing/DrawingMode.h"

#include "Quilon_/System/EnumText.h"

QUILON_DEFINE_ENUM_TEXT(
    Drawing::DrawingModeEnum, Empty, {Drawing::dmNone, L"dmNone"}, {Drawing::dmSelect, L"dmSelect"},
    {Drawing::dmPoint, L"dmPoint"}, {Drawing::dmLine, L"dmLine"},
    {Drawing::dmCircleBoundingBox, L"dmCircleBoundingBox"}, {Drawing::dmCircle3Points, L"dmCircle3Points"},
    {Drawing::dmCircleDiameter, L"dmCircleDiameter"}, {Drawing::dmCircleRadius, L"dmCircleRadius"},
    {Drawing::dmEllipse, L"dmEllipse"}, {Drawing::dmRectangle, L"dmRectangle"},
    {Drawing::dmRoundRectangle, L"dmRoundRectangle"}, {Drawing::dmArcRadius, L"dmArcRadius"},
    {Drawing::dmArc3Points, L"dmArc3Points"}, {Drawing::dmAngle, L"dmAngle"},
    {Drawing::dmBezierLine, L"dmBezierLine"}, {Drawing::dmBezierLoop, L"dmBezierLoop"},
    {Drawing::dmPolyline, L"dmPolyline"}, {Drawing::dmPolylineFreeHand, L"dmPolylineFreeHand"},
    {Drawing::dmPolygon, L"dmPolygon"}, {Drawing::dmPolygonFreeHand, L"dmPolygonFreeHand"},
    {Drawing::dmArrow, L"dmArrow"}, {Drawing::dmDoubleArrow, L"dmDoubleArrow"}, {Drawing::dmText, L"dmText"},
    {Drawing::dmCaliper1, L"dmCaliper1"}, {Drawing::dmCaliper2, L"dmCaliper2"},
    {Drawing::dmAssistedPolyline, L"dmAssistedPolyline"}, {Drawing::dmAssistedPolygon, L"dmAssistedPolygon"},
    {Drawing::dmAngle90, L"dmAngle90"})

QUILON_DEFINE_ENUM_TEXT(Drawing::PostDrawingModeEnum, Empty, {Drawing::pdmNone, L"pdmNone"},
                        {Drawing::pdmSelect, L"pdmSelect"}, {Drawing::pdmDraw, L"pdmDraw"},
                        {Drawing::pdmSelectThenDraw, L"pdmSelectThenDraw"})
