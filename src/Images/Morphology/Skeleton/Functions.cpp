#include "Quilon_/Images/Morphology/Skeleton/Functions.h"

#include "Images/Morphology/Chains.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/NgbLUT.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Images::Morphology::Skeleton::Functions {

Function2 ConnectedSkeleton(L"ConnectedSkeleton");
Function2 MinimalSkeleton(L"MinimalSkeleton");
Function2 OpenSkeleton(L"OpenSkeleton");
System::Functions::Template::Function<void (*)(Image, Image, LookUpTable)>
    ThickenSkeleton(L"ThickenSkeleton");
System::Functions::Template::Function<void (*)(Image, Image, LookUpTable)> ThinSkeleton(L"ThinSkeleton");

namespace {

void FillChains()
{
    Morphology::Detail::BinaryToSameChain().AssignTo(ConnectedSkeleton, MinimalSkeleton, OpenSkeleton,
                                                     ThickenSkeleton, ThinSkeleton);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Morphology::Skeleton::Functions
