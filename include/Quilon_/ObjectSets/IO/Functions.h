// The operators that read and write object-set files. An implementation
// library registers their implementations at start-up; they choose among the
// readers and writers of ObjectSets::IO::Globals by the file's extension:
//
//   Ref<ObjectSets::IObjectSet> set = ObjectSets::ObjectSet::New();
//   ObjectSets::IO::Functions::Read(set, L"objects.csv");    // set becomes the file's table
//   ObjectSets::IO::Functions::Write(set, L"copy.csv");
//
// Both check first that their first argument is an object set. Without an
// implementation a call raises "No implementation available for function".
// A file that cannot be read or written raises a message that names it, and
// a failed Read leaves the set as it was.
#pragma once

#include "Quilon_/System/Functions/Function.h"

#include <string>

namespace Quilon_::ObjectSets {
class IObjectSet;
} // namespace Quilon_::ObjectSets

namespace Quilon_::ObjectSets::IO::Functions {

using ObjectSet = System::Ref<IObjectSet>;

// (set, fileName): the set's rows and columns become the file's.
extern QUILON_API System::Functions::Template::Function<void (*)(ObjectSet, const std::wstring&)> Read;
// (set, fileName): chosen by the extension, among its writers the one that
// converts least.
extern QUILON_API System::Functions::Template::Function<void (*)(ObjectSet, const std::wstring&)> Write;

} // namespace Quilon_::ObjectSets::IO::Functions
