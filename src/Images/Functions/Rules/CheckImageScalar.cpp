#include "Quilon_/Images/Functions/Rules/CheckImageScalar.h"

#include "Images/Functions/Rules/ImageArguments.h"
#include "Quilon_/Images/ImageAxes.h"
#include "Quilon_/System/Functions/Rules/Refuse.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Images::Functions::Rules {

namespace {

using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::Refuse;
using System::Functions::Rules::RuleFailures;

class CCheckImageScalar : public System::Template::ObjectImpl<CCheckImageScalar, IRule, IRulePresentation> {
public:
    CCheckImageScalar(std::int64_t index, bool integral, bool singleBand, bool unsignedOnly)
        : index(index), integral(integral), singleBand(singleBand), unsignedOnly(unsignedOnly)
    {
    }

    bool Apply(std::vector<System::Any>& arguments, RuleFailures& failures) override
    {
        IImage& image = Detail::BorrowedImageAt(arguments, index);
        const System::NumericTypeEnum t = image.Format()->DataType();
        if (integral && !System::IsInteger(t))
            return Refuse(failures, index, L"Invalid image data type '%1%': integral type expected",
                          System::ToString(t));
        if (unsignedOnly && System::IsSigned(t))
            return Refuse(failures, index, L"Invalid image data type '%1%': unsigned type expected",
                          System::ToString(t));
        if (System::IsComplex(t))
            return Refuse(failures, index, L"Invalid image data type '%1%': scalar type expected",
                          System::ToString(t));
        // The axis counts, not its extent: a band axis of one value fails.
        if (singleBand && Detail::HasBand(ImageAxes::Of(image)))
            return Refuse(failures, index, L"Single band image expected");
        return true;
    }

    std::wstring ClassName() override { return L"CCheckImageScalar"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(index, Flag(integral), Flag(singleBand),
                                                       Flag(unsignedOnly));
    }

private:
    static std::int64_t Flag(bool value) { return value ? 1 : 0; }

    const std::int64_t index;
    const bool integral;
    const bool singleBand;
    const bool unsignedOnly;
};

System::Pointer<IRule, 1> NewCheckImageScalar(std::int64_t index, bool integral, bool singleBand,
                                              bool unsignedOnly)
{
    return System::Pointer<IRule, 1>(new CCheckImageScalar(index, integral, singleBand, unsignedOnly));
}

} // namespace

CheckImageScalar::Factory CheckImageScalar::New(&NewCheckImageScalar);

} // namespace Quilon_::Images::Functions::Rules
