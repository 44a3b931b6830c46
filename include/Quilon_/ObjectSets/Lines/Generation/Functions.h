// The operators that find straight lines: fitted to shapes or chains, or
// found in an image. An implementation library registers their
// implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Lines::Generation;
//   Functions::ChainLineFit(contours, lines);
//   Functions::HoughLines(edges, lines, 1.0, 0.01, 50.0, 10.0);
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

#include <cstdint>
#include <string>

namespace Quilon_::ObjectSets::Lines::Generation {

// How HoughLines accumulates votes: one per edge sample, or weighted by the
// sample's edge strength.
enum AccumulationMethodEnumTag : std::int32_t {
    amStandard = 0,
    amWeighted = 1,
};
using AccumulationMethodEnum = AccumulationMethodEnumTag;

} // namespace Quilon_::ObjectSets::Lines::Generation

namespace Quilon_::System {
QUILON_API Any ToAny(ObjectSets::Lines::Generation::AccumulationMethodEnum value);
} // namespace Quilon_::System

namespace Quilon_::ObjectSets::Lines::Generation {

using namespace ObjectSets::Functions::Arguments;

// BitmapLineFit, ChainLineFit: [0] (shapes or chains, result, residuals);
// [1] on whole sets.
class QUILON_API Function1 : public Overloads<void(Attribute, Attribute, Attribute), void(Set, Set)> {
public:
    using Overloads::Overloads;
};

// EdgesToLines: (edge image, result, five tolerances).
class QUILON_API Function2 : public Overloads<void(Image, Attribute, double, double, double, double, double),
                                              void(Image, Set, double, double, double, double, double)> {
public:
    using Overloads::Overloads;
};

// HoughLines: [0] (image, result, four sizes of the accumulator, method,
// six thresholds); [1] (image, result, distance step, angle step, vote
// threshold, least length).
class QUILON_API Function3
    : public Overloads<void(Image, Set, std::int64_t, std::int64_t, std::int64_t, std::int64_t,
                            AccumulationMethodEnum, double, double, double, double, double, double),
                       void(Image, Set, double, double, double, double)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function1 BitmapLineFit;
extern QUILON_API Function1 ChainLineFit;
extern QUILON_API Function2 EdgesToLines;
extern QUILON_API Function3 HoughLines;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Lines::Generation
