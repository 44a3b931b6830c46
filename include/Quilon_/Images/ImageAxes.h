// The axes and extents of an image's size, read without the copy of the
// size that IImage::Size() hands out: the rules of an operator ask for them
// several times on every call. An implementation library whose images keep
// their size at hand registers a reader at start-up; an image that the
// reader does not know, and every image while none is registered, is read
// through Size().
//
//   Geometry::Axes axes = Images::ImageAxes::Of(*image);         // image->Size()->Axes()
//   std::int64_t width = Images::ImageAxes::ExtentOf(*image).Value(Geometry::aX);
//
//   // the implementation library, at start-up and at shut-down
//   Images::ImageAxes::SetReader(&ExtentOfOwnImage);
//   Images::ImageAxes::SetReader(nullptr);
#pragma once

#include "Quilon_/Config.h"
#include "Quilon_/Geometry/Axes.h"

#include <cstdint>

namespace Quilon_::Images {

class IImage;

namespace ImageAxes {

// The axes of a size and its values along them.
struct Extent {
    ::Quilon_::Geometry::Axes axes;
    // By axis, in the order X, Y, Z, T, B; 0 where the size lacks the axis.
    std::int64_t values[5] = {};

    std::int64_t Value(::Quilon_::Geometry::AxisEnum axis) const { return values[Position(axis)]; }
    static int Position(::Quilon_::Geometry::AxisEnum axis)
    {
        return __builtin_ctz(static_cast<unsigned>(axis));
    }
};

// Fills `extent` from the image's size and answers true for an image that
// it knows; answers false to leave the image to Size().
using Reader = bool (*)(IImage& image, Extent& extent);

// The reader that Of and ExtentOf ask first; null for none.
QUILON_API void SetReader(Reader reader);

// The axes of the image's size, as image.Size()->Axes() gives them.
QUILON_API ::Quilon_::Geometry::Axes Of(IImage& image);
// The axes and values of the image's size.
QUILON_API Extent ExtentOf(IImage& image);

} // namespace ImageAxes

} // namespace Quilon_::Images
