// The named convolution kernels that every implementation library offers
// (their weights are documented by the library that makes them):
//
//   Pointer<Geometry::IKernel, 1> smooth = Geometry::Kernel::New(Geometry::pkLowPass5, Geometry::Axes::aXY);
//   System::ToString(Geometry::pkLaplacian3);   // "pkLaplacian3"
//   System::ToString(static_cast<Geometry::PredefinedKernelEnum>(42));   // "42"
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>

namespace Quilon_::Geometry {

enum PredefinedKernelEnumTag : std::int32_t {
    pkHighPass3 = 1,
    pkHighPass5 = 2,
    pkHighPass7 = 3,
    pkLaplacian = 4,
    pkLaplacian3 = 5,
    pkLaplacian5 = 6,
    pkLaplacian7 = 7,
    pkLowPass3 = 8,
    pkLowPass5 = 9,
    pkLowPass7 = 10,
};
using PredefinedKernelEnum = PredefinedKernelEnumTag;

} // namespace Quilon_::Geometry

namespace Quilon_::System {
// The enumerator's name; any other value as its decimal number.
QUILON_API std::wstring ToString(Geometry::PredefinedKernelEnum value);
// Boxed as int64, read back as the enumeration.
QUILON_API Any ToAny(Geometry::PredefinedKernelEnum value);
} // namespace Quilon_::System
