// The arithmetic of images, sample by sample: sums, differences, products,
// quotients, blends, extremes, absolute values and inversion. An
// implementation library registers the implementations at start-up:
//
//   Images::Arithmetic::Functions::Add(a, b, sum);                          // image + image
//   Images::Arithmetic::Functions::Add(a, System::ToAny(10.0), brighter);    // image + constant
//   Images::Arithmetic::Functions::Blend(a, b, mix, 0.25);                  // 0.75 a + 0.25 b
//
// The output is made after the first input (its size and category, and a
// data type containing the input's) when it does not fit. Results are
// computed exactly enough and then stored in the output's data type: an
// integer output rounds to nearest (ties to even) and saturates, so that
// 200 + 100 in 8 bits gives 255 and 10 - 20 gives 0; a division by 0 gives
// the extreme of an integer type on the side of the dividend's sign (0 for
// 0 / 0), and infinity or NaN in a floating type. A second image
// operand with a single band, or a single plane, is applied to every band or
// plane of the first.
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Math {
class IRangeD;
} // namespace Quilon_::Math

namespace Quilon_::Images::Arithmetic::Functions {

using Image = System::Ref<IImage>;
template <class Signature>
using Function = System::Functions::Template::Function<Signature*>;

// (input, operand, output): [0] with a constant (any number, a complex one
// included), [1] with a second image.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<void(Image, const System::Any&, Image),
                                                    void(Image, Image, Image)> {
public:
    using Overloads::Overloads;
};

// (input, operand, output): [0] with a constant, [1] with a second image;
// real samples only.
class QUILON_API Function2
    : public System::Functions::Template::Overloads<void(Image, double, Image), void(Image, Image, Image)> {
public:
    using Overloads::Overloads;
};

// |x| of each sample.
extern QUILON_API Function<void(Image, Image)> Abs;
// input + operand.
extern QUILON_API Function1 Add;
// (first, second, output, weight): (1 - weight) first + weight second.
extern QUILON_API Function<void(Image, Image, Image, double)> Blend;
// input / operand.
extern QUILON_API Function1 Divide;
// The value mirrored in the input's type: max - x for an unsigned integer,
// -1 - x for a signed one (the bits inverted), 1 - x for a floating one.
extern QUILON_API Function<void(Image, Image)> Invert;
// (input, output, from, to): maps [from.min, from.max] linearly onto
// [to.min, to.max]; values outside map along the same line.
extern QUILON_API
    Function<void(Image, Image, System::Ref<::Quilon_::Math::IRangeD>, System::Ref<::Quilon_::Math::IRangeD>)>
        LinearScale;
// The larger of input and operand.
extern QUILON_API Function2 Maximum;
// The smaller of input and operand.
extern QUILON_API Function2 Minimum;
// input * operand.
extern QUILON_API Function1 Multiply;
// input - operand.
extern QUILON_API Function1 Subtract;

} // namespace Quilon_::Images::Arithmetic::Functions
