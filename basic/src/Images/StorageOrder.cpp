// Storage orders for StorageOrder::New and the five order functions.
#include "Images/StorageOrderImpl.h"

#include "Quilon_/Basic/Images/StorageOrder.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <cwchar>

namespace Quilon_::Basic::Images {

using Order = System::Pointer<IStorageOrder, 1>;

namespace {

constexpr wchar_t letters[] = L"XYZTB";
constexpr Geometry::AxisEnum letterAxes[] = {Geometry::aX, Geometry::aY, Geometry::aZ, Geometry::aT,
                                             Geometry::aB};

wchar_t LetterOf(Geometry::AxisEnum axis)
{
    for (int i = 0; i < 5; ++i)
        if (letterAxes[i] == axis)
            return letters[i];
    QUILON_RAISE(L"Invalid axis: %1%", static_cast<std::int64_t>(axis));
}

auto Find(std::vector<OrderedAxis>& axes, Geometry::AxisEnum axis)
{
    return std::find_if(axes.begin(), axes.end(), [axis](const OrderedAxis& a) { return a.axis == axis; });
}

} // namespace

std::vector<OrderedAxis> CStorageOrder::Parse(const std::wstring& text)
{
    std::vector<OrderedAxis> axes;
    bool reversed = false;
    for (wchar_t c : text) {
        if (c == reversedAxisMarker && !reversed) {
            reversed = true;
            continue;
        }
        const wchar_t* letter = std::wcschr(letters, c);
        if (c == 0 || !letter)
            QUILON_RAISE(L"Invalid storage order: '%1%'", text);
        const Geometry::AxisEnum axis = letterAxes[letter - letters];
        if (Find(axes, axis) != axes.end())
            QUILON_RAISE(L"Invalid storage order: '%1%'", text);
        axes.push_back({axis, reversed});
        reversed = false;
    }
    if (reversed)
        QUILON_RAISE(L"Invalid storage order: '%1%'", text);
    return axes;
}

std::wstring CStorageOrder::ToString()
{
    std::wstring text;
    for (const OrderedAxis& a : m_axes) {
        if (a.reversed)
            text += reversedAxisMarker;
        text += LetterOf(a.axis);
    }
    return text;
}

Geometry::Axes CStorageOrder::Axes()
{
    unsigned char mask = 0;
    for (const OrderedAxis& a : m_axes)
        mask |= static_cast<unsigned char>(a.axis);
    return Geometry::Axes(mask);
}

Geometry::AxisEnum CStorageOrder::Axis(std::int64_t index)
{
    if (index < 0 || index >= AxisCount())
        QUILON_RAISE(L"Axis index is out of range: '%1%' (maximum is '%2%')", index, AxisCount());
    return m_axes[static_cast<std::size_t>(index)].axis;
}

bool CStorageOrder::IsReversed(Geometry::AxisEnum axis)
{
    auto found = Find(m_axes, axis);
    return found != m_axes.end() && found->reversed;
}

std::vector<OrderedAxis> OrderedAxesOf(IStorageOrder& order)
{
    if (auto* own = dynamic_cast<CStorageOrder*>(&order))
        return own->OrderedAxes();
    std::vector<OrderedAxis> axes;
    for (std::int64_t i = 0; i < order.AxisCount(); ++i) {
        const Geometry::AxisEnum axis = order.Axis(i);
        axes.push_back({axis, order.IsReversed(axis)});
    }
    return axes;
}

namespace {

Order NewOrder(const std::wstring& text)
{
    return Order(new CStorageOrder(CStorageOrder::Parse(text)));
}

// The axes of `order` with `axis` checked to be one of the five.
std::vector<OrderedAxis> AxesFor(Order& order, Geometry::AxisEnum axis)
{
    LetterOf(axis);
    return OrderedAxesOf(*order);
}

std::vector<OrderedAxis>::iterator FindPresent(std::vector<OrderedAxis>& axes, Geometry::AxisEnum axis,
                                               Order& order)
{
    auto found = Find(axes, axis);
    if (found == axes.end())
        QUILON_RAISE(L"Axis %1% is not in the storage order '%2%'", System::ToString(axis),
                     order->ToString());
    return found;
}

Order Add(Order order, Geometry::AxisEnum axis)
{
    std::vector<OrderedAxis> axes = AxesFor(order, axis);
    if (Find(axes, axis) == axes.end())
        axes.push_back({axis, false});
    return Order(new CStorageOrder(std::move(axes)));
}

Order Remove(Order order, Geometry::AxisEnum axis)
{
    std::vector<OrderedAxis> axes = AxesFor(order, axis);
    auto found = Find(axes, axis);
    if (found != axes.end())
        axes.erase(found);
    return Order(new CStorageOrder(std::move(axes)));
}

Order First(Order order, Geometry::AxisEnum axis)
{
    std::vector<OrderedAxis> axes = AxesFor(order, axis);
    auto found = FindPresent(axes, axis, order);
    std::rotate(axes.begin(), found, found + 1);
    return Order(new CStorageOrder(std::move(axes)));
}

Order Last(Order order, Geometry::AxisEnum axis)
{
    std::vector<OrderedAxis> axes = AxesFor(order, axis);
    auto found = FindPresent(axes, axis, order);
    std::rotate(found, found + 1, axes.end());
    return Order(new CStorageOrder(std::move(axes)));
}

Order Reverse(Order order, Geometry::AxisEnum axis)
{
    std::vector<OrderedAxis> axes = AxesFor(order, axis);
    auto found = FindPresent(axes, axis, order);
    found->reversed = !found->reversed;
    return Order(new CStorageOrder(std::move(axes)));
}

void RegisterStorageOrders()
{
    namespace Core = Quilon_::Images::StorageOrder;
    Core::New.Register(L"Storage order", &NewOrder);
    Core::SetAddFunction1(&Add);
    Core::SetRemoveFunction1(&Remove);
    Core::SetFirstFunction1(&First);
    Core::SetLastFunction1(&Last);
    Core::SetReverseFunction1(&Reverse);
}

const System::Template::Initializer<::Library> storageOrders(&RegisterStorageOrders, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images
