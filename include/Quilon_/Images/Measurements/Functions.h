// The measurement operators on images: values computed from the samples,
// handed back as results or through reference arguments. An implementation
// library registers their implementations at start-up:
//
//   Ref<Math::IRangeD> range = Images::Measurements::Functions::Range(image);
//   double darkest = range->Minimum();
//   double area = 0;
//   Images::Measurements::Functions::Area(binary, area);
//   Ref<Measurements::IHistogram> h = Images::Measurements::Functions::Histogram(grey);
//
// Unless said otherwise a measurement runs over every sample of every band.
// A mask selects the samples where it is not 0; binary images count a
// sample as set when it is not 0. Samples that are NaN are left out.
#pragma once

#include "Quilon_/Geometry/Axes.h"
#include "Quilon_/Geometry/PredefinedNgbGraph.h"
#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Math {
class IRangeD;
class IMatrixD;
class Moments;
} // namespace Quilon_::Math

namespace Quilon_::Geometry {
class IBox;
class ICoordinatesD;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Measurements {
class IHistogram;
class IProfile;
} // namespace Quilon_::Measurements

namespace Quilon_::Images::Measurements::Functions {

using Image = System::Ref<IImage>;
using Mask = System::Pointer<IImage, 0>;
using RangeD = System::Ref<::Quilon_::Math::IRangeD>;
using HistogramRef = System::Ref<::Quilon_::Measurements::IHistogram>;
using ProfileRef = System::Ref<::Quilon_::Measurements::IProfile>;
using Point = System::Ref<Quilon_::Geometry::ICoordinatesD>;
using MomentsPerBand = std::vector<::Quilon_::Math::Moments>;
using Graph = Quilon_::Geometry::PredefinedNgbGraphEnum;
template <class Signature>
using Operator = System::Functions::Template::Function<Signature*>;
template <class... Signatures>
using Overloads = System::Functions::Template::Overloads<Signatures...>;

// Range: the least and the greatest sample; [0] (image); [1] (image, mask)
// over the samples where the mask is set. With no sample to measure, the
// range [0, 0].
class QUILON_API Function1 : public Overloads<RangeD(Image), RangeD(Image, Mask)> {
public:
    using Overloads::Overloads;
};

// Histogram: [0] (image): for 8- and 16-bit integers one bin per value of
// the type, for other types 256 bins over the image's own range; [1]
// (image, bins, range), samples outside the range left out.
class QUILON_API Function2
    : public Overloads<HistogramRef(Image), HistogramRef(Image, std::int64_t, RangeD)> {
public:
    using Overloads::Overloads;
};

// Moments: the six summary statistics of the samples, one entry per band
// (the standard deviation and the higher moments of the population).
// [0] (image); [1] (image, binary mask); [2] (image, weights, mask), each
// sample counted by the weight at its place, where the mask is set or
// everywhere when it is null.
class QUILON_API Function4 : public Overloads<MomentsPerBand(Image), MomentsPerBand(Image, Image),
                                              MomentsPerBand(Image, Image, Mask)> {
public:
    using Overloads::Overloads;
};

// Intercepts: how often lines across the binary image enter an object.
// [0] (image, axis, count) along the lines of an axis; [1] (image, angle
// in radians from X towards Y, count).
class QUILON_API Function7
    : public Overloads<void(Image, Quilon_::Geometry::AxisEnum, double&), void(Image, double, double&)> {
public:
    using Overloads::Overloads;
};

// ObjectCount: the number of connected objects of a binary image. [0] with
// every neighbour (8 in 2-D, 26 in 3-D); [1] with the given graph.
class QUILON_API Function9 : public Overloads<void(Image, double&), void(Image, Graph, double&)> {
public:
    using Overloads::Overloads;
};

// Profile: the samples along a line. [0] (image, from, to) at unit steps,
// interpolated linearly; [1] (image, axis, position): the line along an
// axis through a position.
class QUILON_API Function12 : public Overloads<ProfileRef(Image, Point, Point),
                                               ProfileRef(Image, Quilon_::Geometry::AxisEnum, Point)> {
public:
    using Overloads::Overloads;
};

// LocalMoments: (source, destination, side) moments of a square (cubic)
// window at each sample: [0] the mean; [1] (side, order) the central
// moment of that order (2: the variance).
class QUILON_API Function15
    : public Overloads<void(Image, Image, std::int64_t), void(Image, Image, std::int64_t, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// HistogramOfOrientedGradients: (image, cell side, bins, features): the
// histograms of gradient orientations of the cells, concatenated; [1]
// normalised over blocks of the given number of cells per side.
class QUILON_API Function18
    : public Overloads<void(Image, std::int64_t, std::int64_t, std::vector<double>&),
                       void(Image, std::int64_t, std::int64_t, std::int64_t, std::vector<double>&)> {
public:
    using Overloads::Overloads;
};

// (binary image, area): the number of set samples.
extern QUILON_API Operator<void(Image, double&)> Area;
// (binary image, box): the smallest box of the spatial axes holding every
// set sample, upper corner exclusive; null when none is set.
extern QUILON_API Operator<void(Image, System::Pointer<Quilon_::Geometry::IBox, 0>&)> BoundingBox;
// (image, image, difference): the greatest absolute difference between
// samples at the same place.
extern QUILON_API Operator<void(Image, Image, double&)> Compare;
// (image, image, coefficients): Pearson's correlation of the two images,
// one coefficient per band.
extern QUILON_API Operator<void(Image, Image, std::vector<double>&)> Correlation;
// (binary image, from, to, length): the length of the shortest path from
// one point to the other through set samples.
extern QUILON_API Operator<void(Image, Point, Point, double&)> Distance;
// (binary image, graph, number): objects less holes.
extern QUILON_API Operator<void(Image, Graph, double&)> Euler;
extern QUILON_API Function2 Histogram;
extern QUILON_API Function18 HistogramOfOrientedGradients;
extern QUILON_API Function7 Intercepts;
extern QUILON_API Function15 LocalMoments;
extern QUILON_API Function4 Moments;
// (image, bins per band, ranges per band): the joint histogram of the
// bands.
extern QUILON_API Operator<HistogramRef(Image, const std::vector<std::int64_t>&, const std::vector<RangeD>&)>
    MultiBandHistogram;
extern QUILON_API Function9 ObjectCount;
extern QUILON_API Function12 Profile;
extern QUILON_API Function1 Range;
// (image, covariances): the covariance matrix of the bands.
extern QUILON_API Operator<void(Image, System::Pointer<::Quilon_::Math::IMatrixD, 0>&)> Variance;
// (image, greatest lag, values): half the mean squared difference of
// samples that lie 1, 2, ... lags apart along the spatial axes.
extern QUILON_API Operator<void(Image, std::int64_t, std::vector<double>&)> Variogram;
// (image, sums): the sum of the samples, one per band.
extern QUILON_API Operator<void(Image, std::vector<double>&)> Volume;

} // namespace Quilon_::Images::Measurements::Functions
