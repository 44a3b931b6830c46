// Colour spaces: what the bands of a colour bitmap mean.
//
// Only the type is here so far: colour formats name their space through it,
// and the operations of a space come with the colour conversions. A format
// without a space gives a null reference:
//
//   Pointer<Color::IColorSpace, 0> space = colorFormat->ColorSpace();
//   if (!space) { /* bands without a declared meaning */ }
#pragma once

#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::Images::Color {

class QUILON_API IColorSpace : public virtual System::Interface {
    QUILON_INTERFACE(IColorSpace)
};

} // namespace Quilon_::Images::Color
