#include "Math/ApproximatorImpl.h"

#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/System/Type.h"

#include <cmath>
#include <utility>

namespace Quilon_::Math {

using System::Pointer;
using Reference = Pointer<IApproximator, 1>;

QUILON_DEFINE_INTERFACE_TYPE(IApproximator, L"Quilon_::Math::IApproximator", System::Interface)

bool CApproximator::Equal(double x, double y)
{
    return m_epsilon > std::fabs(x - y);
}

bool CApproximator::IsInteger(double x)
{
    return m_epsilon > std::fabs(x - std::trunc(x));
}

std::int64_t CApproximator::Floor(double x)
{
    return ToInteger(std::floor(x + m_epsilon));
}

std::int64_t CApproximator::ToInteger(double x)
{
    return static_cast<std::int64_t>(x >= 0 ? std::trunc(x + m_epsilon) : std::trunc(x - m_epsilon));
}

std::int64_t CApproximator::Ceiling(double x)
{
    return ToInteger(std::ceil(x - m_epsilon));
}

// eps is subtracted on both sides, so ties go down: towards zero above it,
// away from zero below.
std::int64_t CApproximator::Round(double x)
{
    return static_cast<std::int64_t>(x >= 0 ? std::trunc(x + 0.5 - m_epsilon) : std::trunc(x - 0.5 - m_epsilon));
}

std::int64_t CApproximator::Round(double x, RoundingMethodEnum method)
{
    switch (method) {
    case rmFloor:
        return Floor(x);
    case rmCeiling:
        return Ceiling(x);
    case rmRound:
        return Round(x);
    default:
        return ToInteger(x);
    }
}

bool CApproximator::Snap(double& x)
{
    if (!IsInteger(x))
        return false;
    x = static_cast<double>(Round(x));
    return true;
}

Pointer<System::ICloneable, 1> CApproximator::Clone()
{
    return Pointer<System::ICloneable, 1>(new CApproximator(m_epsilon));
}

namespace {

Reference NewApproximator()
{
    return Reference(new CApproximator(Approximator::DefaultApproximator()->Epsilon()));
}

Reference NewApproximatorWithEpsilon(double epsilon)
{
    return Reference(new CApproximator(epsilon));
}

} // namespace

namespace Approximator {

Factory New;

namespace {
// Right after New is made, so that approximators can be made from the
// first moment on, before any library is loaded.
[[maybe_unused]] const bool registered = [] {
    New.Register(L"Approximator", &NewApproximator);
    New.Register(L"Approximator", &NewApproximatorWithEpsilon);
    return true;
}();
} // namespace

// One per thread, each made at the thread's first read as a clone of the
// process-wide one, which the main thread's writes replace. Until a library
// sets it, the tolerance is 0.
QUILON_DEFINE_SETTING(DefaultApproximator, SetDefaultApproximator, ClearDefaultApproximator,
                      Reference(new CApproximator(0)), System::gvsPerThreadFromMain)

} // namespace Approximator

} // namespace Quilon_::Math
