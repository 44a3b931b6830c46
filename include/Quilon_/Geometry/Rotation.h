// Rotations of coordinates about a center, in two or three dimensions:
//
//   using namespace Quilon_::Geometry;
//   System::Ref<ICoordinatesD> origin = CoordinatesD::New(0.0, 0.0, Axes::aXY);
//   System::Ref<IRotation> quarter = Rotation::New(std::numbers::pi / 2, origin);
//   quarter->Rotate(CoordinatesD::New(1.0, 0.0, Axes::aXY));   // (0, 1)
//   Helper::Bounds(box, quarter->HomogeneousMatrix());         // the extent of a rotated box
//
// Angles are in radians; a positive angle turns the x axis towards the y
// axis.
#pragma once

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Math/Matrix.h"

#include <cstdint>

namespace Quilon_::Geometry {

class QUILON_API IRotation : public virtual System::Interface {
    QUILON_INTERFACE(IRotation)
public:
    // 2 or 3.
    virtual std::int64_t Dimension() = 0;
    // The d x d rotation matrix R acting on column vectors: a point p goes
    // to R (p - c) + c, c being the center. A copy.
    virtual System::Ref<Math::IMatrixD> Matrix() = 0;
    // A copy of the center.
    virtual System::Ref<ICoordinatesD> Center() = 0;
    // A center of `Dimension()` axes.
    virtual void SetCenter(System::Ref<ICoordinatesD> center) = 0;
    // The same mapping as a (d+1) x (d+1) matrix in the row-vector
    // convention of Helper (ScaleMatrix, Bounds with a matrix).
    virtual System::Ref<Math::IMatrixD> HomogeneousMatrix() = 0;
    // A new point: `point` rotated. Its axes must be those of the center.
    virtual System::Ref<ICoordinatesD> Rotate(System::Ref<ICoordinatesD> point) = 0;
    // The rotation back, about the same center.
    virtual System::Ref<IRotation> Inverse() = 0;
};

// 1: a two-dimensional rotation by an angle; 2: a three-dimensional one by
// angles about X, Y and Z, applied in this order; 3: from a 2 x 2 or 3 x 3
// rotation matrix; 4: from a matrix, about the origin.
namespace Rotation {
using Reference = System::Ref<IRotation>;
using Factory =
    System::Functions::Template::Factory<Reference(double, System::Ref<ICoordinatesD>),
                                         Reference(double, double, double, System::Ref<ICoordinatesD>),
                                         Reference(System::Ref<Math::IMatrixD>, System::Ref<ICoordinatesD>),
                                         Reference(System::Ref<Math::IMatrixD>)>;
extern QUILON_API Factory New;
} // namespace Rotation

} // namespace Quilon_::Geometry
