// The utility operators on images: copying, clearing, moving bands. An
// implementation library registers their implementations at start-up:
//
//   Images::Utility::Functions::Copy(source, destination, Pointer<Images::IImage, 0>());   // the whole image
//   Images::Utility::Functions::ExtractBand(colour, red, 0);
//   Images::Utility::Functions::Clear(image);
//
// Without an implementation a call raises "No implementation available for
// function".
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>

namespace Quilon_::Geometry {
class IShapeND;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Utility::Functions {

using Image = System::Ref<IImage>;

// Copy: [0] (source, destination, mask): where the mask is set, or
// everywhere when it is null; [1] (source, destination, region): within the
// shape.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<void(Image, Image, System::Pointer<IImage, 0>),
                                                    void(Image, Image, System::Ref<Geometry::IShapeND>)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function1 Copy;
// Sets every sample to 0.
extern QUILON_API System::Functions::Template::Function<void (*)(Image)> Clear;
// (source, destination, band): writes the single-band source into that band
// of the destination.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image, std::int64_t)> CopyBand;
// (source, destination, band): the destination becomes that band of the
// source.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image, std::int64_t)> ExtractBand;

} // namespace Quilon_::Images::Utility::Functions
