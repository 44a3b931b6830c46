#include "Quilon_/Images/Morphology/OpeningClosing/Functions.h"

#include "Images/Morphology/Chains.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Images::Morphology::OpeningClosing::Functions {

Function4 AddReconsClose(L"AddReconsClose");
Function5 AreaClose(L"AreaClose");
Function5 AreaOpen(L"AreaOpen");
Function1 Close(L"Close");
Function3 DilateReconsClose(L"DilateReconsClose");
Function3 ErodeReconsOpen(L"ErodeReconsOpen");
System::Functions::Template::Function<void (*)(Image, Image, double, std::int64_t)>
    InfimumClose(L"InfimumClose");
Function1 Open(L"Open");
Function4 SubtractReconsOpen(L"SubtractReconsOpen");
System::Functions::Template::Function<void (*)(Image, Image, double, std::int64_t)>
    SupremumOpen(L"SupremumOpen");

namespace {

void FillChains()
{
    Morphology::Detail::ScalarToSameChain().AssignTo(AddReconsClose, AreaClose, AreaOpen, Close,
                                                     DilateReconsClose, ErodeReconsOpen, InfimumClose, Open,
                                                     SubtractReconsOpen, SupremumOpen);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Morphology::OpeningClosing::Functions
