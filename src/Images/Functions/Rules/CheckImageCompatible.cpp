#include "Quilon_/Images/Functions/Rules/CheckImageCompatible.h"

#include "Images/Functions/Rules/ImageArguments.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/ImageAxes.h"
#include "Quilon_/System/Equatable.h"
#include "Quilon_/System/Functions/Rules/Refuse.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Images::Functions::Rules {

namespace {

using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::Refuse;
using System::Functions::Rules::RuleFailures;

// Whether the colour formats of two images agree: neither is one, or both
// are, in the same space (two missing spaces being the same).
bool SameColorSpace(const System::Ref<IFormat>& a, const System::Ref<IFormat>& b)
{
    System::Pointer<Color::IColorFormat, 0> colorA(a);
    System::Pointer<Color::IColorFormat, 0> colorB(b);
    if (!colorA && !colorB)
        return true;
    if (!colorA || !colorB)
        return false;
    return System::Equals(colorA->ColorSpace(), colorB->ColorSpace());
}

class CCheckImageCompatible
    : public System::Template::ObjectImpl<CCheckImageCompatible, IRule, IRulePresentation> {
public:
    CCheckImageCompatible(std::int64_t image, std::int64_t reference, unsigned short options)
        : image(image), reference(reference), options(options)
    {
    }

    bool Apply(std::vector<System::Any>& arguments, RuleFailures& failures) override
    {
        IImage& r = Detail::BorrowedImageAt(arguments, reference);
        IImage& t = Detail::BorrowedImageAt(arguments, image);
        return AxesAgree(t, r, failures) && TypesAgree(t, r, failures) && ColorsAgree(t, r, failures);
    }

    std::wstring ClassName() override { return L"CCheckImageCompatible"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(image, reference, Detail::WordText(options));
    }

private:
    bool AxesAgree(IImage& t, IImage& r, RuleFailures& failures) const
    {
        // Reading axes may copy a size: only when the word asks for a test.
        if (!(options & mcAxesIgnoringBand))
            return true;
        const Quilon_::Geometry::Axes axesT = ImageAxes::Of(t);
        const Quilon_::Geometry::Axes axesR = ImageAxes::Of(r);
        bool differ = false;
        if ((options & mcAxesExact) == mcAxesExact)
            differ = axesT != axesR;
        else if (options & mcAxesIgnoringBand)
            differ = ((axesT ^ axesR) & ~Quilon_::Geometry::aB) != 0;
        if (!differ)
            return true;
        return Refuse(failures, image, L"Image axes mismatch: %1%", Quilon_::Geometry::AxesToString(axesT));
    }

    // The "contain" text goes with the test of equality and the "be" text
    // with the test of containment; callers see them so, and they stay.
    bool TypesAgree(IImage& t, IImage& r, RuleFailures& failures) const
    {
        const System::NumericTypeEnum typeT = t.Format()->DataType();
        const System::NumericTypeEnum typeR = r.Format()->DataType();
        if (options & mcSameType) {
            if (typeT != typeR)
                return Refuse(failures, image, L"Image data type should contain '%1%'",
                              System::ToString(typeR));
        } else if (options & mcContainingType) {
            if (!System::Contains(typeT, typeR))
                return Refuse(failures, image, L"Image data type should be '%1%'", System::ToString(typeR));
        }
        return true;
    }

    bool ColorsAgree(IImage& t, IImage& r, RuleFailures& failures) const
    {
        if (!(options & mcColorSpace) || SameColorSpace(t.Format(), r.Format()))
            return true;
        return Refuse(failures, image, L"Color spaces do not match");
    }

    const std::int64_t image;
    const std::int64_t reference;
    const unsigned short options;
};

System::Pointer<IRule, 1> NewCheckImageCompatible(std::int64_t image, std::int64_t reference,
                                                  unsigned short options)
{
    return System::Pointer<IRule, 1>(new CCheckImageCompatible(image, reference, options));
}

} // namespace

System::Functions::Template::Function<System::Pointer<IRule, 1> (*)(std::int64_t, std::int64_t,
                                                                    unsigned short)>
    CheckImageCompatible::New(&NewCheckImageCompatible);

} // namespace Quilon_::Images::Functions::Rules
