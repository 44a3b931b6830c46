// The colour utility operators: from grey values to colour and back. An
// implementation library registers their implementations at start-up:
//
//   Images::Color::Utility::Functions::ExpandRGB(grey, colour);   // R = G = B = grey
//   Images::Color::Utility::Functions::Intensity(colour, grey);   // (R + G + B) / 3
//   Images::Color::Utility::Functions::ExcessRGB(colour, excess); // 2R - G - B, 2G - R - B, 2B - R - G
#pragma once

#include "Quilon_/System/Functions/Function.h"

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Color::Utility::Functions {

using Image = System::Ref<IImage>;

// (source, destination): the excess of each of the three bands over the
// other two, 2R - G - B and so on, in a three-band output of the source's
// type (negative excesses saturate to 0 in an unsigned type).
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image)> ExcessRGB;
// (source, destination): a single-band source repeated in the three bands
// of an RGB colour image.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image)> ExpandRGB;
// (source, destination): the mean of the bands of each pixel, in a grey
// single-band image of the source's type.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image)> Intensity;

} // namespace Quilon_::Images::Color::Utility::Functions
