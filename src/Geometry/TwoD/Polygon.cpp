#include "Quilon_/Geometry/TwoD/Polygon.h"

#include "Quilon_/System/Type.h"

#include <utility>

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IPolygonF, L"Quilon_::Geometry::TwoD::IPolygonF", IBoxedF, IPolyPointsF)

namespace PolygonF {

Factory New;

QUILON_DEFINE_FUNCTION_SLOT(Area, 1, double (*)(System::Ref<IPolygonF>))
QUILON_DEFINE_FUNCTION_SLOT(ConvexHull, 1, System::Ref<IPolygonF> (*)(System::Ref<IPolygonF>))

double Area(System::Ref<IPolygonF> polygon)
{
    return QUILON_FUNCTION_SLOT(Area, 1)(std::move(polygon));
}

System::Ref<IPolygonF> ConvexHull(System::Ref<IPolygonF> polygon)
{
    return QUILON_FUNCTION_SLOT(ConvexHull, 1)(std::move(polygon));
}

} // namespace PolygonF

} // namespace Quilon_::Geometry::TwoD
