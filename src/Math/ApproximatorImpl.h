// The approximator computed in the core: one tolerance, no lock, since
// every thread works with its own instance.
#pragma once

#include "Quilon_/Math/Approximator.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Math {

class CApproximator : public System::Template::ObjectImpl<CApproximator, IApproximator, System::ICloneable> {
public:
    explicit CApproximator(double epsilon) noexcept : m_epsilon(epsilon) {}

    double Epsilon() override { return m_epsilon; }
    void SetEpsilon(double epsilon) override { m_epsilon = epsilon; }
    bool Greater(double x, double y) override { return x > y + m_epsilon; }
    bool Less(double x, double y) override { return y - m_epsilon > x; }
    bool GreaterOrEqual(double x, double y) override { return x > y - m_epsilon; }
    bool LessOrEqual(double x, double y) override { return y + m_epsilon > x; }
    bool Equal(double x, double y) override;
    bool IsInteger(double x) override;
    std::int64_t Floor(double x) override;
    std::int64_t ToInteger(double x) override;
    std::int64_t Ceiling(double x) override;
    std::int64_t Round(double x) override;
    double PixelCenter(double x) override { return static_cast<double>(Floor(x)) + 0.5; }
    std::int64_t Round(double x, RoundingMethodEnum method) override;
    bool Snap(double& x) override;

    System::Pointer<System::ICloneable, 1> Clone() override;

private:
    double m_epsilon;
};

} // namespace Quilon_::Math
