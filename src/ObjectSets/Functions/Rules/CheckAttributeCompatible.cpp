#include "Quilon_/ObjectSets/Functions/Rules/CheckAttributeCompatible.h"

#include "Images/Functions/Rules/ImageArguments.h"
#include "ObjectSets/Functions/Rules/ObjectSetArguments.h"
#include "Quilon_/ObjectSets/Helper.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/System/Functions/Rules/ArgumentIndexes.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::ObjectSets::Functions::Rules {

namespace {

using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::RuleFailures;

class CCheckAttributeCompatible
    : public System::Template::ObjectImpl<CCheckAttributeCompatible, IRule, IRulePresentation> {
public:
    CCheckAttributeCompatible(std::vector<std::int64_t> indexes, unsigned short flags)
        : indexes(System::Functions::Rules::AtLeastTwoIndexes(std::move(indexes))), flags(flags)
    {
    }

    bool Apply(std::vector<System::Any>& arguments, RuleFailures& failures) override
    {
        using Attribute = System::Ref<IAttribute>;
        const Attribute first = Detail::ArgumentAs<Attribute>(arguments, indexes.front());
        // A detached first attribute has no set to be empty: the empty
        // reference raises here.
        if ((flags & Detail::waivedWhenEmpty) &&
            System::Ref<IObjectSet>(first->ObjectSet())->Objects()->Count() == 0)
            return true;
        const Detail::CompatibilityLevel level = Detail::SelectedLevel(flags);
        if (level == Detail::CompatibilityLevel::none)
            return true;
        for (std::size_t i = 1; i < indexes.size(); ++i) {
            const Attribute other = Detail::ArgumentAs<Attribute>(arguments, indexes[i]);
            System::Pointer<System::IException, 0> failure;
            if (!Agree(level, first, other, &failure)) {
                failures.emplace_back(indexes[i], failure->Message());
                return false;
            }
        }
        return true;
    }

    std::wstring ClassName() override { return L"CCheckAttributeCompatible"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(
            indexes, Quilon_::Images::Functions::Rules::Detail::WordText(flags));
    }

private:
    static bool Agree(Detail::CompatibilityLevel level, const System::Ref<IAttribute>& first,
                      const System::Ref<IAttribute>& other, Helper::ExceptionSlot failure)
    {
        switch (level) {
        case Detail::CompatibilityLevel::objectSet:
            return Helper::CheckSameObjectSet(first, other, failure);
        case Detail::CompatibilityLevel::keys:
            return Helper::CheckSameObjectKeys(first, other, failure);
        case Detail::CompatibilityLevel::count:
            return Helper::CheckSameObjectCount(first, other, failure);
        case Detail::CompatibilityLevel::none:
            break;
        }
        return true;
    }

    const std::vector<std::int64_t> indexes;
    const unsigned short flags;
};

System::Ref<IRule> NewCheckAttributeCompatibleForIndexes(const std::vector<std::int64_t>& indexes,
                                                         unsigned short flags)
{
    return System::Ref<IRule>(new CCheckAttributeCompatible(indexes, flags));
}

System::Ref<IRule> NewCheckAttributeCompatibleForPair(std::int64_t first, std::int64_t second,
                                                      unsigned short flags)
{
    return NewCheckAttributeCompatibleForIndexes({first, second}, flags);
}

} // namespace

CheckAttributeCompatible::Factory CheckAttributeCompatible::New(&NewCheckAttributeCompatibleForPair,
                                                                &NewCheckAttributeCompatibleForIndexes);

} // namespace Quilon_::ObjectSets::Functions::Rules
