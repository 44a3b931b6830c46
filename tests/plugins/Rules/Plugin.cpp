// A third-party library with operators that run under rules: see
// tests/Support/RulesPlugin.h for what its implementations answer.
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Functions/Rules/CheckInterfaceSupported.h"
#include "Quilon_/System/Functions/Rules/DisableEvents.h"
#include "Quilon_/System/Raise.h"

#include "../../Support/RuleChainDoubles.h"
#include "../../Support/RulesPlugin.h"

namespace Quilon_::Tests::RulesPlugin {

QUILON_API ProbeOperator Probe(L"Probe");
QUILON_API ProbeOperator Echo(L"Echo");
QUILON_API ProbeOperator Listed(L"Listed");
QUILON_API ProbeOperator ListedToo(L"ListedToo");

} // namespace Quilon_::Tests::RulesPlugin

namespace {

using namespace Quilon_::System;
using namespace Quilon_::System::Functions;
namespace Plugin = Quilon_::Tests::RulesPlugin;

std::wstring State(const Pointer<Interface, 0>& argument)
{
    if (!argument)
        return L"none";
    Pointer<IDisableEvents, 0> events(argument);
    if (!events)
        return L"none";
    return events->EventsDisabled() ? L"silent" : L"loud";
}

template <const wchar_t* Name>
std::wstring Report(Pointer<IDisableEvents, 1> target, Pointer<Interface, 0> source, std::int64_t depth)
{
    std::wstring text = std::wstring(Name) + L": " + State(Pointer<Interface, 0>(target)) + L"/" + State(source);
    if (depth < 0)
        QUILON_RAISE(L"Probe refused at depth %1%", depth);
    if (depth > 0)
        text += L"; " + Plugin::Probe(target, source, depth - 1);
    return text;
}

constexpr wchar_t careful[] = L"Careful";
constexpr wchar_t eager[] = L"Eager";
constexpr wchar_t echo[] = L"Echo";
constexpr wchar_t lenient[] = L"Lenient";

void Register()
{
    Plugin::Probe.Register(careful, &Report<careful>);
    Plugin::Probe.Register(eager, &Report<eager>);
    for (Plugin::ProbeOperator* sibling : {&Plugin::Echo, &Plugin::Listed, &Plugin::ListedToo})
        sibling->Register(echo, &Report<echo>);
    Plugin::Echo.Register(lenient, &Report<lenient>, true);

    // One collection per moment, shared by the siblings.
    const Type& events = IDisableEvents::GetType();
    const RuleCollections chains = {
        Quilon_::Tests::Chain({Rules::CheckInterfaceSupported::New(0, events)}),
        Quilon_::Tests::Chain({Rules::DisableEvents::New({0, 1})}),
        Quilon_::Tests::Chain({Rules::CheckInterfaceSupported::New(1, events), Rules::DisableEvents::New(1)}),
        nullptr,
    };
    Plugin::Listed.SetRules(chains);
    Plugin::ListedToo.SetRules(chains);
}

// The chains go while the library still destroys objects: each library's
// own queue ends in the shut-down state, after which releasing them would
// leave them undestroyed. So they go from the global queue, ranked above the
// libraries' own entries (0.7), whose finalisers run later.
void Unregister()
{
    Plugin::Listed.SetRules(RuleCollections{});
    Plugin::ListedToo.SetRules(RuleCollections{});
}

const Quilon_::System::Template::Initializer<::Library> registration(&Register, nullptr, 0.5f);
const Quilon_::System::Template::Initializer<Quilon_::Library> release(nullptr, &Unregister, 0.95f);

} // namespace

extern "C" {
QUILON_API Plugin::ProbeOperator& QuilonTestRules_Probe()
{
    return Plugin::Probe;
}
QUILON_API Plugin::ProbeOperator& QuilonTestRules_Echo()
{
    return Plugin::Echo;
}
QUILON_API Plugin::ProbeOperator& QuilonTestRules_Listed()
{
    return Plugin::Listed;
}
QUILON_API Plugin::ProbeOperator& QuilonTestRules_ListedToo()
{
    return Plugin::ListedToo;
}
}
