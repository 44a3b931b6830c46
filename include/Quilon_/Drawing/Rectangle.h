// Rectangles of the drawing model, parallel to the axes, in int, float and
// double. A rectangle is its left, top, right and bottom edges; the right
// and bottom edges lie outside it, so that a rectangle of width w at x
// covers the pixels x to x + w - 1. Values, boxable in Any.
//
//   Drawing::Rectangle<int> r(Drawing::Point<int>(10, 20), Drawing::Size<int>(30, 40));
//   r.Right();                                   // 40
//   r.Contains(Drawing::Point<int>(39, 59));     // true
//   r.Contains(Drawing::Point<int>(40, 20));     // false: the right edge is outside
//   Drawing::Rectangle<int> both = r.Intersection(other);
#pragma once

#include "Quilon_/Drawing/Point.h"
#include "Quilon_/Drawing/Size.h"

#include <algorithm>

namespace Quilon_::Drawing {

// The layouts: left, top, right, bottom, and nothing else.
struct tagRECT {
    int left;
    int top;
    int right;
    int bottom;
};
struct RECTF {
    float left;
    float top;
    float right;
    float bottom;
};
struct RECTD {
    double left;
    double top;
    double right;
    double bottom;
};

namespace Template {

template <class PointType, class SizeType, class Base>
class Rectangle : public Base {
public:
    using T = typename SizeType::ValueType;

    constexpr Rectangle() noexcept : Base{T(), T(), T(), T()} {}
    constexpr Rectangle(T left, T top, T right, T bottom) noexcept : Base{left, top, right, bottom} {}
    constexpr Rectangle(const PointType& location, const SizeType& size) noexcept
        : Base{location.x, location.y, location.x + size.cx, location.y + size.cy}
    {
    }
    constexpr explicit Rectangle(const Base& base) noexcept : Base(base) {}

    constexpr T Left() const noexcept { return this->left; }
    constexpr T Top() const noexcept { return this->top; }
    constexpr T Right() const noexcept { return this->right; }
    constexpr T Bottom() const noexcept { return this->bottom; }
    constexpr T Width() const noexcept { return this->right - this->left; }
    constexpr T Height() const noexcept { return this->bottom - this->top; }
    constexpr PointType Location() const noexcept { return PointType(this->left, this->top); }
    constexpr SizeType Extent() const noexcept { return SizeType(Width(), Height()); }
    constexpr bool IsEmpty() const noexcept
    {
        return !(this->right > this->left) || !(this->bottom > this->top);
    }

    constexpr bool Contains(const PointType& p) const noexcept
    {
        return p.x >= this->left && p.x < this->right && p.y >= this->top && p.y < this->bottom;
    }
    // The common part; an empty rectangle at the origin when there is none.
    constexpr Rectangle Intersection(const Rectangle& other) const noexcept
    {
        Rectangle common(std::max(this->left, other.left), std::max(this->top, other.top),
                         std::min(this->right, other.right), std::min(this->bottom, other.bottom));
        return common.IsEmpty() ? Rectangle() : common;
    }
    // The smallest rectangle holding both; an empty one does not count.
    constexpr Rectangle Union(const Rectangle& other) const noexcept
    {
        if (IsEmpty())
            return other;
        if (other.IsEmpty())
            return *this;
        return Rectangle(std::min(this->left, other.left), std::min(this->top, other.top),
                         std::max(this->right, other.right), std::max(this->bottom, other.bottom));
    }
    constexpr Rectangle Offset(T dx, T dy) const noexcept
    {
        return Rectangle(this->left + dx, this->top + dy, this->right + dx, this->bottom + dy);
    }
    // Grows each edge outwards by dx and dy; negative values shrink.
    constexpr Rectangle Inflate(T dx, T dy) const noexcept
    {
        return Rectangle(this->left - dx, this->top - dy, this->right + dx, this->bottom + dy);
    }

    friend constexpr bool operator==(const Rectangle& a, const Rectangle& b) noexcept
    {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
};

} // namespace Template

namespace Detail {
template <class T>
struct RectangleBase;
template <>
struct RectangleBase<int> {
    using Type = tagRECT;
};
template <>
struct RectangleBase<float> {
    using Type = RECTF;
};
template <>
struct RectangleBase<double> {
    using Type = RECTD;
};
} // namespace Detail

// Rectangle<int>, Rectangle<float>, Rectangle<double>.
template <class T>
using Rectangle = Template::Rectangle<Point<T>, Size<T>, typename Detail::RectangleBase<T>::Type>;

} // namespace Quilon_::Drawing

namespace Quilon_::System {
QUILON_API Any ToAny(const Drawing::Rectangle<int>& value);
QUILON_API Any ToAny(const Drawing::Rectangle<float>& value);
QUILON_API Any ToAny(const Drawing::Rectangle<double>& value);
} // namespace Quilon_::System
