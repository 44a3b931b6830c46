// Images made through the reference library, and test operators over
// images whose chains a test fills, for the suites of the image rules:
//
//   ImageOperator op;
//   op.SetRules(rtMake, Tests::Chain({MakeImageCompatible::New(1, 0, 0x2F, 0x1F)}));
//   ImageRef out = Image::New();
//   op(Plain(ntUInt16, 8, 6), out);       // out is now 8 x 6 of ntUInt16
//   Refusal(op, a, b);                     // the message the call raised, or empty
#pragma once

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/System/Exception.h"

#include "../../../Support/RuleChainDoubles.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Tests::ImageRules {

using ImageRef = System::Ref<Images::IImage>;
using Geometry::Axes;
using System::NumericTypeEnum;

// An image of `type` in a plain format of `order`.
inline ImageRef MakeImage(NumericTypeEnum type, System::Ref<Geometry::ICoordinates> size,
                          const wchar_t* order)
{
    System::Ref<Images::IFormat> format = Images::UniformFormat::New(Images::StorageOrder::New(order));
    format->SetDataType(type);
    return Images::Image::New(size, format);
}

// width x height, axes XY.
inline ImageRef Plain(NumericTypeEnum type, std::int64_t width, std::int64_t height)
{
    return MakeImage(type, Geometry::Coordinates::New(width, height, Axes::aXY), L"XY");
}

// width x height x bands, axes XYB, one plane per band.
inline ImageRef Banded(NumericTypeEnum type, std::int64_t width, std::int64_t height, std::int64_t bands)
{
    return MakeImage(type, Geometry::Coordinates::New(width, height, bands, Axes::aXYB), L"XYB");
}

// width x height x depth, axes XYZ.
inline ImageRef Volume(NumericTypeEnum type, std::int64_t width, std::int64_t height, std::int64_t depth)
{
    return MakeImage(type, Geometry::Coordinates::New(width, height, depth, Axes::aXYZ), L"XYZ");
}

// Three interleaved bands in a colour format without a space.
inline ImageRef Colour(std::int64_t width, std::int64_t height)
{
    System::Ref<Images::IFormat> format =
        Images::Color::UniformColorFormat::New(Images::StorageOrder::New(L"BXY"));
    return Images::Image::New(Geometry::Coordinates::New(width, height, 3, Axes::aXYB), format);
}

// The values of a size, in ascending axis order.
inline std::vector<std::int64_t> Values(const System::Ref<Geometry::ICoordinates>& size)
{
    std::vector<std::int64_t> values;
    for (std::int64_t i = 0; i < size->AxisCount(); ++i)
        values.push_back(size->Value(i));
    return values;
}

// What the implementation of the test operators last received.
inline std::vector<System::Pointer<Images::IImage, 0>>& Received()
{
    static std::vector<System::Pointer<Images::IImage, 0>> received;
    return received;
}

inline void Receive2(ImageRef a, ImageRef b)
{
    Received() = {a, b};
}

inline void Receive3(ImageRef a, ImageRef b, ImageRef c)
{
    Received() = {a, b, c};
}

using ImageOperator = System::Functions::Template::Function<void (*)(ImageRef, ImageRef)>;
using ImageOperator3 = System::Functions::Template::Function<void (*)(ImageRef, ImageRef, ImageRef)>;

// The message of the failure that a call raises; empty when it succeeds.
template <class Call>
std::wstring Refusal(Call&& call)
{
    try {
        call();
    } catch (const System::Pointer<System::IException, 1>& failure) {
        return failure->Message();
    }
    return std::wstring();
}

} // namespace Quilon_::Tests::ImageRules
