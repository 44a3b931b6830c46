// How a rule reports an unsatisfied condition: one failure with the index
// of the offending argument and the message, translated first and then
// formatted, and false for the rule to return:
//
//   if (!argument)
//       return Refuse(failures, index, L"Argument #%1% must not be null", index + 1);
#pragma once

#include "Quilon_/System/Functions/Rules/RuleCollection.h"
#include "Quilon_/System/Raise.h"

#include <cstdint>
#include <string>

namespace Quilon_::System::Functions::Rules {

template <class... Args>
bool Refuse(RuleFailures& failures, std::int64_t index, const wchar_t* message, const Args&... arguments)
{
    System::Detail::Formatter formatter(System::Detail::TranslateMessage(message));
    static_cast<void>((formatter % ... % arguments));
    failures.emplace_back(index, std::wstring(formatter));
    return false;
}

} // namespace Quilon_::System::Functions::Rules
