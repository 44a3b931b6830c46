// Where the samples of a bitmap lie: one block, a stride per axis derived
// from the storage order.
//
// The axes of a layout are those of the size, in ascending bit order. The
// order's axes that the size has come first in memory, in the order's
// sequence, then the size's axes that the order lacks in ascending bit
// order. A reversed axis has a negative stride, and the sample at location
// 0 then lies at the far end of that axis.
#pragma once

#include "Images/StorageOrderImpl.h"
#include "Quilon_/Geometry/Coordinates.h"

#include <array>
#include <cstdint>
#include <vector>

namespace Quilon_::Basic::Images {

struct Layout {
    int axisCount = 0;
    std::array<Geometry::AxisEnum, 5> axes{};
    std::array<std::int64_t, 5> size{1, 1, 1, 1, 1};
    // In bytes.
    std::array<std::int64_t, 5> stride{0, 0, 0, 0, 0};
    std::int64_t origin = 0;
    std::int64_t bytes = 0;

    std::vector<std::int64_t> Strides() const { return {stride.begin(), stride.begin() + axisCount}; }
    // The axis position of `axis`, or -1.
    int IndexOf(Geometry::AxisEnum axis) const;
    // The byte offset of `location`, whose axes must be those of the size;
    // raises "Location %1% is outside the bitmap of size %2%" otherwise.
    std::int64_t Offset(Geometry::ICoordinates& location) const;
    bool Contains(const std::array<std::int64_t, 5>& location) const;
    std::wstring SizeText() const;
};

// Raises "Invalid bitmap size: %1%" for a negative value.
Layout MakeLayout(Geometry::ICoordinates& size, IStorageOrder& order, std::int64_t bytesPerSample);

} // namespace Quilon_::Basic::Images
