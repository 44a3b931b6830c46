#include "Quilon_/Images/Measurements/Functions.h"

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/Math/Moments.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/Measurements/Histogram.h"
#include "Quilon_/Measurements/Profile.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Measurements::Functions {

Operator<void(Image, double&)> Area(L"Area");
Operator<void(Image, System::Pointer<Quilon_::Geometry::IBox, 0>&)> BoundingBox(L"BoundingBox");
Operator<void(Image, Image, double&)> Compare(L"Compare");
Operator<void(Image, Image, std::vector<double>&)> Correlation(L"Correlation");
Operator<void(Image, Point, Point, double&)> Distance(L"Distance");
Operator<void(Image, Graph, double&)> Euler(L"Euler");
Function2 Histogram(L"Histogram");
Function18 HistogramOfOrientedGradients(L"HistogramOfOrientedGradients");
Function7 Intercepts(L"Intercepts");
Function15 LocalMoments(L"LocalMoments");
Function4 Moments(L"Moments");
Operator<HistogramRef(Image, const std::vector<std::int64_t>&, const std::vector<RangeD>&)>
    MultiBandHistogram(L"MultiBandHistogram");
Function9 ObjectCount(L"ObjectCount");
Function12 Profile(L"Profile");
Function1 Range(L"Range");
Operator<void(Image, System::Pointer<::Quilon_::Math::IMatrixD, 0>&)> Variance(L"Variance");
Operator<void(Image, std::int64_t, std::vector<double>&)> Variogram(L"Variogram");
Operator<void(Image, std::vector<double>&)> Volume(L"Volume");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

void FillChains()
{
    RuleChain scalar;
    scalar.Check({CheckImageScalar::New(0, false, false, false)});
    scalar.AssignTo(Range, Histogram, Profile, Moments.Overload<0>(), MultiBandHistogram, Distance, Euler,
                    Volume);
    // Beyond the documented rows, by the kind of their arguments.
    scalar.AssignTo(Variance, Variogram);

    RuleChain binary;
    binary.Check({CheckImageBinary::New(0)});
    binary.AssignTo(Area, Intercepts, ObjectCount);
    binary.AssignTo(BoundingBox);

    RuleChain paired;
    paired.Check({CheckImageCompatible::New(1, 0, 0xF)});
    paired.AssignTo(Correlation, Moments.Overload<2>());
    paired.AssignTo(Compare);

    RuleChain masked;
    masked.Check({CheckImageScalar::New(0, false, false, false), CheckImageBinary::New(1),
                  CheckImageCompatible::New(1, 0, 4)});
    masked.AssignTo(Moments.Overload<1>());

    RuleChain local;
    local.Check({CheckImageScalar::New(0, false, true, false)})
        .Make({MakeImageCompatible::New(1, 0, 0x2C, 0x1F)});
    local.AssignTo(LocalMoments);

    RuleChain gradients;
    gradients.Check({CheckImageScalar::New(0, false, true, false)});
    gradients.AssignTo(HistogramOfOrientedGradients);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Measurements::Functions
