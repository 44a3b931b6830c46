// The fast paths of the filters: separable symmetric smoothing (Gaussian,
// odd box) of 8-bit and float images, the box mean of 8- and 16-bit
// images in integers, and the 3 x 3 and 5 x 5 medians of 8-bit, 16-bit
// and float images, on the samples in place (no copy into a compute type),
// vectorised and banded over the processing pool. Each returns false,
// having written nothing, when it does not apply (another sample type, a
// window of another shape, rows that are not dense, an output that shares
// memory with the input ...); the caller then runs the plain filter, which
// stays the reference the fast paths are checked against.
//
//   if (!SymmetricSeparableFast(input, output, {weightsX, weightsY}, border))
//       PlainGaussian(input, output, ...);
//
// Results: float images in single precision, within rounding of the plain
// (double) sums; 8-bit ones rounded from a single-precision sum, so that a
// sample whose exact value lies within about 1e-4 of a rounding boundary
// may come out one grey level apart from the plain filter's. Box means of
// integer samples and medians are exact (a median of floats that the plain
// filter finds among NaNs is a NaN too, maybe another one, and of -0 and 0
// either may come).
#pragma once

#include "Images/Filtering/Neighbourhood.h"

#include <vector>

namespace Quilon_::Basic::Images::Operators {

// One pass per spatial slot (X, Y, Z in SpatialSlots order) with the
// weights of that slot: an odd count, symmetric about the middle one; an
// empty list for no pass along that slot.
bool SymmetricSeparableFast(const ImageRef& source, const ImageRef& destination,
                            const std::vector<std::vector<double>>& weightsBySlot, const BorderRule& border);

// The mean of the side x side window (side x 1 for an image of one row)
// of 8- and 16-bit images, exactly rounded, the sums kept in integers.
bool BoxFast(const ImageRef& source, const ImageRef& destination, std::int64_t side,
             const BorderRule& border);

// The median of the window of `points` (the lower middle for an even count).
bool MedianFast(const ImageRef& source, const ImageRef& destination, const std::vector<Point>& points,
                const BorderRule& border);

} // namespace Quilon_::Basic::Images::Operators
