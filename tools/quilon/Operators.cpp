#include "Commands.h"

#include "Quilon_/Library.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/FunctionRegistry.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
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

// The operator's rule chains, one moment after the other, each rule on a
// line of its own in the order of evaluation:
//
//                    Make        CDisableEvents({0, 1})
//                    PreExecute  CCheckInterfaceSupported(1, Quilon_::System::IDisableEvents)
//                                CDisableEvents({1})
void PrintRuleChains(const System::Functions::Detail::Function& function)
{
    static const char* const moments[] = {"Check", "Make", "PreExecute", "PostExecute"};
    const auto& chains = function.AllRules();
    for (std::size_t type = 0; type < chains.size(); ++type) {
        const char* label = moments[type];
        for (const std::wstring& rule : System::Functions::Rules::PresentRules(chains[type])) {
            std::printf("%19s%-12s%s\n", "", label, System::ToAnsi(rule).c_str());
            label = "";
        }
    }
}

} // namespace

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

    const std::wstring pattern = Lowered(options.rest.empty() ? std::wstring() : System::ToString(options.rest[0]));
    std::printf("%15s  %s\n", "implementations", "operator");
    for (const auto& entry : System::Functions::FunctionRegistry::Entries()) {
        if (Lowered(entry.name).find(pattern) == std::wstring::npos)
            continue;
        const std::string name = entry.name.empty() ? "(unnamed)" : System::ToAnsi(entry.name);
        std::printf("%15zu  %s\n", entry.function->ImplementationCount(), name.c_str());
        PrintRuleChains(*entry.function);
    }

    StopLibrary(failures);
    return 0;
}

} // namespace Quilon_::Tool
