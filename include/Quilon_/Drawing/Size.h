// Sizes of the drawing model: a width and a height in int, float and double,
// for extents of windows, texts and shapes. Values, boxable in Any.
//
//   Drawing::Size<int> window(640, 480);
//   window.cx;                                   // 640, the plain field of the base
//   Drawing::Size<double> half = Drawing::Size<double>(1.0, 2.0) * 0.5;
//   System::ToAny(window).CastTo<Drawing::Size<int>>() == window;   // true
#pragma once

#include "Quilon_/System/Any.h"

namespace Quilon_::Drawing {

// The layouts: the width cx, then the height cy, and nothing else.
struct tagSIZE {
    int cx;
    int cy;
};
struct SIZEF {
    float cx;
    float cy;
};
struct SIZED {
    double cx;
    double cy;
};

namespace Template {

template <class T, class Base>
class Size : public Base {
public:
    using ValueType = T;

    constexpr Size() noexcept : Base{T(), T()} {}
    constexpr Size(T width, T height) noexcept : Base{width, height} {}
    constexpr explicit Size(const Base& base) noexcept : Base(base) {}

    constexpr T Width() const noexcept { return this->cx; }
    constexpr T Height() const noexcept { return this->cy; }
    constexpr void SetWidth(T value) noexcept { this->cx = value; }
    constexpr void SetHeight(T value) noexcept { this->cy = value; }
    // Whether nothing fits in: a width or a height of 0 or less.
    constexpr bool IsEmpty() const noexcept { return !(this->cx > T()) || !(this->cy > T()); }

    friend constexpr bool operator==(const Size& a, const Size& b) noexcept
    {
        return a.cx == b.cx && a.cy == b.cy;
    }
    friend constexpr Size operator+(const Size& a, const Size& b) noexcept
    {
        return Size(a.cx + b.cx, a.cy + b.cy);
    }
    friend constexpr Size operator-(const Size& a, const Size& b) noexcept
    {
        return Size(a.cx - b.cx, a.cy - b.cy);
    }
    friend constexpr Size operator*(const Size& a, T factor) noexcept
    {
        return Size(a.cx * factor, a.cy * factor);
    }
};

} // namespace Template

namespace Detail {
template <class T>
struct SizeBase;
template <>
struct SizeBase<int> {
    using Type = tagSIZE;
};
template <>
struct SizeBase<float> {
    using Type = SIZEF;
};
template <>
struct SizeBase<double> {
    using Type = SIZED;
};
} // namespace Detail

// Size<int>, Size<float>, Size<double>.
template <class T>
using Size = Template::Size<T, typename Detail::SizeBase<T>::Type>;

} // namespace Quilon_::Drawing

namespace Quilon_::System {
QUILON_API Any ToAny(const Drawing::Size<int>& value);
QUILON_API Any ToAny(const Drawing::Size<float>& value);
QUILON_API Any ToAny(const Drawing::Size<double>& value);
} // namespace Quilon_::System
