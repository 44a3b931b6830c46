#include "Quilon_/Drawing/ThreeD/DrawingMode.h"

#include "Quilon_/System/EnumText.h"

QUILON_DEFINE_ENUM_TEXT(Drawing::ThreeD::DrawingModeEnum, Empty, {Drawing::ThreeD::dmNone, L"dmNone"},
                        {Drawing::ThreeD::dmSelect, L"dmSelect"}, {Drawing::ThreeD::dmLine, L"dmLine"},
                        {Drawing::ThreeD::dmRectangle, L"dmRectangle"},
                        {Drawing::ThreeD::dmPolyline, L"dmPolyline"},
                        {Drawing::ThreeD::dmPolylineFreeHand, L"dmPolylineFreeHand"},
                        {Drawing::ThreeD::dmPolygon, L"dmPolygon"},
                        {Drawing::ThreeD::dmPolygonFreeHand, L"dmPolygonFreeHand"},
                        {Drawing::ThreeD::dmArrow, L"dmArrow"},
                        {Drawing::ThreeD::dmDoubleArrow, L"dmDoubleArrow"},
                        {Drawing::ThreeD::dmText, L"dmText"}, {Drawing::ThreeD::dmCaliper1, L"dmCaliper1"})

QUILON_DEFINE_ENUM_TEXT(Drawing::ThreeD::PostDrawingModeEnum, Empty, {Drawing::ThreeD::pdmNone, L"pdmNone"},
                        {Drawing::ThreeD::pdmSelect, L"pdmSelect"}, {Drawing::ThreeD::pdmDraw, L"pdmDraw"},
                        {Drawing::ThreeD::pdmSelectThenDraw, L"pdmSelectThenDraw"})

QUILON_DEFINE_ENUM_TEXT(Drawing::ThreeD::FlyModeEnum, Empty, {Drawing::ThreeD::fmOuterEdges, L"fmOuterEdges"},
                        {Drawing::ThreeD::fmClosestTriad, L"fmClosestTriad"},
                        {Drawing::ThreeD::fmFurthestTriad, L"fmFurthestTriad"},
                        {Drawing::ThreeD::fmStaticTriad, L"fmStaticTriad"},
                        {Drawing::ThreeD::fmStaticEdges, L"fmStaticEdges"})

QUILON_DEFINE_ENUM_TEXT(Drawing::ThreeD::TickLocationEnum, Empty, {Drawing::ThreeD::tlInside, L"tlInside"},
                        {Drawing::ThreeD::tlOutside, L"tlOutside"}, {Drawing::ThreeD::tlBoth, L"tlBoth"})
