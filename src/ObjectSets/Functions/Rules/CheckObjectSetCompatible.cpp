#include "Quilon_/ObjectSets/Functions/Rules/CheckObjectSetCompatible.h"

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

class CCheckObjectSetCompatible
    : public System::Template::ObjectImpl<CCheckObjectSetCompatible, IRule, IRulePresentation> {
public:
    CCheckObjectSetCompatible(std::vector<std::int64_t> indexes, unsigned short flags)
        : indexes(System::Functions::Rules::AtLeastTwoIndexes(std::move(indexes))), flags(flags)
    {
    }

    bool Apply(std::vector<System::Any>& arguments, RuleFailures& failures) override
    {
        using Set = System::Ref<IObjectSet>;
        const Set first = Detail::ArgumentAs<Set>(arguments, indexes.front());
        if ((flags & Detail::waivedWhenEmpty) && first->Objects()->Count() == 0)
            return true;
        // Sets have no set of their own: bit 4 adds nothing to the keys test.
        const Detail::CompatibilityLevel level = Detail::SelectedLevel(flags);
        if (level == Detail::CompatibilityLevel::none)
            return true;
        const bool keys = level != Detail::CompatibilityLevel::count;
        for (std::size_t i = 1; i < indexes.size(); ++i) {
            const Set other = Detail::ArgumentAs<Set>(arguments, indexes[i]);
            System::Pointer<System::IException, 0> failure;
            const bool agree = keys ? Helper::CheckSameObjectKeys(first, other, &failure)
                                    : Helper::CheckSameObjectCount(first, other, &failure);
            if (!agree) {
                failures.emplace_back(indexes[i], failure->Message());
                return false;
            }
        }
        return true;
    }

    std::wstring ClassName() override { return L"CCheckObjectSetCompatible"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(
            indexes, Quilon_::Images::Functions::Rules::Detail::WordText(flags));
    }

private:
    const std::vector<std::int64_t> indexes;
    const unsigned short flags;
};

System::Ref<IRule> NewCheckObjectSetCompatibleForIndexes(const std::vector<std::int64_t>& indexes,
                                                         unsigned short flags)
{
    return System::Ref<IRule>(new CCheckObjectSetCompatible(indexes, flags));
}

System::Ref<IRule> NewCheckObjectSetCompatibleForPair(std::int64_t first, std::int64_t second,
                                                      unsigned short flags)
{
    return NewCheckObjectSetCompatibleForIndexes({first, second}, flags);
}

} // namespace

CheckObjectSetCompatible::Factory CheckObjectSetCompatible::New(&NewCheckObjectSetCompatibleForPair,
                                                                &NewCheckObjectSetCompatibleForIndexes);

} // namespace Quilon_::ObjectSets::Functions::Rules
