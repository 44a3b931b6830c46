// What every image operator of the reference library needs around its
// kernel: the typed view of an image, dispatch over sample types, the
// saturating conversion of a computed value into a sample, and walks over
// lines, bands and planes. Everything here is reached once per call or per
// line; the kernels themselves run on typed pointers and strides.
//
//   void Invert(Ref<IImage> input, Ref<IImage> output)
//   {
//       DispatchRealSampleType(DataTypeOf(input), [&](auto tag) {
//           using T = typename decltype(tag)::type;
//           ForEachLines([](std::int64_t n, Line<T> out, Line<T> in) {
//               for (std::int64_t i = 0; i < n; ++i)
//                   out[i] = SaturateCast<T>(-double(in[i]));
//           }, ViewOf<T>(output), ViewOf<T>(input));
//       });
//   }
//
// Views made by ViewOf have fixed slots, one per axis whatever the image's
// axes: slot 0 is X, 1 Y, 2 Z, 3 T and 4 B (see the constants below); an
// axis the image lacks has size 1. Two images of different axes therefore
// line up slot by slot, and a slot of size 1 in an input is repeated along
// the output (a single-band operand against a multi-band image, a plane
// against a volume).
#pragma once

#include "Images/SampleValue.h"
#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/Images/Image.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

namespace Quilon_::Basic::Images::Operators {

using ImageRef = System::Ref<Quilon_::Images::IImage>;
using Extent = std::array<std::int64_t, maxViewAxes>;

// The slots of a view made by ViewOf.
inline constexpr int slotX = 0;
inline constexpr int slotY = 1;
inline constexpr int slotZ = 2;
inline constexpr int slotT = 3;
inline constexpr int slotB = 4;

// The slot of an axis (aX to aB).
constexpr int SlotOf(Quilon_::Geometry::AxisEnum axis) noexcept
{
    return std::countr_zero(static_cast<unsigned>(axis));
}

inline System::NumericTypeEnum DataTypeOf(const ImageRef& image)
{
    return image->Format()->DataType();
}

// A bitmap's samples with one slot per axis (see ViewOf), strides in
// bytes. The reference library's own bitmaps are read from their layout,
// without a call through the interface: no copy of the size, no vector of
// strides, which on a small image cost more than the kernel.
struct SlotBlock {
    char* data = nullptr;
    System::NumericTypeEnum type = System::ntUInt8;
    Extent size{1, 1, 1, 1, 1};
    Extent stride{0, 0, 0, 0, 0};
};
SlotBlock SlotsOf(Quilon_::Images::IBitmap& bitmap);

// Raises "Bitmap samples are not of the requested type: %1%".
[[noreturn]] void RaiseSampleTypeMismatch(System::NumericTypeEnum type);

// The typed view of a bitmap, with one slot per axis; raises when its
// samples are not of type T.
template <class T>
BitmapView<T> SlotViewOf(Quilon_::Images::IBitmap& bitmap)
{
    const SlotBlock block = SlotsOf(bitmap);
    if (!DispatchSampleType(block.type, [](auto tag) {
            return std::is_same_v<typename decltype(tag)::type, std::remove_const_t<T>>;
        }))
        RaiseSampleTypeMismatch(block.type);
    BitmapView<T> view;
    view.data = reinterpret_cast<T*>(block.data);
    view.axisCount = maxViewAxes;
    for (int slot = 0; slot < maxViewAxes; ++slot) {
        view.size[slot] = block.size[slot];
        view.stride[slot] = block.stride[slot] / std::int64_t(sizeof(T));
    }
    return view;
}

// Taken apart once per call, so that a kernel's loops never go through an
// interface.
template <class T>
BitmapView<T> ViewOf(const ImageRef& image)
{
    return SlotViewOf<T>(*image->Bitmap());
}

// The samples of the view at `index` along `slot`: the same view with that
// slot of size 1.
template <class T>
BitmapView<T> Slice(BitmapView<T> view, int slot, std::int64_t index) noexcept
{
    view.data += index * view.stride[slot];
    view.size[slot] = 1;
    return view;
}

template <class T>
BitmapView<T> Band(const BitmapView<T>& view, std::int64_t band) noexcept
{
    return Slice(view, slotB, band);
}

// Calls function(bandView, band) for each band, once for a single-band view.
template <class T, class Function>
void ForEachBand(const BitmapView<T>& view, Function&& function)
{
    for (std::int64_t band = 0; band < view.size[slotB]; ++band)
        function(Band(view, band), band);
}

// Calls function(planeView, index) for each X-Y plane (the Z, T and B slots
// of size 1), index counting the planes in Z, then T, then B order.
template <class T, class Function>
void ForEachPlane(const BitmapView<T>& view, Function&& function)
{
    std::int64_t index = 0;
    for (std::int64_t b = 0; b < view.size[slotB]; ++b)
        for (std::int64_t t = 0; t < view.size[slotT]; ++t)
            for (std::int64_t z = 0; z < view.size[slotZ]; ++z)
                function(Slice(Slice(Band(view, b), slotT, t), slotZ, z), index++);
}

// Calls function(volumeView, index) for each X-Y-Z volume (a plane for a
// 2-D image): what a 3-D aware kernel walks, band by band and time step by
// time step.
template <class T, class Function>
void ForEachVolume(const BitmapView<T>& view, Function&& function)
{
    std::int64_t index = 0;
    for (std::int64_t b = 0; b < view.size[slotB]; ++b)
        for (std::int64_t t = 0; t < view.size[slotT]; ++t)
            function(Slice(Band(view, b), slotT, t), index++);
}

// Whether two views reach a common byte (compared by the byte ranges they
// span): a kernel that writes rows while later rows are still to be read
// needs its output apart from its input.
template <class T>
bool ViewsOverlap(const BitmapView<T>& a, const BitmapView<T>& b) noexcept
{
    const auto range = [](const BitmapView<T>& view) {
        const char* low = reinterpret_cast<const char*>(view.data);
        const char* high = low + sizeof(T);
        for (int slot = 0; slot < maxViewAxes; ++slot) {
            const std::int64_t reach = (view.size[slot] - 1) * view.stride[slot] * std::int64_t(sizeof(T));
            (reach < 0 ? low : high) += reach;
        }
        return std::pair(low, high);
    };
    const auto [aLow, aHigh] = range(a);
    const auto [bLow, bHigh] = range(b);
    return aLow < bHigh && bLow < aHigh;
}

// One line of samples, `step` apart.
template <class T>
struct Line {
    T* data;
    std::int64_t step;
    T& operator[](std::int64_t i) const noexcept { return data[i * step]; }
};

// Raises "Image sizes do not match: %1% and %2%" unless each slot of
// `input` is that of `output` or 1.
void CheckBroadcast(const Extent& output, const Extent& input);

// Calls function(count, Line<T0>, Line<T>...) for every line of the first
// view along its slot nearest in memory; the other views are walked at the
// same locations, a slot of size 1 in them being repeated. Once per line,
// never per sample.
template <class Function, class T0, class... T>
void ForEachLines(Function&& function, const BitmapView<T0>& first, const BitmapView<T>&... others)
{
    (CheckBroadcast(first.size, others.size), ...);
    if (first.SampleCount() == 0)
        return;
    const Extent& n = first.size;
    int inner = 0;
    for (int slot = 1; slot < maxViewAxes; ++slot)
        if (n[slot] > 1 &&
            (n[inner] <= 1 || std::llabs(first.stride[slot]) < std::llabs(first.stride[inner])))
            inner = slot;
    std::array<int, maxViewAxes - 1> outer{};
    for (int slot = 0, k = 0; slot < maxViewAxes; ++slot)
        if (slot != inner)
            outer[k++] = slot;
    // A repeated slot walks with stride 0.
    auto strideOf = [](const auto& view, int slot) { return view.size[slot] == 1 ? 0 : view.stride[slot]; };
    Extent c{};
    auto at = [&](const auto& view) {
        auto* p = view.data;
        for (int k = 0; k < maxViewAxes - 1; ++k)
            p += c[outer[k]] * strideOf(view, outer[k]);
        return p;
    };
    for (c[outer[3]] = 0; c[outer[3]] < n[outer[3]]; ++c[outer[3]])
        for (c[outer[2]] = 0; c[outer[2]] < n[outer[2]]; ++c[outer[2]])
            for (c[outer[1]] = 0; c[outer[1]] < n[outer[1]]; ++c[outer[1]])
                for (c[outer[0]] = 0; c[outer[0]] < n[outer[0]]; ++c[outer[0]])
                    function(n[inner], Line<T0>{at(first), first.stride[inner]},
                             Line<T>{at(others), strideOf(others, inner)}...);
}

// ---- Sample types ---------------------------------------------------------

template <class T>
inline constexpr bool isComplexSample = IsComplex<T>::value;

// Raises "Invalid image data type '%1%': %2% expected" with the type's name.
[[noreturn]] void RaiseUnsupportedType(System::NumericTypeEnum type, const wchar_t* expected);

// As DispatchSampleType, for the real types only (integers, float, double):
// a complex type raises. Half the instantiations when complex samples have
// no meaning for the kernel.
template <class Function>
decltype(auto) DispatchRealSampleType(System::NumericTypeEnum type, Function&& function)
{
    if (System::ntComplexF == type || System::ntComplexD == type)
        RaiseUnsupportedType(type, L"scalar type");
    return DispatchSampleType(type, [&](auto tag) -> decltype(auto) {
        using T = typename decltype(tag)::type;
        if constexpr (isComplexSample<T>)
            return function(std::type_identity<double>{}); // not reached
        else
            return function(tag);
    });
}

// The integer types only (8 to 64 bits, signed and unsigned).
template <class Function>
decltype(auto) DispatchIntegerSampleType(System::NumericTypeEnum type, Function&& function)
{
    switch (type) {
    case System::ntFloat:
    case System::ntDouble:
    case System::ntComplexF:
    case System::ntComplexD:
        RaiseUnsupportedType(type, L"integral type");
    default:
        break;
    }
    return DispatchSampleType(type, [&](auto tag) -> decltype(auto) {
        using T = typename decltype(tag)::type;
        if constexpr (std::is_integral_v<T>)
            return function(tag);
        else
            return function(std::type_identity<std::uint8_t>{}); // not reached
    });
}

// function(tag of a, tag of b): 144 instantiations of the function, so keep
// it for conversions, and prefer compute types (below) for kernels.
template <class Function>
decltype(auto) DispatchSampleTypes(System::NumericTypeEnum a, System::NumericTypeEnum b, Function&& function)
{
    return DispatchSampleType(a, [&](auto tagA) -> decltype(auto) {
        return DispatchSampleType(b, [&](auto tagB) -> decltype(auto) { return function(tagA, tagB); });
    });
}

// `value` as a sample of type T. Into an integer type a value is rounded to
// the nearest integer, ties to even (the rounding of the floating-point
// environment, as everywhere in the library's sample conversions), and
// clamped to the type's range; NaN gives 0. Into a floating type it is a
// plain conversion. A complex value gives its real part to a real type; a
// real value gives a complex one with imaginary part 0.
template <class T, class U>
T SaturateCast(U value) noexcept
{
    if constexpr (std::is_same_v<T, U>) {
        return value;
    } else if constexpr (isComplexSample<U> && !isComplexSample<T>) {
        return SaturateCast<T>(value.real());
    } else if constexpr (isComplexSample<T> && isComplexSample<U>) {
        return T(static_cast<typename T::value_type>(value.real()),
                 static_cast<typename T::value_type>(value.imag()));
    } else if constexpr (isComplexSample<T>) {
        return T(static_cast<typename T::value_type>(value));
    } else if constexpr (std::is_floating_point_v<T>) {
        return static_cast<T>(value);
    } else if constexpr (std::is_integral_v<U>) {
        using L = std::numeric_limits<T>;
        if constexpr (std::is_signed_v<U> == std::is_signed_v<T>) {
            if constexpr (sizeof(U) <= sizeof(T))
                return static_cast<T>(value);
            else
                return static_cast<T>(std::clamp<U>(value, U(L::lowest()), U(L::max())));
        } else if constexpr (std::is_signed_v<U>) { // signed into unsigned
            if (value < 0)
                return T(0);
            using W = std::make_unsigned_t<U>;
            return static_cast<W>(value) > L::max() ? L::max() : static_cast<T>(value);
        } else { // unsigned into signed
            using W = std::make_unsigned_t<T>;
            return value > static_cast<W>(L::max()) ? L::max() : static_cast<T>(value);
        }
    } else if constexpr (sizeof(U) > sizeof(double)) { // long double
        if (std::isnan(value))
            return T(0);
        value = std::nearbyint(value);
        constexpr long double lowest = static_cast<long double>(std::numeric_limits<T>::lowest());
        constexpr long double beyond =
            2.0L * (static_cast<long double>(std::numeric_limits<T>::max() / 2) + 1.0L);
        if (value <= lowest)
            return std::numeric_limits<T>::lowest();
        if (value >= beyond)
            return std::numeric_limits<T>::max();
        return static_cast<T>(value);
    } else {
        return SampleFromDouble<T>(static_cast<double>(value));
    }
}

// The value a binary result writes for a set sample: the largest value of
// an integer type (255 in the usual 8-bit binary image, so that it shows),
// 1 in a floating type. Any non-zero sample reads as set.
template <class T>
constexpr T SetSample() noexcept
{
    if constexpr (std::is_integral_v<T>)
        return std::numeric_limits<T>::max();
    else
        return T(1);
}

// The type a kernel computes in for samples of type T: wide enough that a
// sum or a difference of two samples is exact before the saturating store.
// 64-bit integers use long double (64-bit mantissa here), every other real
// type double, complex types std::complex<double>. Kernels written over
// compute types are instantiated three times, not once per sample type.
template <class T>
using ComputeType =
    std::conditional_t<isComplexSample<T>, std::complex<double>,
                       std::conditional_t<std::is_integral_v<T> && sizeof(T) == 8, long double, double>>;

// The compute type of a data type, as a tag, for dispatching on it.
template <class Function>
decltype(auto) DispatchComputeType(System::NumericTypeEnum type, Function&& function)
{
    switch (type) {
    case System::ntComplexF:
    case System::ntComplexD:
        return function(std::type_identity<std::complex<double>>{});
    case System::ntInt64:
    case System::ntUInt64:
        return function(std::type_identity<long double>{});
    default:
        return function(std::type_identity<double>{});
    }
}

// ---- Lines of any sample type, in a compute type ---------------------------

// A view whose sample type is known at run time only; what LineReader and
// LineWriter walk.
struct AnyView {
    BitmapView<char> bytes; // strides in bytes
    System::NumericTypeEnum type = System::ntUInt8;
};

AnyView AnyViewOf(const ImageRef& image);

namespace Detail {
template <class U, class C>
void LoadLine(const char* from, std::int64_t step, std::int64_t count, C* to) noexcept
{
    for (std::int64_t i = 0; i < count; ++i)
        to[i] = SaturateCast<C>(*reinterpret_cast<const U*>(from + i * step));
}

template <class T, class C>
void StoreLine(const C* from, std::int64_t count, char* to, std::int64_t step) noexcept
{
    for (std::int64_t i = 0; i < count; ++i)
        *reinterpret_cast<T*>(to + i * step) = SaturateCast<T>(from[i]);
}
} // namespace Detail

// Reads lines of samples of any type as values of C.
template <class C>
struct LineReader {
    void (*load)(const char*, std::int64_t, std::int64_t, C*) noexcept;

    static LineReader For(System::NumericTypeEnum type)
    {
        return DispatchSampleType(
            type, [](auto tag) { return LineReader{&Detail::LoadLine<typename decltype(tag)::type, C>}; });
    }
};

// Writes values of C into lines of samples of any type, saturating.
template <class C>
struct LineWriter {
    void (*store)(const C*, std::int64_t, char*, std::int64_t) noexcept;

    static LineWriter For(System::NumericTypeEnum type)
    {
        return DispatchSampleType(
            type, [](auto tag) { return LineWriter{&Detail::StoreLine<typename decltype(tag)::type, C>}; });
    }
};

// The element-wise engine: for every line of `output`, the lines of the
// inputs at the same locations are read into buffers of C, `kernel(out,
// ins..., count)` computes the output line in C, and it is stored into the
// output's type with saturation. Inputs may repeat slots of size 1 (see
// ForEachLines). Two calls through a function pointer per line and image,
// none per sample. The views may be parts of images (Slice, Band).
template <class C, class Kernel, class... Views>
void TransformViews(const AnyView& output, Kernel&& kernel, const Views&... inputs)
{
    const std::array<const AnyView*, sizeof...(Views)> in{&inputs...};
    std::array<LineReader<C>, sizeof...(Views)> readers{};
    for (std::size_t k = 0; k < in.size(); ++k)
        readers[k] = LineReader<C>::For(in[k]->type);
    const LineWriter<C> writer = LineWriter<C>::For(output.type);
    std::vector<C> buffer;
    auto walk = [&]<std::size_t... K>(std::index_sequence<K...>)
    {
        ForEachLines(
            [&](std::int64_t count, Line<char> o, auto... lines) {
                const auto size = static_cast<std::size_t>(count);
                buffer.resize(size * (1 + sizeof...(K)));
                C* result = buffer.data();
                (readers[K].load(lines.data, lines.step, count, result + (K + 1) * size), ...);
                kernel(result, static_cast<const C*>(result + (K + 1) * size)..., count);
                writer.store(result, count, o.data, o.step);
            },
            output.bytes, in[K]->bytes...);
    };
    walk(std::index_sequence_for<Views...>{});
}

// TransformViews on whole images.
template <class C, class Kernel, class... Images>
void TransformLines(const ImageRef& output, Kernel&& kernel, const Images&... inputs)
{
    TransformViews<C>(AnyViewOf(output), kernel, AnyViewOf(inputs)...);
}

// The view with each slot cut to [lower, lower + size).
inline AnyView Part(AnyView view, const Extent& lower, const Extent& size)
{
    for (int slot = 0; slot < maxViewAxes; ++slot) {
        view.bytes.data += lower[slot] * view.bytes.stride[slot];
        view.bytes.size[slot] = size[slot];
    }
    return view;
}

inline AnyView Slice(AnyView view, int slot, std::int64_t index)
{
    view.bytes = Slice(view.bytes, slot, index);
    return view;
}

// Pixel by pixel across bands: for every line of the output's first band,
// the lines of all the input's bands are read into `in` (band after band,
// `count` values each), `kernel(out, in, count)` fills the lines of all the
// output's bands in `out` the same way, and they are stored. For operators
// that mix bands (colour conversions, matrix products).
template <class C, class Kernel>
void TransformBands(const AnyView& output, const AnyView& input, Kernel&& kernel)
{
    const LineReader<C> reader = LineReader<C>::For(input.type);
    const LineWriter<C> writer = LineWriter<C>::For(output.type);
    const std::int64_t inBands = input.bytes.size[slotB];
    const std::int64_t outBands = output.bytes.size[slotB];
    std::vector<C> in;
    std::vector<C> out;
    ForEachLines(
        [&](std::int64_t count, Line<char> o, Line<char> i) {
            in.resize(static_cast<std::size_t>(count * inBands));
            out.resize(static_cast<std::size_t>(count * outBands));
            for (std::int64_t b = 0; b < inBands; ++b)
                reader.load(i.data + b * input.bytes.stride[slotB], i.step, count, in.data() + b * count);
            kernel(out.data(), static_cast<const C*>(in.data()), count);
            for (std::int64_t b = 0; b < outBands; ++b)
                writer.store(out.data() + b * count, count, o.data + b * output.bytes.stride[slotB], o.step);
        },
        Band(output.bytes, 0), Band(input.bytes, 0));
}

// ---- Outputs that no rule shapes ------------------------------------------

// Gives `output` the size `size` and a plain (uniform) format of `type` in
// the storage order of `model`'s format, unless it has them already; the
// samples are not kept. For operators whose chain has no make rule.
void Shape(const ImageRef& output, const System::Ref<Quilon_::Geometry::ICoordinates>& size,
           System::NumericTypeEnum type, const ImageRef& model);

} // namespace Quilon_::Basic::Images::Operators
