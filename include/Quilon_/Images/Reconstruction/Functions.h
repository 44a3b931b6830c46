// Reconstruction of one image from several: the sharpest plane of a focus
// stack at every pixel. An implementation library registers the
// implementations at start-up:
//
//   Images::Reconstruction::Functions::MultiFocus(stack, sharp);            // stack: a 3-D image
//   Images::Reconstruction::Functions::MultiFocus(stack, sharp, heights);   // and the plane chosen
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Reconstruction::Functions {

using Image = System::Ref<IImage>;

// MultiFocus (stack, output, ...): [0] the composed plane; [1] also the
// index of the plane taken at each pixel, as a height map.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<void(Image, Image), void(Image, Image, Image)> {
public:
    using Overloads::Overloads;
};

// Composes the planes of a focus stack (the z axis) into one plane in focus
// everywhere.
extern QUILON_API Function1 MultiFocus;

} // namespace Quilon_::Images::Reconstruction::Functions
