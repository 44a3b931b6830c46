// Conversion of raw sensor images to colour. An implementation library
// registers the implementations at start-up:
//
//   Images::Color::Conversion::Functions::Demosaic(raw, rgb, Images::Color::Conversion::dmBilinear);
#pragma once

#include "Quilon_/System/Functions/Function.h"

#include <cstdint>
#include <string>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Color::Conversion {

// How the two missing colours of each pixel of a Bayer mosaic are
// estimated: from the nearest pixel of that colour, by bilinear
// interpolation, or along the direction of the smaller gradient.
enum DemosaicingMethodEnumTag : std::int32_t {
    dmNearest = 0,
    dmBilinear = 1,
    dmEdgeDirected = 2,
};
using DemosaicingMethodEnum = DemosaicingMethodEnumTag;

} // namespace Quilon_::Images::Color::Conversion

namespace Quilon_::System {
// The enumerator's name; the number for any other value.
QUILON_API std::wstring ToString(Images::Color::Conversion::DemosaicingMethodEnum value);
} // namespace Quilon_::System

namespace Quilon_::Images::Color::Conversion::Functions {

using Image = System::Ref<IImage>;
template <class Signature>
using Function = System::Functions::Template::Function<Signature*>;

// (raw, output, method): a single-band mosaic, red at the origin (RGGB), to
// an RGB colour image of the same size and type.
extern QUILON_API Function<void(Image, Image, DemosaicingMethodEnum)> Demosaic;

} // namespace Quilon_::Images::Color::Conversion::Functions
