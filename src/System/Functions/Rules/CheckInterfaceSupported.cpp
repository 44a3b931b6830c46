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
        Interface* argument = Argument(arguments.at(static_cast<std::size_t>(index)));
        if (argument && type.IsImplementedBy(argument))
            return true;
        return Refuse(failures, index, L"Argument #%1% must implement struct '%2%'", index + 1, type.Name());
    }

    std::wstring ClassName() override { return L"CCheckInterfaceSupported"; }
    std::vector<std::wstring> Arguments() override { return Detail::Texts(index, type.Name()); }

private:
    // The argument as an object, null when it holds none. Read in place:
    // a copy would cost a reference taken and dropped, on every call.
    static Interface* Argument(const Any& argument)
    {
        using Object = Pointer<Interface, 0>;
        const System::Detail::AnyHolderBase* holder = argument.Holder();
        if (const void* value = holder ? holder->ValuePointer(typeid(Object)) : nullptr)
            return static_cast<const Object*>(value)->Get();
        // Not an object: reading it as one raises why.
        static_cast<void>(argument.CastTo<Object>());
        return nullptr;
    }

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
