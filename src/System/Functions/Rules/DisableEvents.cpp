#include "Quilon_/System/Functions/Rules/DisableEvents.h"

#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "System/Functions/Rules/DisableEventsWrapper.h"

namespace Quilon_::System::Functions::Rules {

namespace {

class CDisableEvents : public System::Template::ObjectImpl<CDisableEvents, IRule, IRulePresentation> {
public:
    explicit CDisableEvents(std::vector<std::int64_t> indexes) : indexes(std::move(indexes)) {}

    bool Apply(std::vector<Any>& arguments, RuleFailures&) override
    {
        for (std::int64_t index : indexes) {
            Any& argument = arguments.at(static_cast<std::size_t>(index));
            auto object = argument.CastTo<Pointer<Interface, 0>>();
            // Wrapped already by an earlier rule of this call: a second
            // wrapper would outlive the first, which puts the events back
            // on while the call still runs.
            if (CDisableEventsWrapper::Of(object.Get()))
                continue;
            Pointer<IDisableEvents, 0> target(object);
            if (target)
                argument = ToAny(Pointer<Interface, 1>(new CDisableEventsWrapper(target)));
        }
        return true;
    }

    std::wstring ClassName() override { return L"CDisableEvents"; }
    std::vector<std::wstring> Arguments() override { return Detail::Texts(indexes); }

private:
    const std::vector<std::int64_t> indexes;
};

Pointer<IRule, 1> NewForIndexes(const std::vector<std::int64_t>& indexes)
{
    return Pointer<IRule, 1>(new CDisableEvents(indexes));
}

Pointer<IRule, 1> NewForIndex(std::int64_t index)
{
    return NewForIndexes({index});
}

} // namespace

DisableEvents::Factory DisableEvents::New(&NewForIndexes, &NewForIndex);

} // namespace Quilon_::System::Functions::Rules
