// The headers that name Quilon_::Geometry from inside namespace Images come
// before this family's own, which opens Images::Geometry.
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Functions/RuleChain.h"

#include "Quilon_/Images/Geometry/Functions.h"

namespace Quilon_::Images::Geometry::Functions {

Function1 AffineMap(L"AffineMap");
Function2 Rotate(L"Rotate");
Function3 Scale(L"Scale");
Function4 Shear(L"Shear");
Function4 Translate(L"Translate");
Function6 Undistort(L"Undistort");
Function5 Warp(L"Warp");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

void FillChains()
{
    // In place on the input's grid: axes, size, category and type.
    RuleChain sameGrid;
    sameGrid.Make({MakeImageCompatible::New(1, 0, 0x2F, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xF)});
    sameGrid.AssignTo(AffineMap, Shear, Translate, Undistort, Warp);

    // A grid of the implementation's size: axes, category and type only.
    RuleChain newGrid = sameGrid.Clone();
    newGrid.Make({MakeImageCompatible::New(1, 0, 0x2B, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xB)});
    newGrid.AssignTo(Rotate, Scale);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Geometry::Functions

QUILON_DEFINE_ENUM_TEXT(Images::Geometry::InterpolationEnum, Number,
                        {Images::Geometry::iNearest, L"iNearest"}, {Images::Geometry::iLinear, L"iLinear"},
                        {Images::Geometry::iCubic, L"iCubic"})
