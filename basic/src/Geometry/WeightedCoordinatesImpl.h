// The weighted coordinates of the reference library: its integer
// coordinates with a weight. Kernels make them directly.
#pragma once

#include "Geometry/CoordinatesImpl.h"

#include "Quilon_/Geometry/WeightedCoordinates.h"

#include <cstdint>
#include <initializer_list>

namespace Quilon_::Basic::Geometry {

class CWeightedCoordinates
    : public CoordinatesImpl<CWeightedCoordinates, Quilon_::Geometry::IWeightedCoordinates> {
public:
    CWeightedCoordinates(Quilon_::Geometry::Axes axes, double weight)
        : CoordinatesImpl(axes), m_weight(weight)
    {
    }
    // The first values of `axes` in ascending bit order, the others 0.
    CWeightedCoordinates(Quilon_::Geometry::Axes axes, std::initializer_list<std::int64_t> values,
                         double weight)
        : CoordinatesImpl(axes, values), m_weight(weight)
    {
    }
    CWeightedCoordinates(const CWeightedCoordinates& other) = default;

    double Weight() override { return m_weight; }
    void SetWeight(double weight) override { m_weight = weight; }

    // Equal to weighted coordinates of the same axes, values and weight.
    bool Equals(System::Pointer<System::Interface, 1> other) override
    {
        System::Pointer<Quilon_::Geometry::IWeightedCoordinates, 0> weighted(other);
        return weighted && CoordinatesImpl::Equals(other) && weighted->Weight() == m_weight;
    }

private:
    double m_weight;
};

} // namespace Quilon_::Basic::Geometry
