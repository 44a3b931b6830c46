#include "Quilon_/Drawing/Transform.h"

#include "Quilon_/System/Raise.h"

#include <cmath>

namespace Quilon_::Drawing {

Transform Transform::Rotation(double radians) noexcept
{
    const double c = std::cos(radians);
    const double s = std::sin(radians);
    return {c, s, -s, c, 0, 0};
}

Transform Transform::Inverted() const
{
    const double determinant = Determinant();
    if (determinant == 0.0 || !std::isfinite(determinant))
        QUILON_RAISE(L"Transform is not invertible");
    const double m11 = m_m22 / determinant;
    const double m12 = -m_m12 / determinant;
    const double m21 = -m_m21 / determinant;
    const double m22 = m_m11 / determinant;
    return {m11, m12, m21, m22, -(m_dx * m11 + m_dy * m21), -(m_dx * m12 + m_dy * m22)};
}

} // namespace Quilon_::Drawing

namespace Quilon_::System {

Any ToAny(const Drawing::Transform& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
