// 2-D affine transforms of the drawing model: how world coordinates (the
// pixels of an image, the units of a shape) map to the device that draws
// them. A point (x, y) maps to
//   x' = m11 x + m21 y + dx,   y' = m12 x + m22 y + dy.
// A value, boxable in Any.
//
//   Drawing::Transform view = Drawing::Transform::Scaling(2.0, 2.0).Then(Drawing::Transform::Translation(10,
//   0)); view.Apply(Drawing::Point<double>(1, 1));       // (12, 2)
//   view.Inverted().Apply(Drawing::Point<double>(12, 2));   // (1, 1)
#pragma once

#include "Quilon_/Drawing/Point.h"

namespace Quilon_::Drawing {

class QUILON_API Transform {
public:
    // The identity.
    constexpr Transform() noexcept = default;
    constexpr Transform(double m11, double m12, double m21, double m22, double dx, double dy) noexcept
        : m_m11(m11), m_m12(m12), m_m21(m21), m_m22(m22), m_dx(dx), m_dy(dy)
    {
    }

    static constexpr Transform Translation(double dx, double dy) noexcept { return {1, 0, 0, 1, dx, dy}; }
    static constexpr Transform Scaling(double sx, double sy) noexcept { return {sx, 0, 0, sy, 0, 0}; }
    // Counter-clockwise by `radians` in a frame whose y axis points up
    // (clockwise on a screen, whose y axis points down).
    static Transform Rotation(double radians) noexcept;

    constexpr double M11() const noexcept { return m_m11; }
    constexpr double M12() const noexcept { return m_m12; }
    constexpr double M21() const noexcept { return m_m21; }
    constexpr double M22() const noexcept { return m_m22; }
    constexpr double Dx() const noexcept { return m_dx; }
    constexpr double Dy() const noexcept { return m_dy; }

    constexpr bool IsIdentity() const noexcept { return *this == Transform(); }
    constexpr double Determinant() const noexcept { return m_m11 * m_m22 - m_m12 * m_m21; }
    constexpr bool IsInvertible() const noexcept { return Determinant() != 0.0; }
    // This transform followed by `next`.
    constexpr Transform Then(const Transform& next) const noexcept
    {
        return {m_m11 * next.m_m11 + m_m12 * next.m_m21,
                m_m11 * next.m_m12 + m_m12 * next.m_m22,
                m_m21 * next.m_m11 + m_m22 * next.m_m21,
                m_m21 * next.m_m12 + m_m22 * next.m_m22,
                m_dx * next.m_m11 + m_dy * next.m_m21 + next.m_dx,
                m_dx * next.m_m12 + m_dy * next.m_m22 + next.m_dy};
    }
    // The transform that undoes this one; raises "Transform is not
    // invertible" when the determinant is 0.
    Transform Inverted() const;

    constexpr Point<double> Apply(const Point<double>& p) const noexcept
    {
        return {m_m11 * p.x + m_m21 * p.y + m_dx, m_m12 * p.x + m_m22 * p.y + m_dy};
    }
    // Maps a distance: the translation does not apply.
    constexpr Point<double> ApplyToVector(const Point<double>& v) const noexcept
    {
        return {m_m11 * v.x + m_m21 * v.y, m_m12 * v.x + m_m22 * v.y};
    }

    friend constexpr bool operator==(const Transform&, const Transform&) noexcept = default;

private:
    double m_m11 = 1, m_m12 = 0, m_m21 = 0, m_m22 = 1, m_dx = 0, m_dy = 0;
};

} // namespace Quilon_::Drawing

namespace Quilon_::System {
QUILON_API Any ToAny(const Drawing::Transform& value);
} // namespace Quilon_::System
