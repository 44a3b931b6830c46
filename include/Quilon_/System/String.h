// Text of the toolkit: wide strings, localizable strings, and the strict
// conversions between wide text and the 8-bit encoding (UTF-8).
//
//   LIString title(L"Viewer.ds.Image viewer");
//   title.LocalizedString();        // through the translator
//   title.DefaultLocalizedString(); // L"Image viewer"
//   ToString("caf\xC3\xA9");        // L"café"; malformed input raises
#pragma once

#include "Quilon_/Config.h"

#include <string>

namespace Quilon_::System {

// A string that knows whether it is to be translated.
class QUILON_API LIString {
public:
    LIString() = default;
    LIString(const std::wstring& value, bool localizable = true) : value(value), localizable(localizable) {}
    LIString(const wchar_t* value, bool localizable = true) : value(value), localizable(localizable) {}

    bool operator==(const LIString& other) const = default;

    const std::wstring& Value() const { return value; }
    bool IsLocalizable() const { return localizable; }
    // The translator's text when localizable, otherwise the value.
    std::wstring LocalizedString() const;
    // For a localizable key with the ".ds." marker, the text behind the
    // marker; otherwise the value itself.
    std::wstring DefaultLocalizedString() const;

private:
    std::wstring value;
    bool localizable = true;
};

// UTF-8 to wide; raises "MultiByteToWideChar failed (error code = 84)" on
// malformed input.
QUILON_API std::wstring ToString(const std::string& text);
// Wide to UTF-8; raises "WideCharToMultiByte failed (error code = 84)" for a
// value that is no Unicode scalar.
QUILON_API std::string ToAnsi(const std::wstring& text);

namespace Detail {
// Lenient conversions for texts that come from outside the toolkit's
// control (what() of foreign exceptions): malformed sequences become U+FFFD.
QUILON_API std::wstring ToStringLenient(const std::string& text);
} // namespace Detail

} // namespace Quilon_::System
