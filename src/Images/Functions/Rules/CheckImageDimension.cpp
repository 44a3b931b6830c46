#include "Quilon_/Images/Functions/Rules/CheckImageDimension.h"

#include "Images/Functions/Rules/ImageArguments.h"
#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/Functions/Rules/Refuse.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Images::Functions::Rules {

namespace {

using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::Refuse;
using System::Functions::Rules::RuleFailures;

class CCheckImageDimension
    : public System::Template::ObjectImpl<CCheckImageDimension, IRule, IRulePresentation> {
public:
    CCheckImageDimension(std::int64_t index, std::int64_t dimension, ImageDimensionRelationEnum relation)
        : index(index), dimension(dimension), relation(relation)
    {
    }

    bool Apply(std::vector<System::Any>& arguments, RuleFailures& failures) override
    {
        const std::int64_t d = Detail::SpatialDimension(Detail::ImageAt(arguments, index)->Size());
        switch (relation) {
        case idrEqual:
            if (d != dimension)
                return Refuse(failures, index, L"Invalid image dimension: %1% (%2% expected)", d, dimension);
            break;
        case idrLessOrEqual:
            if (d > dimension)
                return Refuse(failures, index, L"Invalid image dimension: %1% (<= %2% expected)", d,
                              dimension);
            break;
        case idrGreaterOrEqual:
            if (d < dimension)
                return Refuse(failures, index, L"Invalid image dimension: %1% (>= %2% expected)", d,
                              dimension);
            break;
        }
        return true;
    }

    std::wstring ClassName() override { return L"CCheckImageDimension"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(index, dimension, System::ToString(relation));
    }

private:
    const std::int64_t index;
    const std::int64_t dimension;
    const ImageDimensionRelationEnum relation;
};

System::Pointer<IRule, 1> NewCheckImageDimension(std::int64_t index, std::int64_t dimension,
                                                 ImageDimensionRelationEnum relation)
{
    return System::Pointer<IRule, 1>(new CCheckImageDimension(index, dimension, relation));
}

} // namespace

System::Functions::Template::Function<System::Pointer<IRule, 1> (*)(std::int64_t, std::int64_t,
                                                                    ImageDimensionRelationEnum)>
    CheckImageDimension::New(&NewCheckImageDimension);

} // namespace Quilon_::Images::Functions::Rules

QUILON_DEFINE_ENUM_TEXT(Images::Functions::Rules::ImageDimensionRelationEnum, Number,
                        {Images::Functions::Rules::idrEqual, L"idrEqual"},
                        {Images::Functions::Rules::idrLessOrEqual, L"idrLessOrEqual"},
                        {Images::Functions::Rules::idrGreaterOrEqual, L"idrGreaterOrEqual"})
