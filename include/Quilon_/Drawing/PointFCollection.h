// An ordered list of float points: the vertices of chains, polygons and the
// loops of multi-polygons. The implementation comes from a loaded library.
//
//   Ref<Drawing::IPointFCollection> square = Drawing::PointFCollection::New(
//       std::vector<Drawing::Point<float>>{{0, 0}, {2, 0}, {2, 2}, {0, 2}});
//   square->Length(true);   // 8: the perimeter, closing the loop
//   square->Move(1, 1);
//
// This is the drawing model's point list; geometry uses it as it stands.
#pragma once

#include "Quilon_/Drawing/Point.h"
#include "Quilon_/Math/Matrix.h"
#include "Quilon_/System/Collections/ValueCollection.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::System::Collections::Template {
template <>
QUILON_API const Type& IValueCollection<Drawing::Point<float>>::GetType();
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Drawing {

class QUILON_API IPointFCollection
    : public virtual System::Collections::Template::IValueCollection<Point<float>> {
    QUILON_INTERFACE(IPointFCollection)
public:
    // All points at once, in order.
    virtual std::vector<Point<float>> Points() = 0;
    virtual void SetPoints(const std::vector<Point<float>>& points) = 0;
    virtual void AddRange(const std::vector<Point<float>>& points) = 0;
    // Removes `count` points from `index` on; false if the range is not
    // inside the list (nothing is removed then).
    virtual bool RemoveRange(std::int64_t index, std::int64_t count) = 0;
    virtual void Reverse() = 0;
    virtual void Move(float dx, float dy) = 0;
    // Maps every point through a 3 x 3 homogeneous matrix, row vectors.
    virtual void Transform(System::Ref<Math::IMatrixD> matrix) = 0;
    // The smallest x and y, and the largest; (0, 0) for an empty list.
    virtual Point<float> Minimum() = 0;
    virtual Point<float> Maximum() = 0;
    // The length of the path through the points; `closed` adds the segment
    // from the last point back to the first.
    virtual double Length(bool closed) = 0;
};

namespace PointFCollection {
using Factory =
    System::Functions::Template::Factory<System::Ref<IPointFCollection>(),
                                         System::Ref<IPointFCollection>(const std::vector<Point<float>>&)>;
extern QUILON_API Factory New;
} // namespace PointFCollection

} // namespace Quilon_::Drawing
