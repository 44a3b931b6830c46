// A third-party library as the start-up tests see it: it registers
// implementations on an operator of its own and on one of the core, and
// records every initialiser and finaliser it runs, both those in the global
// queues and those in its own.
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/Function.h"

#include "../../Support/ScopedTranslator.h"
#include "../../Support/StartupPlugins.h"

namespace Quilon_::Tests::RecorderPlugin {

QUILON_API System::Functions::Template::Function<std::wstring (*)(const std::wstring&)> Decorate(L"Decorate");

} // namespace Quilon_::Tests::RecorderPlugin

namespace {

using namespace Quilon_::System;
using Quilon_::Tests::StartupPlugins::Record;

const wchar_t* const steps[] = {L"global 0.3", L"global 0.95", L"private 0.2", L"private 0.5"};

template <int Step>
void Initialize()
{
    Record(std::wstring(L"Recorder: initialize ") + steps[Step]);
}

template <int Step>
void Finalize()
{
    Record(std::wstring(L"Recorder: finalize ") + steps[Step]);
}

std::wstring Bracket(const std::wstring& text)
{
    return L"[" + text + L"]";
}

std::wstring Quote(const std::wstring& text)
{
    return L"'" + text + L"'";
}

Pointer<Localization::ITranslator, 1> NewTranslator()
{
    using namespace Quilon_::Tests::StartupPlugins;
    return Pointer<Localization::ITranslator, 1>(new Quilon_::Tests::COneKeyTranslator(GreetingKey, GreetingText));
}

void RegisterBracket()
{
    Initialize<2>();
    Quilon_::Tests::RecorderPlugin::Decorate.Register(L"Bracket", &Bracket);
}

void RegisterQuoteAndTranslator()
{
    Initialize<3>();
    Quilon_::Tests::RecorderPlugin::Decorate.Register(L"Quote", &Quote);
    Localization::Translator::New.Register(L"Recorder translator", &NewTranslator);
}

// Two entries of one rank, so that shut-down reports that rank once.
const Template::Initializer<Quilon_::Library> global03(&Initialize<0>, &Finalize<0>, 0.3f);
const Template::Initializer<Quilon_::Library> global03Again(&Initialize<0>, &Finalize<0>, 0.3f);
const Template::Initializer<Quilon_::Library> global095(&Initialize<1>, &Finalize<1>, 0.95f);
const Template::Initializer<::Library> private02(&RegisterBracket, &Finalize<2>, 0.2f);
const Template::Initializer<::Library> private05(&RegisterQuoteAndTranslator, &Finalize<3>, 0.5f);

} // namespace
