// The reference implementations of the sample functions. Each kernel runs
// in the compute type of the wider of the input's and the output's types
// (double, long double or std::complex<double>): a complex input keeps its
// imaginary part up to the kernel even when the output is real.
#include "Quilon_/Images/Math/Functions.h"

#include "Images/Operators/OperatorSupport.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/PrivateLibrary.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

namespace Quilon_::Basic::Images::Math {

namespace {

using namespace Operators;
namespace Fn = Quilon_::Images::Math::Functions;
using Facet = ::Quilon_::Math::ComplexFacetEnum;
using MatrixRef = System::Ref<::Quilon_::Math::IMatrixD>;

template <class Function>
void WithComputeTypeOf(const ImageRef& input, const ImageRef& output, Function&& function)
{
    DispatchComputeType(System::ContainingNumericType(DataTypeOf(input), DataTypeOf(output)), function);
}

template <class Op>
void Each(const ImageRef& input, const ImageRef& output, Op op)
{
    WithComputeTypeOf(input, output, [&](auto tag) {
        using C = typename decltype(tag)::type;
        TransformLines<C>(
            output,
            [&](C* out, const C* in, std::int64_t n) {
                for (std::int64_t i = 0; i < n; ++i)
                    out[i] = static_cast<C>(op(in[i]));
            },
            input);
    });
}

// The parts of a value, real or complex, in its own type.
template <class C>
C RealOf(C x)
{
    if constexpr (isComplexSample<C>)
        return C(x.real());
    else
        return x;
}
template <class C>
C ImaginaryOf(C x)
{
    if constexpr (isComplexSample<C>)
        return C(x.imag());
    else
        return C(0);
}
template <class C>
C MagnitudeOf(C x)
{
    return C(std::abs(x));
}
template <class C>
C PhaseOf(C x)
{
    if constexpr (isComplexSample<C>)
        return C(std::arg(x));
    else
        return x < 0 ? C(std::numbers::pi) : C(0);
}

void ACos(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::acos(x); });
}
void ASin(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::asin(x); });
}
void ATan(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::atan(x); });
}
void Cos(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::cos(x); });
}
void Sin(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::sin(x); });
}
void Tan(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::tan(x); });
}
void Exp(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::exp(x); });
}
void Exp10(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::pow(decltype(x)(10), x); });
}
void Log(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::log(x); });
}
void Log10(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::log10(x); });
}
void Sqrt(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return std::sqrt(x); });
}
void Sqr(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return x * x; });
}
void Inverse(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return decltype(x)(1) / x; });
}
void Conjugate(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) {
        if constexpr (isComplexSample<decltype(x)>)
            return std::conj(x);
        else
            return x;
    });
}
void RealPart(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return RealOf(x); });
}
void ImaginaryPart(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return ImaginaryOf(x); });
}
void Magnitude(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return MagnitudeOf(x); });
}
void Phase(ImageRef in, ImageRef out)
{
    Each(in, out, [](auto x) { return PhaseOf(x); });
}

void ComplexFacet(ImageRef in, ImageRef out, Facet facet)
{
    switch (facet) {
    case ::Quilon_::Math::cfReal:
        return RealPart(in, out);
    case ::Quilon_::Math::cfImaginary:
        return ImaginaryPart(in, out);
    case ::Quilon_::Math::cfMagnitude:
        return Magnitude(in, out);
    case ::Quilon_::Math::cfPhase:
        return Phase(in, out);
    }
    QUILON_RAISE(L"Unknown complex facet: %1%", static_cast<std::int64_t>(facet));
}

// Line by line: the input's bands at one location are a row vector, the
// output's bands the product with the matrix.
void MatrixMultiply(ImageRef input, ImageRef output, MatrixRef matrix)
{
    const AnyView in = AnyViewOf(input);
    const AnyView out = AnyViewOf(output);
    const std::int64_t rows = matrix->Rows();
    const std::int64_t columns = matrix->Columns();
    if (in.bytes.size[slotB] != rows || out.bytes.size[slotB] != columns)
        QUILON_RAISE(L"Band counts %1% and %2% do not fit a %3% x %4% matrix", in.bytes.size[slotB],
                     out.bytes.size[slotB], rows, columns);
    const std::vector<double> values = matrix->Values();
    WithComputeTypeOf(input, output, [&](auto tag) {
        using C = typename decltype(tag)::type;
        TransformBands<C>(out, in, [&](C* result, const C* bands, std::int64_t n) {
            for (std::int64_t c = 0; c < columns; ++c) {
                C* line = result + c * n;
                std::fill(line, line + n, C(0));
                for (std::int64_t r = 0; r < rows; ++r) {
                    const C weight = C(values[static_cast<std::size_t>(r * columns + c)]);
                    const C* band = bands + r * n;
                    for (std::int64_t k = 0; k < n; ++k)
                        line[k] += band[k] * weight;
                }
            }
        });
    });
}

void RegisterMath()
{
    const System::LIString name(L"Sample by sample", false);
    Fn::ACos.Register(name, &ACos);
    Fn::ASin.Register(name, &ASin);
    Fn::ATan.Register(name, &ATan);
    Fn::ComplexFacet.Register(name, &ComplexFacet);
    Fn::Conjugate.Register(name, &Conjugate);
    Fn::Cos.Register(name, &Cos);
    Fn::Exp10.Register(name, &Exp10);
    Fn::Exp.Register(name, &Exp);
    Fn::ImaginaryPart.Register(name, &ImaginaryPart);
    Fn::Inverse.Register(name, &Inverse);
    Fn::Log10.Register(name, &Log10);
    Fn::Log.Register(name, &Log);
    Fn::Magnitude.Register(name, &Magnitude);
    Fn::MatrixMultiply.Register(name, &MatrixMultiply);
    Fn::Phase.Register(name, &Phase);
    Fn::RealPart.Register(name, &RealPart);
    Fn::Sin.Register(name, &Sin);
    Fn::Sqr.Register(name, &Sqr);
    Fn::Sqrt.Register(name, &Sqrt);
    Fn::Tan.Register(name, &Tan);
}

const System::Template::Initializer<::Library> mathInitializer(&RegisterMath, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Math
