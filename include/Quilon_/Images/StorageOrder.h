// Storage orders: in which order the axes of a bitmap are laid out in
// memory, first axis fastest.
//
// An order is written as a sequence of axis letters, one per axis, as
// Axes::ToString writes them: "XYB" keeps the samples of one row together,
// then the rows, then the band planes. Image code never spells an order out
// for its own formats: it takes the order of an existing format and changes
// it with the functions below, which an implementation library registers:
//
//   Pointer<IStorageOrder> order = StorageOrder::New(L"XY");
//   Pointer<IStorageOrder> interleaved = StorageOrder::BFirst(StorageOrder::Add(order,
//   Quilon_::Geometry::aB)); interleaved->ToString();   // "BXY" with the reference library
//
// Until a library has registered a function, calling it raises "Function has
// no implementation".
#pragma once

#include "Quilon_/Geometry/Axes.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Functions/FunctionSlot.h"

#include <cstdint>
#include <string>

namespace Quilon_::Images {

class QUILON_API IStorageOrder : public virtual System::Interface {
    QUILON_INTERFACE(IStorageOrder)
public:
    // The order as text; StorageOrder::New reads it back.
    virtual std::wstring ToString() = 0;
    // The set of axes in the order.
    virtual Quilon_::Geometry::Axes Axes() = 0;
    virtual std::int64_t AxisCount() = 0;
    // The axis at `index`, 0 being the fastest; raises for an index that is
    // not below AxisCount().
    virtual Quilon_::Geometry::AxisEnum Axis(std::int64_t index) = 0;
    // Whether the samples along `axis` are stored from the last to the first;
    // false for an axis that is not in the order.
    virtual bool IsReversed(Quilon_::Geometry::AxisEnum axis) = 0;
};

namespace StorageOrder {

using Order = System::Pointer<IStorageOrder, 1>;

// New(text): the order that `text` writes.
using Factory = System::Functions::Template::Factory<Order(const std::wstring&)>;
extern QUILON_API Factory New;

// The order with `axis` added.
QUILON_API Order Add(Order order, Quilon_::Geometry::AxisEnum axis);
QUILON_DECLARE_FUNCTION_SLOT(Add, 1, Order (*)(Order, Quilon_::Geometry::AxisEnum));
// The order without `axis`.
QUILON_API Order Remove(Order order, Quilon_::Geometry::AxisEnum axis);
QUILON_DECLARE_FUNCTION_SLOT(Remove, 1, Order (*)(Order, Quilon_::Geometry::AxisEnum));
// The order with `axis` moved to the first (fastest) place.
QUILON_API Order First(Order order, Quilon_::Geometry::AxisEnum axis);
QUILON_DECLARE_FUNCTION_SLOT(First, 1, Order (*)(Order, Quilon_::Geometry::AxisEnum));
// The order with `axis` moved to the last (slowest) place.
QUILON_API Order Last(Order order, Quilon_::Geometry::AxisEnum axis);
QUILON_DECLARE_FUNCTION_SLOT(Last, 1, Order (*)(Order, Quilon_::Geometry::AxisEnum));
// The order with the direction of `axis` reversed.
QUILON_API Order Reverse(Order order, Quilon_::Geometry::AxisEnum axis);
QUILON_DECLARE_FUNCTION_SLOT(Reverse, 1, Order (*)(Order, Quilon_::Geometry::AxisEnum));

// First(order, aB): the bands of one location side by side.
QUILON_API Order BFirst(Order order);
// Last(order, aB): one plane per band.
QUILON_API Order BLast(Order order);

} // namespace StorageOrder

} // namespace Quilon_::Images
