// Mathematical morphology on the bitmap shapes of objects, one shape at a
// time. An implementation library registers their implementations at
// start-up:
//
//   using namespace Quilon_::ObjectSets::Bitmaps::Morphology;
//   Functions::Erode(shapes, eroded, Geometry::pseDisk, 2.0);
//   Functions::HoleFill(cells, filled, Geometry::pngSquare8);
//
// Arguments are (source, result, element or neighbourhood); the element is
// a structuring element, or a predefined one with its size.
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

namespace Quilon_::ObjectSets::Bitmaps::Morphology {

using namespace ObjectSets::Functions::Arguments;

// Erode, Dilate, Open, Close.
class QUILON_API Function1
    : public Overloads<void(Attribute, Attribute, Element),
                       void(Attribute, Attribute, PredefinedElement, double), void(Set, Set, Element),
                       void(Set, Set, PredefinedElement, double)> {
public:
    using Overloads::Overloads;
};

// HoleFill: holes are the background regions not connected to the outside
// through the neighbourhood.
class QUILON_API Function2
    : public Overloads<void(Attribute, Attribute, Graph), void(Attribute, Attribute, PredefinedGraph),
                       void(Set, Set, Graph), void(Set, Set, PredefinedGraph)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function1 Close;
extern QUILON_API Function1 Dilate;
extern QUILON_API Function1 Erode;
extern QUILON_API Function2 HoleFill;
extern QUILON_API Function1 Open;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Bitmaps::Morphology
