// Attributes of a geometric shape per object: the regions of a labelling
// as bitmap shapes, or vectors, lines, chains. DataType() is the shape
// interface (TwoD::IBitmapShape, ThreeD::IBitmapShape, TwoD::IVectorF...).
// Reading an unset cell gives an empty Pointer.
//
//   Pointer<ObjectSets::ISpatialAttribute, 1> shapes(set->Attributes()->Item(L"Shape"));
//   shapes->Dimension();           // 2 for TwoD shapes
//   shapes->ShapeBounds(key);      // the bounding box of the key's shape
#pragma once

#include "Quilon_/ObjectSets/Attribute.h"

#include <cstdint>

namespace Quilon_::Geometry {
class IShapeND;
class IBoxD;
} // namespace Quilon_::Geometry

namespace Quilon_::ObjectSets {

class QUILON_API ISpatialAttribute : public virtual IAttribute {
    QUILON_INTERFACE(ISpatialAttribute)
public:
    // The number of spatial dimensions of the shapes.
    virtual std::int64_t Dimension() = 0;
    virtual System::Pointer<Quilon_::Geometry::IShapeND, 0> ShapeValue(Key key) = 0;
    virtual void SetShapeValue(Key key, System::Ref<Quilon_::Geometry::IShapeND> shape) = 0;
    // The bounding box of the cell's shape; empty when the cell is unset.
    virtual System::Pointer<Quilon_::Geometry::IBoxD, 0> ShapeBounds(Key key) = 0;
};

} // namespace Quilon_::ObjectSets
