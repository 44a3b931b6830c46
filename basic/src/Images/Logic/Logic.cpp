// The reference implementations of the logic operators. The Boolean ones run
// in the output's compute type, like the arithmetic; the bitwise ones read
// every integer sample as the 64 bits of its two's complement (sign
// extended) and store the low bits back, so that each kernel exists once.
#include "Quilon_/Images/Logic/Functions.h"

#include "Images/Operators/OperatorSupport.h"
#include "Quilon_/PrivateLibrary.h"

#include <array>
#include <vector>

namespace Quilon_::Basic::Images::Logic {

namespace {

using namespace Operators;
namespace Fn = Quilon_::Images::Logic::Functions;
using Bits = std::uint64_t;

// ---- Boolean operators on binary images -------------------------------------

// The set value of the output's type, in its compute type.
template <class C>
C SetValueOf(System::NumericTypeEnum type)
{
    return DispatchSampleType(
        type, [](auto tag) { return SaturateCast<C>(SetSample<typename decltype(tag)::type>()); });
}

template <class Op>
void Boolean(const ImageRef& first, const ImageRef& second, const ImageRef& output, Op op)
{
    DispatchComputeType(DataTypeOf(output), [&](auto tag) {
        using C = typename decltype(tag)::type;
        const C set = SetValueOf<C>(DataTypeOf(output));
        TransformLines<C>(
            output,
            [&](C* out, const C* a, const C* b, std::int64_t n) {
                for (std::int64_t i = 0; i < n; ++i)
                    out[i] = op(a[i] != C(0), b[i] != C(0)) ? set : C(0);
            },
            first, second);
    });
}

void And(ImageRef a, ImageRef b, ImageRef out)
{
    Boolean(a, b, out, [](bool x, bool y) { return x && y; });
}
void Or(ImageRef a, ImageRef b, ImageRef out)
{
    Boolean(a, b, out, [](bool x, bool y) { return x || y; });
}
void XOr(ImageRef a, ImageRef b, ImageRef out)
{
    Boolean(a, b, out, [](bool x, bool y) { return x != y; });
}
void XNOr(ImageRef a, ImageRef b, ImageRef out)
{
    Boolean(a, b, out, [](bool x, bool y) { return x == y; });
}
void NAnd(ImageRef a, ImageRef b, ImageRef out)
{
    Boolean(a, b, out, [](bool x, bool y) { return !(x && y); });
}
void NOr(ImageRef a, ImageRef b, ImageRef out)
{
    Boolean(a, b, out, [](bool x, bool y) { return !(x || y); });
}
void Difference(ImageRef a, ImageRef b, ImageRef out)
{
    Boolean(a, b, out, [](bool x, bool y) { return x && !y; });
}

void Not(ImageRef input, ImageRef output)
{
    DispatchComputeType(DataTypeOf(output), [&](auto tag) {
        using C = typename decltype(tag)::type;
        const C set = SetValueOf<C>(DataTypeOf(output));
        TransformLines<C>(
            output,
            [&](C* out, const C* in, std::int64_t n) {
                for (std::int64_t i = 0; i < n; ++i)
                    out[i] = in[i] == C(0) ? set : C(0);
            },
            input);
    });
}

// ---- Bitwise operators on integer images ------------------------------------

template <class U>
void LoadBits(const char* from, std::int64_t step, std::int64_t count, Bits* to) noexcept
{
    for (std::int64_t i = 0; i < count; ++i)
        to[i] = static_cast<Bits>(*reinterpret_cast<const U*>(from + i * step));
}

template <class T>
void StoreBits(const Bits* from, std::int64_t count, char* to, std::int64_t step) noexcept
{
    for (std::int64_t i = 0; i < count; ++i)
        *reinterpret_cast<T*>(to + i * step) = static_cast<T>(from[i]);
}

using Loader = void (*)(const char*, std::int64_t, std::int64_t, Bits*) noexcept;

Loader LoaderOf(System::NumericTypeEnum type)
{
    return DispatchIntegerSampleType(
        type, [](auto tag) -> Loader { return &LoadBits<typename decltype(tag)::type>; });
}

// As TransformLines, on the bits of integer samples.
template <class Kernel, class... Images>
void TransformBits(const ImageRef& output, Kernel&& kernel, const Images&... inputs)
{
    const AnyView out = AnyViewOf(output);
    const std::array<AnyView, sizeof...(Images)> in{AnyViewOf(inputs)...};
    std::array<Loader, sizeof...(Images)> loaders{};
    for (std::size_t k = 0; k < in.size(); ++k)
        loaders[k] = LoaderOf(in[k].type);
    const auto store = DispatchIntegerSampleType(
        out.type, [](auto tag) { return &StoreBits<typename decltype(tag)::type>; });
    std::vector<Bits> buffer;
    auto walk = [&]<std::size_t... K>(std::index_sequence<K...>)
    {
        ForEachLines(
            [&](std::int64_t count, Line<char> o, auto... lines) {
                const auto size = static_cast<std::size_t>(count);
                buffer.resize(size * (1 + sizeof...(K)));
                Bits* result = buffer.data();
                (loaders[K](lines.data, lines.step, count, result + (K + 1) * size), ...);
                kernel(result, static_cast<const Bits*>(result + (K + 1) * size)..., count);
                store(result, count, o.data, o.step);
            },
            out.bytes, (static_cast<void>(K), in[K].bytes)...);
    };
    walk(std::index_sequence_for<Images...>{});
}

template <class Op>
void BitsWithConstant(const ImageRef& input, std::int64_t constant, const ImageRef& output, Op op)
{
    const auto c = static_cast<Bits>(constant);
    TransformBits(
        output,
        [&](Bits* out, const Bits* in, std::int64_t n) {
            for (std::int64_t i = 0; i < n; ++i)
                out[i] = op(in[i], c);
        },
        input);
}

template <class Op>
void BitsWithImage(const ImageRef& first, const ImageRef& second, const ImageRef& output, Op op)
{
    TransformBits(
        output,
        [&](Bits* out, const Bits* a, const Bits* b, std::int64_t n) {
            for (std::int64_t i = 0; i < n; ++i)
                out[i] = op(a[i], b[i]);
        },
        first, second);
}

constexpr auto bitAnd = [](Bits a, Bits b) { return a & b; };
constexpr auto bitOr = [](Bits a, Bits b) { return a | b; };
constexpr auto bitXOr = [](Bits a, Bits b) { return a ^ b; };
constexpr auto bitXNOr = [](Bits a, Bits b) { return ~(a ^ b); };
constexpr auto bitDifference = [](Bits a, Bits b) { return a & ~b; };

void BitAndConstant(ImageRef a, std::int64_t b, ImageRef out)
{
    BitsWithConstant(a, b, out, bitAnd);
}
void BitAndImage(ImageRef a, ImageRef b, ImageRef out)
{
    BitsWithImage(a, b, out, bitAnd);
}
void BitOrConstant(ImageRef a, std::int64_t b, ImageRef out)
{
    BitsWithConstant(a, b, out, bitOr);
}
void BitOrImage(ImageRef a, ImageRef b, ImageRef out)
{
    BitsWithImage(a, b, out, bitOr);
}
void BitXOrConstant(ImageRef a, std::int64_t b, ImageRef out)
{
    BitsWithConstant(a, b, out, bitXOr);
}
void BitXOrImage(ImageRef a, ImageRef b, ImageRef out)
{
    BitsWithImage(a, b, out, bitXOr);
}
void BitXNOrConstant(ImageRef a, std::int64_t b, ImageRef out)
{
    BitsWithConstant(a, b, out, bitXNOr);
}
void BitXNOrImage(ImageRef a, ImageRef b, ImageRef out)
{
    BitsWithImage(a, b, out, bitXNOr);
}
void BitDifferenceConstant(ImageRef a, std::int64_t b, ImageRef out)
{
    BitsWithConstant(a, b, out, bitDifference);
}
void BitDifferenceImage(ImageRef a, ImageRef b, ImageRef out)
{
    BitsWithImage(a, b, out, bitDifference);
}

void BitNot(ImageRef input, ImageRef output)
{
    BitsWithConstant(input, 0, output, [](Bits a, Bits) { return ~a; });
}

// Shifts of 64 bits or more are defined here: everything shifted out.
Bits ShiftLeft(Bits value, std::int64_t count)
{
    return count >= 64 ? 0 : value << count;
}

Bits ShiftRight(Bits value, std::int64_t count, bool arithmetic)
{
    if (arithmetic)
        return static_cast<Bits>(static_cast<std::int64_t>(value) >> std::min<std::int64_t>(count, 63));
    return count >= 64 ? 0 : value >> count;
}

// A negative count shifts the other way.
void Shift(const ImageRef& input, const ImageRef& output, std::int64_t count)
{
    const bool arithmetic = System::IsSigned(DataTypeOf(input));
    BitsWithConstant(input, count, output, [arithmetic](Bits a, Bits c) {
        const auto n = static_cast<std::int64_t>(c);
        return n >= 0 ? ShiftLeft(a, n) : ShiftRight(a, -n, arithmetic);
    });
}

void LeftShift(ImageRef input, ImageRef output, std::int64_t count)
{
    Shift(input, output, count);
}
void RightShift(ImageRef input, ImageRef output, std::int64_t count)
{
    Shift(input, output, count == std::numeric_limits<std::int64_t>::min() ? count + 1 : -count);
}

void RegisterLogic()
{
    const System::LIString name(L"Sample by sample", false);
    Fn::And.Register(name, &And);
    Fn::Or.Register(name, &Or);
    Fn::XOr.Register(name, &XOr);
    Fn::XNOr.Register(name, &XNOr);
    Fn::NAnd.Register(name, &NAnd);
    Fn::NOr.Register(name, &NOr);
    Fn::Difference.Register(name, &Difference);
    Fn::Not.Register(name, &Not);
    Fn::BitNot.Register(name, &BitNot);
    Fn::BitAnd.Overload<0>().Register(name, &BitAndConstant);
    Fn::BitAnd.Overload<1>().Register(name, &BitAndImage);
    Fn::BitOr.Overload<0>().Register(name, &BitOrConstant);
    Fn::BitOr.Overload<1>().Register(name, &BitOrImage);
    Fn::BitXOr.Overload<0>().Register(name, &BitXOrConstant);
    Fn::BitXOr.Overload<1>().Register(name, &BitXOrImage);
    Fn::BitXNOr.Overload<0>().Register(name, &BitXNOrConstant);
    Fn::BitXNOr.Overload<1>().Register(name, &BitXNOrImage);
    Fn::BitDifference.Overload<0>().Register(name, &BitDifferenceConstant);
    Fn::BitDifference.Overload<1>().Register(name, &BitDifferenceImage);
    Fn::LeftShift.Register(name, &LeftShift);
    Fn::RightShift.Register(name, &RightShift);
}

const System::Template::Initializer<::Library> logicInitializer(&RegisterLogic, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Logic
