// The operator that detects key points in an image: one object per point.
// An implementation library registers its implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Points::Generation;
//   Functions::DetectKeyPoints(grey, kpdFAST, points);
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

#include <cstdint>

namespace Quilon_::ObjectSets::Points::Generation {

enum KeyPointDetectorEnumTag : std::int32_t {
    kpdHarris = 0,
    kpdFAST = 1,
    kpdSIFT = 2,
    kpdSURF = 3,
    kpdORB = 4,
};
using KeyPointDetectorEnum = KeyPointDetectorEnumTag;

} // namespace Quilon_::ObjectSets::Points::Generation

namespace Quilon_::System {
QUILON_API Any ToAny(ObjectSets::Points::Generation::KeyPointDetectorEnum value);
} // namespace Quilon_::System

namespace Quilon_::ObjectSets::Points::Generation::Functions {

using namespace ObjectSets::Functions::Arguments;

// (image, detector, result).
extern QUILON_API Operator<void(Image, KeyPointDetectorEnum, Set)> DetectKeyPoints;

} // namespace Quilon_::ObjectSets::Points::Generation::Functions
