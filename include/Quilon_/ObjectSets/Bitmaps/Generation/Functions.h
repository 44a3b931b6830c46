// The operators that make bitmap shapes out of images: one object per
// region, its shape in the spatial attribute given, or in the attribute
// "Shape" that the set form creates. An implementation library registers
// their implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Bitmaps::Generation;
//   auto regions = ObjectSets::ObjectSet::New();
//   Functions::Labels(labelImage, regions);                          // one object per label
//   Functions::Threshold(grey, regions, Math::IntervalD::New(100.0, 255.0), Geometry::pngSquare8);
//
// Arguments are (image, ..., result, parameters..., neighbourhood): the
// neighbourhood decides which samples are connected, given as a graph or as
// a predefined one.
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

#include <cstdint>

namespace Quilon_::Math {
class IIntervalD;
class IRangeD;
} // namespace Quilon_::Math

namespace Quilon_::Images::Segmentation {
class IPartitionsHierarchy;
} // namespace Quilon_::Images::Segmentation

namespace Quilon_::ObjectSets::Bitmaps::Generation {

using namespace ObjectSets::Functions::Arguments;
using Interval = System::Ref<Math::IIntervalD>;
using Range = System::Ref<Math::IRangeD>;
using Hierarchy = System::Ref<Images::Segmentation::IPartitionsHierarchy>;

// Labels: one object per label of a label image, 0 being the background.
class QUILON_API Function1 : public Overloads<void(Image, Attribute), void(Image, Set)> {
public:
    using Overloads::Overloads;
};

// Clusters: one object per connected region of equal values.
class QUILON_API Function2
    : public Overloads<void(Image, Attribute, Graph), void(Image, Attribute, PredefinedGraph),
                       void(Image, Set, Graph), void(Image, Set, PredefinedGraph)> {
public:
    using Overloads::Overloads;
};

// Threshold: the connected regions of the samples within the interval.
class QUILON_API Function3
    : public Overloads<void(Image, Attribute, Interval, Graph),
                       void(Image, Attribute, Interval, PredefinedGraph), void(Image, Set, Interval, Graph),
                       void(Image, Set, Interval, PredefinedGraph)> {
public:
    using Overloads::Overloads;
};

// HysteresisThreshold: (image, result, low, high, neighbourhood).
class QUILON_API Function4 : public Overloads<void(Image, Attribute, Interval, Interval, Graph),
                                              void(Image, Attribute, Interval, Interval, PredefinedGraph),
                                              void(Image, Set, Interval, Interval, Graph),
                                              void(Image, Set, Interval, Interval, PredefinedGraph)> {
public:
    using Overloads::Overloads;
};

// RegionGrow: (image, result, tolerance, neighbourhood).
class QUILON_API Function5
    : public Overloads<void(Image, Attribute, double, Graph), void(Image, Attribute, double, PredefinedGraph),
                       void(Image, Set, double, Graph), void(Image, Set, double, PredefinedGraph)> {
public:
    using Overloads::Overloads;
};

// SeededRegionGrow: (image, seeds, result, tolerance, whether to grow over
// the background, neighbourhood).
class QUILON_API Function6 : public Overloads<void(Image, Image, Attribute, double, bool, Graph),
                                              void(Image, Image, Attribute, double, bool, PredefinedGraph),
                                              void(Image, Image, Set, double, bool, Graph),
                                              void(Image, Image, Set, double, bool, PredefinedGraph)> {
public:
    using Overloads::Overloads;
};

// ZeroCrossing: (image, result, two sizes, neighbourhood).
class QUILON_API Function7
    : public Overloads<void(Image, Attribute, std::int64_t, std::int64_t, Graph),
                       void(Image, Attribute, std::int64_t, std::int64_t, PredefinedGraph),
                       void(Image, Set, std::int64_t, std::int64_t, Graph),
                       void(Image, Set, std::int64_t, std::int64_t, PredefinedGraph)> {
public:
    using Overloads::Overloads;
};

// MaximumContrastThreshold: (image, result, least region size).
class QUILON_API Function8
    : public Overloads<void(Image, Attribute, std::int64_t), void(Image, Set, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// ExtractPartition: the regions of one level of a hierarchy of partitions.
class QUILON_API Function9 : public Overloads<void(Image, Attribute, Hierarchy, std::int64_t),
                                              void(Image, Set, Hierarchy, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// AdaptivePercentileThreshold: (image, result, window range, percentile
// range, neighbourhood).
class QUILON_API Function10
    : public Overloads<
          void(Image, Attribute, Range, Range, Graph), void(Image, Attribute, Range, Range, PredefinedGraph),
          void(Image, Set, Range, Range, Graph), void(Image, Set, Range, Range, PredefinedGraph)> {
public:
    using Overloads::Overloads;
};

// EntropyThreshold, OtsuThreshold: (image, result, neighbourhood, whether
// the bright class is kept).
class QUILON_API Function11
    : public Overloads<void(Image, Attribute, Graph, bool), void(Image, Attribute, PredefinedGraph, bool),
                       void(Image, Set, Graph, bool), void(Image, Set, PredefinedGraph, bool)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function10 AdaptivePercentileThreshold;
extern QUILON_API Function2 Clusters;
extern QUILON_API Function11 EntropyThreshold;
extern QUILON_API Function9 ExtractPartition;
extern QUILON_API Function4 HysteresisThreshold;
extern QUILON_API Function1 Labels;
extern QUILON_API Function8 MaximumContrastThreshold;
extern QUILON_API Function11 OtsuThreshold;
extern QUILON_API Function5 RegionGrow;
extern QUILON_API Function6 SeededRegionGrow;
extern QUILON_API Function3 Threshold;
extern QUILON_API Function7 ZeroCrossing;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Bitmaps::Generation
