#include "Quilon_/ObjectSets/Functions/Rules/CheckAttributeDataType.h"

#include "ObjectSets/Functions/Rules/ObjectSetArguments.h"
#include "Quilon_/System/Functions/Rules/Refuse.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::ObjectSets::Functions::Rules {

namespace {

using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::Refuse;
using System::Functions::Rules::RuleFailures;

class CCheckAttributeDataType
    : public System::Template::ObjectImpl<CCheckAttributeDataType, IRule, IRulePresentation> {
public:
    CCheckAttributeDataType(std::int64_t index, const System::Type& type) : index(index), type(type) {}

    bool Apply(std::vector<System::Any>& arguments, RuleFailures& failures) override
    {
        const auto attribute = Detail::ArgumentAs<System::Ref<IAttribute>>(arguments, index);
        if (attribute->DataType() == type)
            return true;
        return Refuse(failures, index, L"Data Type of attribute #%1% ('%2%') must be of type '%3%'",
                      index + 1, attribute->Name().Value(), type.Name());
    }

    std::wstring ClassName() override { return L"CCheckAttributeDataType"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(index, type.Name());
    }

private:
    const std::int64_t index;
    const System::Type type;
};

System::Ref<IRule> NewCheckAttributeDataType(std::int64_t index, const System::Type& type)
{
    return System::Ref<IRule>(new CCheckAttributeDataType(index, type));
}

} // namespace

System::Functions::Template::Function<System::Ref<IRule> (*)(std::int64_t, const System::Type&)>
    CheckAttributeDataType::New(&NewCheckAttributeDataType);

} // namespace Quilon_::ObjectSets::Functions::Rules
