// The reference implementations of the colour utility operators: band
// mixing pixel by pixel, in the output's compute type.
#include "Quilon_/Images/Color/Utility/Functions.h"

#include "Images/Operators/OperatorSupport.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/Color/ColorSpace.h"
#include "Quilon_/Images/Color/ColorSpaceDictionary.h"
#include "Quilon_/PrivateLibrary.h"

#include <algorithm>

namespace Quilon_::Basic::Images::Color {

namespace {

using namespace Operators;
namespace Fn = Quilon_::Images::Color::Utility::Functions;

template <class Kernel>
void MixBands(const ImageRef& input, const ImageRef& output, Kernel kernel)
{
    const AnyView in = AnyViewOf(input);
    const AnyView out = AnyViewOf(output);
    DispatchComputeType(System::ContainingNumericType(in.type, out.type), [&](auto tag) {
        using C = typename decltype(tag)::type;
        TransformBands<C>(out, in, [&](C* result, const C* bands, std::int64_t n) {
            kernel(result, bands, n, in.bytes.size[slotB], out.bytes.size[slotB]);
        });
    });
}

void RequireBands(const ImageRef& image, std::int64_t count)
{
    if (image->BandCount() != count)
        QUILON_RAISE(L"An image of %1% bands expected, not %2%", count, image->BandCount());
}

void Intensity(ImageRef input, ImageRef output)
{
    RequireBands(output, 1);
    MixBands(input, output,
             [](auto* result, const auto* bands, std::int64_t n, std::int64_t count, std::int64_t) {
                 using C = std::remove_cvref_t<decltype(*result)>;
                 std::fill(result, result + n, C(0));
                 for (std::int64_t b = 0; b < count; ++b)
                     for (std::int64_t k = 0; k < n; ++k)
                         result[k] += bands[b * n + k];
                 for (std::int64_t k = 0; k < n; ++k)
                     result[k] /= C(count);
             });
}

// A colour output without a space gets the process' RGB space when there
// is one, so that it reads back as RGB.
void NameRGB(const ImageRef& image)
{
    System::Pointer<Quilon_::Images::Color::IColorFormat, 0> format(image->Format());
    if (!format || format->ColorSpace())
        return;
    System::Ref<Quilon_::Images::Color::IColorSpaceDictionary> spaces =
        Quilon_::Images::Color::Globals::ColorSpaces();
    format->SetColorSpace(spaces->Find(L"RGB"));
}

void ExpandRGB(ImageRef input, ImageRef output)
{
    RequireBands(input, 1);
    MixBands(input, output,
             [](auto* result, const auto* grey, std::int64_t n, std::int64_t, std::int64_t count) {
                 for (std::int64_t b = 0; b < count; ++b)
                     std::copy(grey, grey + n, result + b * n);
             });
    NameRGB(output);
}

void ExcessRGB(ImageRef input, ImageRef output)
{
    RequireBands(input, 3);
    RequireBands(output, 3);
    MixBands(input, output, [](auto* result, const auto* rgb, std::int64_t n, std::int64_t, std::int64_t) {
        using C = std::remove_cvref_t<decltype(*result)>;
        for (std::int64_t b = 0; b < 3; ++b)
            for (std::int64_t k = 0; k < n; ++k)
                result[b * n + k] = C(3) * rgb[b * n + k] - (rgb[k] + rgb[n + k] + rgb[2 * n + k]);
    });
}

void RegisterColorUtility()
{
    const System::LIString name(L"Sample by sample", false);
    Fn::ExcessRGB.Register(name, &ExcessRGB);
    Fn::ExpandRGB.Register(name, &ExpandRGB);
    Fn::Intensity.Register(name, &Intensity);
}

const System::Template::Initializer<::Library> colorUtilityInitializer(&RegisterColorUtility, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Color
