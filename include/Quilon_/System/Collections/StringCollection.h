// Ordered lists of strings: the text of tables and lists that are written
// as lines, such as the patterns of a neighbourhood look-up table.
//
//   Pointer<IStringCollection, 1> lines = ...;   // from an implementation library
//   lines->Add(L"1 x x x 1 x x x x");
//   lines->Item(0);
#pragma once

#include "Quilon_/System/Collections/ValueCollection.h"
#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

#include <string>

namespace Quilon_::System::Collections {

class QUILON_API IStringCollection : public Template::IValueCollection<std::wstring> {
    QUILON_INTERFACE(IStringCollection)
};

} // namespace Quilon_::System::Collections
