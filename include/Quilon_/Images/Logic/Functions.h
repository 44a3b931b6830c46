// The logic of images: Boolean operators on binary images, and bitwise
// operators and shifts on integer images. An implementation library
// registers the implementations at start-up:
//
//   Images::Logic::Functions::And(cells, mask, inside);             // binary images
//   Images::Logic::Functions::BitAnd(image, std::int64_t(0xF0), highNibble);
//   Images::Logic::Functions::RightShift(image16, image8, 8);
//
// A binary image reads any non-zero sample as set; the Boolean operators
// write the largest value of the output's integer type (255 in 8 bits) for
// set samples and 0 for the others. The bitwise operators work on the
// samples' two's complement bits in the output's type; a second image
// operand with a single band, or a single plane, applies to every band or
// plane of the first.
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Logic::Functions {

using Image = System::Ref<IImage>;
template <class Signature>
using Function = System::Functions::Template::Function<Signature*>;

// (input, operand, output): [0] with a constant's bits, [1] with a second
// image.
class QUILON_API Function3 : public System::Functions::Template::Overloads<void(Image, std::int64_t, Image),
                                                                           void(Image, Image, Image)> {
public:
    using Overloads::Overloads;
};

// (first, second, output) on binary images: set where...
// ...both are set.
extern QUILON_API Function<void(Image, Image, Image)> And;
// ...either is set.
extern QUILON_API Function<void(Image, Image, Image)> Or;
// ...exactly one is set.
extern QUILON_API Function<void(Image, Image, Image)> XOr;
// ...both agree.
extern QUILON_API Function<void(Image, Image, Image)> XNOr;
// ...not both are set.
extern QUILON_API Function<void(Image, Image, Image)> NAnd;
// ...neither is set.
extern QUILON_API Function<void(Image, Image, Image)> NOr;
// ...the first is set and the second is not.
extern QUILON_API Function<void(Image, Image, Image)> Difference;
// (input, output): set where the input is not.
extern QUILON_API Function<void(Image, Image)> Not;

// (input, output): every bit inverted.
extern QUILON_API Function<void(Image, Image)> BitNot;
// input & operand.
extern QUILON_API Function3 BitAnd;
// input | operand.
extern QUILON_API Function3 BitOr;
// input ^ operand.
extern QUILON_API Function3 BitXOr;
// ~(input ^ operand).
extern QUILON_API Function3 BitXNOr;
// input & ~operand.
extern QUILON_API Function3 BitDifference;
// (input, output, bits): shifted towards the high bits, the bits shifted out
// lost; a count of the type's width or more gives 0.
extern QUILON_API Function<void(Image, Image, std::int64_t)> LeftShift;
// (input, output, bits): shifted towards the low bits, the sign kept in a
// signed type (a division by 2^bits rounding down).
extern QUILON_API Function<void(Image, Image, std::int64_t)> RightShift;

} // namespace Quilon_::Images::Logic::Functions
