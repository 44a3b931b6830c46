// Small images of any sample type for operator tests, written and read as
// doubles, X fastest, then Y, Z, T and B (the axes the image has):
//
//   Ref<IImage> image = SampleImage(System::ntInt16, {3, 2}, Axes::aXY, {1, 2, 3, 4, 5, 6});
//   std::vector<double> values = SamplesOf(image);   // {1, 2, 3, 4, 5, 6}
//
// Random images for the tests of fast paths against plain ones:
//
//   for (const DenseShape& shape : denseShapes)
//       RandomSamples(System::ntUInt16, shape.Count(), 7, Spread::twoHumps);
//
// For suites that start the reference library (InChildProcess + StartBasic).
#pragma once

#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/StorageOrder.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <random>
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

// ---- Random images -----------------------------------------------------------

// The extent of an image and its axes, as SampleImage takes them.
struct DenseShape {
    std::vector<std::int64_t> extent;
    Geometry::Axes axes;

    std::size_t Count() const
    {
        std::size_t count = 1;
        for (std::int64_t size : extent)
            count *= static_cast<std::size_t>(size);
        return count;
    }
};

// Large enough to be banded over the pool, with odd tails; a small volume;
// a row shorter than any vector.
inline const DenseShape bandedShape{{613, 211}, Geometry::Axes::aXY};
inline const DenseShape smallVolume{{37, 5, 3}, Geometry::Axes::aXYZ};
inline const DenseShape shortRow{{13, 1}, Geometry::Axes::aXY};

// uniform: integers over the whole range of the type, so that sums
// saturate often; floating ones normal about 0 (sd 1000), one in 13 of them
// NaN, an infinity, -0 or 0.1. twoHumps: two humps over the range (floating
// ones within +-1e4), clamped to it, so that Otsu's split means something;
// one floating sample in 97 is NaN or an infinity.
enum class Spread { uniform, twoHumps };

// Random samples that `type` holds exactly, as doubles (which hold them
// exactly too: 64-bit integers keep 53 significant bits).
inline std::vector<double> RandomSamples(System::NumericTypeEnum type, std::size_t count, unsigned seed,
                                         Spread spread = Spread::uniform)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double inf = std::numeric_limits<double>::infinity();
    std::mt19937_64 random(seed);
    std::vector<double> values(count);
    WithRealType(type, [&](auto tag) {
        using T = typename decltype(tag)::type;
        using L = std::numeric_limits<T>;
        // The nearest double into T's range; for 64-bit types the largest
        // T is no double, the one below it is.
        const auto exact = [](double value) {
            if constexpr (std::is_integral_v<T>) {
                const double top = sizeof(T) == 8 ? std::nextafter(double(L::max()), 0.0) : double(L::max());
                return std::nearbyint(std::clamp(value, double(L::lowest()), top));
            } else {
                return double(T(value));
            }
        };
        const double low = std::is_integral_v<T> ? double(L::lowest()) : -1e4;
        const double high = std::is_integral_v<T> ? double(L::max()) : 1e4;
        for (double& value : values) {
            if (spread == Spread::twoHumps) {
                const double centre =
                    random() % 3 == 0 ? low + 0.25 * (high - low) : low + 0.7 * (high - low);
                value = exact(std::normal_distribution<double>(centre, 0.15 * (high - low))(random));
                if (!std::is_integral_v<T> && random() % 97 == 0)
                    value = std::vector<double>{nan, inf, -inf}[random() % 3];
            } else if constexpr (std::is_integral_v<T>) {
                value = exact(std::uniform_real_distribution<double>(low, high)(random));
            } else {
                const double specials[] = {nan, inf, -inf, -0.0, 0.1};
                const auto pick = random() % 64;
                value = pick < 5 ? specials[pick] : exact(std::normal_distribution<double>(0, 1e3)(random));
            }
        }
    });
    return values;
}

} // namespace Quilon_::Tests
