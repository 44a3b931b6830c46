// The registered coordinate functions of the three kinds, written once over
// the value type. Each reads its arguments' values once (directly from this
// library's own objects, through the interface otherwise) and makes a new
// object of this library for a result.
#include "Geometry/CoordinatesImpl.h"

#include "Quilon_/Math/Approximator.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <cmath>
#include <cstdlib>
#include <typeinfo>
#include <vector>

namespace Quilon_::Basic::Geometry {

namespace {

namespace QG = Quilon_::Geometry;

// The axes and values of one argument.
template <class I>
struct Read {
    using V = typename I::ValueType;
    using Values = typename CCoordinates<I>::Values;

    explicit Read(I& coordinates) : axes(coordinates.Axes()), count(coordinates.AxisCount())
    {
        if (typeid(coordinates) == typeid(CCoordinates<I>)) {
            values = static_cast<CCoordinates<I>&>(coordinates).Data();
        } else {
            values = {};
            for (std::int64_t i = 0; i < count; ++i)
                values[static_cast<std::size_t>(i)] = coordinates.Value(i);
        }
    }
    V operator[](std::int64_t i) const { return values[static_cast<std::size_t>(i)]; }

    QG::Axes axes;
    std::int64_t count;
    Values values;
};

template <class I>
System::Ref<I> Make(QG::Axes axes, const typename Read<I>::Values& values)
{
    return System::Ref<I>(new CCoordinates<I>(axes, values));
}

template <class I>
Read<I> ReadSameAxes(const System::Ref<I>& a, const Read<I>& first)
{
    Read<I> second(*a);
    if (second.axes != first.axes)
        RaiseAxesMismatch(first.axes, second.axes);
    return second;
}

// A new object of a's axes with f(value) on each axis.
template <class I, class F>
System::Ref<I> Map(const System::Ref<I>& a, F f)
{
    const Read<I> x(*a);
    typename Read<I>::Values result{};
    for (std::int64_t i = 0; i < x.count; ++i)
        result[static_cast<std::size_t>(i)] = f(x[i]);
    return Make<I>(x.axes, result);
}

// A new object with f(a[i], b[i]) on each axis; the axes must agree.
template <class I, class F>
System::Ref<I> Zip(const System::Ref<I>& a, const System::Ref<I>& b, F f)
{
    const Read<I> x(*a);
    const Read<I> y = ReadSameAxes(b, x);
    typename Read<I>::Values result{};
    for (std::int64_t i = 0; i < x.count; ++i)
        result[static_cast<std::size_t>(i)] = f(x[i], y[i]);
    return Make<I>(x.axes, result);
}

template <class I>
struct Functions {
    using V = typename I::ValueType;
    using C = System::Ref<I>;

    static V Product(C a)
    {
        const Read<I> x(*a);
        V product = 1;
        for (std::int64_t i = 0; i < x.count; ++i)
            product *= x[i];
        return product;
    }
    static bool IsNull(C a)
    {
        const Read<I> x(*a);
        for (std::int64_t i = 0; i < x.count; ++i) {
            if (x[i] != 0)
                return false;
        }
        return true;
    }
    static C Min(C a, C b)
    {
        return Zip(a, b, [](V x, V y) { return y < x ? y : x; });
    }
    static C Max(C a, C b)
    {
        return Zip(a, b, [](V x, V y) { return x < y ? y : x; });
    }
    static void Set(C a, V value)
    {
        const std::int64_t count = a->AxisCount();
        for (std::int64_t i = 0; i < count; ++i)
            a->SetValue(i, value);
    }
    static C AddScalar(C a, V value)
    {
        return Map(a, [value](V x) { return x + value; });
    }
    static C Add(C a, C b)
    {
        return Zip(a, b, [](V x, V y) { return x + y; });
    }
    static C SubtractScalar(C a, V value)
    {
        return Map(a, [value](V x) { return x - value; });
    }
    static C Subtract(C a, C b)
    {
        return Zip(a, b, [](V x, V y) { return x - y; });
    }
    static C MultiplyScalar(C a, double factor)
    {
        if constexpr (std::is_integral_v<V>) {
            System::Ref<Math::IApproximator> approximator = Math::Approximator::DefaultApproximator();
            return Map(a, [&](V x) { return approximator->Round(static_cast<double>(x) * factor); });
        } else {
            return Map(a, [factor](V x) { return static_cast<V>(x * factor); });
        }
    }
    static C Multiply(C a, C b)
    {
        return Zip(a, b, [](V x, V y) { return x * y; });
    }
    static C Divide(C a, C b)
    {
        return Zip(a, b, [](V x, V y) {
            if constexpr (std::is_integral_v<V>) {
                if (y == 0)
                    QUILON_RAISE(L"Division by zero");
            }
            return x / y;
        });
    }
    static V DotProduct(C a, C b)
    {
        const Read<I> x(*a);
        const Read<I> y = ReadSameAxes(b, x);
        V sum = 0;
        for (std::int64_t i = 0; i < x.count; ++i)
            sum += x[i] * y[i];
        return sum;
    }
    static C CrossProduct(C a, C b)
    {
        const Read<I> x(*a);
        const Read<I> y = ReadSameAxes(b, x);
        if (x.count != 3)
            QUILON_RAISE(L"Cross product needs coordinates of three axes, not %1%", x.count);
        typename Read<I>::Values result{};
        result[0] = x[1] * y[2] - x[2] * y[1];
        result[1] = x[2] * y[0] - x[0] * y[2];
        result[2] = x[0] * y[1] - x[1] * y[0];
        return Make<I>(x.axes, result);
    }
    static C Abs(C a)
    {
        return Map(a, [](V x) { return x < 0 ? static_cast<V>(-x) : x; });
    }
    static C Minus(C a)
    {
        return Map(a, [](V x) { return static_cast<V>(-x); });
    }
    // The values of the axes that `a` has; the others 0.
    static C Copy(C a, QG::Axes axes)
    {
        const Read<I> x(*a);
        typename Read<I>::Values result{};
        std::int64_t from = 0;
        std::int64_t to = 0;
        for (unsigned bit = 1; bit < 0x100; bit <<= 1) {
            const bool had = (x.axes & bit) != 0;
            if (axes & bit)
                result[static_cast<std::size_t>(to++)] = had ? x[from] : V();
            if (had)
                ++from;
        }
        return Make<I>(axes, result);
    }
    static V Norm(C a) { return static_cast<V>(std::sqrt(static_cast<double>(DotProduct(a, a)))); }
    static C Normalize(C a)
    {
        const V norm = Norm(a);
        if (norm == 0)
            return Map(a, [](V x) { return x; });
        return Map(a, [norm](V x) { return x / norm; });
    }
    static System::Ref<QG::ICoordinates> ToCoordinates(C a, Math::RoundingMethodEnum method)
    {
        const Read<I> x(*a);
        System::Ref<Math::IApproximator> approximator = Math::Approximator::DefaultApproximator();
        typename Read<QG::ICoordinates>::Values result{};
        for (std::int64_t i = 0; i < x.count; ++i)
            result[static_cast<std::size_t>(i)] = approximator->Round(static_cast<double>(x[i]), method);
        return Make<QG::ICoordinates>(x.axes, result);
    }
    // The row vector through the homogeneous matrix.
    static C MultiplyByMatrix(System::Ref<Math::IMatrixD> matrix, C a)
    {
        const Read<I> x(*a);
        const std::int64_t rows = matrix->Rows();
        const std::int64_t columns = matrix->Columns();
        if (rows < x.count + 1 || columns < x.count)
            QUILON_RAISE(L"A %1% x %2% matrix cannot map coordinates of %3% axes", rows, columns, x.count);
        const std::vector<double> m = matrix->Values();
        const auto at = [&](std::int64_t row, std::int64_t column) {
            return m[static_cast<std::size_t>(row * columns + column)];
        };
        typename Read<I>::Values result{};
        for (std::int64_t b = 0; b < x.count; ++b) {
            double value = at(x.count, b);
            for (std::int64_t i = 0; i < x.count; ++i)
                value += at(i, b) * static_cast<double>(x[i]);
            result[static_cast<std::size_t>(b)] = static_cast<V>(value);
        }
        return Make<I>(x.axes, result);
    }
};

System::Ref<QG::ICoordinatesD> ToCoordinatesD(System::Ref<QG::ICoordinates> a)
{
    const Read<QG::ICoordinates> x(*a);
    typename Read<QG::ICoordinatesD>::Values result{};
    for (std::int64_t i = 0; i < x.count; ++i)
        result[static_cast<std::size_t>(i)] = static_cast<double>(x[i]);
    return Make<QG::ICoordinatesD>(x.axes, result);
}

void RegisterIntegerFunctions()
{
    using namespace QG::Coordinates;
    using F = Functions<QG::ICoordinates>;
    SetProductFunction1(&F::Product);
    SetIsNullFunction1(&F::IsNull);
    SetMinFunction1(&F::Min);
    SetMaxFunction1(&F::Max);
    SetSetFunction1(&F::Set);
    SetAddFunction1(&F::AddScalar);
    SetAddFunction2(&F::Add);
    SetSubtractFunction1(&F::SubtractScalar);
    SetSubtractFunction2(&F::Subtract);
    SetMultiplyFunction1(&F::MultiplyScalar);
    SetMultiplyFunction2(&F::Multiply);
    SetDivideFunction1(&F::Divide);
    SetDotProductFunction1(&F::DotProduct);
    SetCrossProductFunction1(&F::CrossProduct);
    SetAbsFunction1(&F::Abs);
    SetMinusFunction1(&F::Minus);
    SetCopyFunction1(&F::Copy);
    SetToCoordinatesDFunction1(&ToCoordinatesD);
}

// The float and double families have the same functions and numbers.
#define QUILON_BASIC_REGISTER_REAL_FUNCTIONS(Family, Interface)                                              \
    {                                                                                                        \
        using F = Functions<QG::Interface>;                                                                  \
        QG::Family::SetProductFunction1(&F::Product);                                                        \
        QG::Family::SetIsNullFunction1(&F::IsNull);                                                          \
        QG::Family::SetMinFunction1(&F::Min);                                                                \
        QG::Family::SetMaxFunction1(&F::Max);                                                                \
        QG::Family::SetSetFunction1(&F::Set);                                                                \
        QG::Family::SetAddFunction1(&F::AddScalar);                                                          \
        QG::Family::SetAddFunction2(&F::Add);                                                                \
        QG::Family::SetSubtractFunction1(&F::SubtractScalar);                                                \
        QG::Family::SetSubtractFunction2(&F::Subtract);                                                      \
        QG::Family::SetMultiplyFunction1(&F::MultiplyScalar);                                                \
        QG::Family::SetMultiplyFunction2(&F::MultiplyByMatrix);                                              \
        QG::Family::SetMultiplyFunction3(&F::Multiply);                                                      \
        QG::Family::SetDivideFunction1(&F::Divide);                                                          \
        QG::Family::SetDotProductFunction1(&F::DotProduct);                                                  \
        QG::Family::SetCrossProductFunction1(&F::CrossProduct);                                              \
        QG::Family::SetAbsFunction1(&F::Abs);                                                                \
        QG::Family::SetMinusFunction1(&F::Minus);                                                            \
        QG::Family::SetCopyFunction1(&F::Copy);                                                              \
        QG::Family::SetNormFunction1(&F::Norm);                                                              \
        QG::Family::SetNormalizeFunction1(&F::Normalize);                                                    \
        QG::Family::SetToCoordinatesFunction1(&F::ToCoordinates);                                            \
    }

void RegisterCoordinateFunctionsFunctions()
{
    RegisterIntegerFunctions();
    QUILON_BASIC_REGISTER_REAL_FUNCTIONS(CoordinatesF, ICoordinatesF)
    QUILON_BASIC_REGISTER_REAL_FUNCTIONS(CoordinatesD, ICoordinatesD)
}

const System::Template::Initializer<::Library>
    coordinateFunctionsInitializer(&RegisterCoordinateFunctionsFunctions, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry
