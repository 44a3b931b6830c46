// The colour utility operators: from grey values to colour and back. An
// implementation library registers their implementations at start-up:
//
//   Images::Color::Utility::Functions::ExpandRGB(grey, colour);   // R = G = B = grey
//   Images::Color::Utility::Functions::Intensity(colour, grey);
#pragma once

#include "Quilon_/System/Functions/Function.h"

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Color::Utility::Functions {

using Image = System::Ref<IImage>;

// (source, destination), for each operator.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image)> ExcessRGB;
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image)> ExpandRGB;
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image)> Intensity;

} // namespace Quilon_::Images::Color::Utility::Functions
