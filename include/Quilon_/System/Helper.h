// Presentable names of types, the same on every platform: fundamental types
// by their documented words ("int", "__int64", "unsigned __int64",
// "double", ...), everything else demangled, without the prefix words
// "class ", "struct ", "enum " and without the root namespace's qualifier.
//
//   Helper::TypeName(typeid(std::int64_t));   // L"__int64"
//   Helper::TypeName(typeid(System::Type));   // L"System::Type"
#pragma once

#include "Quilon_/Config.h"

#include <string>
#include <typeinfo>

namespace Quilon_::System::Helper {

QUILON_API std::wstring TypeName(const std::type_info& type);
// Makes a language name presentable (strips the prefix words and the root
// namespace's qualifier).
QUILON_API std::wstring TypeName(const std::wstring& name);
QUILON_API std::wstring TypeName(const std::string& name);

} // namespace Quilon_::System::Helper

namespace Quilon_::System::Detail {
// The run-time class name of an object, demangled as the language gives it.
QUILON_API std::wstring RuntimeClassName(const std::type_info& type);
} // namespace Quilon_::System::Detail
