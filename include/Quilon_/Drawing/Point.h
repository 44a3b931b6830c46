// Points of the drawing model: plain x, y pairs in int, float and double,
// used by shapes, views and drawing tools. They are values, boxable in Any.
//
//   Drawing::Point<float> p(1.5f, 2.0f);
//   p.x += 1.0f;                                      // the plain fields of the base
//   Drawing::Point<float> q = p + Drawing::Point<float>(1.0f, 1.0f);
//   System::Any a = System::ToAny(q);
//   a.CastTo<Drawing::Point<float>>() == q;           // true
//
// This is the drawing model's point; sizes and rectangles join it there.
#pragma once

#include "Quilon_/System/Any.h"

namespace Quilon_::Drawing {

// The layouts of the three kinds: two fields, x then y, and nothing else,
// so that arrays of points can be handed to drawing code as they are.
struct tagPOINT {
    int x;
    int y;
};
struct POINTF {
    float x;
    float y;
};
struct POINTD {
    double x;
    double y;
};

namespace Template {

template <class T, class Base>
class Point : public Base {
public:
    constexpr Point() noexcept : Base{T(), T()} {}
    constexpr Point(T x, T y) noexcept : Base{x, y} {}
    constexpr explicit Point(const Base& base) noexcept : Base(base) {}

    constexpr T X() const noexcept { return this->x; }
    constexpr T Y() const noexcept { return this->y; }
    constexpr void SetX(T value) noexcept { this->x = value; }
    constexpr void SetY(T value) noexcept { this->y = value; }

    friend constexpr bool operator==(const Point& a, const Point& b) noexcept
    {
        return a.x == b.x && a.y == b.y;
    }
    friend constexpr Point operator+(const Point& a, const Point& b) noexcept
    {
        return Point(a.x + b.x, a.y + b.y);
    }
    friend constexpr Point operator-(const Point& a, const Point& b) noexcept
    {
        return Point(a.x - b.x, a.y - b.y);
    }
};

} // namespace Template

namespace Detail {
template <class T>
struct PointBase;
template <>
struct PointBase<int> {
    using Type = tagPOINT;
};
template <>
struct PointBase<float> {
    using Type = POINTF;
};
template <>
struct PointBase<double> {
    using Type = POINTD;
};
} // namespace Detail

// Point<int>, Point<float>, Point<double>.
template <class T>
using Point = Template::Point<T, typename Detail::PointBase<T>::Type>;

} // namespace Quilon_::Drawing

namespace Quilon_::System {
QUILON_API Any ToAny(const Drawing::Point<int>& value);
QUILON_API Any ToAny(const Drawing::Point<float>& value);
QUILON_API Any ToAny(const Drawing::Point<double>& value);
} // namespace Quilon_::System
