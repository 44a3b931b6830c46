#include "Quilon_/Images/StorageOrder.h"

#include "Quilon_/System/Type.h"

#include <utility>

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IStorageOrder, L"Quilon_::Images::IStorageOrder", System::Interface)

namespace StorageOrder {

Factory New;

QUILON_DEFINE_FUNCTION_SLOT(Add, 1, Order (*)(Order, Quilon_::Geometry::AxisEnum))
QUILON_DEFINE_FUNCTION_SLOT(Remove, 1, Order (*)(Order, Quilon_::Geometry::AxisEnum))
QUILON_DEFINE_FUNCTION_SLOT(First, 1, Order (*)(Order, Quilon_::Geometry::AxisEnum))
QUILON_DEFINE_FUNCTION_SLOT(Last, 1, Order (*)(Order, Quilon_::Geometry::AxisEnum))
QUILON_DEFINE_FUNCTION_SLOT(Reverse, 1, Order (*)(Order, Quilon_::Geometry::AxisEnum))

Order Add(Order order, Quilon_::Geometry::AxisEnum axis)
{
    return QUILON_FUNCTION_SLOT(Add, 1)(std::move(order), axis);
}

Order Remove(Order order, Quilon_::Geometry::AxisEnum axis)
{
    return QUILON_FUNCTION_SLOT(Remove, 1)(std::move(order), axis);
}

Order First(Order order, Quilon_::Geometry::AxisEnum axis)
{
    return QUILON_FUNCTION_SLOT(First, 1)(std::move(order), axis);
}

Order Last(Order order, Quilon_::Geometry::AxisEnum axis)
{
    return QUILON_FUNCTION_SLOT(Last, 1)(std::move(order), axis);
}

Order Reverse(Order order, Quilon_::Geometry::AxisEnum axis)
{
    return QUILON_FUNCTION_SLOT(Reverse, 1)(std::move(order), axis);
}

Order BFirst(Order order)
{
    return First(std::move(order), Quilon_::Geometry::aB);
}

Order BLast(Order order)
{
    return Last(std::move(order), Quilon_::Geometry::aB);
}

} // namespace StorageOrder

} // namespace Quilon_::Images
