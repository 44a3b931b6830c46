// The rules of image operators that apply a matrix to the bands of each
// pixel, one band per row in and one per column out:
//
//   checks->Add(Detail::CheckImageAgainstMatrix::New(0, 2));    // image 0 against matrix 2
//   make->Add(Detail::MakeImageAgainstMatrix::New(1, 0, 2));    // output 1 from image 0, matrix 2
//
// The check refuses an image without the band axis ("multi-band image
// expected") and one whose band count is not the matrix's row count. The
// make rule gives the output the input's spatial size and one band per
// column, dropping the band axis for a single column.
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include <cstdint>

namespace Quilon_::Images::Math::Detail {

namespace CheckImageAgainstMatrix {
// (image, matrix); the core's own rule is the default implementation.
extern QUILON_API System::Functions::Template::Function<
    System::Pointer<System::Functions::Rules::IRule, 1> (*)(std::int64_t image, std::int64_t matrix)>
    New;
} // namespace CheckImageAgainstMatrix

namespace MakeImageAgainstMatrix {
// (output, input, matrix); the core's own rule is the default implementation.
extern QUILON_API
    System::Functions::Template::Function<System::Pointer<System::Functions::Rules::IRule, 1> (*)(
        std::int64_t output, std::int64_t input, std::int64_t matrix)>
        New;
} // namespace MakeImageAgainstMatrix

} // namespace Quilon_::Images::Math::Detail
