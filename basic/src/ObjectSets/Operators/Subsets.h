// Building blocks of the data operators (Filter, Copy, Append, Merge, Set):
// tables made from the rows and columns of other tables, always into a new
// set, so that the operator hands its output the result only when it is
// complete.
//
//   std::vector<bool> keep = ...;                       // one flag per row of `input`
//   Ref<IObjectSet> kept = RowsOf(input, keep);          // every column, the kept rows
//   ReplaceContents(output, kept);
#pragma once

#include "Quilon_/ObjectSets/Key.h"
#include "Quilon_/System/Pointer.h"

#include <vector>

namespace Quilon_::ObjectSets {
class IAttribute;
class IObjectSet;
} // namespace Quilon_::ObjectSets

namespace Quilon_::Basic::ObjectSets::Operators {

using SetRef = System::Ref<Quilon_::ObjectSets::IObjectSet>;
using AttributeRef = System::Ref<Quilon_::ObjectSets::IAttribute>;

// The keys of the set's rows, in its order.
std::vector<Quilon_::ObjectSets::Key> KeysOf(const SetRef& set);

// A new set with the rows of `set` whose flag is true, in order, and every
// column of `set` with the cells of those rows.
SetRef RowsOf(const SetRef& set, const std::vector<bool>& keep);

// A detached copy of `column` without cells, of the same kind.
AttributeRef EmptyLike(const AttributeRef& column);

} // namespace Quilon_::Basic::ObjectSets::Operators
