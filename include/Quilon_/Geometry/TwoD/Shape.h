// The 2-D shapes: the root of the planar family and its sizing, on top of
// the dimension-free shape. Coordinates are x to the right, y down, as on
// a view; areas and perimeters are in the same units.
//
//   Ref<Geometry::TwoD::IShape> shape = Geometry::TwoD::PolygonF::New(points, Geometry::Axes::aXY);
//   shape->Offset(10, 0);
//   double area = shape->Area();
//   Pointer<Geometry::TwoD::ISizeable, 0>(shape)->Scale(2, 2);   // about the centre
#pragma once

#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/Geometry/TwoD/EditingMode.h"

namespace Quilon_::Geometry::TwoD {

class QUILON_API IShape : public virtual IShapeND {
    QUILON_INTERFACE(IShape)
public:
    virtual EditingModeEnum EditingMode() = 0;
    virtual void SetEditingMode(EditingModeEnum mode) = 0;
    // Moves the shape by (dx, dy); fires Moved().
    virtual void Offset(double dx, double dy) = 0;
    // The enclosed area, never negative; 0 for points and lines.
    virtual double Area() = 0;
    // The length of the outline; twice the length for an open line.
    virtual double Perimeter() = 0;
};

class QUILON_API ISizeable : public virtual ISizeableND {
    QUILON_INTERFACE(ISizeable)
public:
    // Scales about the centre of the bounds; fires Resized().
    virtual void Scale(double factorX, double factorY) = 0;
};

} // namespace Quilon_::Geometry::TwoD
