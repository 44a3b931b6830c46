// Structuring elements: the predefined shapes and elements from points, for
// the core's New objects. The offsets are kept as a plain vector, which is
// what a morphology loop reads.
#include "Geometry/NgbGraphOffsets.h"

#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Quilon_::Basic::Geometry {

using namespace ::Quilon_::Geometry;
using System::Ref;

namespace {

class CStructuringElement : public System::Template::ObjectImpl<CStructuringElement, IStructuringElement>,
                            public OffsetsView {
public:
    CStructuringElement(QG::Axes axes, double radius, std::vector<Offset> offsets)
        : m_axes(axes), m_radius(radius), m_offsets(std::move(offsets)), m_extent(ExtentOf(m_offsets))
    {
    }

    QG::Axes Axes() override { return m_axes; }
    Ref<ICoordinatesCollection> Points() override
    {
        Ref<ICoordinatesCollection> points = CoordinatesCollection::New();
        for (const Offset& offset : m_offsets)
            points->Add(ToCoordinates(offset, m_axes));
        return points;
    }
    Ref<IBox> Bounds() override { return ToBox(m_extent, m_axes); }
    std::vector<unsigned char> Mask() override
    {
        std::vector<unsigned char> mask(static_cast<std::size_t>(m_extent.Count()), 0);
        for (const Offset& offset : m_offsets)
            mask[static_cast<std::size_t>(m_extent.Index(offset))] = 1;
        return mask;
    }
    double Radius() override { return m_radius; }
    Ref<IStructuringElement> Transposed() override
    {
        std::vector<Offset> reflected;
        reflected.reserve(m_offsets.size());
        for (const Offset& o : m_offsets)
            reflected.push_back({-o.x, -o.y, -o.z});
        return Ref<IStructuringElement>(new CStructuringElement(m_axes, m_radius, std::move(reflected)));
    }

    std::span<const Offset> Offsets() const override { return m_offsets; }

private:
    QG::Axes m_axes;
    double m_radius;
    std::vector<Offset> m_offsets;
    Extent m_extent;
};

// Whether the offset (x, y, z) belongs to the predefined element of
// `radius`; the caller walks the cube of half-side floor(radius).
bool Contains(PredefinedStructuringElementEnum value, double radius, std::int64_t x, std::int64_t y,
              std::int64_t z)
{
    const double squared = static_cast<double>(x * x + y * y + z * z);
    const std::int64_t city = std::abs(x) + std::abs(y) + std::abs(z);
    switch (value) {
    case pseSquare:
    case pseCube:
        return true;
    case pseDiamond:
    case pseOctahedron:
        return static_cast<double>(city) <= radius;
    case pseDisk:
    case pseBall:
        return squared <= radius * radius;
    case pseHorizontalLine:
        return y == 0;
    case pseVerticalLine:
        return x == 0;
    case pseLine45:
        return y == -x;
    case pseLine135:
        return y == x;
    }
    return false;
}

std::int64_t DimensionOf(PredefinedStructuringElementEnum value)
{
    switch (value) {
    case pseSquare:
    case pseDiamond:
    case pseDisk:
    case pseHorizontalLine:
    case pseVerticalLine:
    case pseLine45:
    case pseLine135:
        return 2;
    case pseCube:
    case pseOctahedron:
    case pseBall:
        return 3;
    }
    QUILON_RAISE(L"Unknown predefined structuring element: %1%", System::ToString(value));
}

Ref<IStructuringElement> NewPredefinedOn(PredefinedStructuringElementEnum value, double radius, QG::Axes axes)
{
    const std::int64_t dimension = DimensionOf(value);
    if (!(radius >= 0))
        QUILON_RAISE(L"The radius of a structuring element must not be negative: %1%", radius);
    CheckSpatialAxes(axes, dimension);
    const auto r = static_cast<std::int64_t>(std::floor(radius));
    const std::int64_t rz = dimension == 3 ? r : 0;
    std::vector<Offset> offsets;
    for (std::int64_t z = -rz; z <= rz; ++z)
        for (std::int64_t y = -r; y <= r; ++y)
            for (std::int64_t x = -r; x <= r; ++x)
                if (Contains(value, radius, x, y, z))
                    offsets.push_back({x, y, z});
    return Ref<IStructuringElement>(new CStructuringElement(axes, radius, std::move(offsets)));
}

Ref<IStructuringElement> NewPredefined(PredefinedStructuringElementEnum value, double radius)
{
    return NewPredefinedOn(value, radius, DimensionOf(value) == 3 ? QG::Axes::aXYZ : QG::Axes::aXY);
}

Ref<IStructuringElement> NewFromPoints(Ref<ICoordinatesCollection> points)
{
    if (points->Count() == 0)
        QUILON_RAISE(L"A structuring element needs at least one point");
    const QG::Axes axes = points->Item(0)->Axes();
    std::vector<Offset> offsets;
    std::int64_t radius = 0;
    for (std::int64_t i = 0; i < points->Count(); ++i) {
        Ref<ICoordinates> point = points->Item(i);
        if (point->Axes() != axes)
            QUILON_RAISE(L"The points of a structuring element have different axes: '%1%' and '%2%'",
                         axes.ToString(), point->Axes().ToString());
        const Offset offset = ToOffset(*point);
        if (std::find(offsets.begin(), offsets.end(), offset) != offsets.end())
            continue;
        offsets.push_back(offset);
        radius = std::max({radius, std::abs(offset.x), std::abs(offset.y), std::abs(offset.z)});
    }
    return Ref<IStructuringElement>(
        new CStructuringElement(axes, static_cast<double>(radius), std::move(offsets)));
}

// Every integer offset p of the scaled shape's bounds such that the shape
// contains p / scale: one Contains call per candidate, paid once.
Ref<IStructuringElement> NewFromShape(Ref<IShapeND> shape, double scale)
{
    if (!(scale > 0))
        QUILON_RAISE(L"The scale of a structuring element must be positive: %1%", scale);
    const QG::Axes axes = shape->Axes();
    const std::vector<AxisEnum> spatial = SpatialAxes(axes);
    if (spatial.empty() || spatial.size() > 3)
        QUILON_RAISE(L"Axes '%1%' have fewer than %2% spatial axes", axes.ToString(), std::int64_t(1));
    Ref<IBoxD> bounds = shape->Bounds();
    Ref<ICoordinatesD> lower = bounds->Lower(), upper = bounds->Upper();
    Offset from, to;
    std::int64_t* low[] = {&from.x, &from.y, &from.z};
    std::int64_t* high[] = {&to.x, &to.y, &to.z};
    for (std::size_t i = 0; i < spatial.size(); ++i) {
        *low[i] = static_cast<std::int64_t>(std::floor(lower->Value(spatial[i]) * scale));
        *high[i] = static_cast<std::int64_t>(std::ceil(upper->Value(spatial[i]) * scale));
    }
    Ref<ICoordinatesD> probe = CoordinatesD::New(axes);
    std::vector<Offset> offsets;
    std::int64_t radius = 0;
    for (std::int64_t z = from.z; z <= to.z; ++z)
        for (std::int64_t y = from.y; y <= to.y; ++y)
            for (std::int64_t x = from.x; x <= to.x; ++x) {
                const std::int64_t values[] = {x, y, z};
                for (std::size_t i = 0; i < spatial.size(); ++i)
                    probe->SetValue(spatial[i], static_cast<double>(values[i]) / scale);
                if (!shape->Contains(probe))
                    continue;
                offsets.push_back({x, y, z});
                radius = std::max({radius, std::abs(x), std::abs(y), std::abs(z)});
            }
    if (offsets.empty())
        QUILON_RAISE(L"A structuring element needs at least one point");
    return Ref<IStructuringElement>(
        new CStructuringElement(axes, static_cast<double>(radius), std::move(offsets)));
}

void RegisterStructuringElements()
{
    const wchar_t* name = L"Structuring element";
    StructuringElement::New.Register(name, &NewFromShape);
    StructuringElement::New.Register(name, &NewPredefined);
    StructuringElement::New.Register(name, &NewPredefinedOn);
    StructuringElement::New.Register(name, &NewFromPoints);
}

const System::Template::Initializer<::Library> structuringElements(&RegisterStructuringElements, nullptr,
                                                                   0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry
