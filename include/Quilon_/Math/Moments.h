// The six summary statistics of a set of values, as measurers report them.
//
//   Math::Moments moments;         // all six 0
//   moments.Mean() = 2.5;
//   double spread = moments.StandardDeviation();
#pragma once

#include "Quilon_/System/Any.h"

#include <vector>

namespace Quilon_::Math {

class QUILON_API Moments {
public:
    double Minimum() const noexcept { return m_minimum; }
    double& Minimum() noexcept { return m_minimum; }
    double Maximum() const noexcept { return m_maximum; }
    double& Maximum() noexcept { return m_maximum; }
    double Mean() const noexcept { return m_mean; }
    double& Mean() noexcept { return m_mean; }
    double StandardDeviation() const noexcept { return m_standardDeviation; }
    double& StandardDeviation() noexcept { return m_standardDeviation; }
    double Skewness() const noexcept { return m_skewness; }
    double& Skewness() noexcept { return m_skewness; }
    double Kurtosis() const noexcept { return m_kurtosis; }
    double& Kurtosis() noexcept { return m_kurtosis; }

    bool operator==(const Moments&) const = default;

private:
    double m_minimum = 0;
    double m_maximum = 0;
    double m_mean = 0;
    double m_standardDeviation = 0;
    double m_skewness = 0;
    double m_kurtosis = 0;
};

} // namespace Quilon_::Math

namespace Quilon_::System {
QUILON_API Any ToAny(const Math::Moments& value);
QUILON_API Any ToAny(const std::vector<Math::Moments>& value);
} // namespace Quilon_::System
