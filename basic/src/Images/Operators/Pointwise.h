// Fast paths of the sample-by-sample operators (thresholds, sums and
// differences, value counts for histograms and Otsu's threshold): for images
// stored densely, whose samples can be walked as one run, in bands over the
// processing pool, with vectorised kernels where the sample type has them.
// Each returns false, having done nothing, when it does not apply; the
// caller then takes its plain path, whose results these match bit for bit.
//
//   if (!Pointwise::Threshold(source, destination, 128.0, +inf))
//       PlainThreshold(source, destination, 128.0);
//
// The kernels (PointwiseSimd.cpp) are compiled once per instruction set and
// chosen at run time.
#pragma once

#include "Images/Operators/OperatorSupport.h"
#include "Images/Operators/SampleKinds.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Basic::Images::Operators::Pointwise {

// ---- Kernels, one run of samples each (PointwiseSimd.cpp) ------------------

// `streamed` writes `out` past the caches, for a result too large to be
// read from them again (visible to other threads on return).

// out = lower <= in <= upper ? set : 0, `in`, `lower` and `upper` of the
// type of `kind`. The bounds are samples: for floats, NaN samples select
// nothing.
void ThresholdSamples(SampleKind kind, const void* in, std::uint8_t* out, std::int64_t count,
                      const void* lower, const void* upper, std::uint8_t set, bool streamed = false);

// out = a + b, or a - b, saturated for the integer types. Any of the three
// may be the same run.
void SumSamples(SampleKind kind, bool subtract, const void* a, const void* b, void* out, std::int64_t count,
                bool streamed = false);

// out = in != 0 ? 1 : 0 (NaN is not 0).
void MarkNonZero(SampleKind kind, const void* in, std::uint8_t* out, std::int64_t count);

// ---- Operators on whole images ---------------------------------------------

// destination = lower <= source <= upper ? the set value : 0, for a
// destination of 8-bit samples shaped as the source, a source of any real
// type but the 1-, 2- and 4-bit ones. Bounds compare as the
// plain path does, in double: NaN bounds or samples select nothing.
bool Threshold(const ImageRef& source, const ImageRef& destination, double lower, double upper);

// output = a + b or a - b, all three of one real sample type (not 1-, 2- or
// 4-bit) and extent; integers saturate, as in the plain path.
bool Sum(const ImageRef& a, const ImageRef& b, const ImageRef& output, bool subtract);

// How often each value of a dense image of 8- or 16-bit integer samples
// occurs, indexed by the sample's bits read as unsigned (int8 -128 at 128);
// false for other images.
bool CountValues(const ImageRef& image, std::vector<std::int64_t>& counts);

// The same over the samples where `mask` is not 0 (NaN counts as set), for
// a dense mask of any real type and the image's extent; false, having done
// nothing, otherwise (a mask that repeats along a slot of size 1 takes the
// plain path).
bool CountValues(const ImageRef& image, const ImageRef& mask, std::vector<std::int64_t>& counts);

// The least and greatest sample of a dense image of a real type, NaN left
// out; [0, 0] when no sample is left.
bool Extremes(const ImageRef& image, double& low, double& high);

// The same over the samples where `mask` is not 0 (NaN counts as set), for
// a dense mask of any real type and the image's extent; false, having done
// nothing, otherwise.
bool Extremes(const ImageRef& image, const ImageRef& mask, double& low, double& high);

} // namespace Quilon_::Basic::Images::Operators::Pointwise
