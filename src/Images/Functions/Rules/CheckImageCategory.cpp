#include "Quilon_/Images/Functions/Rules/CheckImageCategory.h"

#include "Images/Functions/Rules/ImageArguments.h"
#include "Quilon_/System/Functions/Rules/Refuse.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Images::Functions::Rules {

namespace {

using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::RuleFailures;

class CCheckImageCategory
    : public System::Template::ObjectImpl<CCheckImageCategory, IRule, IRulePresentation> {
public:
    CCheckImageCategory(std::int64_t index, const System::LIString& category)
        : index(index), category(category)
    {
    }

    bool Apply(std::vector<System::Any>& arguments, RuleFailures& failures) override
    {
        System::Nullable<System::LIString> current = Image::Category(Detail::ImageAt(arguments, index));
        if (current.HasValue() && current.Value() == category)
            return true;
        return System::Functions::Rules::Refuse(failures, index, L"%1% image expected", category);
    }

    std::wstring ClassName() override { return L"CCheckImageCategory"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(index, category.Value());
    }

private:
    const std::int64_t index;
    const System::LIString category;
};

System::Pointer<IRule, 1> NewCheckImageCategory(std::int64_t index, const System::LIString& category)
{
    return System::Pointer<IRule, 1>(new CCheckImageCategory(index, category));
}

System::Pointer<IRule, 1> NewCheckImageBinary(std::int64_t index)
{
    return NewCheckImageCategory(index, System::LIString(L"Image.Category.Binary"));
}

} // namespace

System::Functions::Template::Function<System::Pointer<IRule, 1> (*)(std::int64_t, const System::LIString&)>
    CheckImageCategory::New(&NewCheckImageCategory);
System::Functions::Template::Function<System::Pointer<IRule, 1> (*)(std::int64_t)>
    CheckImageBinary::New(&NewCheckImageBinary);

} // namespace Quilon_::Images::Functions::Rules
