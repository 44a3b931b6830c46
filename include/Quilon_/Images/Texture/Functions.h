// Texture measures computed at every pixel. An implementation library
// registers the implementations at start-up:
//
//   Images::Texture::Functions::LawsTexture(plane, energies);   // one band per Laws mask pair
#pragma once

#include "Quilon_/System/Functions/Function.h"

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Texture::Functions {

using Image = System::Ref<IImage>;
template <class Signature>
using Function = System::Functions::Template::Function<Signature*>;

// (input, output): the local energies of the input filtered by Laws' 5 x 5
// masks, one band per mask pair, as float.
extern QUILON_API Function<void(Image, Image)> LawsTexture;

} // namespace Quilon_::Images::Texture::Functions
