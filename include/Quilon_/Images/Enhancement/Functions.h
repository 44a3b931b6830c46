// Contrast and illumination: histogram equalisation, global or by tiles,
// and shading correction against dark and bright references. An
// implementation library registers the implementations at start-up:
//
//   Images::Enhancement::Functions::EqualizeHistogram(image, equalized);
//   Images::Enhancement::Functions::EqualizeHistogram(image, equalized, 64, 0.01);   // by 64 x 64 tiles
//   Images::Enhancement::Functions::ShadingCorrection(image, dark, bright, flat);
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Enhancement::Functions {

using Image = System::Ref<IImage>;
template <class Signature>
using Function = System::Functions::Template::Function<Signature*>;

// EqualizeHistogram (input, output, ...): [0] over the whole image; [1] by
// square tiles of `tileSize` pixels, each histogram clipped at `clipLimit`
// (a fraction of the tile's pixels, 0 for none) and blended between tiles;
// [2] by a grid of tilesX x tilesY tiles, clipped alike. [1] and [2] work
// on planes.
class QUILON_API Function2
    : public System::Functions::Template::Overloads<void(Image, Image),
                                                    void(Image, Image, std::int64_t, double),
                                                    void(Image, Image, std::int64_t, std::int64_t, double)> {
public:
    using Overloads::Overloads;
};

// Spreads the grey levels so that their histogram is as flat as the levels
// allow.
extern QUILON_API Function2 EqualizeHistogram;
// (input, dark, bright, output): (input - dark) / (bright - dark) scaled to
// the mean of bright - dark; a null dark counts as 0, a null bright as no
// correction of the gain.
extern QUILON_API Function<void(Image, System::Pointer<IImage, 0>, System::Pointer<IImage, 0>, Image)>
    ShadingCorrection;

} // namespace Quilon_::Images::Enhancement::Functions
