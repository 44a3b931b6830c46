// The segmentation operators on images: binary images and labels from grey
// values. An implementation library registers their implementations at
// start-up:
//
//   Images::Segmentation::Functions::Threshold(grey, binary, Math::IntervalD::New(100.0, 255.0));
//   Images::Segmentation::Functions::OtsuThreshold(grey, binary, Pointer<Images::IImage, 0>());
//   double level = 0;
//   Images::Segmentation::Functions::OtsuThreshold(grey, binary, Pointer<Images::IImage, 0>(), level);
//
// Arguments are (source, destination, ...). A threshold writes a binary
// image: 8-bit unsigned, 255 where the sample is selected and 0 elsewhere,
// category "Image.Category.Binary". A mask, wherever one is taken, selects
// the samples where it is not 0. Samples that are NaN are never selected.
// Label images number the classes from 1, 0 being the background.
#pragma once

#include "Quilon_/Geometry/PredefinedNgbGraph.h"
#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Math {
class IIntervalD;
} // namespace Quilon_::Math

namespace Quilon_::Geometry {
class IStructuringElement;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Color {
class IColorDistance;
} // namespace Quilon_::Images::Color

namespace Quilon_::Images::Segmentation {
class IPartitionsHierarchy;
} // namespace Quilon_::Images::Segmentation

namespace Quilon_::Images::Segmentation::Functions {

using Image = System::Ref<IImage>;
using Mask = System::Pointer<IImage, 0>;
using ColorDistance = System::Pointer<Color::IColorDistance, 0>;
using Hierarchy = System::Ref<IPartitionsHierarchy>;
using Graph = Quilon_::Geometry::PredefinedNgbGraphEnum;
template <class Signature>
using Operator = System::Functions::Template::Function<Signature*>;
template <class... Signatures>
using Overloads = System::Functions::Template::Overloads<Signatures...>;

// Clusters: labels by k-means of the grey values, (source, destination,
// number of classes).
class QUILON_API Function1 : public Overloads<void(Image, Image, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// Threshold: the destination is set where the source lies [0] in the
// interval, both ends included, [1] at or above the value.
class QUILON_API Function2 : public Overloads<void(Image, Image, System::Ref<::Quilon_::Math::IIntervalD>),
                                              void(Image, Image, double)> {
public:
    using Overloads::Overloads;
};

// OtsuThreshold, EntropyThreshold: the threshold that best separates two
// classes of values, found over the samples where the mask is set, or all
// when it is null; the destination is set above it. [1] also gives the
// threshold found: for OtsuThreshold the greatest value of the lower class.
class QUILON_API Function3 : public Overloads<void(Image, Image, Mask), void(Image, Image, Mask, double&)> {
public:
    using Overloads::Overloads;
};

// HysteresisThreshold: (source, destination, low, high): set where the
// source is at or above high, and where it is at or above low and joined
// to such a sample through samples at or above low. [0] with every
// neighbour (8 in 2-D, 26 in 3-D); [1] with the given graph.
class QUILON_API Function4
    : public Overloads<void(Image, Image, double, double), void(Image, Image, double, double, Graph)> {
public:
    using Overloads::Overloads;
};

// RegionGrow: labels of the connected regions whose neighbouring samples
// differ by at most the tolerance. [0] with every neighbour; [1] with the
// given graph.
class QUILON_API Function5 : public Overloads<void(Image, Image, double), void(Image, Image, double, Graph)> {
public:
    using Overloads::Overloads;
};

// SeededRegionGrow: (source, seed labels, destination, tolerance): the
// labels of the seeds grown over the samples within the tolerance of the
// region's mean. [1] with the given graph.
class QUILON_API Function6
    : public Overloads<void(Image, Image, Image, double), void(Image, Image, Image, double, Graph)> {
public:
    using Overloads::Overloads;
};

// MaximumContrastThreshold: the threshold at which the boundary between
// the two classes has the greatest mean contrast. [1] also gives it.
class QUILON_API Function7 : public Overloads<void(Image, Image), void(Image, Image, double&)> {
public:
    using Overloads::Overloads;
};

// HierarchicalPartition: the hierarchy of ever coarser partitions of the
// image by merging the most similar neighbouring regions. [1] with the
// given graph.
class QUILON_API Function8 : public Overloads<Hierarchy(Image), Hierarchy(Image, Graph)> {
public:
    using Overloads::Overloads;
};

// AdaptivePercentileThreshold: set where the sample is above the given
// percentile (0 to 100) of the window around it. [0] a square (cubic)
// window of the given side; [1] a structuring element; [2] (side,
// percentile, offset), the offset added to the percentile first.
class QUILON_API Function10
    : public Overloads<void(Image, Image, std::int64_t, double),
                       void(Image, Image, System::Ref<Quilon_::Geometry::IStructuringElement>, double),
                       void(Image, Image, std::int64_t, double, double)> {
public:
    using Overloads::Overloads;
};

// ColorDistanceThreshold: set where the colour lies within the distance
// of the reference colour, one value per band. [0] by the given colour
// distance (null: Euclidean); [1] Euclidean.
class QUILON_API Function12
    : public Overloads<void(Image, Image, ColorDistance, const std::vector<double>&, double),
                       void(Image, Image, const std::vector<double>&, double)> {
public:
    using Overloads::Overloads;
};

// SeededColorRegionGrow: (source, seed labels, destination, distance,
// tolerance), colour images grown by the colour distance; [1] with the
// given graph.
class QUILON_API Function13 : public Overloads<void(Image, Image, Image, ColorDistance, double),
                                               void(Image, Image, Image, ColorDistance, double, Graph)> {
public:
    using Overloads::Overloads;
};

// MultiModalThreshold: labels 1 to n for the n classes of the histogram's
// modes. [1] also gives the n - 1 thresholds between them.
class QUILON_API Function14 : public Overloads<void(Image, Image, std::int64_t),
                                               void(Image, Image, std::int64_t, std::vector<double>&)> {
public:
    using Overloads::Overloads;
};

// GraphSegmentation: labels of the regions of the graph-based merging of
// neighbouring samples, (source, destination, scale); [1] with a least
// region size.
class QUILON_API Function15
    : public Overloads<void(Image, Image, double), void(Image, Image, double, std::int64_t)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function10 AdaptivePercentileThreshold;
extern QUILON_API Function1 Clusters;
extern QUILON_API Function12 ColorDistanceThreshold;
extern QUILON_API Function3 EntropyThreshold;
// (source, destination, hierarchy, level): the labels of one level of a
// hierarchy of partitions.
extern QUILON_API Operator<void(Image, Image, Hierarchy, std::int64_t)> ExtractPartition;
extern QUILON_API Function15 GraphSegmentation;
extern QUILON_API Function8 HierarchicalPartition;
extern QUILON_API Function4 HysteresisThreshold;
extern QUILON_API Function7 MaximumContrastThreshold;
extern QUILON_API Function14 MultiModalThreshold;
// (source, destination, intervals): label i + 1 where the sample lies in
// interval i and in none before it, 0 where it lies in none; at most 255
// intervals.
extern QUILON_API Operator<void(Image, Image, std::vector<System::Ref<::Quilon_::Math::IIntervalD>>)>
    MultiThreshold;
extern QUILON_API Function3 OtsuThreshold;
extern QUILON_API Function5 RegionGrow;
extern QUILON_API Function13 SeededColorRegionGrow;
extern QUILON_API Function6 SeededRegionGrow;
extern QUILON_API Function2 Threshold;

} // namespace Quilon_::Images::Segmentation::Functions
