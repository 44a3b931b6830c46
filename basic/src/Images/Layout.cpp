#include "Images/Layout.h"

#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <string>

namespace Quilon_::Basic::Images {

int Layout::IndexOf(Geometry::AxisEnum axis) const
{
    for (int i = 0; i < axisCount; ++i)
        if (axes[i] == axis)
            return i;
    return -1;
}

std::wstring Layout::SizeText() const
{
    std::wstring text;
    for (int i = 0; i < axisCount; ++i)
        text += (i ? L" x " : L"") + std::to_wstring(size[i]);
    return L"(" + text + L")";
}

bool Layout::Contains(const std::array<std::int64_t, 5>& location) const
{
    for (int i = 0; i < axisCount; ++i)
        if (location[i] < 0 || location[i] >= size[i])
            return false;
    return true;
}

std::int64_t Layout::Offset(Geometry::ICoordinates& location) const
{
    std::array<std::int64_t, 5> values{};
    bool fits = location.AxisCount() == axisCount;
    for (int i = 0; fits && i < axisCount; ++i) {
        fits = location.IndexOfAxis(axes[i]) == i;
        values[i] = fits ? location.Value(std::int64_t(i)) : 0;
    }
    if (!fits || !Contains(values)) {
        std::wstring text;
        for (std::int64_t i = 0; i < location.AxisCount(); ++i)
            text += (i ? L", " : L"") + std::to_wstring(location.Value(i));
        QUILON_RAISE(L"Location %1% is outside the bitmap of size %2%", L"(" + text + L")", SizeText());
    }
    std::int64_t offset = origin;
    for (int i = 0; i < axisCount; ++i)
        offset += values[i] * stride[i];
    return offset;
}

Layout MakeLayout(Geometry::ICoordinates& size, IStorageOrder& order, std::int64_t bytesPerSample)
{
    Layout layout;
    const std::vector<Geometry::AxisEnum> axes = size.Axes().ToVector();
    layout.axisCount = static_cast<int>(std::min<std::size_t>(axes.size(), 5));
    for (int i = 0; i < layout.axisCount; ++i) {
        layout.axes[i] = axes[i];
        layout.size[i] = size.Value(std::int64_t(i));
        if (layout.size[i] < 0)
            QUILON_RAISE(L"Invalid bitmap size: %1%", layout.SizeText());
    }
    std::vector<OrderedAxis> sequence;
    for (const OrderedAxis& a : OrderedAxesOf(order))
        if (layout.IndexOf(a.axis) >= 0)
            sequence.push_back(a);
    for (int i = 0; i < layout.axisCount; ++i)
        if (std::none_of(sequence.begin(), sequence.end(),
                         [&](const OrderedAxis& a) { return a.axis == axes[i]; }))
            sequence.push_back({axes[i], false});
    std::int64_t step = bytesPerSample;
    for (const OrderedAxis& a : sequence) {
        const int i = layout.IndexOf(a.axis);
        layout.stride[i] = a.reversed ? -step : step;
        if (a.reversed)
            layout.origin += (layout.size[i] - 1) * step;
        step *= layout.size[i];
    }
    layout.bytes = step;
    if (layout.bytes == 0)
        layout.origin = 0;
    return layout;
}

} // namespace Quilon_::Basic::Images
