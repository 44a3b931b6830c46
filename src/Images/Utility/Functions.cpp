#include "Quilon_/Images/Utility/Functions.h"

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageDimension.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/MakeImageOptions.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Utility::Functions {

Function<void(Image)> Clear(L"Clear");
Function<void(Image, Image, System::Ref<::Quilon_::Math::IIntervalD>)> Clip(L"Clip");
Function1 Copy(L"Copy");
Function<void(Image, Image, std::int64_t)> CopyBand(L"CopyBand");
Function<void(Image, Image, Quilon_::Geometry::AxisEnum, std::int64_t)> CopySlice(L"CopySlice");
Function<void(Image, Image)> Cut(L"Cut");
Function<void(Image, Image, std::int64_t)> ExtractBand(L"ExtractBand");
Function<void(Image, Image, Quilon_::Geometry::AxisEnum, std::int64_t)> ExtractSlice(L"ExtractSlice");
Function<void(Image, const System::Any&)> Fill(L"Fill");
Function<void(Image, const System::Any&, bool)> Frame(L"Frame");
Function8 MapThroughLUT(L"MapThroughLUT");
Function<void(Image, Image, Image)> Mask(L"Mask");
Function<void(Image, Image, System::Ref<Quilon_::Geometry::ICoordinates>)> Paste(L"Paste");
Function2 SubCopy(L"SubCopy");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

// The operators that change the shape of their output (Cut, Paste,
// SubCopy, CopySlice) or have none (Clear, Fill, Frame) have no rules: their
// implementations shape what they write.
void FillChains()
{
    RuleChain copy;
    copy.Make({MakeImageCompatible::New(1, 0, 7, 0x1F)}).PreExecute({CheckImageCompatible::New(1, 0, 7)});
    copy.AssignTo(Copy, Clip, MapThroughLUT);

    RuleChain mask;
    mask.Check({CheckImageScalar::New(0, false, false, false), CheckImageBinary::New(1),
                CheckImageCompatible::New(1, 0, 4)})
        .Make({MakeImageCompatible::New(2, 0, 0xC, 0x1F)})
        .PreExecute({CheckImageCompatible::New(2, 0, 0xC)});
    mask.AssignTo(Mask);

    RuleChain copyBand;
    copyBand.Check({CheckImageScalar::New(0, false, true, false), CheckImageCompatible::New(0, 1, 4)});
    copyBand.AssignTo(CopyBand);

    MakeImageOptions grey;
    grey.Set(System::LIString(L"Image.Category.Grey", true));
    RuleChain extractBand;
    extractBand.Make({MakeImageCompatible::New(1, 0, 4, grey, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 4)});
    extractBand.AssignTo(ExtractBand);

    RuleChain extractSlice;
    extractSlice.Check({CheckImageDimension::New(0, 3, idrEqual)});
    extractSlice.AssignTo(ExtractSlice);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Utility::Functions
