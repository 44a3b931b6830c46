#include "Quilon_/Images/Frequency/Functions.h"

#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/CopyExtendedProperties.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Frequency::Functions {

Function<void(Image, Image, Shape, SymmetriesEnum, std::int64_t, bool)>
    ButterworthFilter(L"ButterworthFilter");
Function<void(Image, Image, Shape, SymmetriesEnum, std::int64_t, bool)>
    ExponentialFilter(L"ExponentialFilter");
Function<void(Image, Image)> FFT(L"FFT");
Function<void(Image, Image, Shape, SymmetriesEnum, bool)> GaussianFilter(L"GaussianFilter");
Function<void(Image, Image)> InverseFFT(L"InverseFFT");
Function<void(Image, Image, Shape, SymmetriesEnum, bool)> RectangularFilter(L"RectangularFilter");
Function<void(Image, Image, Shape, SymmetriesEnum, double, bool)> TrapezoidalFilter(L"TrapezoidalFilter");

namespace {

using namespace Images::Functions::Rules;
using System::Functions::RuleChain;

void FillChains()
{
    RuleChain().Check({CheckImageScalar::New(0, false, true, false)}).AssignTo(FFT);

    RuleChain spectrum;
    spectrum.Check({CheckImageCategory::New(0, System::LIString(L"Image.Category.Frequency"))});
    spectrum.AssignTo(InverseFFT);

    // The filters keep the spectrum's size, category and type, and its
    // extended properties, which the inverse transform reads.
    RuleChain filters = spectrum.Clone();
    filters.Make({MakeImageCompatible::New(1, 0, 0x2C, 0x1F), CopyExtendedProperties::New(1, 0)});
    filters.AssignTo(ButterworthFilter, ExponentialFilter, RectangularFilter, TrapezoidalFilter,
                     GaussianFilter);
}

const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);

} // namespace

} // namespace Quilon_::Images::Frequency::Functions

QUILON_DEFINE_ENUM_TEXT(Images::Frequency::SymmetriesEnum, Number, {Images::Frequency::sNone, L"sNone"},
                        {Images::Frequency::sCentral, L"sCentral"}, {Images::Frequency::sAxes, L"sAxes"})
