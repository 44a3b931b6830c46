// Structuring elements of mathematical morphology: a set of integer offsets
// around the origin. An erosion keeps a point when every offset of the
// element lands on the object; a dilation uses the transposed element.
//
//   using namespace Quilon_::Geometry;
//   System::Ref<IStructuringElement> disk = StructuringElement::New(pseDisk, 2.0);   // on aXY
//   disk->Points()->Count();                 // how many offsets (13 in the reference library)
//   disk->Mask();                            // 1 or 0 for each location of disk->Bounds()
//   System::Ref<IStructuringElement> ball = StructuringElement::New(pseBall, 1.0, Axes::aXYZ);
//
// Elements are values: an implementation makes them immutable, and the
// collections and vectors they return are copies.
#pragma once

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/PredefinedStructuringElement.h"

#include <vector>

namespace Quilon_::Geometry {

class IShapeND;

class QUILON_API IStructuringElement : public virtual System::Interface {
    QUILON_INTERFACE(IStructuringElement)
public:
    // The axes of the offsets.
    virtual Geometry::Axes Axes() = 0;
    // The offsets, each once.
    virtual System::Ref<ICoordinatesCollection> Points() = 0;
    // The integer box of the offsets, upper corner exclusive.
    virtual System::Ref<IBox> Bounds() = 0;
    // 1 for an offset of the element, 0 for any other location of
    // Bounds(), the first axis varying fastest (the order of
    // Helper::CumulatedSize).
    virtual std::vector<unsigned char> Mask() = 0;
    // The radius the element was made with; for an element made from
    // points, the largest absolute value of any offset.
    virtual double Radius() = 0;
    // The point reflection (q -> -q), which a dilation uses.
    virtual System::Ref<IStructuringElement> Transposed() = 0;
};

// 1: the element covered by a shape, scaled by the factor; 2: a predefined
// element of a radius, on aXY or aXYZ according to its dimension; 3: the
// same on the given axes; 4: the given offsets.
namespace StructuringElement {
using Reference = System::Ref<IStructuringElement>;
using Factory =
    System::Functions::Template::Factory<Reference(System::Ref<IShapeND>, double),
                                         Reference(PredefinedStructuringElementEnum, double),
                                         Reference(PredefinedStructuringElementEnum, double, Geometry::Axes),
                                         Reference(System::Ref<ICoordinatesCollection>)>;
extern QUILON_API Factory New;
} // namespace StructuringElement

} // namespace Quilon_::Geometry
