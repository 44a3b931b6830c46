#include "Quilon_/Geometry/TwoD/MultiPolygon.h"

#include "Quilon_/System/Type.h"

#include <utility>

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IMultiPolygonF, L"Quilon_::Geometry::TwoD::IMultiPolygonF", IBoxedF,
                             IPolyPointsF)

namespace MultiPolygonF {

Factory New;

QUILON_DEFINE_FUNCTION_SLOT(Area, 1, double (*)(MultiPolygon))
QUILON_DEFINE_FUNCTION_SLOT(Contains, 1, bool (*)(MultiPolygon, const Drawing::Point<float>&))
QUILON_DEFINE_FUNCTION_SLOT(Difference, 1, MaybeMultiPolygon (*)(Polygon, Polygon))
QUILON_DEFINE_FUNCTION_SLOT(Difference, 2, MaybeMultiPolygon (*)(MultiPolygon, MultiPolygon))
QUILON_DEFINE_FUNCTION_SLOT(Intersection, 1, MaybeMultiPolygon (*)(Polygon, Polygon))
QUILON_DEFINE_FUNCTION_SLOT(Intersection, 2, MaybeMultiPolygon (*)(MultiPolygon, MultiPolygon))
QUILON_DEFINE_FUNCTION_SLOT(Union, 1, MultiPolygon (*)(Polygon, Polygon))
QUILON_DEFINE_FUNCTION_SLOT(Union, 2, MultiPolygon (*)(MultiPolygon, Polygon))
QUILON_DEFINE_FUNCTION_SLOT(Union, 3, MultiPolygon (*)(Polygon, MultiPolygon))
QUILON_DEFINE_FUNCTION_SLOT(Union, 4, MultiPolygon (*)(MultiPolygon, MultiPolygon))

double Area(MultiPolygon region)
{
    return QUILON_FUNCTION_SLOT(Area, 1)(std::move(region));
}

bool Contains(MultiPolygon region, const Drawing::Point<float>& point)
{
    return QUILON_FUNCTION_SLOT(Contains, 1)(std::move(region), point);
}

MaybeMultiPolygon Difference(Polygon a, Polygon b)
{
    return QUILON_FUNCTION_SLOT(Difference, 1)(std::move(a), std::move(b));
}

MaybeMultiPolygon Difference(MultiPolygon a, MultiPolygon b)
{
    return QUILON_FUNCTION_SLOT(Difference, 2)(std::move(a), std::move(b));
}

MaybeMultiPolygon Intersection(Polygon a, Polygon b)
{
    return QUILON_FUNCTION_SLOT(Intersection, 1)(std::move(a), std::move(b));
}

MaybeMultiPolygon Intersection(MultiPolygon a, MultiPolygon b)
{
    return QUILON_FUNCTION_SLOT(Intersection, 2)(std::move(a), std::move(b));
}

MultiPolygon Union(Polygon a, Polygon b)
{
    return QUILON_FUNCTION_SLOT(Union, 1)(std::move(a), std::move(b));
}

MultiPolygon Union(MultiPolygon a, Polygon b)
{
    return QUILON_FUNCTION_SLOT(Union, 2)(std::move(a), std::move(b));
}

MultiPolygon Union(Polygon a, MultiPolygon b)
{
    return QUILON_FUNCTION_SLOT(Union, 3)(std::move(a), std::move(b));
}

MultiPolygon Union(MultiPolygon a, MultiPolygon b)
{
    return QUILON_FUNCTION_SLOT(Union, 4)(std::move(a), std::move(b));
}

} // namespace MultiPolygonF

} // namespace Quilon_::Geometry::TwoD
