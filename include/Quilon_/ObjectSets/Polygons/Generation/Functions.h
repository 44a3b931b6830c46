// The operator that makes polygons from shapes: the convex hull of each.
// An implementation library registers its implementations at start-up:
//
//   ObjectSets::Polygons::Generation::Functions::ConvexHull(shapes, hulls);
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::ObjectSets::Polygons::Generation {

using namespace ObjectSets::Functions::Arguments;

// ConvexHull: [0] (shapes, result); [1] on whole sets.
class QUILON_API Function1 : public Overloads<void(Attribute, Attribute), void(Set, Set)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function1 ConvexHull;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Polygons::Generation
