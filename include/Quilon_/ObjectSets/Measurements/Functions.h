// The measurements of objects: statistics of an image under each shape,
// shape measurements, texture, chains and lines, histograms and moments of
// an attribute, and descriptors of key points. An implementation library
// registers their implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Measurements;
//   Functions::StandardShapeMeasurements(cells, {ssmArea, ssmCentroidX});   // "...Area", "...CentroidX"
//   Functions::Statistics(cells, grey, {}, 0.0, 50.0);                      // every statistic
//
// A selector vector names the measurements wanted, an empty one all of them.
// The attribute form writes into the attributes of the shape's set; the set
// form measures its "Shape" attribute. Each measurement goes to an attribute
// named after its enumerator without the prefix ("Area"), prefixed by the
// operator's name and a dot while Globals::PrefixMeasurementAttributes()
// holds ("StandardShapeMeasurements.Area").
#pragma once

#include "Quilon_/Math/Moments.h"
#include "Quilon_/ObjectSets/Functions/Arguments.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Math {
class IRangeD;
} // namespace Quilon_::Math

namespace Quilon_::Measurements {
class IHistogram;
} // namespace Quilon_::Measurements

namespace Quilon_::ObjectSets::Measurements {

enum StatisticsEnumTag : std::int32_t {
    stMean = 0,
    stMinimum = 1,
    stMaximum = 2,
    stSum = 3,
    stStandardDeviation = 4,
    stMedian = 5,
    stPercentile = 6,
};
using StatisticsEnum = StatisticsEnumTag;

enum StandardShapeMeasurementEnumTag : std::int32_t {
    ssmArea = 0,
    ssmPerimeter = 1,
    ssmCentroidX = 2,
    ssmCentroidY = 3,
    ssmCentroidZ = 4,
    ssmBoundingBoxLeft = 5,
    ssmBoundingBoxTop = 6,
    ssmBoundingBoxFront = 7,
    ssmBoundingBoxWidth = 8,
    ssmBoundingBoxHeight = 9,
    ssmBoundingBoxDepth = 10,
    ssmEquivalentDiameter = 11,
    ssmElongation = 12,
};
using StandardShapeMeasurementEnum = StandardShapeMeasurementEnumTag;

// Calliper diameters and the directions in which they are found.
enum FeretShapeMeasurementEnumTag : std::int32_t {
    fsmMinimumDiameter = 0,
    fsmMaximumDiameter = 1,
    fsmMeanDiameter = 2,
    fsmMinimumDiameterAngle = 3,
    fsmMaximumDiameterAngle = 4,
};
using FeretShapeMeasurementEnum = FeretShapeMeasurementEnumTag;

// Measurements of the projection of a shape onto the axes.
enum ProjectionShapeMeasurementEnumTag : std::int32_t {
    psmWidth = 0,
    psmHeight = 1,
    psmDepth = 2,
    psmMeanIntensityX = 3,
    psmMeanIntensityY = 4,
};
using ProjectionShapeMeasurementEnum = ProjectionShapeMeasurementEnumTag;

// Haralick's measurements of the co-occurrence of grey values.
enum TextureMeasurementEnumTag : std::int32_t {
    tmContrast = 0,
    tmCorrelation = 1,
    tmEnergy = 2,
    tmEntropy = 3,
    tmHomogeneity = 4,
};
using TextureMeasurementEnum = TextureMeasurementEnumTag;

enum ChainMeasurementEnumTag : std::int32_t {
    cmLength = 0,
    cmPointCount = 1,
    cmMeanCurvature = 2,
    cmStraightness = 3,
    cmClosed = 4,
};
using ChainMeasurementEnum = ChainMeasurementEnumTag;

enum LineMeasurementEnumTag : std::int32_t {
    lmLength = 0,
    lmAngle = 1,
    lmStartX = 2,
    lmStartY = 3,
    lmEndX = 4,
    lmEndY = 5,
};
using LineMeasurementEnum = LineMeasurementEnumTag;

enum DescriptorExtractorEnumTag : std::int32_t {
    deSIFT = 0,
    deSURF = 1,
    deORB = 2,
    deBRIEF = 3,
};
using DescriptorExtractorEnum = DescriptorExtractorEnumTag;

} // namespace Quilon_::ObjectSets::Measurements

namespace Quilon_::System {
// Boxed as int64, read back as the enumeration; the selector vectors box as
// themselves.
QUILON_API Any ToAny(ObjectSets::Measurements::StatisticsEnum value);
QUILON_API Any ToAny(ObjectSets::Measurements::StandardShapeMeasurementEnum value);
QUILON_API Any ToAny(ObjectSets::Measurements::FeretShapeMeasurementEnum value);
QUILON_API Any ToAny(ObjectSets::Measurements::ProjectionShapeMeasurementEnum value);
QUILON_API Any ToAny(ObjectSets::Measurements::TextureMeasurementEnum value);
QUILON_API Any ToAny(ObjectSets::Measurements::ChainMeasurementEnum value);
QUILON_API Any ToAny(ObjectSets::Measurements::LineMeasurementEnum value);
QUILON_API Any ToAny(ObjectSets::Measurements::DescriptorExtractorEnum value);
QUILON_API Any ToAny(const std::vector<ObjectSets::Measurements::StatisticsEnum>& value);
QUILON_API Any ToAny(const std::vector<ObjectSets::Measurements::StandardShapeMeasurementEnum>& value);
QUILON_API Any ToAny(const std::vector<ObjectSets::Measurements::FeretShapeMeasurementEnum>& value);
QUILON_API Any ToAny(const std::vector<ObjectSets::Measurements::ProjectionShapeMeasurementEnum>& value);
QUILON_API Any ToAny(const std::vector<ObjectSets::Measurements::TextureMeasurementEnum>& value);
QUILON_API Any ToAny(const std::vector<ObjectSets::Measurements::ChainMeasurementEnum>& value);
QUILON_API Any ToAny(const std::vector<ObjectSets::Measurements::LineMeasurementEnum>& value);
} // namespace Quilon_::System

namespace Quilon_::ObjectSets::Measurements {

using namespace ObjectSets::Functions::Arguments;
using HistogramOutput = System::Pointer<Quilon_::Measurements::IHistogram, 0>&;
using OptionalRange = System::Pointer<Math::IRangeD, 0>;
using OptionalImage = System::Pointer<Images::IImage, 0>;

// Histogram of a scalar attribute: [0] by bin width, [1] by bin count;
// over the range given, or the attribute's own when empty.
class QUILON_API Function1 : public Overloads<void(Attribute, HistogramOutput, double, OptionalRange),
                                              void(Attribute, HistogramOutput, std::int64_t, OptionalRange)> {
public:
    using Overloads::Overloads;
};

// Statistics: (shapes, image, selectors, percentile, ...).
class QUILON_API Function2
    : public Overloads<void(Attribute, Image, const std::vector<StatisticsEnum>&, double, double),
                       void(Set, Image, const std::vector<StatisticsEnum>&, double, double)> {
public:
    using Overloads::Overloads;
};

// StandardShapeMeasurements.
class QUILON_API Function3
    : public Overloads<void(Attribute, const std::vector<StandardShapeMeasurementEnum>&),
                       void(Set, const std::vector<StandardShapeMeasurementEnum>&)> {
public:
    using Overloads::Overloads;
};

// FeretShapeMeasurements: (shapes, selectors, number of directions, ...).
class QUILON_API Function4
    : public Overloads<void(Attribute, const std::vector<FeretShapeMeasurementEnum>&, std::int32_t, double),
                       void(Set, const std::vector<FeretShapeMeasurementEnum>&, std::int32_t, double)> {
public:
    using Overloads::Overloads;
};

// ProjectionShapeMeasurements: (shapes, image or none, selectors, ...).
class QUILON_API Function5
    : public Overloads<
          void(Attribute, OptionalImage, const std::vector<ProjectionShapeMeasurementEnum>&, double, double),
          void(Set, OptionalImage, const std::vector<ProjectionShapeMeasurementEnum>&, double, double)> {
public:
    using Overloads::Overloads;
};

// TextureMeasurements: (shapes, image, selectors).
class QUILON_API Function6
    : public Overloads<void(Attribute, Image, const std::vector<TextureMeasurementEnum>&),
                       void(Set, Image, const std::vector<TextureMeasurementEnum>&)> {
public:
    using Overloads::Overloads;
};

// ChainMeasurements.
class QUILON_API Function7 : public Overloads<void(Attribute, const std::vector<ChainMeasurementEnum>&),
                                              void(Set, const std::vector<ChainMeasurementEnum>&)> {
public:
    using Overloads::Overloads;
};

// LineMeasurements.
class QUILON_API Function8 : public Overloads<void(Attribute, const std::vector<LineMeasurementEnum>&),
                                              void(Set, const std::vector<LineMeasurementEnum>&)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function7 ChainMeasurements;
// (image, key points, extractor, result: the points with their descriptors).
extern QUILON_API Operator<void(Image, Set, DescriptorExtractorEnum, Set)> Descriptors;
extern QUILON_API Function4 FeretShapeMeasurements;
extern QUILON_API Function1 Histogram;
extern QUILON_API Function8 LineMeasurements;
// The six moments of a scalar attribute's values.
extern QUILON_API Operator<void(Attribute, Math::Moments&)> Moments;
extern QUILON_API Function5 ProjectionShapeMeasurements;
extern QUILON_API Function3 StandardShapeMeasurements;
extern QUILON_API Function2 Statistics;
extern QUILON_API Function6 TextureMeasurements;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Measurements
