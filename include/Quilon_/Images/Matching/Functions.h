// Matching of images against each other or against themselves:
// correlation, co-occurrence, Hough accumulators and registration. An
// implementation library registers the implementations at start-up:
//
//   Images::Matching::Functions::CrossCorrelate(image, pattern, scores);
//   Images::Matching::Functions::HoughCirclesAccumulator(edges, votes, 12.0);
//   Images::Matching::BBFAffineMatchingResults results;
//   Images::Matching::Functions::Register(fixed, moving, aligned,
//   Images::Matching::BBFAffineMatchingOptions(),
//                                         results);
//
// Correlations and accumulators work on single-band planes; the other
// operators follow the bands of their input.
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

#include <vector>

namespace Quilon_::Geometry {
class ICoordinates;
class IKernel;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Matching {
class BBFAffineMatchingOptions;
class BBFAffineMatchingResults;
class DAMatchingOptions;
class DAMatchingResults;
} // namespace Quilon_::Images::Matching

namespace Quilon_::Images::Matching::Functions {

using Image = System::Ref<IImage>;
template <class Signature>
using Function = System::Functions::Template::Function<Signature*>;
template <class... Signatures>
using Overloads = System::Functions::Template::Overloads<Signatures...>;

// Correlate: [0] (input, output, kernel) with a kernel as the pattern;
// [1] (input, pattern, output) with an image as the pattern.
class QUILON_API Function1 : public Overloads<void(Image, Image, System::Ref<::Quilon_::Geometry::IKernel>),
                                              void(Image, Image, Image)> {
public:
    using Overloads::Overloads;
};

// Register (fixed, moving, registered, options, results): [0] by key points
// under an affine map, [1] for tiles of one acquisition.
class QUILON_API Function3
    : public Overloads<void(Image, Image, Image, const BBFAffineMatchingOptions&, BBFAffineMatchingResults&),
                       void(Image, Image, Image, const DAMatchingOptions&, DAMatchingResults&)> {
public:
    using Overloads::Overloads;
};

// HoughCirclesAccumulator (edges, votes, ...): [0] one radius, [1] every
// radius from minimum to maximum (one plane of votes per radius), [2] the
// radii listed.
class QUILON_API Function4 : public Overloads<void(Image, Image, double), void(Image, Image, double, double),
                                              void(Image, Image, const std::vector<double>&)> {
public:
    using Overloads::Overloads;
};

// HoughLinesAccumulator (edges, votes, ...): [0] one vote cell per degree
// and per pixel of distance, [1] with the numbers of angles and distances.
class QUILON_API Function5
    : public Overloads<void(Image, Image), void(Image, Image, std::int64_t, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// CrossCorrelate (image, pattern, output): [0] plain, [1] normalised
// (true: the correlation coefficient, in [-1, 1]).
class QUILON_API Function6 : public Overloads<void(Image, Image, Image), void(Image, Image, Image, bool)> {
public:
    using Overloads::Overloads;
};

// AutoCorrelate (input, output): [0] plain, [1] normalised.
class QUILON_API Function7 : public Overloads<void(Image, Image), void(Image, Image, bool)> {
public:
    using Overloads::Overloads;
};

// The correlation of a plane with itself, origin at the centre.
extern QUILON_API Function7 AutoCorrelate;
// (input, matrix, displacement, levels): the grey-level co-occurrence
// matrix of pairs at the displacement, quantised to `levels` levels.
extern QUILON_API Function<void(Image, Image, System::Ref<::Quilon_::Geometry::ICoordinates>, double)>
    Cooccurrence;
// The correlation of the input with a pattern at every position.
extern QUILON_API Function1 Correlate;
// The correlation of an image with a smaller pattern image, computed in
// the frequency domain.
extern QUILON_API Function6 CrossCorrelate;
// Votes for circle centres from an edge image.
extern QUILON_API Function4 HoughCirclesAccumulator;
// Votes for lines (angle, distance) from an edge image.
extern QUILON_API Function5 HoughLinesAccumulator;
// Maps `moving` onto `fixed` into `registered`, reporting into the results.
extern QUILON_API Function3 Register;

} // namespace Quilon_::Images::Matching::Functions
