// Colour corrections: black and white balance, and the correction of
// stains in brightfield microscopy. An implementation library registers the
// implementations at start-up:
//
//   Images::Color::Enhancement::Functions::BlackWhiteBalance(rgb, balanced);   // from the image itself
//   Images::Color::Enhancement::Functions::StainCorrection(stained, corrected, stains);
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

#include <vector>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Math {
class IMatrixD;
} // namespace Quilon_::Math

namespace Quilon_::Images::Color::Enhancement::Functions {

using Image = System::Ref<IImage>;
template <class... Signatures>
using Overloads = System::Functions::Template::Overloads<Signatures...>;

// BlackWhiteBalance (input, output, ...): [0] black and white points found
// in the image (its darkest and brightest percent); [1] given per band.
class QUILON_API Function1
    : public Overloads<void(Image, Image), void(Image, Image, const std::vector<double>& black,
                                                const std::vector<double>& white)> {
public:
    using Overloads::Overloads;
};

// StainCorrection (input, output, ...): [0] the stain vectors estimated
// from the image; [1] given as a 3 x 3 matrix, one stain per row, in
// optical density.
class QUILON_API Function2
    : public Overloads<void(Image, Image), void(Image, Image, System::Ref<::Quilon_::Math::IMatrixD>)> {
public:
    using Overloads::Overloads;
};

// Maps each band linearly so that black goes to 0 and white to the
// largest value of the type.
extern QUILON_API Function1 BlackWhiteBalance;
// Separates the stains of a colour image of unsigned integers and
// recomposes it with the stains normalised.
extern QUILON_API Function2 StainCorrection;

} // namespace Quilon_::Images::Color::Enhancement::Functions
