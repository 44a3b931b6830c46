// Puts the rows and columns of one object set into another in one step, so
// that an operation builds its result in a set of its own and the caller's
// set changes only once the result is complete: a failure half-way leaves
// the caller's set as it was.
//
//   Ref<IObjectSet> result = ObjectSet::New();
//   ...   // fill result; anything may raise here
//   ReplaceContents(output, result);   // output now holds result's table
//
// The columns move (they are detached from `source` and attached to
// `target`), so `source` is left empty; the extended properties of `target`
// stay as they are.
#pragma once

#include "Quilon_/System/Pointer.h"

namespace Quilon_::ObjectSets {
class IObjectSet;
} // namespace Quilon_::ObjectSets

namespace Quilon_::Basic::ObjectSets {

void ReplaceContents(const System::Ref<Quilon_::ObjectSets::IObjectSet>& target,
                     const System::Ref<Quilon_::ObjectSets::IObjectSet>& source);

} // namespace Quilon_::Basic::ObjectSets
