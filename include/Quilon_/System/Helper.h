// The arithmetic view on a boxed value, and presentable names of types.
//
// A value is a scalar when it holds one of the integer types (char,
// unsigned char, short, unsigned short, int, unsigned int, __int64,
// unsigned __int64) or float or double; ScalarValue also reads a numeric
// wstring. Writing a number through DoubleToAny keeps the Any's type:
//
//   Any level = ToAny(static_cast<unsigned char>(0));
//   Helper::DoubleToAny(200.7, level);        // still unsigned char, 200
//   Helper::ScalarValue(ToAny(L"2.5"));        // 2.5
//
// Type names are the same on every platform, since files and factories key
// on them: fundamental types by the words "int", "__int64",
// "unsigned __int64", "double", ... also inside templates, the standard
// strings as "std::string" and "std::wstring", default template arguments
// (allocators, traits) left out, no blank after a comma or between closing
// brackets, and without the prefix words "class ", "struct ", "enum " and
// the root namespace's qualifier.
//
//   Helper::TypeName(typeid(std::int64_t));                // L"__int64"
//   Helper::TypeName(typeid(std::vector<std::int64_t>));   // L"std::vector<__int64>"
//   Helper::TypeName(typeid(System::Type));                // L"System::Type"
#pragma once

#include "Quilon_/Config.h"

#include <complex>
#include <cstdint>
#include <string>
#include <typeinfo>

namespace Quilon_::System {
class Any;
}

namespace Quilon_::System::Helper {

// False for an empty Any.
QUILON_API bool IsInteger(const Any& value);
QUILON_API bool IsFloatingPoint(const Any& value);
QUILON_API bool IsScalar(const Any& value);

// The number held, as double. A wstring counts as well and is read as a
// number (text that is no number leaves `out` as it was); IsScalar says no
// to it. False for anything else.
QUILON_API bool ScalarValue(const Any& value, double& out);
// Raises "Value is not a scalar (%1%)" with the held type's name ("void"
// when empty).
QUILON_API double ScalarValue(const Any& value);
// A std::complex<double>, or a scalar with imaginary part 0; otherwise the
// failure of ScalarValue.
QUILON_API std::complex<double> ComplexValue(const Any& value);
// Replaces the scalar in `target` by `value` converted to the scalar's own
// type, truncated toward zero (and limited to the type's range); raises
// "Any must contain a scalar value" and leaves `target` alone otherwise.
QUILON_API void DoubleToAny(double value, Any& target);

QUILON_API std::wstring TypeName(const std::type_info& type);
// Makes a language name presentable. The narrow form also accepts the
// language's mangled name, as type_info::name() gives it.
QUILON_API std::wstring TypeName(const std::wstring& name);
QUILON_API std::wstring TypeName(const std::string& name);

// A 64-bit value for a 32-bit field, e.g. of a binary stream: raises
// "Int value exceeds 32 bits storage: '%1%'" (or the "UInt" message) when
// it does not survive the narrowing.
QUILON_API std::int32_t NarrowToInt32(std::int64_t value);
QUILON_API std::uint32_t NarrowToUInt32(std::uint64_t value);

} // namespace Quilon_::System::Helper

namespace Quilon_::System::Detail {
// The class name as the type dictionary spells it: the presentable name with
// the root namespace kept ("Quilon_::System::CException"). Factories() and
// the object frames of archives are keyed by it.
QUILON_API std::wstring QualifiedTypeName(const std::type_info& type);
} // namespace Quilon_::System::Detail

namespace Quilon_::System::Detail {
// The run-time class name of an object, demangled as the language gives it.
QUILON_API std::wstring RuntimeClassName(const std::type_info& type);
} // namespace Quilon_::System::Detail
