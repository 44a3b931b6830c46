// The operator that turns an edge image into edgels: one object per edge
// sample, its position and direction. An implementation library registers
// its implementations at start-up:
//
//   ObjectSets::Edgels::Generation::Functions::EdgesToEdgels(edgeImage, edgels);
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::ObjectSets::Edgels::Generation {

using namespace ObjectSets::Functions::Arguments;

// EdgesToEdgels: [0] into one attribute; [1] into a set.
class QUILON_API Function1 : public Overloads<void(Image, Attribute), void(Image, Set)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function1 EdgesToEdgels;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Edgels::Generation
