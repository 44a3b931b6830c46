// The segmentation operators on images: binary images from grey values. An
// implementation library registers their implementations at start-up:
//
//   Images::Segmentation::Functions::Threshold(grey, binary, Math::IntervalD::New(100.0, 255.0));
//   Images::Segmentation::Functions::OtsuThreshold(grey, binary, Pointer<Images::IImage, 0>());
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

namespace Quilon_::Math {
class IIntervalD;
} // namespace Quilon_::Math

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Segmentation::Functions {

using Image = System::Ref<IImage>;

// Threshold: the destination is set where the source lies [0] in the
// interval, [1] at or above the value.
class QUILON_API Function2
    : public System::Functions::Template::Overloads<
          void(Image, Image, System::Ref<::Quilon_::Math::IIntervalD>), void(Image, Image, double)> {
public:
    using Overloads::Overloads;
};

// OtsuThreshold: the threshold that best separates two classes of values,
// found over the samples where the mask is set, or all when it is null;
// [1] also gives the threshold found.
class QUILON_API Function3
    : public System::Functions::Template::Overloads<void(Image, Image, System::Pointer<IImage, 0>),
                                                    void(Image, Image, System::Pointer<IImage, 0>, double&)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function2 Threshold;
extern QUILON_API Function3 OtsuThreshold;

} // namespace Quilon_::Images::Segmentation::Functions
