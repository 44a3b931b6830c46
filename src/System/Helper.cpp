#include "Quilon_/System/Helper.h"

#include "Quilon_/System/String.h"

#include <cstdint>
#include <cstdlib>
#include <cxxabi.h>
#include <map>
#include <memory>
#include <string>
#include <typeindex>

namespace Quilon_::System {

namespace {

// The words under which fundamental types are known on every platform;
// files and factories key on them.
const std::map<std::type_index, std::wstring>& FundamentalNames()
{
    static const std::map<std::type_index, std::wstring> names = {
        {typeid(void), L"void"},
        {typeid(bool), L"bool"},
        {typeid(char), L"char"},
        {typeid(signed char), L"signed char"},
        {typeid(unsigned char), L"unsigned char"},
        {typeid(wchar_t), L"wchar_t"},
        {typeid(short), L"short"},
        {typeid(unsigned short), L"unsigned short"},
        {typeid(int), L"int"},
        {typeid(unsigned int), L"unsigned int"},
        {typeid(long), L"__int64"},
        {typeid(unsigned long), L"unsigned __int64"},
        {typeid(long long), L"__int64"},
        {typeid(unsigned long long), L"unsigned __int64"},
        {typeid(float), L"float"},
        {typeid(double), L"double"},
        {typeid(long double), L"long double"},
        {typeid(void*), L"void *"},
        {typeid(std::string), L"std::string"},
        {typeid(std::wstring), L"std::wstring"},
    };
    return names;
}

std::string Demangle(const char* name)
{
    int status = 0;
    std::unique_ptr<char, void (*)(void*)> demangled(abi::__cxa_demangle(name, nullptr, nullptr, &status),
                                                     std::free);
    return status == 0 && demangled ? std::string(demangled.get()) : std::string(name);
}

void EraseAll(std::wstring& text, const std::wstring& word)
{
    for (std::size_t at = text.find(word); at != std::wstring::npos; at = text.find(word, at))
        text.erase(at, word.size());
}

} // namespace

std::wstring Helper::TypeName(const std::wstring& name)
{
    std::wstring result = name;
    for (const wchar_t* word : {L"class ", L"struct ", L"enum ", L"Quilon_::"})
        EraseAll(result, word);
    return result;
}

std::wstring Helper::TypeName(const std::string& name)
{
    return TypeName(Detail::ToStringLenient(name));
}

std::wstring Helper::TypeName(const std::type_info& type)
{
    const auto& fundamentals = FundamentalNames();
    auto found = fundamentals.find(std::type_index(type));
    if (found != fundamentals.end())
        return found->second;
    return TypeName(Demangle(type.name()));
}

std::wstring Detail::RuntimeClassName(const std::type_info& type)
{
    return ToStringLenient(Demangle(type.name()));
}

} // namespace Quilon_::System
