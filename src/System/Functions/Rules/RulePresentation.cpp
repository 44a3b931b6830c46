#include "Quilon_/System/Functions/Rules/RulePresentation.h"

#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Type.h"

#include <typeinfo>

namespace Quilon_::System::Functions::Rules {

QUILON_DEFINE_INTERFACE_TYPE(IRulePresentation, L"Quilon_::System::Functions::Rules::IRulePresentation", Interface)

namespace {

std::wstring Joined(const std::vector<std::wstring>& parts)
{
    std::wstring text;
    for (const std::wstring& part : parts) {
        if (!text.empty())
            text += L", ";
        text += part;
    }
    return text;
}

} // namespace

std::wstring Present(const Pointer<IRule, 1>& rule)
{
    Pointer<IRulePresentation, 0> presentation(rule);
    if (!presentation) {
        IRule& object = *rule;
        return System::Detail::RuntimeClassName(typeid(object)) + L"(?)";
    }
    return presentation->ClassName() + L"(" + Joined(presentation->Arguments()) + L")";
}

std::vector<std::wstring> PresentRules(const Pointer<IRuleCollection, 0>& collection)
{
    if (!collection)
        return {};
    std::vector<std::wstring> rules;
    for (std::int64_t i = 0, count = collection->Count(); i < count; ++i)
        rules.push_back(Present(collection->Item(i)));
    return rules;
}

namespace Detail {

std::wstring Text(std::int64_t value)
{
    return std::to_wstring(value);
}

std::wstring Text(const std::wstring& value)
{
    return value;
}

std::wstring Text(const std::vector<std::int64_t>& values)
{
    std::vector<std::wstring> texts;
    for (std::int64_t value : values)
        texts.push_back(Text(value));
    return L"{" + Joined(texts) + L"}";
}

} // namespace Detail

} // namespace Quilon_::System::Functions::Rules
