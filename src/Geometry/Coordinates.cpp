#include "Quilon_/Geometry/Coordinates.h"

#include "Quilon_/System/Type.h"

#include <utility>

// A registered function forwards its arguments, held by value for the
// call, to the stored pointer. Only one- and two-argument functions exist
// here.
#define QUILON_GEOMETRY_FORWARD1(Name, Number, Result, A)                                                    \
    QUILON_DEFINE_FUNCTION_SLOT(Name, Number, Result (*)(A))                                                 \
    Result Name(A a)                                                                                         \
    {                                                                                                        \
        return QUILON_FUNCTION_SLOT(Name, Number)(std::move(a));                                             \
    }
#define QUILON_GEOMETRY_FORWARD2(Name, Number, Result, A, B)                                                 \
    QUILON_DEFINE_FUNCTION_SLOT(Name, Number, Result (*)(A, B))                                              \
    Result Name(A a, B b)                                                                                    \
    {                                                                                                        \
        return QUILON_FUNCTION_SLOT(Name, Number)(std::move(a), std::move(b));                               \
    }

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(ICoordinates, L"Quilon_::Geometry::ICoordinates", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(ICoordinatesF, L"Quilon_::Geometry::ICoordinatesF", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(ICoordinatesD, L"Quilon_::Geometry::ICoordinatesD", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(ICoordinatesCollection, L"Quilon_::Geometry::ICoordinatesCollection",
                             System::Collections::Template::ICollection<ICoordinates>)
QUILON_DEFINE_INTERFACE_TYPE(ICoordinatesFCollection, L"Quilon_::Geometry::ICoordinatesFCollection",
                             System::Collections::Template::ICollection<ICoordinatesF>)
QUILON_DEFINE_INTERFACE_TYPE(ICoordinatesDCollection, L"Quilon_::Geometry::ICoordinatesDCollection",
                             System::Collections::Template::ICollection<ICoordinatesD>)

namespace {
// The typed collection views are registered by name during static
// construction too.
[[maybe_unused]] const System::Type* const collectionViewTypes[] = {
    &System::Collections::Template::ICollection<ICoordinates>::GetType(),
    &System::Collections::Template::ICollection<ICoordinatesF>::GetType(),
    &System::Collections::Template::ICollection<ICoordinatesD>::GetType(),
};
} // namespace

namespace Coordinates {

Factory New;

std::int64_t AxisCount(Geometry::Axes axes)
{
    return axes.AxisCount();
}

QUILON_GEOMETRY_FORWARD1(Product, 1, ValueType, Reference)
QUILON_GEOMETRY_FORWARD1(IsNull, 1, bool, Reference)
QUILON_GEOMETRY_FORWARD2(Min, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Max, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Set, 1, void, Reference, ValueType)
QUILON_GEOMETRY_FORWARD2(Add, 1, Reference, Reference, ValueType)
QUILON_GEOMETRY_FORWARD2(Add, 2, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Subtract, 1, Reference, Reference, ValueType)
QUILON_GEOMETRY_FORWARD2(Subtract, 2, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Multiply, 1, Reference, Reference, double)
QUILON_GEOMETRY_FORWARD2(Multiply, 2, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Divide, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(DotProduct, 1, ValueType, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(CrossProduct, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD1(Abs, 1, Reference, Reference)
QUILON_GEOMETRY_FORWARD1(Minus, 1, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Copy, 1, Reference, Reference, Geometry::Axes)
QUILON_GEOMETRY_FORWARD1(ToCoordinatesD, 1, System::Ref<ICoordinatesD>, Reference)

} // namespace Coordinates

namespace CoordinatesF {

Factory New;

QUILON_GEOMETRY_FORWARD1(Product, 1, ValueType, Reference)
QUILON_GEOMETRY_FORWARD1(IsNull, 1, bool, Reference)
QUILON_GEOMETRY_FORWARD2(Min, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Max, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Set, 1, void, Reference, ValueType)
QUILON_GEOMETRY_FORWARD2(Add, 1, Reference, Reference, ValueType)
QUILON_GEOMETRY_FORWARD2(Add, 2, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Subtract, 1, Reference, Reference, ValueType)
QUILON_GEOMETRY_FORWARD2(Subtract, 2, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Multiply, 1, Reference, Reference, double)
QUILON_GEOMETRY_FORWARD2(Multiply, 2, Reference, System::Ref<Math::IMatrixD>, Reference)
QUILON_GEOMETRY_FORWARD2(Multiply, 3, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Divide, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(DotProduct, 1, ValueType, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(CrossProduct, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD1(Abs, 1, Reference, Reference)
QUILON_GEOMETRY_FORWARD1(Minus, 1, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Copy, 1, Reference, Reference, Geometry::Axes)
QUILON_GEOMETRY_FORWARD1(Norm, 1, ValueType, Reference)
QUILON_GEOMETRY_FORWARD1(Normalize, 1, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(ToCoordinates, 1, System::Ref<ICoordinates>, Reference, Math::RoundingMethodEnum)

} // namespace CoordinatesF

namespace CoordinatesD {

Factory New;

QUILON_GEOMETRY_FORWARD1(Product, 1, ValueType, Reference)
QUILON_GEOMETRY_FORWARD1(IsNull, 1, bool, Reference)
QUILON_GEOMETRY_FORWARD2(Min, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Max, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Set, 1, void, Reference, ValueType)
QUILON_GEOMETRY_FORWARD2(Add, 1, Reference, Reference, ValueType)
QUILON_GEOMETRY_FORWARD2(Add, 2, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Subtract, 1, Reference, Reference, ValueType)
QUILON_GEOMETRY_FORWARD2(Subtract, 2, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Multiply, 1, Reference, Reference, double)
QUILON_GEOMETRY_FORWARD2(Multiply, 2, Reference, System::Ref<Math::IMatrixD>, Reference)
QUILON_GEOMETRY_FORWARD2(Multiply, 3, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Divide, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(DotProduct, 1, ValueType, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(CrossProduct, 1, Reference, Reference, Reference)
QUILON_GEOMETRY_FORWARD1(Abs, 1, Reference, Reference)
QUILON_GEOMETRY_FORWARD1(Minus, 1, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(Copy, 1, Reference, Reference, Geometry::Axes)
QUILON_GEOMETRY_FORWARD1(Norm, 1, ValueType, Reference)
QUILON_GEOMETRY_FORWARD1(Normalize, 1, Reference, Reference)
QUILON_GEOMETRY_FORWARD2(ToCoordinates, 1, System::Ref<ICoordinates>, Reference, Math::RoundingMethodEnum)

} // namespace CoordinatesD

namespace CoordinatesCollection {
Factory New;
} // namespace CoordinatesCollection

namespace CoordinatesFCollection {
Factory New;
} // namespace CoordinatesFCollection

namespace CoordinatesDCollection {
Factory New;
} // namespace CoordinatesDCollection

} // namespace Quilon_::Geometry

namespace Quilon_::System {

Any ToAny(const std::vector<Ref<Geometry::ICoordinates>>& value)
{
    return Detail::Box(value);
}

Any ToAny(const std::vector<Ref<Geometry::ICoordinatesF>>& value)
{
    return Detail::Box(value);
}

Any ToAny(const std::vector<Ref<Geometry::ICoordinatesD>>& value)
{
    return Detail::Box(value);
}

Any ToAny(const std::vector<std::pair<Ref<Geometry::ICoordinatesD>, Ref<Geometry::ICoordinatesD>>>& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
