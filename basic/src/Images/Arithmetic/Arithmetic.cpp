// The reference implementations of the arithmetic operators. Every kernel
// runs in the compute type of the output (double, long double for 64-bit
// integers, std::complex<double>), so each is instantiated three times;
// inputs of any type are read into it line by line and the result is stored
// with saturation (see OperatorSupport.h).
#include "Quilon_/Images/Arithmetic/Functions.h"

#include "Images/Operators/OperatorSupport.h"
#include "Images/Operators/Pointwise.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Helper.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Quilon_::Basic::Images::Arithmetic {

namespace {

using namespace Operators;
namespace Fn = Quilon_::Images::Arithmetic::Functions;
using RangeRef = System::Ref<::Quilon_::Math::IRangeD>;

// Calls function(tag of C) with C the compute type of `output`; `realOnly`
// operators refuse a complex output.
template <bool realOnly, class Function>
void WithComputeType(const ImageRef& output, Function&& function)
{
    DispatchComputeType(DataTypeOf(output), [&](auto tag) {
        using C = typename decltype(tag)::type;
        if constexpr (realOnly && isComplexSample<C>)
            RaiseUnsupportedType(DataTypeOf(output), L"scalar type");
        else
            function(tag);
    });
}

template <class C>
C ConstantOf(const System::Any& value)
{
    if constexpr (isComplexSample<C>)
        return System::Helper::ComplexValue(value);
    else
        return static_cast<C>(System::Helper::ScalarValue(value));
}

// output = op(input, constant), sample by sample.
template <bool realOnly, class Op>
void WithConstant(const ImageRef& input, const System::Any& constant, const ImageRef& output, Op op)
{
    WithComputeType<realOnly>(output, [&](auto tag) {
        using C = typename decltype(tag)::type;
        const C c = ConstantOf<C>(constant);
        TransformLines<C>(
            output,
            [&](C* out, const C* in, std::int64_t n) {
                for (std::int64_t i = 0; i < n; ++i)
                    out[i] = op(in[i], c);
            },
            input);
    });
}

// output = op(first, second), sample by sample.
template <bool realOnly, class Op>
void WithImage(const ImageRef& first, const ImageRef& second, const ImageRef& output, Op op)
{
    WithComputeType<realOnly>(output, [&](auto tag) {
        using C = typename decltype(tag)::type;
        TransformLines<C>(
            output,
            [&](C* out, const C* a, const C* b, std::int64_t n) {
                for (std::int64_t i = 0; i < n; ++i)
                    out[i] = op(a[i], b[i]);
            },
            first, second);
    });
}

// output = op(input), sample by sample.
template <bool realOnly, class Op>
void Each(const ImageRef& input, const ImageRef& output, Op op)
{
    WithComputeType<realOnly>(output, [&](auto tag) {
        using C = typename decltype(tag)::type;
        TransformLines<C>(
            output,
            [&](C* out, const C* in, std::int64_t n) {
                for (std::int64_t i = 0; i < n; ++i)
                    out[i] = op(in[i]);
            },
            input);
    });
}

constexpr auto plus = [](auto a, auto b) { return a + b; };
constexpr auto minus = [](auto a, auto b) { return a - b; };
constexpr auto times = [](auto a, auto b) { return a * b; };
constexpr auto over = [](auto a, auto b) { return a / b; };
// NaN never wins, so that a NaN operand leaves the other.
constexpr auto larger = [](auto a, auto b) { return std::isnan(b) || a >= b ? a : b; };
constexpr auto smaller = [](auto a, auto b) { return std::isnan(b) || a <= b ? a : b; };

void AddConstant(ImageRef a, const System::Any& b, ImageRef out)
{
    WithConstant<false>(a, b, out, plus);
}
void AddImage(ImageRef a, ImageRef b, ImageRef out)
{
    if (Pointwise::Sum(a, b, out, false))
        return;
    WithImage<false>(a, b, out, plus);
}
void SubtractConstant(ImageRef a, const System::Any& b, ImageRef out)
{
    WithConstant<false>(a, b, out, minus);
}
void SubtractImage(ImageRef a, ImageRef b, ImageRef out)
{
    if (Pointwise::Sum(a, b, out, true))
        return;
    WithImage<false>(a, b, out, minus);
}
void MultiplyConstant(ImageRef a, const System::Any& b, ImageRef out)
{
    WithConstant<false>(a, b, out, times);
}
void MultiplyImage(ImageRef a, ImageRef b, ImageRef out)
{
    WithImage<false>(a, b, out, times);
}
void DivideConstant(ImageRef a, const System::Any& b, ImageRef out)
{
    WithConstant<false>(a, b, out, over);
}
void DivideImage(ImageRef a, ImageRef b, ImageRef out)
{
    WithImage<false>(a, b, out, over);
}

void MaximumConstant(ImageRef a, double b, ImageRef out)
{
    WithConstant<true>(a, System::ToAny(b), out, larger);
}
void MaximumImage(ImageRef a, ImageRef b, ImageRef out)
{
    WithImage<true>(a, b, out, larger);
}
void MinimumConstant(ImageRef a, double b, ImageRef out)
{
    WithConstant<true>(a, System::ToAny(b), out, smaller);
}
void MinimumImage(ImageRef a, ImageRef b, ImageRef out)
{
    WithImage<true>(a, b, out, smaller);
}

void Blend(ImageRef a, ImageRef b, ImageRef out, double weight)
{
    WithImage<false>(a, b, out, [weight](auto x, auto y) {
        using C = decltype(x);
        if constexpr (isComplexSample<C>)
            return x * (1.0 - weight) + y * weight;
        else
            return x * C(1.0 - weight) + y * C(weight);
    });
}

void Abs(ImageRef input, ImageRef output)
{
    Each<true>(input, output, [](auto x) { return std::abs(x); });
}

// The value x is mirrored about, by the input's type.
long double InversionBase(System::NumericTypeEnum type)
{
    return DispatchRealSampleType(type, [](auto tag) -> long double {
        using T = typename decltype(tag)::type;
        if constexpr (std::is_floating_point_v<T>)
            return 1.0L;
        else if constexpr (std::is_signed_v<T>)
            return -1.0L;
        else
            return static_cast<long double>(std::numeric_limits<T>::max());
    });
}

void Invert(ImageRef input, ImageRef output)
{
    const long double base = InversionBase(DataTypeOf(input));
    Each<true>(input, output, [base](auto x) { return static_cast<decltype(x)>(base) - x; });
}

// A source range of one value maps everything to the target's minimum.
void LinearScale(ImageRef input, ImageRef output, RangeRef from, RangeRef to)
{
    const double fromWidth = from->Maximum() - from->Minimum();
    const double scale = fromWidth == 0 ? 0.0 : (to->Maximum() - to->Minimum()) / fromWidth;
    const double origin = from->Minimum();
    const double target = to->Minimum();
    Each<true>(input, output, [=](auto x) {
        using C = decltype(x);
        return C(target) + (x - C(origin)) * C(scale);
    });
}

void RegisterArithmetic()
{
    const System::LIString name(L"Sample by sample", false);
    Fn::Abs.Register(name, &Abs);
    Fn::Add.Overload<0>().Register(name, &AddConstant);
    Fn::Add.Overload<1>().Register(name, &AddImage);
    Fn::Blend.Register(name, &Blend);
    Fn::Divide.Overload<0>().Register(name, &DivideConstant);
    Fn::Divide.Overload<1>().Register(name, &DivideImage);
    Fn::Invert.Register(name, &Invert);
    Fn::LinearScale.Register(name, &LinearScale);
    Fn::Maximum.Overload<0>().Register(name, &MaximumConstant);
    Fn::Maximum.Overload<1>().Register(name, &MaximumImage);
    Fn::Minimum.Overload<0>().Register(name, &MinimumConstant);
    Fn::Minimum.Overload<1>().Register(name, &MinimumImage);
    Fn::Multiply.Overload<0>().Register(name, &MultiplyConstant);
    Fn::Multiply.Overload<1>().Register(name, &MultiplyImage);
    Fn::Subtract.Overload<0>().Register(name, &SubtractConstant);
    Fn::Subtract.Overload<1>().Register(name, &SubtractImage);
}

const System::Template::Initializer<::Library> arithmeticInitializer(&RegisterArithmetic, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Arithmetic
