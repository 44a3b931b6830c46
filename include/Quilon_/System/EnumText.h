// The texts of enumerations, entered as tables.
//
// Every enumeration of the toolkit prints through System::ToString, which
// gives the name of the enumerator; values that are no enumerator print by
// the enumeration's documented fall-back: the empty text, or the decimal
// number through the format "%1%". One line in a source file defines the
// whole function, in the order of the documented table:
//
//   // header, beside the enumeration
//   namespace Quilon_::System {
//   QUILON_API std::wstring ToString(Geometry::AxisEnum value);
//   }
//
//   // source
//   QUILON_DEFINE_ENUM_TEXT(Geometry::AxisEnum, Number,
//                           {Geometry::aX, L"aX"}, {Geometry::aY, L"aY"}, ...)
//
//   System::ToString(Geometry::aY);                        // "aY"
//   System::ToString(static_cast<Geometry::AxisEnum>(6));  // "6"
//
// The same table reads a name back (EnumValue), for tools that take
// enumerators on a command line; a tool that knows only the enumeration's
// type finds its table with EnumTextRowsOf(typeid(Geometry::AxisEnum)).
#pragma once

#include "Quilon_/Config.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <typeinfo>

namespace Quilon_::System::Detail {

struct EnumTextRow {
    std::int64_t value;
    const wchar_t* name;
};

// What a value that is in no row prints as.
enum class EnumFallback {
    Empty,  // the empty text
    Number, // the decimal number, through the format "%1%"
};

// The name of the first row of `value`, or the fall-back.
QUILON_API std::wstring EnumText(std::int64_t value, std::span<const EnumTextRow> rows,
                                 EnumFallback fallback);
// The value of the first row named `name`, compared exactly.
QUILON_API std::optional<std::int64_t> EnumValue(const std::wstring& name, std::span<const EnumTextRow> rows);

// The table of an enumeration, for EnumValue. Specialised by
// QUILON_DEFINE_ENUM_TEXT in the source that defines the text.
template <class Enum>
std::span<const EnumTextRow> EnumTextRows();

// The table of the enumeration of `type`, in whichever library it is
// defined; empty when it has none.
QUILON_API std::span<const EnumTextRow> EnumTextRowsOf(const std::type_info& type);

// Enters a table for EnumTextRowsOf; one per QUILON_DEFINE_ENUM_TEXT, made
// during static construction.
struct QUILON_API EnumTextRegistration {
    EnumTextRegistration(const std::type_info& type, std::span<const EnumTextRow> (*rows)());
};

} // namespace Quilon_::System::Detail

// Defines System::ToString(Enum) and Detail::EnumTextRows<Enum>() from the
// rows {enumerator, L"name"}; Fallback is Empty or Number. Use it at global
// scope, with the enumeration's name qualified from Quilon_ on.
#define QUILON_DEFINE_ENUM_TEXT(Enum, Fallback, ...)                                                         \
    template <>                                                                                              \
    QUILON_API std::span<const ::Quilon_::System::Detail::EnumTextRow>                                       \
    Quilon_::System::Detail::EnumTextRows<Quilon_::Enum>()                                                   \
    {                                                                                                        \
        using namespace ::Quilon_;                                                                           \
        static constexpr ::Quilon_::System::Detail::EnumTextRow rows[] = {__VA_ARGS__};                      \
        return rows;                                                                                         \
    }                                                                                                        \
    std::wstring Quilon_::System::ToString(Quilon_::Enum value)                                              \
    {                                                                                                        \
        return Detail::EnumText(static_cast<std::int64_t>(value), Detail::EnumTextRows<Quilon_::Enum>(),     \
                                Detail::EnumFallback::Fallback);                                             \
    }                                                                                                        \
    namespace {                                                                                              \
    const ::Quilon_::System::Detail::EnumTextRegistration                                                    \
        QUILON_ENUM_TEXT_NAME(enumTextRegistration,                                                          \
                              __COUNTER__)(typeid(::Quilon_::Enum),                                          \
                                           &::Quilon_::System::Detail::EnumTextRows<::Quilon_::Enum>);       \
    }

#define QUILON_ENUM_TEXT_NAME(prefix, counter) QUILON_ENUM_TEXT_JOIN(prefix, counter)
#define QUILON_ENUM_TEXT_JOIN(prefix, counter) prefix##counter
