// The logic operators on bitmap shapes: the shapes of the objects of one
// key combined, and the overlaps between the objects of two sets. An
// implementation library registers their implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Bitmaps::Logic;
//   Functions::And(cells, nuclei, both);                 // cell by cell, same keys
//   Functions::Overlap(cells, nuclei, overlapping);      // the keys of nuclei met by each cell
//
// Arguments are (first, second, result...). The results have the keys of
// the first operand; an empty first set leaves the result unconstrained.
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::ObjectSets::Bitmaps::Logic {

using namespace ObjectSets::Functions::Arguments;

// And, Or, XOr, Difference: [0] two spatial attributes into a third; [1]
// the same on the "Shape" attributes of whole sets.
class QUILON_API Function1 : public Overloads<void(Attribute, Attribute, Attribute), void(Set, Set, Set)> {
public:
    using Overloads::Overloads;
};

// Overlap: [0] for each key of the first, the keys of the second whose
// shapes meet it (a key-vector attribute); [1] also the shares of overlap
// (a float-vector attribute); [2] on whole sets.
class QUILON_API Function2
    : public Overloads<void(Attribute, Attribute, Attribute),
                       void(Attribute, Attribute, Attribute, Attribute), void(Set, Set, Set)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function1 And;
extern QUILON_API Function1 Difference;
extern QUILON_API Function1 Or;
extern QUILON_API Function2 Overlap;
extern QUILON_API Function1 XOr;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Bitmaps::Logic
