// The 3-D shapes: the root of the solid family, and the registered
// intersection of a shape with a line.
//
//   Ref<Geometry::ThreeD::IShape> solid = ...;
//   double v = solid->Volume();
//   Ref<Geometry::ThreeD::IPointFSet> hits = Geometry::ThreeD::Shape::Intersection(solid, ray);
#pragma once

#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/System/Functions/FunctionSlot.h"

namespace Quilon_::Geometry::ThreeD {

class ILineF;
class IPointFSet;

class QUILON_API IShape : public virtual IShapeND {
    QUILON_INTERFACE(IShape)
public:
    // The enclosed volume, never negative; 0 for points, lines and chains.
    virtual double Volume() = 0;
};

namespace Shape {
// The points where `line` meets the surface of `shape`, in the order met
// from the line's start; an empty set when they do not meet.
QUILON_API System::Ref<IPointFSet> Intersection(System::Ref<IShape> shape, System::Ref<ILineF> line);
QUILON_DECLARE_FUNCTION_SLOT(Intersection, 1,
                             System::Ref<IPointFSet> (*)(System::Ref<IShape>, System::Ref<ILineF>));
} // namespace Shape

} // namespace Quilon_::Geometry::ThreeD
