// The styles that graphic properties are made of: how lines, fills, points,
// arrows and arcs look, and how drawing combines with what is below. They
// travel in Anys as numbers and have no text form.
//
//   properties->SetLineStyle(Drawing::lsDash);
//   properties->SetFillStyle(Drawing::fsHatch);
//   properties->SetHatchStyle(Drawing::hsCross);
#pragma once

#include <cstdint>

namespace Quilon_::Drawing {

enum LineStyleEnumTag : std::int32_t {
    lsSolid = 0,
    lsDash = 1,
    lsDot = 2,
    lsDashDot = 3,
    lsDashDotDot = 4,
    // Nothing is drawn; the fill alone shows the shape.
    lsNone = 5,
};
using LineStyleEnum = LineStyleEnumTag;

enum FillStyleEnumTag : std::int32_t {
    fsNone = 0,
    fsSolid = 1,
    // The pattern of HatchStyleEnum, in the fill colour.
    fsHatch = 2,
};
using FillStyleEnum = FillStyleEnumTag;

enum HatchStyleEnumTag : std::int32_t {
    hsHorizontal = 0,
    hsVertical = 1,
    hsForwardDiagonal = 2,
    hsBackwardDiagonal = 3,
    hsCross = 4,
    hsDiagonalCross = 5,
};
using HatchStyleEnum = HatchStyleEnumTag;

// Whether the gaps of dashed lines and hatches show the back colour.
enum BackModeEnumTag : std::int32_t {
    bmTransparent = 0,
    bmOpaque = 1,
};
using BackModeEnum = BackModeEnumTag;

// How a drawn pixel combines with the pixel below it.
enum RasterOpEnumTag : std::int32_t {
    roCopy = 0,
    roXor = 1,
    roAnd = 2,
    roOr = 3,
    roNot = 4,
};
using RasterOpEnum = RasterOpEnumTag;

enum PointSymbolEnumTag : std::int32_t {
    psNone = 0,
    psDot = 1,
    psCross = 2,
    psPlus = 3,
    psSquare = 4,
    psCircle = 5,
    psDiamond = 6,
    psTriangle = 7,
};
using PointSymbolEnum = PointSymbolEnumTag;

// The head at one end of an arrow.
enum ArrowStyleEnumTag : std::int32_t {
    asNone = 0,
    asOpen = 1,
    asClosed = 2,
    asDiamond = 3,
    asCircle = 4,
    asBar = 5,
};
using ArrowStyleEnum = ArrowStyleEnumTag;

// What of a circle's arc is drawn.
enum ArcDrawingStyleEnumTag : std::int32_t {
    adsArc = 0,
    // The arc and the chord between its ends.
    adsChord = 1,
    // The arc and the two radii to its ends.
    adsPie = 2,
};
using ArcDrawingStyleEnum = ArcDrawingStyleEnumTag;

} // namespace Quilon_::Drawing
