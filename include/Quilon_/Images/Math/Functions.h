// The arithmetic of single samples, applied to every sample of an image. An
// implementation library registers the implementations at start-up:
//
//   Images::Math::Functions::Magnitude(complexImage, magnitudes);
//
// Inside namespace Quilon_::Images this namespace hides Quilon_::Math:
// spell the other one ::Quilon_::Math there.
#pragma once

#include "Quilon_/System/Functions/Function.h"

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Math::Functions {

using Image = System::Ref<IImage>;

// (source, destination): the modulus of each complex sample, the absolute
// value of each real one.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image)> Magnitude;

} // namespace Quilon_::Images::Math::Functions
