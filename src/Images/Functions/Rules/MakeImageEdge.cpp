#include "Quilon_/Images/Functions/Rules/MakeImageEdge.h"

#include "Images/Functions/Rules/ImageArguments.h"
#include "Quilon_/Images/Padding.h"
#include "Quilon_/System/Equatable.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Images::Functions::Rules {

namespace {

using System::NumericTypeEnum;
using System::Pointer;
using System::Ref;
using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::RuleFailures;

bool IsSignedInteger(NumericTypeEnum type)
{
    return System::IsInteger(type) && System::IsSigned(type);
}

// An edge image holds gradient magnitudes: no sign, no fraction of a byte,
// nothing complex.
bool UnfitForEdges(NumericTypeEnum type)
{
    return System::IsComplex(type) || IsSignedInteger(type) ||
           (System::IsInteger(type) && System::BitSize(type) < 8);
}

class CMakeImageEdge : public System::Template::ObjectImpl<CMakeImageEdge, IRule, IRulePresentation> {
public:
    CMakeImageEdge(std::int64_t output, std::int64_t input) : output(output), input(input) {}

    bool Apply(std::vector<System::Any>& arguments, RuleFailures&) override
    {
        Ref<IImage> in = Detail::ImageAt(arguments, input);
        Ref<IImage> out = Detail::ImageAt(arguments, output);

        NumericTypeEnum type = in->Format()->DataType();
        // The unsigned type of the same width follows the signed one.
        if (IsSignedInteger(type))
            type = static_cast<NumericTypeEnum>(type + 1);

        // One band per spatial axis.
        Ref<Quilon_::Geometry::ICoordinates> size =
            Detail::Cloned<Quilon_::Geometry::ICoordinates>(in->Size());
        const std::int64_t dimension = Detail::SpatialDimension(size);
        size->SetAxes(static_cast<unsigned char>(size->Axes() | Quilon_::Geometry::aB));
        size->SetValue(Quilon_::Geometry::aB, dimension);

        if (!System::Equals(size, out->Size()) || UnfitForEdges(out->Format()->DataType())) {
            Ref<IFormat> format =
                UniformFormat::New(StorageOrder::New(L"B" + in->Format()->StorageOrder()->ToString()));
            format->SetDataType(type);
            out->Reshape(format, size, false, Padding(ptConstant, System::ToAny(std::int64_t(0))));
        }
        Image::SetCategory(out, System::LIString(L"Image.Category.Edge"), false);
        return true;
    }

    std::wstring ClassName() override { return L"CMakeImageEdge"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(output, input);
    }

private:
    const std::int64_t output;
    const std::int64_t input;
};

Pointer<IRule, 1> NewMakeImageEdge(std::int64_t output, std::int64_t input)
{
    return Pointer<IRule, 1>(new CMakeImageEdge(output, input));
}

} // namespace

System::Functions::Template::Function<Pointer<IRule, 1> (*)(std::int64_t, std::int64_t)>
    MakeImageEdge::New(&NewMakeImageEdge);

} // namespace Quilon_::Images::Functions::Rules
