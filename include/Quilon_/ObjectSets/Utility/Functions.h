// The utilities of object sets: appending, merging and copying sets and
// attributes, setting every cell, and drawing an attribute into an image.
// An implementation library registers their implementations at start-up:
//
//   using namespace Quilon_::ObjectSets::Utility;
//   Functions::Copy(cells, copy);                       // rows, attributes and cells
//   Functions::Set(area, System::ToAny(0.0));           // every cell of area to 0
//   Functions::ToImage(shapes, labels, System::ToAny(255.0));
//
// Append(first, second, output) puts the rows of the second after those of
// the first; a key of the second that is already taken gets a new one (the
// largest key so far plus one). Merge(first, second, output) keeps the keys
// both sets hold, with the columns of both (the first's where both have a
// name).
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::ObjectSets::Utility {

using namespace ObjectSets::Functions::Arguments;
// Written so rather than `Set`, which names an operator of this namespace.
using Objects = System::Ref<IObjectSet>;

// Copy: [0] an attribute's cells into another; [1] a whole set.
class QUILON_API Function1 : public Overloads<void(Attribute, Attribute), void(Objects, Objects)> {
public:
    using Overloads::Overloads;
};

// ToImage: (shapes, image, [0] the attribute whose value each shape is drawn
// with, [1] one value for all).
class QUILON_API Function2
    : public Overloads<void(Attribute, Image, Attribute), void(Attribute, Image, const System::Any&)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
// (first, second, result): the objects of the second after those of the
// first, with new keys.
extern QUILON_API Operator<void(Objects, Objects, Objects)> Append;
extern QUILON_API Function1 Copy;
// (first, second, result): the objects of both, by key; attributes joined.
extern QUILON_API Operator<void(Objects, Objects, Objects)> Merge;
extern QUILON_API Operator<void(Attribute, const System::Any&)> Set;
extern QUILON_API Function2 ToImage;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Utility
