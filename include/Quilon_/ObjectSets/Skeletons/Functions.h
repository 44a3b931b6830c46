// The skeletons of shapes: as sets of branches, filtered, and as trees. An
// implementation library registers their implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Skeletons;
//   Functions::Skeleton(binary, branches, Geometry::pngSquare8);
//   Functions::Filter(branches, kept, 5.0, System::Pointer<IAttribute, 0>());
//   Functions::TreeSkeletonSetRoot(trees, ObjectSets::Key(3));
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::ObjectSets::Skeletons {

using namespace ObjectSets::Functions::Arguments;

// Skeleton: (binary image, result, neighbourhood).
class QUILON_API Function1 : public Overloads<void(Image, Set, Graph), void(Image, Set, PredefinedGraph)> {
public:
    using Overloads::Overloads;
};

// TreeSkeleton: (shapes or a set, result, TreeSkeletonOptions in an Any).
class QUILON_API Function2
    : public Overloads<void(Attribute, Set, const System::Any&), void(Set, Set, const System::Any&)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
// (branches, result, least branch length, attribute to weigh them by or
// none).
extern QUILON_API Operator<void(Set, Set, double, System::Pointer<IAttribute, 0>)> Filter;
extern QUILON_API Function1 Skeleton;
extern QUILON_API Function2 TreeSkeleton;
// (tree, key of the new root).
extern QUILON_API Operator<void(Set, const Key&)> TreeSkeletonSetRoot;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Skeletons
