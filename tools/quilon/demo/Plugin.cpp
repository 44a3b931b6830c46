// A plug-in as small as one can be: at start-up it fills an operator of its
// own through its own ranked initialisers.
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

namespace Quilon_::Demo::Functions {

// Greets by name; the implementation registered last is tried first.
QUILON_API System::Functions::Template::Function<std::wstring (*)(const std::wstring&)> Greet(L"Greet");

} // namespace Quilon_::Demo::Functions

namespace {

using namespace Quilon_::System;

std::wstring Hello(const std::wstring& name)
{
    return L"Hello, " + name;
}

std::wstring Welcome(const std::wstring& name)
{
    if (name.empty())
        QUILON_RAISE(L"Nobody to welcome");
    return L"Welcome, " + name;
}

// The greeting that may fail comes last, so that the other stays as the
// fall-back.
void RegisterGreetings()
{
    Quilon_::Demo::Functions::Greet.Register(L"Hello", &Hello);
    Quilon_::Demo::Functions::Greet.Register(L"Welcome", &Welcome);
}

const Template::Initializer<::Library> greetings(&RegisterGreetings, nullptr, 0.5f);

} // namespace
