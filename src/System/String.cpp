#include "Quilon_/System/String.h"

#include "Quilon_/Library.h"
#include "Quilon_/System/Raise.h"

#include <cerrno>
#include <new>

namespace Quilon_::System {

std::wstring LIString::LocalizedString() const
{
    if (!localizable)
        return value;
    return Library::Translator()->Translate(value);
}

std::wstring LIString::DefaultLocalizedString() const
{
    static const std::wstring marker = L".ds.";
    if (!localizable)
        return value;
    std::size_t at = value.find(marker);
    if (at == std::wstring::npos)
        return value;
    return value.substr(at + marker.size());
}

namespace {

constexpr char32_t Replacement = 0xFFFD;

// Decodes one UTF-8 sequence starting at `at`; returns false if it is
// malformed (overlong forms, surrogates and values past U+10FFFF included).
bool DecodeOne(const std::string& text, std::size_t& at, char32_t& out)
{
    auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char lead = byte(at);
    int length;
    char32_t value;
    if (lead < 0x80) {
        out = lead;
        ++at;
        return true;
    } else if ((lead & 0xE0) == 0xC0) {
        length = 2;
        value = lead & 0x1F;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3;
        value = lead & 0x0F;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4;
        value = lead & 0x07;
    } else {
        return false;
    }
    if (at + length > text.size())
        return false;
    for (int i = 1; i < length; ++i) {
        unsigned char next = byte(at + i);
        if ((next & 0xC0) != 0x80)
            return false;
        value = (value << 6) | (next & 0x3F);
    }
    static constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (value < smallest[length] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return false;
    out = value;
    at += length;
    return true;
}

bool IsScalar(char32_t value)
{
    return value <= 0x10FFFF && !(value >= 0xD800 && value <= 0xDFFF);
}

void EncodeOne(char32_t value, std::string& out)
{
    if (value < 0x80) {
        out += static_cast<char>(value);
    } else if (value < 0x800) {
        out += static_cast<char>(0xC0 | (value >> 6));
        out += static_cast<char>(0x80 | (value & 0x3F));
    } else if (value < 0x10000) {
        out += static_cast<char>(0xE0 | (value >> 12));
        out += static_cast<char>(0x80 | ((value >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (value & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (value >> 18));
        out += static_cast<char>(0x80 | ((value >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((value >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (value & 0x3F));
    }
}

// Runs a conversion; when it cannot get memory for its result the failure
// is the library's own "Out of memory", not the language's bad_alloc.
template <class Convert>
auto RaisingOutOfMemory(Convert convert)
{
    try {
        return convert();
    } catch (const std::bad_alloc&) {
        QUILON_RAISE(L"Out of memory");
    }
}

} // namespace

std::wstring ToString(const std::string& text)
{
    return RaisingOutOfMemory([&] {
        std::wstring result;
        result.reserve(text.size());
        for (std::size_t at = 0; at < text.size();) {
            char32_t value;
            if (!DecodeOne(text, at, value))
                QUILON_RAISE(L"MultiByteToWideChar failed (error code = %1%)", EILSEQ);
            result += static_cast<wchar_t>(value);
        }
        return result;
    });
}

std::string ToAnsi(const std::wstring& text)
{
    return RaisingOutOfMemory([&] {
        std::string result;
        result.reserve(text.size());
        for (wchar_t character : text) {
            char32_t value = static_cast<char32_t>(character);
            if (!IsScalar(value))
                QUILON_RAISE(L"WideCharToMultiByte failed (error code = %1%)", EILSEQ);
            EncodeOne(value, result);
        }
        return result;
    });
}

std::wstring Detail::ToStringLenient(const std::string& text)
{
    std::wstring result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        char32_t value;
        if (!DecodeOne(text, at, value)) {
            value = Replacement;
            ++at;
        }
        result += static_cast<wchar_t>(value);
    }
    return result;
}

} // namespace Quilon_::System
