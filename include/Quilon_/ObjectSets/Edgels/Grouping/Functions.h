// The operator that finds, for each edgel, the edgels near it. An
// implementation library registers its implementations at start-up:
//
//   ObjectSets::Edgels::Grouping::Functions::EdgelNeighbors(edgels, 3.0);   // within 3 samples
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::ObjectSets::Edgels::Grouping {

using namespace ObjectSets::Functions::Arguments;

// EdgelNeighbors: [0] (edgels, keys of the neighbours, distance); [1] a
// set, which receives its own attribute of neighbours.
class QUILON_API Function1 : public Overloads<void(Attribute, Attribute, double), void(Set, double)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function1 EdgelNeighbors;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Edgels::Grouping
