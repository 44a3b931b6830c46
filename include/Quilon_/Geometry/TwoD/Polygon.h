// A simple 2-D polygon: one closed loop of points, the last joined back to
// the first. Its area and convex hull are registered functions, computed
// by a loaded library.
//
//   Ref<Geometry::TwoD::IPolygonF> square = Geometry::TwoD::PolygonF::New(points, Geometry::Axes::aXY);
//   double area = Geometry::TwoD::PolygonF::Area(square);
//   Ref<Geometry::TwoD::IPolygonF> hull = Geometry::TwoD::PolygonF::ConvexHull(square);
#pragma once

#include "Quilon_/Geometry/TwoD/BoxedF.h"
#include "Quilon_/Geometry/TwoD/PolyPoints.h"
#include "Quilon_/System/Functions/FunctionSlot.h"

namespace Quilon_::Geometry::TwoD {

// A polygon adds no operation: being one is what tells it from a chain.
class QUILON_API IPolygonF : public virtual IBoxedF, public virtual IPolyPointsF {
    QUILON_INTERFACE(IPolygonF)
};

namespace PolygonF {

// New(axes) is empty; New(points, axes) takes the list as its own.
using Factory =
    System::Functions::Template::Factory<System::Ref<IPolygonF>(Geometry::Axes),
                                         System::Ref<IPolygonF>(System::Ref<Drawing::IPointFCollection>,
                                                                Geometry::Axes)>;
extern QUILON_API Factory New;

QUILON_API double Area(System::Ref<IPolygonF> polygon);
QUILON_DECLARE_FUNCTION_SLOT(Area, 1, double (*)(System::Ref<IPolygonF>));

// A new polygon: the smallest convex one holding every point.
QUILON_API System::Ref<IPolygonF> ConvexHull(System::Ref<IPolygonF> polygon);
QUILON_DECLARE_FUNCTION_SLOT(ConvexHull, 1, System::Ref<IPolygonF> (*)(System::Ref<IPolygonF>));

} // namespace PolygonF

} // namespace Quilon_::Geometry::TwoD
