// The operator that selects objects of a set: by the value of an attribute,
// or by key. An implementation library registers its implementations at
// start-up:
//
//   using namespace Quilon_::ObjectSets::Filtering;
//   Functions::Filter(cells, large, area, 100.0, 1e9, true);     // 100 <= area <= 1e9
//   Functions::Filter(cells, some, keys, false);                 // all but these keys
#pragma once

#include "Quilon_/ObjectSets/Functions/Arguments.h"

#include <vector>

namespace Quilon_::ObjectSets::Filtering {

using namespace ObjectSets::Functions::Arguments;

// Filter: (source, result, attribute, lower, upper, keep inside); (source,
// result, keys, keep them).
class QUILON_API Function1 : public Overloads<void(Set, Set, Attribute, double, double, bool),
                                              void(Set, Set, const std::vector<Key>&, bool)> {
public:
    using Overloads::Overloads;
};

namespace Functions {
extern QUILON_API Function1 Filter;
} // namespace Functions

} // namespace Quilon_::ObjectSets::Filtering
