#include "Quilon_/Geometry/PredefinedKernel.h"

#include "Quilon_/System/EnumText.h"

QUILON_DEFINE_ENUM_TEXT(Geometry::PredefinedKernelEnum, Number, {Geometry::pkHighPass3, L"pkHighPass3"},
                        {Geometry::pkHighPass5, L"pkHighPass5"}, {Geometry::pkHighPass7, L"pkHighPass7"},
                        {Geometry::pkLaplacian, L"pkLaplacian"}, {Geometry::pkLaplacian3, L"pkLaplacian3"},
                        {Geometry::pkLaplacian5, L"pkLaplacian5"}, {Geometry::pkLaplacian7, L"pkLaplacian7"},
                        {Geometry::pkLowPass3, L"pkLowPass3"}, {Geometry::pkLowPass5, L"pkLowPass5"},
                        {Geometry::pkLowPass7, L"pkLowPass7"})

Quilon_::System::Any Quilon_::System::ToAny(Geometry::PredefinedKernelEnum value)
{
    return Detail::Box(value);
}
