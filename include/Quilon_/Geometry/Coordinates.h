// Positions: coordinates objects of the three numeric kinds, their
// collections, and the registered functions that compute with them.
//
// A coordinates object carries its own set of axes and one value per axis,
// listed in ascending bit order (X, Y, Z, T, B). The concrete classes and
// all arithmetic come from the implementation library loaded at start-up:
//
//   using namespace Quilon_::Geometry;
//   System::Ref<ICoordinates> a = Coordinates::New(2, 3, Axes::aXY);
//   System::Ref<ICoordinates> b = Coordinates::New(1, 1, Axes::aXY);
//   System::Ref<ICoordinates> sum = Coordinates::Add(a, b);     // (3, 4)
//   sum->Value(1);                                               // 4
//   sum->SetValue(aX, 7);                                        // (7, 4)
//   System::Ref<ICoordinatesD> d = Coordinates::ToCoordinatesD(sum);
//
// The integer, float and double families are distinct interfaces with the
// same eighteen operations in the same slot order; Template::ICoordinatesOf
// writes them once. Each registered function `Op` of a family comes with
// `SetOpFunctionN` and `OpFunctionNIsImplemented`; without a registered
// pointer a call raises "Function has no implementation". The functions
// test nothing themselves: axis agreement and rounding are the registered
// implementation's concern.
#pragma once

#include "Quilon_/Geometry/Axes.h"
#include "Quilon_/Math/Approximator.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Functions/FunctionSlot.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace Quilon_::Geometry {

namespace Template {

// The operations of a coordinates object with values of type V, in slot
// order. Positions count among the object's own axes in ascending bit
// order; Value and SetValue by position or by axis raise in the
// implementation when the object lacks it.
template <class V>
class QUILON_API ICoordinatesOf : public virtual System::Interface {
public:
    using ValueType = V;

    virtual Geometry::Axes Axes() const = 0;
    // Image-building code adds or removes aB with it.
    virtual void SetAxes(Geometry::Axes axes) = 0;
    virtual V X() = 0;
    virtual void SetX(V value) = 0;
    virtual V Y() = 0;
    virtual void SetY(V value) = 0;
    virtual V Z() = 0;
    virtual void SetZ(V value) = 0;
    virtual V T() = 0;
    virtual void SetT(V value) = 0;
    virtual V B() = 0;
    virtual void SetB(V value) = 0;
    virtual V Value(std::int64_t index) = 0;
    virtual V Value(AxisEnum axis) = 0;
    virtual void SetValue(std::int64_t index, V value) = 0;
    virtual void SetValue(AxisEnum axis, V value) = 0;
    virtual std::int64_t AxisCount() const = 0;
    // The position of `axis`, or a negative number if the object lacks it.
    virtual std::int64_t IndexOfAxis(AxisEnum axis) = 0;
};

} // namespace Template

// Each is mutable and cloneable: a concrete class offers System::ICloneable,
// so that Pointer<..., 2> copies it, and System::IEquatable by value.
class QUILON_API ICoordinates : public Template::ICoordinatesOf<std::int64_t> {
    QUILON_INTERFACE(ICoordinates)
};
class QUILON_API ICoordinatesF : public Template::ICoordinatesOf<float> {
    QUILON_INTERFACE(ICoordinatesF)
};
class QUILON_API ICoordinatesD : public Template::ICoordinatesOf<double> {
    QUILON_INTERFACE(ICoordinatesD)
};

// Lists of coordinates. Each adds one operation to the collection's twelve:
// ToVector, the items in order as a plain vector of references (the same
// objects, not copies), for code that hands the points to a function
// taking a vector, such as Helper::Bounds with a matrix.
class QUILON_API ICoordinatesCollection : public System::Collections::Template::ICollection<ICoordinates> {
    QUILON_INTERFACE(ICoordinatesCollection)
public:
    virtual std::vector<System::Ref<ICoordinates>> ToVector() = 0;
};
class QUILON_API ICoordinatesFCollection : public System::Collections::Template::ICollection<ICoordinatesF> {
    QUILON_INTERFACE(ICoordinatesFCollection)
public:
    virtual std::vector<System::Ref<ICoordinatesF>> ToVector() = 0;
};
class QUILON_API ICoordinatesDCollection : public System::Collections::Template::ICollection<ICoordinatesD> {
    QUILON_INTERFACE(ICoordinatesDCollection)
public:
    virtual std::vector<System::Ref<ICoordinatesD>> ToVector() = 0;
};

} // namespace Quilon_::Geometry

// Declares a registered function and its two companions in one line, with
// the parameter types only: QUILON_GEOMETRY_FUNCTION(Add, 2, R, A, B)
// declares `R Add(A, B)`, `SetAddFunction2` and `AddFunction2IsImplemented`.
#define QUILON_GEOMETRY_FUNCTION(Name, Number, Result, ...)                                                  \
    QUILON_API Result Name(__VA_ARGS__);                                                                     \
    QUILON_DECLARE_FUNCTION_SLOT(Name, Number, Result (*)(__VA_ARGS__))

namespace Quilon_::Geometry {

// The spatial dimension is computed here: the number of axes.
namespace Coordinates {

using ValueType = std::int64_t;
using Reference = System::Ref<ICoordinates>;

// The number of set bits of `axes`, as Axes::AxisCount.
QUILON_API std::int64_t AxisCount(Geometry::Axes axes);

// 1: (axes), values 0; 2 to 5: the values of the first axes of `axes`, in
// ascending bit order; 6: X, Y, Z, T, B.
using Factory =
    System::Functions::Template::Factory<Reference(Geometry::Axes), Reference(ValueType, Geometry::Axes),
                                         Reference(ValueType, ValueType, Geometry::Axes),
                                         Reference(ValueType, ValueType, ValueType, Geometry::Axes),
                                         Reference(ValueType, ValueType, ValueType, ValueType,
                                                   Geometry::Axes),
                                         Reference(ValueType, ValueType, ValueType, ValueType, ValueType)>;
extern QUILON_API Factory New;

QUILON_GEOMETRY_FUNCTION(Product, 1, ValueType, Reference);
QUILON_GEOMETRY_FUNCTION(IsNull, 1, bool, Reference);
QUILON_GEOMETRY_FUNCTION(Min, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Max, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Set, 1, void, Reference, ValueType);
QUILON_GEOMETRY_FUNCTION(Add, 1, Reference, Reference, ValueType);
QUILON_GEOMETRY_FUNCTION(Add, 2, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Subtract, 1, Reference, Reference, ValueType);
QUILON_GEOMETRY_FUNCTION(Subtract, 2, Reference, Reference, Reference);
// The factor is a double for the integer family too.
QUILON_GEOMETRY_FUNCTION(Multiply, 1, Reference, Reference, double);
QUILON_GEOMETRY_FUNCTION(Multiply, 2, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Divide, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(DotProduct, 1, ValueType, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(CrossProduct, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Abs, 1, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Minus, 1, Reference, Reference);
// A new object restricted to `axes`.
QUILON_GEOMETRY_FUNCTION(Copy, 1, Reference, Reference, Geometry::Axes);
QUILON_GEOMETRY_FUNCTION(ToCoordinatesD, 1, System::Ref<ICoordinatesD>, Reference);

} // namespace Coordinates

namespace CoordinatesF {

using ValueType = float;
using Reference = System::Ref<ICoordinatesF>;

using Factory =
    System::Functions::Template::Factory<Reference(Geometry::Axes), Reference(ValueType, Geometry::Axes),
                                         Reference(ValueType, ValueType, Geometry::Axes),
                                         Reference(ValueType, ValueType, ValueType, Geometry::Axes),
                                         Reference(ValueType, ValueType, ValueType, ValueType,
                                                   Geometry::Axes),
                                         Reference(ValueType, ValueType, ValueType, ValueType, ValueType)>;
extern QUILON_API Factory New;

QUILON_GEOMETRY_FUNCTION(Product, 1, ValueType, Reference);
QUILON_GEOMETRY_FUNCTION(IsNull, 1, bool, Reference);
QUILON_GEOMETRY_FUNCTION(Min, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Max, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Set, 1, void, Reference, ValueType);
QUILON_GEOMETRY_FUNCTION(Add, 1, Reference, Reference, ValueType);
QUILON_GEOMETRY_FUNCTION(Add, 2, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Subtract, 1, Reference, Reference, ValueType);
QUILON_GEOMETRY_FUNCTION(Subtract, 2, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Multiply, 1, Reference, Reference, double);
// The point as a row vector times the homogeneous matrix (Helper.h).
QUILON_GEOMETRY_FUNCTION(Multiply, 2, Reference, System::Ref<Math::IMatrixD>, Reference);
QUILON_GEOMETRY_FUNCTION(Multiply, 3, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Divide, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(DotProduct, 1, ValueType, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(CrossProduct, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Abs, 1, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Minus, 1, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Copy, 1, Reference, Reference, Geometry::Axes);
QUILON_GEOMETRY_FUNCTION(Norm, 1, ValueType, Reference);
QUILON_GEOMETRY_FUNCTION(Normalize, 1, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(ToCoordinates, 1, System::Ref<ICoordinates>, Reference, Math::RoundingMethodEnum);

} // namespace CoordinatesF

namespace CoordinatesD {

using ValueType = double;
using Reference = System::Ref<ICoordinatesD>;

using Factory =
    System::Functions::Template::Factory<Reference(Geometry::Axes), Reference(ValueType, Geometry::Axes),
                                         Reference(ValueType, ValueType, Geometry::Axes),
                                         Reference(ValueType, ValueType, ValueType, Geometry::Axes),
                                         Reference(ValueType, ValueType, ValueType, ValueType,
                                                   Geometry::Axes),
                                         Reference(ValueType, ValueType, ValueType, ValueType, ValueType)>;
extern QUILON_API Factory New;

QUILON_GEOMETRY_FUNCTION(Product, 1, ValueType, Reference);
QUILON_GEOMETRY_FUNCTION(IsNull, 1, bool, Reference);
QUILON_GEOMETRY_FUNCTION(Min, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Max, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Set, 1, void, Reference, ValueType);
QUILON_GEOMETRY_FUNCTION(Add, 1, Reference, Reference, ValueType);
QUILON_GEOMETRY_FUNCTION(Add, 2, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Subtract, 1, Reference, Reference, ValueType);
QUILON_GEOMETRY_FUNCTION(Subtract, 2, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Multiply, 1, Reference, Reference, double);
// The point as a row vector times the homogeneous matrix (Helper.h).
QUILON_GEOMETRY_FUNCTION(Multiply, 2, Reference, System::Ref<Math::IMatrixD>, Reference);
QUILON_GEOMETRY_FUNCTION(Multiply, 3, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Divide, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(DotProduct, 1, ValueType, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(CrossProduct, 1, Reference, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Abs, 1, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Minus, 1, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(Copy, 1, Reference, Reference, Geometry::Axes);
QUILON_GEOMETRY_FUNCTION(Norm, 1, ValueType, Reference);
QUILON_GEOMETRY_FUNCTION(Normalize, 1, Reference, Reference);
QUILON_GEOMETRY_FUNCTION(ToCoordinates, 1, System::Ref<ICoordinates>, Reference, Math::RoundingMethodEnum);

} // namespace CoordinatesD

// New() is an empty collection; New(items) holds the given objects, not
// copies.
namespace CoordinatesCollection {
using Factory = System::Functions::Template::Factory<System::Ref<ICoordinatesCollection>(),
                                                     System::Ref<ICoordinatesCollection>(
                                                         const std::vector<System::Ref<ICoordinates>>&)>;
extern QUILON_API Factory New;
} // namespace CoordinatesCollection

namespace CoordinatesFCollection {
using Factory = System::Functions::Template::Factory<System::Ref<ICoordinatesFCollection>(),
                                                     System::Ref<ICoordinatesFCollection>(
                                                         const std::vector<System::Ref<ICoordinatesF>>&)>;
extern QUILON_API Factory New;
} // namespace CoordinatesFCollection

namespace CoordinatesDCollection {
using Factory = System::Functions::Template::Factory<System::Ref<ICoordinatesDCollection>(),
                                                     System::Ref<ICoordinatesDCollection>(
                                                         const std::vector<System::Ref<ICoordinatesD>>&)>;
extern QUILON_API Factory New;
} // namespace CoordinatesDCollection

} // namespace Quilon_::Geometry

namespace Quilon_::System {
QUILON_API Any ToAny(const std::vector<Ref<Geometry::ICoordinates>>& value);
QUILON_API Any ToAny(const std::vector<Ref<Geometry::ICoordinatesF>>& value);
QUILON_API Any ToAny(const std::vector<Ref<Geometry::ICoordinatesD>>& value);
QUILON_API Any
ToAny(const std::vector<std::pair<Ref<Geometry::ICoordinatesD>, Ref<Geometry::ICoordinatesD>>>& value);
} // namespace Quilon_::System
