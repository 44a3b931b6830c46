// A handle: a spot on a shape that the user drags to reshape it. What an
// Id means is the business of the generator that made the handle (a corner
// of the bounding box, the index of a polygon's point, ...).
//
//   Geometry::TwoD::Handle corner(Drawing::Point<float>(10, 20), 2);
//   System::Any a = System::ToAny(corner);
#pragma once

#include "Quilon_/Drawing/Point.h"

#include <cstdint>

namespace Quilon_::Geometry::TwoD {

class Handle {
public:
    constexpr Handle() noexcept = default;
    constexpr Handle(const Drawing::Point<float>& position, std::int64_t id) noexcept
        : m_position(position), m_id(id)
    {
    }

    constexpr const Drawing::Point<float>& Position() const noexcept { return m_position; }
    constexpr void SetPosition(const Drawing::Point<float>& position) noexcept { m_position = position; }
    constexpr std::int64_t Id() const noexcept { return m_id; }

    friend constexpr bool operator==(const Handle& a, const Handle& b) noexcept
    {
        return a.m_position == b.m_position && a.m_id == b.m_id;
    }

private:
    Drawing::Point<float> m_position;
    std::int64_t m_id = 0;
};

} // namespace Quilon_::Geometry::TwoD

namespace Quilon_::System {
QUILON_API Any ToAny(const Geometry::TwoD::Handle& value);
} // namespace Quilon_::System
