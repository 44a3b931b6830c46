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

#include <cstdint>
#include <vector>

namespace Quilon_::Basic::Images::Operators::Pointwise {

// ---- Kernels, one run of samples each ---------------------------------------

// out = lower <= in <= upper ? set : 0, 8-bit samples.
void ThresholdBytes(const std::uint8_t* in, std::uint8_t* out, std::int64_t count, std::uint8_t lower,
                    std::uint8_t upper, std::uint8_t set);

// The sample types SumSamples handles; other types take the plain path.
enum class SumType : std::int32_t { uint8, int8, uint16, int16, float32, float64 };

// out = a + b, or a - b, saturated for the integer types.
void SumSamples(SumType type, bool subtract, const void* a, const void* b, void* out, std::int64_t count);

// ---- Operators on whole images ---------------------------------------------

// destination = lower <= source <= upper ? the set value : 0, for a
// destination of 8-bit samples shaped as the source. Bounds compare as the
// plain path does, in double: NaN bounds or samples select nothing.
bool Threshold(const ImageRef& source, const ImageRef& destination, double lower, double upper);

// output = a + b or a - b, all three of one sample type and extent.
bool Sum(const ImageRef& a, const ImageRef& b, const ImageRef& output, bool subtract);

// How often each value of a dense image of 8- or 16-bit integer samples
// occurs, indexed by the sample's bits read as unsigned (int8 -128 at 128);
// false for other images.
bool CountValues(const ImageRef& image, std::vector<std::int64_t>& counts);

// The least and greatest sample of a dense image of a real type, NaN left
// out; [0, 0] when no sample is left.
bool Extremes(const ImageRef& image, double& low, double& high);

} // namespace Quilon_::Basic::Images::Operators::Pointwise
