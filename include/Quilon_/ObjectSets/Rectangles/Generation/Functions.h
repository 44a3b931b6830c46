// The operator that proposes rectangles where objects may be: selective
// search over a hierarchy of regions. An implementation library registers
// its implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Rectangles::Generation;
//   Functions::SelectiveSearch(colour, sssFast, proposals, 100.0, 0.8, 50.0);
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

#include <cstdint>

namespace Quilon_::ObjectSets::Rectangles::Generation {

// Which similarities the regions are merged by, from the quickest to the
// most thorough.
enum SelectiveSearchStrategyEnumTag : std::int32_t {
    sssSingle = 0,
    sssFast = 1,
    sssQuality = 2,
};
using SelectiveSearchStrategyEnum = SelectiveSearchStrategyEnumTag;

} // namespace Quilon_::ObjectSets::Rectangles::Generation

namespace Quilon_::System {
QUILON_API Any ToAny(ObjectSets::Rectangles::Generation::SelectiveSearchStrategyEnum value);
} // namespace Quilon_::System

namespace Quilon_::ObjectSets::Rectangles::Generation::Functions {

using namespace ObjectSets::Functions::Arguments;

// (image, strategy, result, scale, similarity threshold, least size).
extern QUILON_API Operator<void(Image, SelectiveSearchStrategyEnum, Set, double, double, double)>
    SelectiveSearch;

} // namespace Quilon_::ObjectSets::Rectangles::Generation::Functions
