// quilon dump: the header of an archive, then each framed value or object in
// it with its offset, type and, for the common types, its value.
//
// Archives of the toolkit are sequences of framed values (slot 3) and framed
// objects (slot 4). Both frames start with a name: the type's name for a
// value, the class name for an object. The dump reads that name and looks
// it up in the table of dynamic values first, then among the factories.
#include "Commands.h"

#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Serialization/Binary/Functions.h"
#include "Quilon_/System/Serialization/FactoryDictionary.h"
#include "Quilon_/System/String.h"

#include <cinttypes>
#include <cstdio>
#include <map>

namespace Quilon_::Tool {

namespace {

using namespace System::Serialization::Binary;
using System::Any;

template <class T>
std::wstring Number(const Any& value)
{
    if constexpr (std::is_floating_point_v<T>) {
        wchar_t text[64];
        std::swprintf(text, 64, L"%.17g", static_cast<double>(value.CastTo<T>()));
        return text;
    } else {
        return std::to_wstring(value.CastTo<T>());
    }
}

std::wstring Quoted(const std::wstring& text)
{
    return L"\"" + text + L"\"";
}

std::wstring DateText(const Any& value)
{
    const auto date = value.CastTo<System::DateTime>();
    wchar_t text[64];
    std::swprintf(text, 64, L"%04u-%02u-%02u %02u:%02u:%02u.%03u", date.Year(), date.Month(), date.Day(),
                  date.Hour(), date.Minute(), date.Second(), date.Millisecond());
    return text;
}

template <class T>
std::wstring Elements(const Any& value)
{
    const auto& elements = value.CastTo<std::vector<T>>();
    std::wstring text = std::to_wstring(elements.size()) + L" elements";
    const std::size_t shown = std::min<std::size_t>(elements.size(), 8);
    for (std::size_t i = 0; i < shown; ++i)
        text += (i == 0 ? L": " : L" ") + Number<T>(System::ToAny(elements[i]));
    return elements.size() > shown ? text + L" ..." : text;
}

using Printer = std::wstring (*)(const Any&);

// What the dump shows of the types that archives hold most; any other type
// is shown by the number of bytes its record took.
const std::map<std::wstring, Printer>& Printers()
{
    using namespace System;
    static const std::map<std::wstring, Printer> printers = {
        {System::Helper::TypeName(typeid(bool)),
         [](const Any& v) { return std::wstring(v.CastTo<bool>() ? L"true" : L"false"); }},
        {System::Helper::TypeName(typeid(char)),
         [](const Any& v) { return std::to_wstring(int(v.CastTo<char>())); }},
        {System::Helper::TypeName(typeid(unsigned char)), &Number<unsigned char>},
        {System::Helper::TypeName(typeid(short)), &Number<short>},
        {System::Helper::TypeName(typeid(unsigned short)), &Number<unsigned short>},
        {System::Helper::TypeName(typeid(int)), &Number<int>},
        {System::Helper::TypeName(typeid(unsigned int)), &Number<unsigned int>},
        {System::Helper::TypeName(typeid(std::int64_t)), &Number<std::int64_t>},
        {System::Helper::TypeName(typeid(std::uint64_t)), &Number<std::uint64_t>},
        {System::Helper::TypeName(typeid(float)), &Number<float>},
        {System::Helper::TypeName(typeid(double)), &Number<double>},
        {System::Helper::TypeName(typeid(std::string)),
         [](const Any& v) { return Quoted(ToString(v.CastTo<std::string>())); }},
        {System::Helper::TypeName(typeid(std::wstring)),
         [](const Any& v) { return Quoted(v.CastTo<std::wstring>()); }},
        {System::Helper::TypeName(typeid(LIString)),
         [](const Any& v) {
             const auto text = v.CastTo<LIString>();
             return Quoted(text.Value()) + (text.IsLocalizable() ? L" (translatable)" : L"");
         }},
        {System::Helper::TypeName(typeid(Type)),
         [](const Any& v) {
             const auto type = v.CastTo<Type>();
             return type.IsEmpty() ? std::wstring(L"(none)") : type.Name();
         }},
        {System::Helper::TypeName(typeid(DateTime)), &DateText},
        {System::Helper::TypeName(typeid(std::vector<std::int64_t>)), &Elements<std::int64_t>},
        {System::Helper::TypeName(typeid(std::vector<int>)), &Elements<int>},
        {System::Helper::TypeName(typeid(std::vector<double>)), &Elements<double>},
        {System::Helper::TypeName(typeid(std::vector<float>)), &Elements<float>},
    };
    return printers;
}

// One frame: its name, then the row's record or the object's state.
void DumpFrame(ReaderRef reader, unsigned& values, unsigned& objects)
{
    const std::int64_t offset = reader->Position();
    std::wstring name;
    reader >> name;
    std::wstring shown;
    const auto& rows = GetFunctions();
    const auto row = rows.find(name);
    if (name.empty()) {
        name = L"(null object)";
        ++objects;
    } else if (row != rows.end()) {
        Any value;
        ReadFramedValue(reader, name, value);
        const auto printer = Printers().find(name);
        if (value.IsEmpty())
            shown = L"(empty)";
        else if (printer != Printers().end())
            shown = printer->second(value);
        ++values;
    } else if (System::Serialization::Factories()->ContainsKey(name)) {
        System::Pointer<System::Interface, 0> object;
        ReadFramedObject(reader, name, object);
        name = L"object " + name;
        ++objects;
    } else {
        QUILON_RAISE(L"Unknown type '%1%'", name);
    }
    if (shown.empty())
        shown = L"(" + std::to_wstring(reader->Position() - offset) + L" bytes)";
    std::printf("%8" PRId64 "  %s  %s\n", offset, System::ToAnsi(name).c_str(),
                System::ToAnsi(shown).c_str());
}

void DumpArchive(const std::wstring& path)
{
    ReaderRef reader = Reader::New(path);
    std::printf("archive %s\nversion %u, counts on %d bytes, strings %s\n", System::ToAnsi(path).c_str(),
                reader->Version(), reader->SaveIntAsInt64() ? 8 : 4,
                reader->SaveStringAsAnsi() ? "narrow" : "UTF-16");
    unsigned values = 0, objects = 0;
    while (reader->Remaining() > 0) {
        DumpFrame(reader, values, objects);
        std::fflush(stdout);
    }
    std::printf("%u values, %u objects, %" PRId64 " bytes\n", values, objects, reader->Position());
}

} // namespace

int Dump(const Arguments& arguments)
{
    StartOptions options;
    if (!ParseStartOptions(arguments, options))
        return 2;
    if (options.rest.size() != 1) {
        std::fputs("usage: quilon dump [--init FILE] ARCHIVE\n", stderr);
        return 2;
    }
    Failures failures = StartLibrary(options);
    int status = 0;
    try {
        DumpArchive(System::ToString(options.rest[0]));
    } catch (const System::Pointer<System::IException, 1>& failure) {
        std::fflush(stdout);
        std::fputs("quilon: the archive cannot be read\n", stderr);
        PrintMessage(stderr, failure->Message());
        status = 1;
    }
    StopLibrary(failures);
    return status;
}

} // namespace Quilon_::Tool
