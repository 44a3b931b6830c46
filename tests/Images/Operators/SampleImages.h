// Small images of any sample type for operator tests, written and read as
// doubles, X fastest, then Y, Z, T and B (the axes the image has):
//
//   Ref<IImage> image = SampleImage(System::ntInt16, {3, 2}, Axes::aXY, {1, 2, 3, 4, 5, 6});
//   std::vector<double> values = SamplesOf(image);   // {1, 2, 3, 4, 5, 6}
//
// For suites that start the reference library (InChildProcess + StartBasic).
#pragma once

#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/StorageOrder.h"

#include <complex>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace Quilon_::Tests {

using ImageRef = System::Ref<Images::IImage>;

// Calls visit(sample reference) for every sample in the order above.
template <class T, class Visit>
void ForEachSample(const ImageRef& image, Visit&& visit)
{
    const auto view = Basic::Images::BitmapView<T>::Of(image->Bitmap());
    for (std::int64_t i4 = 0; i4 < view.size[4]; ++i4)
        for (std::int64_t i3 = 0; i3 < view.size[3]; ++i3)
            for (std::int64_t i2 = 0; i2 < view.size[2]; ++i2)
                for (std::int64_t i1 = 0; i1 < view.size[1]; ++i1)
                    for (std::int64_t i0 = 0; i0 < view.size[0]; ++i0)
                        visit(*view.At(i0, i1, i2, i3, i4));
}

// `extent` holds one value per axis of `axes`, in ascending bit order; the
// storage order lists the axes in the same order.
inline ImageRef SampleImage(System::NumericTypeEnum type, const std::vector<std::int64_t>& extent,
                            Geometry::Axes axes, const std::vector<double>& values)
{
    System::Ref<Geometry::ICoordinates> size = Geometry::Coordinates::New(axes);
    std::wstring order;
    for (int bit = 0, k = 0; bit < 5; ++bit)
        if (static_cast<unsigned char>(axes) & (1u << bit)) {
            size->SetValue(std::int64_t(k), extent.at(static_cast<std::size_t>(k)));
            order += L"XYZTB"[bit];
            ++k;
        }
    System::Ref<Images::IFormat> format = Images::UniformFormat::New(Images::StorageOrder::New(order));
    format->SetDataType(type);
    ImageRef image = Images::Image::New(size, format);
    std::size_t next = 0;
    Basic::Images::DispatchSampleType(type, [&](auto tag) {
        using T = typename decltype(tag)::type;
        ForEachSample<T>(image, [&](T& sample) {
            const double value = next < values.size() ? values[next] : 0.0;
            ++next;
            if constexpr (std::is_same_v<T, std::complex<float>> || std::is_same_v<T, std::complex<double>>)
                sample = T(static_cast<typename T::value_type>(value));
            else
                sample = static_cast<T>(value);
        });
    });
    return image;
}

inline std::vector<double> SamplesOf(const ImageRef& image)
{
    std::vector<double> values;
    Basic::Images::DispatchSampleType(image->Format()->DataType(), [&](auto tag) {
        using T = typename decltype(tag)::type;
        ForEachSample<T>(image, [&](T& sample) {
            if constexpr (std::is_same_v<T, std::complex<float>> || std::is_same_v<T, std::complex<double>>)
                values.push_back(static_cast<double>(sample.real()));
            else
                values.push_back(static_cast<double>(sample));
        });
    });
    return values;
}

// DispatchSampleType over the real sample types, which are all these tests use.
template <class Function>
decltype(auto) WithRealType(System::NumericTypeEnum type, Function&& function)
{
    return Basic::Images::DispatchSampleType(type, [&](auto tag) -> decltype(auto) {
        if constexpr (std::is_arithmetic_v<typename decltype(tag)::type>)
            return function(tag);
        else
            return function(std::type_identity<double>{});
    });
}

} // namespace Quilon_::Tests
