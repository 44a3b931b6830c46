// The operators that make chains (ordered point lists) from bitmap shapes
// and from edgels. An implementation library registers their
// implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Chains::Generation;
//   Functions::BitmapsToChains(cells, contours, Geometry::pngSquare8);
//   Functions::EdgelsToChains(edgels, chains, Images::EdgeDetection::etRidge, 2.0, 0.5, 10.0, 3.0,
//                             EdgelsToChainsOptions());
#pragma once

#include "Quilon_/Images/EdgeDetection/Functions.h"
#include "Quilon_/ObjectSets/Chains/Generation/EdgelsToChainsOptions.h"
#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::ObjectSets::Chains::Generation {

using namespace ObjectSets::Functions::Arguments;
using EdgeTypeEnum = Images::EdgeDetection::EdgeTypeEnum;

// BitmapsToChains: the contour of each shape, its points connected through
// the neighbourhood.
class QUILON_API Function1
    : public Overloads<void(Attribute, Attribute, Graph), void(Attribute, Attribute, PredefinedGraph),
                       void(Set, Set, Graph), void(Set, Set, PredefinedGraph)> {
public:
    using Overloads::Overloads;
};

// EdgelsToChains: [0] (edgels, their directions, result, edge type, four
// distances and angles, options); [1] on whole sets.
class QUILON_API Function2
    : public Overloads<void(Attribute, Attribute, Attribute, EdgeTypeEnum, double, double, double, double,
                            EdgelsToChainsOptions),
                       void(Set, Set, EdgeTypeEnum, double, double, double, double, EdgelsToChainsOptions)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function1 BitmapsToChains;
extern QUILON_API Function2 EdgelsToChains;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Chains::Generation
