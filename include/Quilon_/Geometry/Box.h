// Boxes: axis-aligned extents between a lower and an upper corner, of the
// three numeric kinds, and the predicates and combinators computed here.
//
//   using namespace Quilon_::Geometry;
//   System::Ref<IBox> a = Box::New(0, 0, 4, 3, Axes::aXY);   // x0, y0, x1, y1
//   System::Ref<IBox> b = Box::New(4, 0, 8, 3, Axes::aXY);
//   Box::Intersects(a, b);                  // false: they only touch
//   Box::Union(a, b)->Upper()->X();         // 8
//   a->Upper()->SetValue(aX, 5);            // the corners are live: a grows
//
// An integer box has an exclusive upper corner: v is inside when
// Lower[i] <= v < Upper[i] on each axis. Float and double boxes made from
// point sets have the largest coordinate itself as the upper corner.
//
// The predicates compare through the calling thread's default approximator
// (Math/Approximator.h), every value as a double, integer boxes included;
// Union compares exactly. The concrete boxes come from the implementation
// library through the New objects.
#pragma once

#include "Quilon_/Geometry/Coordinates.h"

namespace Quilon_::Geometry {

namespace Template {

// The operations of a box over coordinates of interface C, in slot order.
template <class C>
class QUILON_API IBoxOf : public virtual System::Interface {
public:
    using CoordinatesType = C;

    virtual Geometry::Axes Axes() const = 0;
    virtual void SetAxes(Geometry::Axes axes) = 0;
    // The corners are live: SetValue on them changes the box.
    virtual System::Ref<C> Lower() const = 0;
    virtual void SetLower(System::Ref<C> lower) = 0;
    virtual System::Ref<C> Upper() const = 0;
    virtual void SetUpper(System::Ref<C> upper) = 0;
    // A new coordinates object holding Upper - Lower on each axis; not
    // called by this library.
    virtual System::Ref<C> Size() const = 0;
    // In place: puts each axis's lower and upper value in order.
    virtual void Normalize() = 0;
};

} // namespace Template

class QUILON_API IBox : public Template::IBoxOf<ICoordinates> {
    QUILON_INTERFACE(IBox)
};
class QUILON_API IBoxF : public Template::IBoxOf<ICoordinatesF> {
    QUILON_INTERFACE(IBoxF)
};
class QUILON_API IBoxD : public Template::IBoxOf<ICoordinatesD> {
    QUILON_INTERFACE(IBoxD)
};

// Each family: New, and the functions computed here. All take their
// arguments by value and hold them to the end of the call.
//   New(axes)                         an empty box of those axes
//   New(x0, y0, x1, y1, axes)
//   New(x0, y0, z0, x1, y1, z1, axes)
//   New(lower, upper)                 holds the given corners
//   Contains(a, b)      a contains b, within the tolerance
//   Intersects(a, b)    they overlap by more than the tolerance on every axis
//   Intersection(a, b)  the common part, or New(a->Axes()) when they do not intersect
//   Union(a, b)         a clone of a, grown to cover b (exact comparisons)
//   Normalize(b)        a normalised clone; b stays as it is
//   Round(b, method)    (BoxF, BoxD) both corners rounded by `method`
namespace Box {
using ValueType = std::int64_t;
using Reference = System::Ref<IBox>;
using Corner = System::Ref<ICoordinates>;
using Factory = System::Functions::Template::Factory<
    Reference(Geometry::Axes), Reference(ValueType, ValueType, ValueType, ValueType, Geometry::Axes),
    Reference(ValueType, ValueType, ValueType, ValueType, ValueType, ValueType, Geometry::Axes),
    Reference(Corner, Corner)>;
extern QUILON_API Factory New;

QUILON_API Reference Normalize(Reference box);
QUILON_API Reference Intersection(Reference a, Reference b);
QUILON_API Reference Union(Reference a, Reference b);
QUILON_API bool Intersects(Reference a, Reference b);
QUILON_API bool Contains(Reference a, Reference b);
} // namespace Box

namespace BoxF {
using ValueType = float;
using Reference = System::Ref<IBoxF>;
using Corner = System::Ref<ICoordinatesF>;
using Factory = System::Functions::Template::Factory<
    Reference(Geometry::Axes), Reference(ValueType, ValueType, ValueType, ValueType, Geometry::Axes),
    Reference(ValueType, ValueType, ValueType, ValueType, ValueType, ValueType, Geometry::Axes),
    Reference(Corner, Corner)>;
extern QUILON_API Factory New;

QUILON_API Reference Normalize(Reference box);
QUILON_API Reference Intersection(Reference a, Reference b);
QUILON_API Reference Union(Reference a, Reference b);
QUILON_API bool Intersects(Reference a, Reference b);
QUILON_API bool Contains(Reference a, Reference b);
QUILON_API System::Ref<IBox> Round(Reference box, Math::RoundingMethodEnum method);
} // namespace BoxF

namespace BoxD {
using ValueType = double;
using Reference = System::Ref<IBoxD>;
using Corner = System::Ref<ICoordinatesD>;
using Factory = System::Functions::Template::Factory<
    Reference(Geometry::Axes), Reference(ValueType, ValueType, ValueType, ValueType, Geometry::Axes),
    Reference(ValueType, ValueType, ValueType, ValueType, ValueType, ValueType, Geometry::Axes),
    Reference(Corner, Corner)>;
extern QUILON_API Factory New;

QUILON_API Reference Normalize(Reference box);
QUILON_API Reference Intersection(Reference a, Reference b);
QUILON_API Reference Union(Reference a, Reference b);
QUILON_API bool Intersects(Reference a, Reference b);
QUILON_API bool Contains(Reference a, Reference b);
QUILON_API System::Ref<IBox> Round(Reference box, Math::RoundingMethodEnum method);
} // namespace BoxD

} // namespace Quilon_::Geometry
