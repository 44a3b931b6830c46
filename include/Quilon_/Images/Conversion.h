// The three bitmap conversions: a converted copy, a plain copy, and a
// conversion into a bitmap that exists already. The core holds only their
// slots; an implementation library stores the code at start-up:
//
//   Pointer<IBitmap> floats = Images::Conversion::Clone(bitmap, System::ntFloat, true);
//   Images::Conversion::Copy(source, destination);
//   Images::Conversion::Convert(source, destination, nullptr);   // no mask: every sample
//
// Without an implementation each call raises "Function has no
// implementation".
#pragma once

#include "Quilon_/Images/Bitmap.h"
#include "Quilon_/System/Functions/FunctionSlot.h"
#include "Quilon_/System/NumericType.h"

namespace Quilon_::Images::Conversion {

using BitmapRef = System::Pointer<IBitmap, 1>;
using MaskRef = System::Pointer<IBitmap, 0>;

// A new bitmap of `source`'s size holding its samples converted to `type`;
// `scale` chooses whether the values are scaled from the source type's range
// to the target's (true) or converted value for value, rounded and saturated
// (false).
QUILON_API BitmapRef Clone(BitmapRef source, System::NumericTypeEnum type, bool scale);
QUILON_DECLARE_FUNCTION_SLOT(Clone, 1, BitmapRef (*)(BitmapRef, System::NumericTypeEnum, bool));

// Copies the samples of `source` into `destination`, which has its size and
// data type.
QUILON_API void Copy(BitmapRef source, BitmapRef destination);
QUILON_DECLARE_FUNCTION_SLOT(Copy, 1, void (*)(BitmapRef, BitmapRef));

// Converts the samples of `source` into `destination`'s data type and
// stores them there; with a mask, only where the mask is not zero. `mask`
// may be null.
QUILON_API void Convert(BitmapRef source, BitmapRef destination, MaskRef mask);
QUILON_DECLARE_FUNCTION_SLOT(Convert, 1, void (*)(BitmapRef, BitmapRef, MaskRef));

} // namespace Quilon_::Images::Conversion
