#include "Quilon_/Images/Functions/Rules/CopyExtendedProperties.h"

#include "Quilon_/System/ExtendedPropertiesHelper.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Images::Functions::Rules {

namespace {

using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::RuleFailures;

class CCopyExtendedProperties
    : public System::Template::ObjectImpl<CCopyExtendedProperties, IRule, IRulePresentation> {
public:
    CCopyExtendedProperties(std::int64_t destination, std::int64_t source)
        : destination(destination), source(source)
    {
    }

    bool Apply(std::vector<System::Any>& arguments, RuleFailures&) override
    {
        using Object = System::Ref<System::Interface>;
        Object from = arguments.at(static_cast<std::size_t>(source)).CastTo<Object>();
        Object to = arguments.at(static_cast<std::size_t>(destination)).CastTo<Object>();
        System::ExtendedPropertiesHelper::CopyCopiableExtendedProperties(from, to);
        return true;
    }

    std::wstring ClassName() override { return L"CCopyExtendedProperties"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(destination, source);
    }

private:
    const std::int64_t destination;
    const std::int64_t source;
};

System::Pointer<IRule, 1> NewCopyExtendedProperties(std::int64_t destination, std::int64_t source)
{
    return System::Pointer<IRule, 1>(new CCopyExtendedProperties(destination, source));
}

} // namespace

System::Functions::Template::Function<System::Pointer<IRule, 1> (*)(std::int64_t, std::int64_t)>
    CopyExtendedProperties::New(&NewCopyExtendedProperties);

} // namespace Quilon_::Images::Functions::Rules
