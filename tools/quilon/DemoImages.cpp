// The image part of `quilon demo`: images made by the reference library,
// their category and the palette it brings, a reshape that keeps the
// samples, an operator whose make rule shapes a fresh output from its input,
// the units that measurements are stated in, and the text of input gestures.
#include "Commands.h"

#include "Quilon_/Drawing/Palette.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/Helper.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"
#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"
#include "Quilon_/Images/Functions/Rules/MakeImageCompatible.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/Padding.h"
#include "Quilon_/Measurements/Globals.h"
#include "Quilon_/Measurements/Unit.h"
#include "Quilon_/Measurements/UnitCollection.h"
#include "Quilon_/System/Exception.h"
#include "Quilon_/System/Functions/RuleChain.h"
#include "Quilon_/Windows/InputEvent.h"

#include <cstdio>

namespace Quilon_::Tool {

namespace {

using namespace Quilon_::Images;
using Geometry::Axes;
using System::Ref;

using ImageOperator = System::Functions::Template::Function<void (*)(Ref<IImage>, Ref<IImage>)>;

void DoNothing(Ref<IImage>, Ref<IImage>) {}

std::wstring SizeText(const Ref<IImage>& image)
{
    Ref<Geometry::ICoordinates> size = image->Size();
    return Geometry::Helper::ToString(size, false) + L" " + size->Axes().ToString() + L" " +
           System::ToString(image->Format()->DataType());
}

Ref<IImage> MakeImage(System::NumericTypeEnum type, Ref<Geometry::ICoordinates> size, const wchar_t* order)
{
    Ref<IFormat> format = UniformFormat::New(StorageOrder::New(order));
    format->SetDataType(type);
    return Image::New(size, format);
}

void ShowCategoryAndPalette()
{
    Ref<IImage> image = Image::New(Geometry::Coordinates::New(std::int64_t(4), std::int64_t(3), Axes::aXY));
    std::printf("\nimages of the reference library:\n");
    std::printf("  Image::New(4, 3): %ls\n", SizeText(image).c_str());
    Image::SetCategory(image, picGrey, false);
    System::Pointer<Drawing::IPalette, 0> palette = Image::Palette(image);
    std::printf("  category %ls brings the palette %ls\n", Image::Category(image).Value().Value().c_str(),
                palette ? palette->Name().Value().c_str() : L"(none)");

    image->Reshape(image->Format(), Geometry::Coordinates::New(std::int64_t(6), std::int64_t(4), Axes::aXY),
                   false, Padding(ptConstant, System::ToAny(std::int64_t(7))));
    std::printf("  reshaped to %ls, the new samples padded with 7\n", SizeText(image).c_str());

    Ref<IImage> words = MakeImage(
        System::ntUInt16, Geometry::Coordinates::New(std::int64_t(2), std::int64_t(2), Axes::aXY), L"XY");
    Image::SetCategory(words, picBinary, false);
    std::printf("  a 16-bit image made binary is stored as %ls\n",
                System::ToString(words->Format()->DataType()).c_str());
}

// An operator with the chain of a morphological filter: a scalar input,
// an output made like it, and the check that they then agree.
void ShowMakeRule()
{
    using namespace Images::Functions::Rules;
    ImageOperator filter(&DoNothing);
    System::Functions::RuleChain()
        .Check({CheckImageScalar::New(0, false, false, false)})
        .Make({MakeImageCompatible::New(1, 0, 0x2F, 0x1F)})
        .PreExecute({CheckImageCompatible::New(1, 0, 0xF)})
        .AssignTo(filter);
    Ref<IImage> input = MakeImage(
        System::ntUInt16,
        Geometry::Coordinates::New(std::int64_t(5), std::int64_t(4), std::int64_t(2), Axes::aXYB), L"XYB");
    Ref<IImage> output = Image::New();
    filter(input, output);
    std::printf("  a fresh output of an operator with a make rule becomes %ls\n", SizeText(output).c_str());
    Ref<IImage> complex = MakeImage(
        System::ntComplexF, Geometry::Coordinates::New(std::int64_t(2), std::int64_t(2), Axes::aXY), L"XY");
    try {
        filter(complex, output);
    } catch (const System::Pointer<System::IException, 1>& failure) {
        std::printf("  a complex input is refused: %ls\n", failure->Message().c_str());
    }
}

void ShowUnitsAndGestures()
{
    std::printf("\nmeasurement units: ");
    for (const std::wstring& name : Measurements::Globals::Units()->Names())
        std::printf("%ls ", name.c_str());
    std::printf("\n  default spatial unit: %ls\n",
                Measurements::Globals::DefaultSpatialUnit()->Name().c_str());
    Windows::InputEvent ctrlClick(Windows::InputState(Windows::skControl), true, Windows::metMouseClick,
                                  Windows::mbLeft);
    std::printf("input gesture: %ls\n", ctrlClick.ToString().c_str());
}

} // namespace

void RunImageWork()
{
    ShowCategoryAndPalette();
    ShowMakeRule();
    ShowUnitsAndGestures();
}

} // namespace Quilon_::Tool
