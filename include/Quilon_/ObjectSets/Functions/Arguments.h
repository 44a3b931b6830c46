// The argument types that the object-set operators share, written once so
// that every area declares its overloads in the same words:
//
//   namespace Quilon_::ObjectSets::Utility {
//   using namespace ObjectSets::Functions::Arguments;
//   class QUILON_API Function1 : public Overloads<void(Attribute, Attribute), void(Set, Set)> { ... };
//   }
//
// An operator writes its result into the last attribute or object set it is
// given; the set forms create their own attributes. Where an operator takes
// a neighbourhood it comes in two overloads, one with a graph (`Graph`) and
// one with a predefined graph (`PredefinedGraph`); likewise a structuring
// element, or a predefined element and its size.
#pragma once

#include "Quilon_/Geometry/PredefinedNgbGraph.h"
#include "Quilon_/Geometry/PredefinedStructuringElement.h"
#include "Quilon_/System/Functions/Overloads.h"

namespace Quilon_::Geometry {
class INgbGraph;
class IStructuringElement;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::ObjectSets {
class IAttribute;
class IObjectSet;
class Key;
} // namespace Quilon_::ObjectSets

namespace Quilon_::ObjectSets::Functions::Arguments {

using Attribute = System::Ref<IAttribute>;
using Set = System::Ref<IObjectSet>;
using Image = System::Ref<Images::IImage>;
using Graph = System::Ref<Quilon_::Geometry::INgbGraph>;
using PredefinedGraph = Quilon_::Geometry::PredefinedNgbGraphEnum;
using Element = System::Ref<Quilon_::Geometry::IStructuringElement>;
using PredefinedElement = Quilon_::Geometry::PredefinedStructuringElementEnum;

template <class Signature>
using Operator = System::Functions::Template::Function<Signature*>;
template <class... Signatures>
using Overloads = System::Functions::Template::Overloads<Signatures...>;

} // namespace Quilon_::ObjectSets::Functions::Arguments
