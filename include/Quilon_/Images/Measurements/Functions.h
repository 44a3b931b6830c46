// The measurement operators on images. An implementation library registers
// their implementations at start-up:
//
//   Ref<Math::IRangeD> range = Images::Measurements::Functions::Range(image);
//   double darkest = range->Minimum();
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

namespace Quilon_::Math {
class IRangeD;
} // namespace Quilon_::Math

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Measurements::Functions {

using Image = System::Ref<IImage>;
using RangeD = System::Ref<::Quilon_::Math::IRangeD>;

// Range: the least and the greatest sample; [0] (image); [1] (image, mask)
// over the samples where the mask is set.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<RangeD(Image),
                                                    RangeD(Image, System::Pointer<IImage, 0>)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function1 Range;

} // namespace Quilon_::Images::Measurements::Functions
