// The two questions every fast path of the reference library asks before it
// hands an image to a vectorised kernel: which kernel variant its sample
// type takes (a SampleKind), and whether its samples lie the way the
// kernels walk them (rows dense, or the whole image one run). Light enough
// for the kernel sources, which are compiled once per instruction set.
//
// On the caller's side, once per call:
//
//   const std::optional<SampleKind> kind = SampleKindOf(DataTypeOf(image));
//   const BitmapView<char>& bytes = AnyViewOf(image).bytes;
//   if (!kind || !DenseRows(bytes, SampleKindBytes(*kind)))
//       return false;                        // the plain path
//   SumSamples(*kind, ...);                  // one exported kernel for all kinds
//
// In the kernel source, inside the per-target namespace:
//
//   void SumSamples(SampleKind kind, const void* a, ...)
//   {
//       DispatchSampleKind(kind, [&](auto tag) {
//           using T = typename decltype(tag)::type;
//           SumRun(static_cast<const T*>(a), ...);
//       });
//   }
//
// A view here is anything with per-slot `size` and `stride` arrays:
// BitmapView<T> (strides in samples, unit 1) or AnyView::bytes (strides in
// bytes, unit the sample's size).
#pragma once

#include "Quilon_/System/NumericType.h"

#include <cstdint>
#include <optional>
#include <type_traits>

namespace Quilon_::Basic::Images::Operators {

// The C++ sample types, one kernel variant each.
enum class SampleKind : std::uint8_t { u8, i8, u16, i16, u32, i32, u64, i64, f32, f64 };

inline constexpr int sampleKindCount = 10;

namespace Detail {
template <class T>
constexpr SampleKind SampleKindOfType()
{
    using U = std::remove_cv_t<T>;
    if constexpr (std::is_same_v<U, std::uint8_t>)
        return SampleKind::u8;
    else if constexpr (std::is_same_v<U, std::int8_t>)
        return SampleKind::i8;
    else if constexpr (std::is_same_v<U, std::uint16_t>)
        return SampleKind::u16;
    else if constexpr (std::is_same_v<U, std::int16_t>)
        return SampleKind::i16;
    else if constexpr (std::is_same_v<U, std::uint32_t>)
        return SampleKind::u32;
    else if constexpr (std::is_same_v<U, std::int32_t>)
        return SampleKind::i32;
    else if constexpr (std::is_same_v<U, std::uint64_t>)
        return SampleKind::u64;
    else if constexpr (std::is_same_v<U, std::int64_t>)
        return SampleKind::i64;
    else if constexpr (std::is_same_v<U, float>)
        return SampleKind::f32;
    else {
        static_assert(std::is_same_v<U, double>, "no kernel variant for this sample type");
        return SampleKind::f64;
    }
}
} // namespace Detail

// The kind of samples of C++ type T, for callers that are typed already.
template <class T>
inline constexpr SampleKind sampleKindOf = Detail::SampleKindOfType<T>();

// The kind of the samples of `type`; none for complex samples and for the
// 1-, 2- and 4-bit types. Those are stored a byte each and viewed as
// std::uint8_t, but their range is smaller: a kernel that only compares
// samples (a minimum, a maximum) may take them as u8, one that computes
// (a saturating sum) may not, so the choice is the caller's.
constexpr std::optional<SampleKind> SampleKindOf(System::NumericTypeEnum type) noexcept
{
    switch (type) {
    case System::ntUInt8:
        return SampleKind::u8;
    case System::ntInt8:
        return SampleKind::i8;
    case System::ntUInt16:
        return SampleKind::u16;
    case System::ntInt16:
        return SampleKind::i16;
    case System::ntUInt32:
        return SampleKind::u32;
    case System::ntInt32:
        return SampleKind::i32;
    case System::ntUInt64:
        return SampleKind::u64;
    case System::ntInt64:
        return SampleKind::i64;
    case System::ntFloat:
        return SampleKind::f32;
    case System::ntDouble:
        return SampleKind::f64;
    default:
        return std::nullopt;
    }
}

constexpr bool IsFloatKind(SampleKind kind) noexcept
{
    return kind == SampleKind::f32 || kind == SampleKind::f64;
}

constexpr bool IsSignedKind(SampleKind kind) noexcept
{
    switch (kind) {
    case SampleKind::u8:
    case SampleKind::u16:
    case SampleKind::u32:
    case SampleKind::u64:
        return false;
    default:
        return true;
    }
}

constexpr std::int64_t SampleKindBytes(SampleKind kind) noexcept
{
    switch (kind) {
    case SampleKind::u8:
    case SampleKind::i8:
        return 1;
    case SampleKind::u16:
    case SampleKind::i16:
        return 2;
    case SampleKind::u32:
    case SampleKind::i32:
    case SampleKind::f32:
        return 4;
    default:
        return 8;
    }
}

// Applies M to the C++ type of each kind: the declarations and explicit
// definitions of a kernel written once for all ten types, e.g.
// QUILON_FOR_EACH_SAMPLE_TYPE(DECLARE_FOLD_ROWS).
// clang-format off
#define QUILON_FOR_EACH_SAMPLE_TYPE(M) \
    M(std::int8_t) M(std::uint8_t) M(std::int16_t) M(std::uint16_t) M(std::int32_t) M(std::uint32_t) \
    M(std::int64_t) M(std::uint64_t) M(float) M(double)
// clang-format on

// Calls function(std::type_identity<T>{}) with T the C++ type of `kind`,
// and returns what it returns. In a kernel source this instantiates the
// kernel once per kind and instruction set: a kernel that has a vectorised
// form for a few kinds only should test `kind` first and leave the rest to
// its caller's plain path, rather than instantiate all ten.
template <class Function>
decltype(auto) DispatchSampleKind(SampleKind kind, Function&& function)
{
    switch (kind) {
    case SampleKind::u8:
        return function(std::type_identity<std::uint8_t>{});
    case SampleKind::i8:
        return function(std::type_identity<std::int8_t>{});
    case SampleKind::u16:
        return function(std::type_identity<std::uint16_t>{});
    case SampleKind::i16:
        return function(std::type_identity<std::int16_t>{});
    case SampleKind::u32:
        return function(std::type_identity<std::uint32_t>{});
    case SampleKind::i32:
        return function(std::type_identity<std::int32_t>{});
    case SampleKind::u64:
        return function(std::type_identity<std::uint64_t>{});
    case SampleKind::i64:
        return function(std::type_identity<std::int64_t>{});
    case SampleKind::f32:
        return function(std::type_identity<float>{});
    default:
        return function(std::type_identity<double>{});
    }
}

// ---- Layouts the kernels take ----------------------------------------------

// Whether the samples of every row (slot 0, X) lie side by side, `unit`
// apart (1 for a typed view, the sample's size for a view in bytes): what
// a kernel walking a row through a plain pointer needs. A row of one
// sample is dense whatever its stride.
template <class View>
constexpr bool DenseRows(const View& view, std::int64_t unit = 1) noexcept
{
    return view.size[0] <= 1 || view.stride[0] == unit;
}

// The number of samples in the first `slots` slots of `view` when they
// lie in one run with no gaps, X fastest and each slot after the one
// before; -1 otherwise. A slot of size 1 never breaks the run. With 3
// slots: whether each volume (X, Y, Z) can be walked as one array.
template <class View>
constexpr std::int64_t DenseRunOver(const View& view, int slots, std::int64_t unit = 1) noexcept
{
    std::int64_t expected = unit;
    for (int slot = 0; slot < slots; ++slot) {
        const std::int64_t size = view.size[slot];
        if (size != 1 && view.stride[slot] != expected)
            return -1;
        expected *= size;
    }
    return expected / unit;
}

// DenseRunOver every slot: the number of samples when the whole image can
// be walked as one array, -1 otherwise.
template <class View>
constexpr std::int64_t DenseRun(const View& view, std::int64_t unit = 1) noexcept
{
    return DenseRunOver(view, static_cast<int>(view.size.size()), unit);
}

} // namespace Quilon_::Basic::Images::Operators
