#include "Quilon_/System/Functions/Rules/CheckInterfaceSupported.h"

#include "Quilon_/System/Functions/Rules/Refuse.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::System::Functions::Rules {

namespace {

class CCheckInterfaceSupported
    : public System::Template::ObjectImpl<CCheckInterfaceSupported, IRule, IRulePresentation> {
public:
    CCheckInterfaceSupported(std::int64_t index, const Type& type) : index(index), type(type) {}

    bool Apply(std::vector<Any>& arguments, RuleFailures& failures) override
    {
        auto argument = arguments.at(static_cast<std::size_t>(index)).CastTo<Pointer<Interface, 0>>();
        if (argument && type.IsImplementedBy(argument))
            return true;
        return Refuse(failures, index, L"Argument #%1% must implement struct '%2%'", index + 1, type.Name());
    }

    std::wstring ClassName() override { return L"CCheckInterfaceSupported"; }
    std::vector<std::wstring> Arguments() override { return Detail::Texts(index, type.Name()); }

private:
    const std::int64_t index;
    const Type type;
};

Pointer<IRule, 1> NewCheckInterfaceSupported(std::int64_t index, const Type& type)
{
    return Pointer<IRule, 1>(new CCheckInterfaceSupported(index, type));
}

} // namespace

Template::Function<Pointer<IRule, 1> (*)(std::int64_t, const Type&)>
    CheckInterfaceSupported::New(&NewCheckInterfaceSupported);

} // namespace Quilon_::System::Functions::Rules
