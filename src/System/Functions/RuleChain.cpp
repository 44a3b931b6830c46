#include "Quilon_/System/Functions/RuleChain.h"

#include "Quilon_/System/Functions/FunctionRegistry.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"

#include <algorithm>
#include <mutex>

namespace Quilon_::System::Functions {

namespace {

// The operators that start-up code gave a chain, in every library. Made on
// first use and never destroyed, like the registry of operators: libraries
// assign during their initialisers and release from the global queue.
struct Assigned {
    std::mutex lock;
    std::vector<Detail::Function*> functions;
};

Assigned& TheAssigned()
{
    static Assigned* const assigned = new Assigned;
    return *assigned;
}

Pointer<Rules::IRuleCollection, 0> Cloned(const Pointer<Rules::IRuleCollection, 0>& collection)
{
    if (!collection)
        return nullptr;
    return Pointer<Rules::IRuleCollection, 0>(collection->Clone());
}

} // namespace

RuleChain::RuleChain() : collections(RuleTypeCount) {}

RuleChain& RuleChain::Set(RuleTypeEnum type, RuleList rules)
{
    Pointer<Rules::IRuleCollection, 0> collection;
    if (rules.size() != 0) {
        Pointer<Rules::IRuleCollection, 1> made = Rules::RuleCollection::New();
        for (const Rule& rule : rules)
            made->Add(rule);
        collection = made;
    }
    collections.at(static_cast<std::size_t>(type)) = collection;
    return *this;
}

RuleChain RuleChain::Clone() const
{
    RuleChain copy;
    std::transform(collections.begin(), collections.end(), copy.collections.begin(), &Cloned);
    return copy;
}

void RuleChain::Assign(Detail::Function& function) const
{
    function.SetRules(collections);
    Assigned& assigned = TheAssigned();
    std::lock_guard guard(assigned.lock);
    if (std::find(assigned.functions.begin(), assigned.functions.end(), &function) ==
        assigned.functions.end())
        assigned.functions.push_back(&function);
}

void RuleChain::ReleaseAssigned()
{
    std::vector<Detail::Function*> functions;
    {
        Assigned& assigned = TheAssigned();
        std::lock_guard guard(assigned.lock);
        functions.swap(assigned.functions);
    }
    // An operator of a library unloaded since is gone; only those still in
    // the registry are touched.
    std::vector<const Detail::Function*> alive = FunctionRegistry::Alive();
    std::sort(alive.begin(), alive.end());
    for (Detail::Function* function : functions) {
        if (std::binary_search(alive.begin(), alive.end(), function))
            function->SetRules(RuleCollections{});
    }
}

std::wstring RuleChain::Present(const RuleCollections& collections)
{
    static const wchar_t* const moments[] = {L"Check", L"Make", L"PreExecute", L"PostExecute"};
    std::wstring text;
    for (std::size_t type = 0; type < collections.size() && type < RuleTypeCount; ++type) {
        const std::vector<std::wstring> rules = Rules::PresentRules(collections[type]);
        if (rules.empty())
            continue;
        if (!text.empty())
            text += L"; ";
        text += moments[type];
        text += L":";
        for (std::size_t i = 0; i < rules.size(); ++i)
            text += (i == 0 ? L" " : L", ") + rules[i];
    }
    return text;
}

} // namespace Quilon_::System::Functions
