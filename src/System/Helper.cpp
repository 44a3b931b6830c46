#include "Quilon_/System/Helper.h"

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cxxabi.h>
#include <limits>
#include <memory>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Quilon_::System {

namespace {

template <class... T>
struct TypeList {};

template <class... A, class... B>
TypeList<A..., B...> Join(TypeList<A...>, TypeList<B...>);

using IntegerTypes = TypeList<char, unsigned char, short, unsigned short, int, unsigned int, std::int64_t,
                              std::uint64_t>;
using FloatingPointTypes = TypeList<float, double>;
using ScalarTypes = decltype(Join(IntegerTypes(), FloatingPointTypes()));

// The language's names of the types, which are the same in every library.
template <class... T>
std::unordered_set<std::string> NamesOf(TypeList<T...>)
{
    return {typeid(T).name()...};
}

bool HoldsOneOf(const Any& value, const std::unordered_set<std::string>& names)
{
    return !value.IsEmpty() && names.contains(value.TypeInfo().name());
}

template <class T>
bool Read(const Any& value, double& out)
{
    const void* held = value.Holder()->ValuePointer(typeid(T));
    if (held)
        out = static_cast<double>(*static_cast<const T*>(held));
    return held != nullptr;
}

template <class... T>
bool ReadOneOf(const Any& value, double& out, TypeList<T...>)
{
    return (Read<T>(value, out) || ...);
}

// `value` truncated toward zero, limited to the range of T: the language
// leaves a value outside that range undefined.
template <class T>
T Converted(double value)
{
    if constexpr (std::is_integral_v<T>) {
        if (std::isnan(value))
            return 0;
        value = std::trunc(value);
        if (value <= static_cast<double>(std::numeric_limits<T>::min()))
            return std::numeric_limits<T>::min();
        // The maximum of a 64-bit type rounds up to 2^64 (or 2^63) as a
        // double, hence >=.
        if (value >= static_cast<double>(std::numeric_limits<T>::max()))
            return std::numeric_limits<T>::max();
    } else if constexpr (std::is_same_v<T, float>) {
        if (std::isfinite(value) && std::fabs(value) > std::numeric_limits<float>::max())
            return value > 0 ? std::numeric_limits<float>::infinity() : -std::numeric_limits<float>::infinity();
    }
    return static_cast<T>(value);
}

template <class T>
bool Replace(double value, Any& target)
{
    if (!target.Holder()->ValuePointer(typeid(T)))
        return false;
    Any converted = ToAny(Converted<T>(value));
    target.Swap(converted);
    return true;
}

template <class... T>
bool ReplaceOneOf(double value, Any& target, TypeList<T...>)
{
    return (Replace<T>(value, target) || ...);
}

[[noreturn]] void RaiseNotScalar(const Any& value)
{
    QUILON_RAISE(L"Value is not a scalar (%1%)", Helper::TypeName(value.TypeInfo()));
}

std::string Demangle(const char* name)
{
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> demangled(abi::__cxa_demangle(name, nullptr, nullptr, &status),
                                                     std::free);
    return status == 0 && demangled ? std::string(demangled.get()) : std::string(name);
}

void ReplaceAll(std::wstring& text, const std::wstring& from, const std::wstring& to)
{
    for (std::size_t at = text.find(from); at != std::wstring::npos; at = text.find(from, at))
        text.replace(at, from.size(), to);
}

// Removes every template argument that starts with `start` (",std::allocator<"
// and the like), up to its closing bracket.
void RemoveArguments(std::wstring& text, const std::wstring& start)
{
    for (std::size_t at = text.find(start); at != std::wstring::npos; at = text.find(start, at)) {
        std::size_t end = at + start.size();
        for (int depth = 1; end < text.size() && depth > 0; ++end)
            depth += text[end] == L'<' ? 1 : text[end] == L'>' ? -1 : 0;
        text.erase(at, end - at);
    }
}

// Identifiers as one token each, every other character as a token of its own.
std::vector<std::wstring> Tokens(const std::wstring& text)
{
    auto isWordCharacter = [](wchar_t c) {
        return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || (c >= L'0' && c <= L'9') || c == L'_';
    };
    std::vector<std::wstring> tokens;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at + 1;
        if (isWordCharacter(text[at]))
            while (end < text.size() && isWordCharacter(text[end]))
                ++end;
        tokens.push_back(text.substr(at, end - at));
        at = end;
    }
    return tokens;
}

// Drops the prefix words and, unless `keepRoot`, the root namespace's
// qualifier, and writes the 64-bit integers by the words that every
// platform uses.
void ReplaceWords(std::wstring& text, bool keepRoot)
{
    std::vector<std::wstring> tokens = Tokens(text);
    auto at = [&](std::size_t i) { return i < tokens.size() ? tokens[i] : std::wstring(); };
    // Whether tokens[i] and tokens[i + 2] are `first` and `second`, one blank apart.
    auto pair = [&](std::size_t i, const wchar_t* first, const wchar_t* second) {
        return at(i) == first && at(i + 1) == L" " && at(i + 2) == second;
    };
    std::wstring result;
    for (std::size_t i = 0; i < tokens.size();) {
        const std::wstring& token = tokens[i];
        if ((token == L"class" || token == L"struct" || token == L"enum") && at(i + 1) == L" ") {
            i += 2;
        } else if (!keepRoot && token == L"Quilon_" && at(i + 1) == L":" && at(i + 2) == L":") {
            i += 3;
        } else if (pair(i, L"unsigned", L"long")) {
            result += L"unsigned __int64";
            i += pair(i + 2, L"long", L"long") ? 5 : 3;
        } else if (token == L"long" && !pair(i, L"long", L"double")) {
            result += L"__int64";
            i += pair(i, L"long", L"long") ? 3 : 1;
        } else {
            result += token;
            ++i;
        }
    }
    text = std::move(result);
}

} // namespace

bool Helper::IsInteger(const Any& value)
{
    static const std::unordered_set<std::string> names = NamesOf(IntegerTypes());
    return HoldsOneOf(value, names);
}

bool Helper::IsFloatingPoint(const Any& value)
{
    static const std::unordered_set<std::string> names = NamesOf(FloatingPointTypes());
    return HoldsOneOf(value, names);
}

bool Helper::IsScalar(const Any& value)
{
    return IsInteger(value) || IsFloatingPoint(value);
}

bool Helper::ScalarValue(const Any& value, double& out)
{
    if (value.IsEmpty())
        return false;
    if (ReadOneOf(value, out, ScalarTypes()))
        return true;
    const void* text = value.Holder()->ValuePointer(typeid(std::wstring));
    if (!text)
        return false;
    std::sscanf(ToAnsi(*static_cast<const std::wstring*>(text)).c_str(), "%lf", &out);
    return true;
}

double Helper::ScalarValue(const Any& value)
{
    double result = 0;
    if (!ScalarValue(value, result))
        RaiseNotScalar(value);
    return result;
}

std::complex<double> Helper::ComplexValue(const Any& value)
{
    if (!value.IsEmpty()) {
        if (const void* held = value.Holder()->ValuePointer(typeid(std::complex<double>)))
            return *static_cast<const std::complex<double>*>(held);
    }
    double real = 0;
    if (!ScalarValue(value, real))
        RaiseNotScalar(value);
    return {real, 0.0};
}

void Helper::DoubleToAny(double value, Any& target)
{
    if (target.IsEmpty() || !ReplaceOneOf(value, target, ScalarTypes()))
        QUILON_RAISE(L"Any must contain a scalar value");
}

namespace {

std::wstring Presentable(const std::wstring& name, bool keepRoot)
{
    std::wstring result = name;
    ReplaceAll(result, L", ", L",");
    ReplaceAll(result, L"> >", L">>");
    ReplaceAll(result, L"std::__cxx11::", L"std::");
    ReplaceWords(result, keepRoot);
    ReplaceAll(result, L"std::basic_string<char,std::char_traits<char>,std::allocator<char>>", L"std::string");
    ReplaceAll(result, L"std::basic_string<wchar_t,std::char_traits<wchar_t>,std::allocator<wchar_t>>",
               L"std::wstring");
    for (const wchar_t* defaulted : {L",std::allocator<", L",std::char_traits<", L",std::less<"})
        RemoveArguments(result, defaulted);
    return result;
}

} // namespace

std::wstring Helper::TypeName(const std::wstring& name)
{
    return Presentable(name, false);
}

std::wstring Helper::TypeName(const std::string& name)
{
    return TypeName(Detail::ToStringLenient(Demangle(name.c_str())));
}

std::wstring Helper::TypeName(const std::type_info& type)
{
    return TypeName(std::string(type.name()));
}

std::wstring Detail::QualifiedTypeName(const std::type_info& type)
{
    return Presentable(Detail::ToStringLenient(Demangle(type.name())), true);
}

std::int32_t Helper::NarrowToInt32(std::int64_t value)
{
    std::int32_t narrowed = static_cast<std::int32_t>(value);
    if (narrowed != value)
        QUILON_RAISE(L"Int value exceeds 32 bits storage: '%1%'", value);
    return narrowed;
}

std::uint32_t Helper::NarrowToUInt32(std::uint64_t value)
{
    std::uint32_t narrowed = static_cast<std::uint32_t>(value);
    if (narrowed != value)
        QUILON_RAISE(L"UInt value exceeds 32 bits storage: '%1%'", value);
    return narrowed;
}

std::wstring Detail::RuntimeClassName(const std::type_info& type)
{
    return ToStringLenient(Demangle(type.name()));
}

} // namespace Quilon_::System
