#include "Commands.h"

#include "Quilon_/Library.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/FunctionRegistry.h"
#include "Quilon_/System/Functions/RuleChain.h"
#include "Quilon_/System/String.h"

#include <algorithm>
#include <cstdio>
#include <cwctype>

namespace Quilon_::Tool {

namespace {

std::wstring Lowered(std::wstring text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](wchar_t c) { return std::towlower(c); });
    return text;
}

} // namespace

std::vector<Overload> Overloads()
{
    std::vector<Overload> overloads;
    const auto entries = System::Functions::FunctionRegistry::Entries();
    for (std::size_t i = 0; i < entries.size();) {
        // The registry keeps the overloads of one object together, in order.
        std::size_t end = i + 1;
        while (end < entries.size() && entries[end].name == entries[i].name)
            ++end;
        // Exported operators go by their full name; functions held as values
        // (the attribute factories of the object-set table, named by their
        // kind only) are not operators to list or to run.
        if (entries[i].name.find(L"::") != std::wstring::npos) {
            for (std::size_t k = i; k < end; ++k)
                overloads.push_back({entries[k].name, k - i, end - i, entries[k].function});
        }
        i = end;
    }
    return overloads;
}

std::wstring SignatureText(const Overload& overload)
{
    std::wstring text = overload.name;
    if (overload.count > 1)
        text += L"[" + std::to_wstring(overload.index) + L"]";
    text += L"(";
    const auto parameters = overload.function->Parameters();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        text += (i == 0 ? L"" : L", ") + parameters[i].type;
        if (parameters[i].output)
            text += L"&";
    }
    text += L") -> " + overload.function->ResultType();
    return text;
}

int Operators(const Arguments& arguments)
{
    StartOptions options;
    if (!ParseStartOptions(arguments, options) || options.rest.size() > 1) {
        std::fputs("usage: quilon operators [--init FILE] [PATTERN]\n", stderr);
        return 2;
    }
    // Libraries that fail do not keep the others' operators from the list.
    Failures failures = StartLibrary(options);
    for (const auto& failure : failures) {
        std::fputs("quilon: warning:\n", stderr);
        PrintMessage(stderr, failure->Message());
    }

    // One row per overload: implementations, signature, then the chain, so
    // that a row can be found with grep.
    const std::wstring pattern =
        Lowered(options.rest.empty() ? std::wstring() : System::ToString(options.rest[0]));
    std::printf("%15s  %s\n", "implementations", "operator");
    for (const Overload& overload : Overloads()) {
        if (Lowered(overload.name).find(pattern) == std::wstring::npos)
            continue;
        std::wstring row = SignatureText(overload);
        const std::wstring chain = System::Functions::RuleChain::Present(overload.function->AllRules());
        if (!chain.empty())
            row += L"  " + chain;
        std::printf("%15zu  %s\n", overload.function->ImplementationCount(), System::ToAnsi(row).c_str());
    }

    StopLibrary(failures);
    return 0;
}

} // namespace Quilon_::Tool
