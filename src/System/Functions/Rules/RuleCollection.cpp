#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::System::Functions::Rules {

QUILON_DEFINE_INTERFACE_TYPE(IRule, L"Quilon_::System::Functions::Rules::IRule", Interface)
QUILON_DEFINE_INTERFACE_TYPE(IRuleCollection, L"Quilon_::System::Functions::Rules::IRuleCollection",
                             Collections::Template::ICollection<IRule>, Collections::ICloneable)

namespace {

// The typed view is registered by name during static construction too.
[[maybe_unused]] const Type& ruleCollectionViewType = Collections::Template::ICollection<IRule>::GetType();

using Store = Collections::Template::Detail::ICollectionImplBase<IRule>;
using Events = Collections::Template::ICollectionEventsImpl<Collections::ICollectionEvents>;
using TypedView = Collections::Template::Detail::ICollectionImpl<IRuleCollection, IRule, Events, Store>;
using UntypedView = Collections::Template::Detail::ICollectionImpl<Collections::ICollection, Interface, Events, Store>;

class CRuleCollection : public System::Template::ObjectImpl<CRuleCollection, TypedView, UntypedView> {
public:
    CRuleCollection() = default;
    // Rules are immutable and shared: a copy holds the same rule objects.
    CRuleCollection(const CRuleCollection& other) : Events(), Store(), ObjectImpl()
    {
        TypedView::CopyFrom(other, false);
    }

    bool Apply(std::vector<Any>& arguments, RuleFailures& failures, bool continueAfterFailure) override
    {
        bool satisfied = true;
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            // Held for the call: the rule runs on its own.
            Pointer<IRule, 1> rule = m_items[i];
            if (!rule->Apply(arguments, failures)) {
                satisfied = false;
                if (!continueAfterFailure)
                    break;
            }
        }
        return satisfied;
    }

    Pointer<Collections::ICloneable, 1> Clone() override
    {
        return Pointer<Collections::ICloneable, 1>(new CRuleCollection(*this));
    }
};

} // namespace

Pointer<IRuleCollection, 1> RuleCollection::NewInstance()
{
    return Pointer<IRuleCollection, 1>(new CRuleCollection);
}

Functions::Template::Function<Pointer<IRuleCollection, 1> (*)()> RuleCollection::New(&RuleCollection::NewInstance);

} // namespace Quilon_::System::Functions::Rules
