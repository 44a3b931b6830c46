// How tools show a rule: its class name and the values it was made with,
// as text, so that a listing of an operator reads like the code that filled
// its chains:
//
//   Rules::Present(CheckItemCount::New(1, 1, -1));   // L"CCheckItemCount(1, 1, -1)"
//
// Presentation is optional: a rule without it is shown by its run-time class
// name alone. IRule keeps its single operation, since other libraries are
// binary clients of it.
#pragma once

#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::System::Functions::Rules {

class QUILON_API IRulePresentation : public virtual Interface {
    QUILON_INTERFACE(IRulePresentation)
public:
    // The name of the concrete class, "CCheckItemCount".
    virtual std::wstring ClassName() = 0;
    // The values given to its New, in order, each as text.
    virtual std::vector<std::wstring> Arguments() = 0;
};

// "CCheckItemCount(1, 1, -1)"; a rule without presentation by its run-time
// class name, with "(?)" for the values it does not tell.
QUILON_API std::wstring Present(const Pointer<IRule, 1>& rule);

// Each rule of `collection`, presented, in order; empty for a null
// collection.
QUILON_API std::vector<std::wstring> PresentRules(const Pointer<IRuleCollection, 0>& collection);

namespace Detail {
// The presentation of a rule class that implements IRulePresentation from
// its class name and the values it holds:
//
//   std::vector<std::wstring> Arguments() override { return Detail::Texts(index, type.Name()); }
QUILON_API std::wstring Text(std::int64_t value);
QUILON_API std::wstring Text(const std::wstring& value);
QUILON_API std::wstring Text(const std::vector<std::int64_t>& values);

template <class... Values>
std::vector<std::wstring> Texts(const Values&... values)
{
    return {Text(values)...};
}
} // namespace Detail

} // namespace Quilon_::System::Functions::Rules
