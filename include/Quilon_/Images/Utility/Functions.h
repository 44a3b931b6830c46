// The utility operators on images: copying (whole, masked, in part, band by
// band, slice by slice), clearing, filling, framing, clipping and mapping
// through a look-up table. An implementation library registers their
// implementations at start-up:
//
//   Images::Utility::Functions::Copy(source, destination, Pointer<Images::IImage, 0>());   // the whole image
//   Images::Utility::Functions::ExtractBand(colour, red, 0);
//   Images::Utility::Functions::Clear(image);
//   Images::Utility::Functions::Fill(image, System::ToAny(128.0));
//   Images::Utility::Functions::SubCopy(image, part, Quilon_::Geometry::Coordinates::New(8, 8,
//   Quilon_::Geometry::Axes::aXY),
//                                       Quilon_::Geometry::Coordinates::New(16, 16,
//                                       Quilon_::Geometry::Axes::aXY));
//
// Values written into an integer image are rounded to nearest (ties to
// even) and saturated to the type's range. Copy converts to the data type
// the destination already has, so a sized destination of another type is a
// conversion; a fresh one takes the source's.
//
// Without an implementation a call raises "No implementation available for
// function".
#pragma once

#include "Quilon_/Geometry/Axes.h"
#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Geometry {
class IBox;
class ICoordinates;
class IShapeND;
} // namespace Quilon_::Geometry

namespace Quilon_::Math {
class IIntervalD;
} // namespace Quilon_::Math

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Utility::Functions {

using Image = System::Ref<IImage>;
template <class Signature>
using Function = System::Functions::Template::Function<Signature*>;

// Copy: [0] (source, destination, mask): where the mask is set, or
// everywhere when it is null; [1] (source, destination, region): within the
// shape (pixel centres inside it). Outside the mask or region a destination
// of the right shape keeps its samples; a reshaped one has zeros there.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<void(Image, Image, System::Pointer<IImage, 0>),
                                                    void(Image, Image,
                                                         System::Ref<Quilon_::Geometry::IShapeND>)> {
public:
    using Overloads::Overloads;
};

// MapThroughLUT: (source, destination, table), each sample v becoming
// table[v]: [0] a table of values, [1] the samples of a one-line image.
// Non-integral values are rounded to nearest first; values before the
// table take its first entry, values past it its last.
class QUILON_API Function8
    : public System::Functions::Template::Overloads<void(Image, Image, const std::vector<double>&),
                                                    void(Image, Image, Image)> {
public:
    using Overloads::Overloads;
};

// SubCopy: (source, destination, ...): the destination becomes the part of
// the source [0] within the box, [1] from the origin on, of the size;
// raises when the part leaves the source.
class QUILON_API Function2
    : public System::Functions::Template::Overloads<void(Image, Image, System::Ref<Quilon_::Geometry::IBox>),
                                                    void(Image, Image,
                                                         System::Ref<Quilon_::Geometry::ICoordinates>,
                                                         System::Ref<Quilon_::Geometry::ICoordinates>)> {
public:
    using Overloads::Overloads;
};

// Sets every sample to 0.
extern QUILON_API Function<void(Image)> Clear;
// (source, destination, interval): each sample clamped into the interval.
extern QUILON_API Function<void(Image, Image, System::Ref<::Quilon_::Math::IIntervalD>)> Clip;
extern QUILON_API Function1 Copy;
// (source, destination, band): writes the single-band source into that band
// of the destination.
extern QUILON_API Function<void(Image, Image, std::int64_t)> CopyBand;
// (source, destination, axis, index): writes the source, one dimension
// less, into the slice at `index` across `axis` of the destination.
extern QUILON_API Function<void(Image, Image, Quilon_::Geometry::AxisEnum, std::int64_t)> CopySlice;
// (source, destination): the destination becomes the part of the source
// within the bounds of its region of interest; all of it without one.
extern QUILON_API Function<void(Image, Image)> Cut;
// (source, destination, band): the destination becomes that band of the
// source.
extern QUILON_API Function<void(Image, Image, std::int64_t)> ExtractBand;
// (source, destination, axis, index): the destination becomes the slice at
// `index` across `axis` of the volume, one dimension less.
extern QUILON_API Function<void(Image, Image, Quilon_::Geometry::AxisEnum, std::int64_t)> ExtractSlice;
// (image, value): every sample set to the value (any number).
extern QUILON_API Function<void(Image, const System::Any&)> Fill;
// (image, value, volume): the border samples set to the value, in X and Y,
// and in Z too with `volume`.
extern QUILON_API Function<void(Image, const System::Any&, bool)> Frame;
extern QUILON_API Function8 MapThroughLUT;
// (source, mask, destination): the source where the binary mask is set, 0
// elsewhere.
extern QUILON_API Function<void(Image, Image, Image)> Mask;
// (source, destination, location): writes the source into the destination
// with its location 0 at `location`; what falls outside is dropped.
extern QUILON_API Function<void(Image, Image, System::Ref<Quilon_::Geometry::ICoordinates>)> Paste;
extern QUILON_API Function2 SubCopy;

} // namespace Quilon_::Images::Utility::Functions
