#include "Quilon_/Geometry/Helper.h"

#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <array>
#include <limits>

namespace Quilon_::Geometry::Helper {

namespace {

using Matrix = System::Ref<Math::IMatrixD>;

template <class C>
void AssertSameAxesOf(const System::Ref<C>& a, const System::Ref<C>& b)
{
    const unsigned char aAxes = a->Axes();
    const unsigned char bAxes = b->Axes();
    if (aAxes != bAxes)
        QUILON_RAISE(L"Axes mismatch (%1% != %2%)", AxesToString(aAxes), AxesToString(bAxes));
}

// Min and Max of the family through the registered functions, from the
// first point on; the points themselves are not copied.
template <class Family, class Collection>
std::pair<typename Family::Reference, typename Family::Reference> Extremes(Collection& points)
{
    const std::int64_t count = points.Count();
    typename Family::Reference min = points.Item(0);
    typename Family::Reference max = min;
    for (std::int64_t i = 1; i < count; ++i) {
        typename Family::Reference point = points.Item(i);
        min = Family::Min(min, point);
        max = Family::Max(max, point);
    }
    return {min, max};
}

struct IntegerFamily {
    using Reference = Coordinates::Reference;
    static Reference Min(Reference a, Reference b) { return Coordinates::Min(std::move(a), std::move(b)); }
    static Reference Max(Reference a, Reference b) { return Coordinates::Max(std::move(a), std::move(b)); }
};
struct FloatFamily {
    using Reference = CoordinatesF::Reference;
    static Reference Min(Reference a, Reference b) { return CoordinatesF::Min(std::move(a), std::move(b)); }
    static Reference Max(Reference a, Reference b) { return CoordinatesF::Max(std::move(a), std::move(b)); }
};
struct DoubleFamily {
    using Reference = CoordinatesD::Reference;
    static Reference Min(Reference a, Reference b) { return CoordinatesD::Min(std::move(a), std::move(b)); }
    static Reference Max(Reference a, Reference b) { return CoordinatesD::Max(std::move(a), std::move(b)); }
};

// The weighted points, seen as the integer coordinates they are.
class WeightedAsCoordinates {
public:
    explicit WeightedAsCoordinates(IWeightedCoordinatesCollection& points) : m_points(points) {}
    std::int64_t Count() { return m_points.Count(); }
    Coordinates::Reference Item(std::int64_t index) { return m_points.Item(index); }

private:
    IWeightedCoordinatesCollection& m_points;
};

template <class Collection>
System::Ref<IBox> IntegerBounds(Collection& points)
{
    auto [min, max] = Extremes<IntegerFamily>(points);
    // The upper corner of an integer box is exclusive.
    return Box::New(min, Coordinates::Add(max, 1));
}

// The spatial dimension of a mapping: the axis count without the band axis
// (aT counts).
template <class C>
std::int64_t MappedDimension(C& coordinates)
{
    return coordinates.AxisCount() - (coordinates.IndexOfAxis(aB) >= 0 ? 1 : 0);
}

template <std::size_t D>
struct MappedExtremes {
    std::array<double, D> min;
    std::array<double, D> max;

    MappedExtremes()
    {
        min.fill(std::numeric_limits<double>::max());
        max.fill(-std::numeric_limits<double>::max());
    }

    // The point as a row vector times the homogeneous matrix.
    void Add(const std::array<double, D>& point, Math::IMatrixD& matrix)
    {
        for (std::size_t b = 0; b < D; ++b) {
            const auto column = static_cast<std::int64_t>(b);
            double value = matrix.Value(static_cast<std::int64_t>(D), column);
            for (std::size_t a = 0; a < D; ++a)
                value += matrix.Value(static_cast<std::int64_t>(a), column) * point[a];
            min[b] = std::min(min[b], value);
            max[b] = std::max(max[b], value);
        }
    }
};

template <std::size_t D, class C>
MappedExtremes<D> MapAll(const std::vector<System::Ref<C>>& points, Math::IMatrixD& matrix)
{
    MappedExtremes<D> extremes;
    for (const System::Ref<C>& point : points) {
        std::array<double, D> values;
        for (std::size_t i = 0; i < D; ++i)
            values[i] = static_cast<double>(point->Value(static_cast<std::int64_t>(i)));
        extremes.Add(values, matrix);
    }
    return extremes;
}

template <class C>
System::Ref<IBoxD> MappedBounds(const std::vector<System::Ref<C>>& points, const Matrix& matrix)
{
    if (points.empty())
        QUILON_RAISE(L"Vector of coordinates should not be empty");
    const std::int64_t dimension = MappedDimension(*points.front());
    const Geometry::Axes axes = points.front()->Axes();
    if (dimension == 2) {
        const MappedExtremes<2> e = MapAll<2>(points, *matrix);
        return BoxD::New(e.min[0], e.min[1], e.max[0], e.max[1], axes);
    }
    if (dimension == 3) {
        const MappedExtremes<3> e = MapAll<3>(points, *matrix);
        return BoxD::New(e.min[0], e.min[1], e.min[2], e.max[0], e.max[1], e.max[2], axes);
    }
    QUILON_RAISE(L"Function not implemented for coordinates of dimension %1%", dimension);
}

Matrix SquareMatrix(std::int64_t size)
{
    return Math::MatrixD::New(size, size);
}

} // namespace

void AssertSameAxes(const System::Ref<ICoordinates>& a, const System::Ref<ICoordinates>& b)
{
    AssertSameAxesOf(a, b);
}

void AssertSameAxes(const System::Ref<ICoordinatesF>& a, const System::Ref<ICoordinatesF>& b)
{
    AssertSameAxesOf(a, b);
}

void AssertSameAxes(const System::Ref<ICoordinatesD>& a, const System::Ref<ICoordinatesD>& b)
{
    AssertSameAxesOf(a, b);
}

// The product of all sizes is not kept: the last stride is that of the last
// axis.
System::Ref<ICoordinates> CumulatedSize(const System::Ref<IBox>& box)
{
    const System::Ref<ICoordinates> size = Coordinates::Subtract(box->Upper(), box->Lower());
    const System::Pointer<ICoordinates, 2> result = size;
    const std::int64_t count = result->AxisCount();
    if (count < 1)
        return result;
    result->SetValue(std::int64_t(0), std::int64_t(1));
    std::int64_t stride = 1;
    for (std::int64_t i = 1; i < count; ++i) {
        stride *= size->Value(i - 1);
        result->SetValue(i, stride);
    }
    return result;
}

std::int64_t Index(const System::Ref<ICoordinates>& location, const System::Ref<IBox>& box,
                   const System::Ref<ICoordinates>& cumulatedSize)
{
    const System::Ref<ICoordinates> lower = box->Lower();
    const System::Ref<ICoordinates> upper = box->Upper();
    AssertSameAxes(location, lower);
    const std::int64_t count = lower->AxisCount();
    std::int64_t index = 0;
    for (std::int64_t i = 0; i < count; ++i) {
        const std::int64_t value = location->Value(i);
        const std::int64_t first = lower->Value(i);
        if (value < first || value >= upper->Value(i))
            QUILON_RAISE(L"Location is out of bounds");
        index += cumulatedSize->Value(i) * (value - first);
    }
    return index;
}

System::Ref<ICoordinates> Location(std::int64_t index, const System::Ref<IBox>& box,
                                   const System::Ref<ICoordinates>& cumulatedSize)
{
    const System::Pointer<ICoordinates, 2> result = box->Lower();
    for (std::int64_t i = result->AxisCount() - 1; i >= 0; --i) {
        const std::int64_t step = cumulatedSize->Value(i);
        const std::int64_t quotient = index / step;
        index %= step;
        result->SetValue(i, result->Value(i) + quotient);
    }
    return result;
}

System::Ref<IBox> Bounds(const System::Ref<ICoordinatesCollection>& points)
{
    return IntegerBounds(*points);
}

System::Ref<IBoxF> Bounds(const System::Ref<ICoordinatesFCollection>& points)
{
    auto [min, max] = Extremes<FloatFamily>(*points);
    return BoxF::New(min, max);
}

System::Ref<IBoxD> Bounds(const System::Ref<ICoordinatesDCollection>& points)
{
    auto [min, max] = Extremes<DoubleFamily>(*points);
    return BoxD::New(min, max);
}

System::Ref<IBox> Bounds(const System::Ref<IWeightedCoordinatesCollection>& points)
{
    WeightedAsCoordinates coordinates(*points);
    return IntegerBounds(coordinates);
}

System::Ref<IBoxD> Bounds(const std::vector<System::Ref<ICoordinates>>& points,
                          System::Ref<Math::IMatrixD> matrix)
{
    return MappedBounds(points, matrix);
}

System::Ref<IBoxD> Bounds(const std::vector<System::Ref<ICoordinatesD>>& points,
                          System::Ref<Math::IMatrixD> matrix)
{
    return MappedBounds(points, matrix);
}

// The corners are made with the box's axes, x varying fastest. The message
// names Multiply, as it always has.
System::Ref<IBoxD> Bounds(System::Ref<IBoxD> box, System::Ref<Math::IMatrixD> matrix)
{
    const System::Ref<ICoordinatesD> lower = box->Lower();
    const System::Ref<ICoordinatesD> upper = box->Upper();
    const std::int64_t dimension = MappedDimension(*lower);
    const Geometry::Axes axes = lower->Axes();
    std::vector<System::Ref<ICoordinatesD>> corners;
    if (dimension == 2) {
        for (int corner = 0; corner < 4; ++corner) {
            corners.push_back(CoordinatesD::New((corner & 1 ? upper : lower)->Value(std::int64_t(0)),
                                                (corner & 2 ? upper : lower)->Value(std::int64_t(1)), axes));
        }
    } else if (dimension == 3) {
        for (int corner = 0; corner < 8; ++corner) {
            corners.push_back(CoordinatesD::New((corner & 1 ? upper : lower)->Value(std::int64_t(0)),
                                                (corner & 2 ? upper : lower)->Value(std::int64_t(1)),
                                                (corner & 4 ? upper : lower)->Value(std::int64_t(2)), axes));
        }
    } else {
        QUILON_RAISE(L"Dimension not supported in Quilon_::Geometry::Helper::Multiply: %1%", dimension);
    }
    return MappedBounds(corners, matrix);
}

System::Ref<Math::IMatrixD> ScaleMatrix(const System::Ref<ICoordinatesD>& factors)
{
    const std::int64_t count = factors->AxisCount();
    Matrix matrix = SquareMatrix(count + 1);
    for (std::int64_t i = 0; i < count; ++i)
        matrix->SetValue(i, i, factors->Value(i));
    matrix->SetValue(count, count, 1.0);
    return matrix;
}

System::Ref<Math::IMatrixD> ScaleMatrix(std::int64_t dimension, double factor)
{
    Matrix matrix = SquareMatrix(dimension + 1);
    for (std::int64_t i = 0; i < dimension; ++i)
        matrix->SetValue(i, i, factor);
    matrix->SetValue(dimension, dimension, 1.0);
    return matrix;
}

// The offset stands in the last row: row vectors are mapped.
System::Ref<Math::IMatrixD> TranslationMatrix(const System::Ref<ICoordinatesD>& offset)
{
    const std::int64_t count = offset->AxisCount();
    Matrix matrix = SquareMatrix(count + 1);
    for (std::int64_t i = 0; i < count; ++i) {
        matrix->SetValue(i, i, 1.0);
        matrix->SetValue(count, i, offset->Value(i));
    }
    matrix->SetValue(count, count, 1.0);
    return matrix;
}

System::Ref<Math::IMatrixD> ShearMatrix(const System::Ref<ICoordinatesD>& c)
{
    const std::int64_t count = c->AxisCount();
    Matrix matrix = SquareMatrix(count + 1);
    for (std::int64_t i = 0; i <= count; ++i)
        matrix->SetValue(i, i, 1.0);
    matrix->SetValue(0, 1, c->Value(std::int64_t(1)));
    matrix->SetValue(1, 0, c->Value(std::int64_t(0)));
    return matrix;
}

std::wstring ToString(const System::Ref<ICoordinates>& coordinates, bool skipBand)
{
    const Geometry::Axes axes = coordinates->Axes();
    const std::int64_t count = coordinates->AxisCount();
    std::wstring text;
    for (std::int64_t i = 0; i < count; ++i) {
        if (skipBand && axes.Axis(i) == aB)
            continue;
        text += std::to_wstring(coordinates->Value(i));
        text += L", ";
    }
    if (!text.empty())
        text.resize(text.size() - 2);
    return text;
}

} // namespace Quilon_::Geometry::Helper
