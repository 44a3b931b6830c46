// Typed views of bitmaps: how the reference library's operators reach
// pixels, by a typed pointer and a stride per axis, with no call per pixel.
//
// A view is taken once per bitmap, outside the loops. Its axes are those of
// the bitmap's size in ascending bit order (X, Y, Z, T, B), the axes a size
// lacks trailing with size 1; strides are in samples and negative along a
// reversed axis:
//
//   DispatchSampleType(bitmap->Format()->DataType(), [&](auto tag) {
//       using T = typename decltype(tag)::type;
//       BitmapView<T> view = BitmapView<T>::Of(bitmap);
//       ForEachLine(view, [](T* line, std::int64_t count, std::int64_t step) {
//           for (std::int64_t i = 0; i < count; ++i)
//               line[i * step] = T(0);
//       });
//   });
//
// The samples of ntUInt1, ntUInt2 and ntUInt4 take one byte each in the
// reference library's bitmaps, so they are viewed as std::uint8_t.
#pragma once

#include "Quilon_/Images/Bitmap.h"
#include "Quilon_/System/NumericType.h"
#include "Quilon_/System/Raise.h"

#include <array>
#include <complex>
#include <cstdint>
#include <cstdlib>
#include <type_traits>
#include <utility>

namespace Quilon_::Basic::Images {

using Quilon_::System::NumericTypeEnum;

// The C++ type of the samples of a data type.
template <NumericTypeEnum Type>
struct SampleTypeOf;
template <>
struct SampleTypeOf<System::ntUInt1> {
    using type = std::uint8_t;
};
template <>
struct SampleTypeOf<System::ntUInt2> {
    using type = std::uint8_t;
};
template <>
struct SampleTypeOf<System::ntUInt4> {
    using type = std::uint8_t;
};
template <>
struct SampleTypeOf<System::ntInt8> {
    using type = std::int8_t;
};
template <>
struct SampleTypeOf<System::ntUInt8> {
    using type = std::uint8_t;
};
template <>
struct SampleTypeOf<System::ntInt16> {
    using type = std::int16_t;
};
template <>
struct SampleTypeOf<System::ntUInt16> {
    using type = std::uint16_t;
};
template <>
struct SampleTypeOf<System::ntInt32> {
    using type = std::int32_t;
};
template <>
struct SampleTypeOf<System::ntUInt32> {
    using type = std::uint32_t;
};
template <>
struct SampleTypeOf<System::ntInt64> {
    using type = std::int64_t;
};
template <>
struct SampleTypeOf<System::ntUInt64> {
    using type = std::uint64_t;
};
template <>
struct SampleTypeOf<System::ntFloat> {
    using type = float;
};
template <>
struct SampleTypeOf<System::ntDouble> {
    using type = double;
};
template <>
struct SampleTypeOf<System::ntComplexF> {
    using type = std::complex<float>;
};
template <>
struct SampleTypeOf<System::ntComplexD> {
    using type = std::complex<double>;
};

template <NumericTypeEnum Type>
using SampleType = typename SampleTypeOf<Type>::type;

// Calls `function(std::type_identity<T>{})` with T the sample type of
// `type`, and returns what it returns; raises "Unsupported sample type: %1%"
// for a value that is no data type. Each call site instantiates the
// function once per sample type: keep such call sites in few sources.
template <class Function>
decltype(auto) DispatchSampleType(NumericTypeEnum type, Function&& function)
{
    using System::ntUInt1, System::ntUInt2, System::ntUInt4, System::ntInt8, System::ntUInt8, System::ntInt16,
        System::ntUInt16, System::ntInt32, System::ntUInt32, System::ntInt64, System::ntUInt64,
        System::ntFloat, System::ntDouble, System::ntComplexF, System::ntComplexD;
    switch (type) {
    case ntUInt1:
    case ntUInt2:
    case ntUInt4:
    case ntUInt8:
        return function(std::type_identity<std::uint8_t>{});
    case ntInt8:
        return function(std::type_identity<std::int8_t>{});
    case ntInt16:
        return function(std::type_identity<std::int16_t>{});
    case ntUInt16:
        return function(std::type_identity<std::uint16_t>{});
    case ntInt32:
        return function(std::type_identity<std::int32_t>{});
    case ntUInt32:
        return function(std::type_identity<std::uint32_t>{});
    case ntInt64:
        return function(std::type_identity<std::int64_t>{});
    case ntUInt64:
        return function(std::type_identity<std::uint64_t>{});
    case ntFloat:
        return function(std::type_identity<float>{});
    case ntDouble:
        return function(std::type_identity<double>{});
    case ntComplexF:
        return function(std::type_identity<std::complex<float>>{});
    case ntComplexD:
        return function(std::type_identity<std::complex<double>>{});
    }
    QUILON_RAISE(L"Unsupported sample type: %1%", static_cast<std::int64_t>(type));
}

// The bytes of one sample of `type` in the reference library's bitmaps.
inline std::int64_t SampleBytes(NumericTypeEnum type)
{
    return DispatchSampleType(type,
                              [](auto tag) { return std::int64_t(sizeof(typename decltype(tag)::type)); });
}

inline constexpr int maxViewAxes = 5;

template <class T>
struct BitmapView {
    // The sample at location 0.
    T* data = nullptr;
    // The number of axes of the bitmap's size.
    int axisCount = 0;
    // Per axis of the size, ascending bit order; 1 and 0 past axisCount.
    std::array<std::int64_t, maxViewAxes> size{1, 1, 1, 1, 1};
    std::array<std::int64_t, maxViewAxes> stride{0, 0, 0, 0, 0};

    // The view of `bitmap`; raises "Bitmap samples are not of the requested
    // type: %1%" when its data type has another sample type.
    static BitmapView Of(System::Pointer<Quilon_::Images::IBitmap, 1> bitmap);

    T* At(std::int64_t i0, std::int64_t i1 = 0, std::int64_t i2 = 0, std::int64_t i3 = 0,
          std::int64_t i4 = 0) const noexcept
    {
        return data + i0 * stride[0] + i1 * stride[1] + i2 * stride[2] + i3 * stride[3] + i4 * stride[4];
    }
    T* At(const std::array<std::int64_t, maxViewAxes>& location) const noexcept
    {
        return At(location[0], location[1], location[2], location[3], location[4]);
    }
    // The first sample of the line along the first axis at the given values
    // of the others; its samples are stride[0] apart.
    T* Row(std::int64_t i1 = 0, std::int64_t i2 = 0, std::int64_t i3 = 0, std::int64_t i4 = 0) const noexcept
    {
        return At(0, i1, i2, i3, i4);
    }
    std::int64_t SampleCount() const noexcept { return size[0] * size[1] * size[2] * size[3] * size[4]; }
};

template <class T>
BitmapView<T> BitmapView<T>::Of(System::Pointer<Quilon_::Images::IBitmap, 1> bitmap)
{
    const NumericTypeEnum type = bitmap->Format()->DataType();
    const bool sameType = DispatchSampleType(
        type, [](auto tag) { return std::is_same_v<typename decltype(tag)::type, std::remove_const_t<T>>; });
    if (!sameType)
        QUILON_RAISE(L"Bitmap samples are not of the requested type: %1%", System::ToString(type));
    BitmapView view;
    System::Pointer<Quilon_::Geometry::ICoordinates, 1> extent = bitmap->Size();
    const std::vector<std::int64_t> strides = bitmap->Strides();
    view.axisCount = static_cast<int>(strides.size());
    for (int axis = 0; axis < view.axisCount && axis < maxViewAxes; ++axis) {
        view.size[axis] = extent->Value(std::int64_t(axis));
        view.stride[axis] = strides[axis] / std::int64_t(sizeof(T));
    }
    view.data = reinterpret_cast<T*>(static_cast<char*>(bitmap->Memory()->Data()) + bitmap->Origin());
    return view;
}

// Calls `function(line, count, step)` for every line of the view along the
// axis whose samples are nearest in memory: `count` samples, `step` apart
// (1 for every bitmap laid out by its order). The other axes are walked in
// nested loops, so the call happens once per line, not per sample.
template <class T, class Function>
void ForEachLine(const BitmapView<T>& view, Function&& function)
{
    if (view.SampleCount() == 0)
        return;
    int inner = 0;
    for (int axis = 1; axis < maxViewAxes; ++axis)
        if (view.size[axis] > 1 &&
            (view.size[inner] <= 1 || std::llabs(view.stride[axis]) < std::llabs(view.stride[inner])))
            inner = axis;
    std::array<int, maxViewAxes - 1> outer{};
    for (int axis = 0, k = 0; axis < maxViewAxes; ++axis)
        if (axis != inner)
            outer[k++] = axis;
    const auto& n = view.size;
    const auto& s = view.stride;
    for (std::int64_t a = 0; a < n[outer[3]]; ++a)
        for (std::int64_t b = 0; b < n[outer[2]]; ++b)
            for (std::int64_t c = 0; c < n[outer[1]]; ++c) {
                T* plane = view.data + a * s[outer[3]] + b * s[outer[2]] + c * s[outer[1]];
                for (std::int64_t d = 0; d < n[outer[0]]; ++d)
                    function(plane + d * s[outer[0]], n[inner], s[inner]);
            }
}

} // namespace Quilon_::Basic::Images
