// Weighted coordinates: a location with a weight, the points of a
// convolution kernel. They are coordinates in every respect (cloneable,
// equatable, usable wherever an ICoordinates is expected) and carry one
// double more:
//
//   using namespace Quilon_::Geometry;
//   std::int64_t x = 1, y = 0;
//   System::Ref<IWeightedCoordinates> p = WeightedCoordinates::New(x, y, 0.25, Axes::aXY);
//   p->Weight();                  // 0.25
//   p->X();                       // 1
//   System::Ref<IWeightedCoordinatesCollection> points = WeightedCoordinatesCollection::New();
//   points->Add(p);
//   points->WeightSum();          // 0.25
//
// Helper::Bounds of a weighted collection gives the integer extent of its
// points.
#pragma once

#include "Quilon_/Geometry/Coordinates.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Geometry {

class QUILON_API IWeightedCoordinates : public ICoordinates {
    QUILON_INTERFACE(IWeightedCoordinates)
public:
    virtual double Weight() = 0;
    virtual void SetWeight(double weight) = 0;
};

// The twelve collection operations and two of its own.
class QUILON_API IWeightedCoordinatesCollection
    : public System::Collections::Template::ICollection<IWeightedCoordinates> {
    QUILON_INTERFACE(IWeightedCoordinatesCollection)
public:
    // The items in order as a plain vector of references (the same objects,
    // not copies), as ICoordinatesCollection::ToVector.
    virtual std::vector<System::Ref<IWeightedCoordinates>> ToVector() = 0;
    // The sum of the items' weights; 0 for an empty collection.
    virtual double WeightSum() = 0;
};

// As Coordinates::New, with the weight after the values: 1: (axes), values
// and weight 0; 2 to 5: the values of the first axes of `axes` in ascending
// bit order; 6: X, Y, Z, T, B.
namespace WeightedCoordinates {
using Reference = System::Ref<IWeightedCoordinates>;
using V = std::int64_t;
using Factory = System::Functions::Template::Factory<
    Reference(Geometry::Axes), Reference(V, double, Geometry::Axes), Reference(V, V, double, Geometry::Axes),
    Reference(V, V, V, double, Geometry::Axes), Reference(V, V, V, V, double, Geometry::Axes),
    Reference(V, V, V, V, V, double)>;
extern QUILON_API Factory New;
} // namespace WeightedCoordinates

// New() is an empty collection; New(items) holds the given objects, not
// copies.
namespace WeightedCoordinatesCollection {
using Factory =
    System::Functions::Template::Factory<System::Ref<IWeightedCoordinatesCollection>(),
                                         System::Ref<IWeightedCoordinatesCollection>(
                                             const std::vector<System::Ref<IWeightedCoordinates>>&)>;
extern QUILON_API Factory New;
} // namespace WeightedCoordinatesCollection

} // namespace Quilon_::Geometry
