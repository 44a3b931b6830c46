#include "Quilon_/Geometry/ThreeD/Shape.h"

#include "Quilon_/Geometry/ThreeD/Line.h"
#include "Quilon_/Geometry/ThreeD/PointSet.h"
#include "Quilon_/System/Type.h"

#include <utility>

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IShape, L"Quilon_::Geometry::ThreeD::IShape", IShapeND)

namespace Shape {

QUILON_DEFINE_FUNCTION_SLOT(Intersection, 1,
                            System::Ref<IPointFSet> (*)(System::Ref<IShape>, System::Ref<ILineF>))

System::Ref<IPointFSet> Intersection(System::Ref<IShape> shape, System::Ref<ILineF> line)
{
    return QUILON_FUNCTION_SLOT(Intersection, 1)(std::move(shape), std::move(line));
}

} // namespace Shape

} // namespace Quilon_::Geometry::ThreeD
