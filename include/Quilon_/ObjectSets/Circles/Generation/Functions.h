// The operators that find circles: fitted to bitmap shapes, or found in an
// image by a Hough transform. An implementation library registers their
// implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Circles::Generation;
//   Functions::HoughCircles(edges, circles, Math::Range::New(std::int64_t(5), std::int64_t(20)),
//                           std::int64_t(1), std::int64_t(10), std::int64_t(8), 0.5);
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

#include <cstdint>

namespace Quilon_::Math {
class IRange;
} // namespace Quilon_::Math

namespace Quilon_::Geometry {
class IShapeND;
} // namespace Quilon_::Geometry

namespace Quilon_::ObjectSets::Circles::Generation {

using namespace ObjectSets::Functions::Arguments;
using RadiusRange = System::Ref<Math::IRange>;
using Region = System::Pointer<Quilon_::Geometry::IShapeND, 0>;

// HoughCircles: (image, result, radius range, radius step, least distance
// between centres, number of circles, ..., accumulator threshold); [2]
// searches within a region only (empty: everywhere).
class QUILON_API Function1
    : public Overloads<
          void(Image, Set, RadiusRange, std::int64_t, std::int64_t, std::int64_t, double),
          void(Image, Set, RadiusRange, std::int64_t, std::int64_t, std::int64_t, std::int64_t, double),
          void(Image, Set, RadiusRange, std::int64_t, std::int64_t, std::int64_t, Region, double)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
// (shapes, centres, radii, tolerance, least number of contour points).
extern QUILON_API Operator<void(Attribute, Attribute, Attribute, double, std::int64_t)> BitmapsToCircles;
extern QUILON_API Function1 HoughCircles;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Circles::Generation
