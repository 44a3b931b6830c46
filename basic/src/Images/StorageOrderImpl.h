// The storage order of the reference library: the axes, fastest first, each
// with its direction.
#pragma once

#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/System/ObjectImpl.h"

#include <string>
#include <vector>

namespace Quilon_::Basic::Images {

using Quilon_::Images::IStorageOrder;

struct OrderedAxis {
    Geometry::AxisEnum axis;
    bool reversed;
    bool operator==(const OrderedAxis&) const = default;
};

class CStorageOrder : public System::Template::ObjectImpl<CStorageOrder, IStorageOrder> {
public:
    explicit CStorageOrder(std::vector<OrderedAxis> axes) : m_axes(std::move(axes)) {}
    // Raises "Invalid storage order: '%1%'" for a text that New refuses.
    static std::vector<OrderedAxis> Parse(const std::wstring& text);

    std::wstring ToString() override;
    Geometry::Axes Axes() override;
    std::int64_t AxisCount() override { return static_cast<std::int64_t>(m_axes.size()); }
    Geometry::AxisEnum Axis(std::int64_t index) override;
    bool IsReversed(Geometry::AxisEnum axis) override;

    const std::vector<OrderedAxis>& OrderedAxes() const { return m_axes; }

private:
    std::vector<OrderedAxis> m_axes;
};

// The axes of any order, read through its interface.
std::vector<OrderedAxis> OrderedAxesOf(IStorageOrder& order);

} // namespace Quilon_::Basic::Images
