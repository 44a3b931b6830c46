#include "Quilon_/ObjectSets/Functions/Rules/CheckBitmapAttribute.h"

#include "Images/Functions/Rules/ImageArguments.h"
#include "ObjectSets/Functions/Rules/ObjectSetArguments.h"
#include "Quilon_/Geometry/ThreeD/BitmapShape.h"
#include "Quilon_/Geometry/TwoD/BitmapShape.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"
#include "Quilon_/System/Functions/Rules/Refuse.h"
#include "Quilon_/System/Functions/Rules/RulePresentation.h"
#include "Quilon_/System/ObjectImpl.h"

#include <optional>

namespace Quilon_::ObjectSets::Functions::Rules {

namespace {

using System::Functions::Rules::IRule;
using System::Functions::Rules::IRulePresentation;
using System::Functions::Rules::Refuse;
using System::Functions::Rules::RuleFailures;

class CCheckBitmapAttribute
    : public System::Template::ObjectImpl<CCheckBitmapAttribute, IRule, IRulePresentation> {
public:
    CCheckBitmapAttribute(std::int64_t attributeIndex, std::int64_t dimensionIndex)
        : attributeIndex(attributeIndex), dimensionIndex(dimensionIndex)
    {
    }

    bool Apply(std::vector<System::Any>& arguments, RuleFailures& failures) override
    {
        // A set in the attribute's place: the operator makes the attribute.
        if (System::Pointer<IObjectSet, 0>(Detail::HeldObject(arguments, attributeIndex)))
            return true;
        const auto attribute = Detail::ArgumentAs<System::Ref<IAttribute>>(arguments, attributeIndex);
        const std::optional<std::int64_t> dimension =
            DimensionOf(Detail::HeldObject(arguments, dimensionIndex));
        if (!dimension)
            return Refuse(failures, attributeIndex, L"Dimension argument not available");
        const System::Type& expected = *dimension == 2 ? Quilon_::Geometry::TwoD::IBitmapShape::GetType()
                                                       : Quilon_::Geometry::ThreeD::IBitmapShape::GetType();
        // By name, so that a type record of another library matches too.
        if (attribute->DataType().Name() == expected.Name())
            return true;
        return Refuse(failures, attributeIndex, L"Data of attribute #%1% ('%2%') must be of type '%3%'",
                      attributeIndex + 1, attribute->Name().Value(), expected.Name());
    }

    std::wstring ClassName() override { return L"CCheckBitmapAttribute"; }
    std::vector<std::wstring> Arguments() override
    {
        return System::Functions::Rules::Detail::Texts(attributeIndex, dimensionIndex);
    }

private:
    // The dimension a spatial attribute, the first spatial attribute of a
    // set, or an image gives; none for anything else.
    static std::optional<std::int64_t> DimensionOf(const System::Pointer<System::Interface, 0>& argument)
    {
        System::Pointer<ISpatialAttribute, 0> spatial(argument);
        const System::Pointer<IObjectSet, 0> set(argument);
        const System::Pointer<Quilon_::Images::IImage, 0> image(argument);
        if (set)
            spatial = FirstSpatialAttribute(System::Ref<IObjectSet>(set));
        if (spatial)
            return spatial->Dimension();
        if (image)
            return Quilon_::Images::Functions::Rules::Detail::SpatialDimension(image->Size());
        return std::nullopt;
    }

    static System::Pointer<ISpatialAttribute, 0> FirstSpatialAttribute(const System::Ref<IObjectSet>& set)
    {
        System::Ref<IAttributeDictionary> attributes = set->Attributes();
        for (const System::LIString& name : attributes->Keys())
            if (System::Pointer<ISpatialAttribute, 0> spatial{attributes->Item(name)})
                return spatial;
        return {};
    }

    const std::int64_t attributeIndex;
    const std::int64_t dimensionIndex;
};

System::Ref<IRule> NewCheckBitmapAttribute(std::int64_t attributeIndex, std::int64_t dimensionIndex)
{
    return System::Ref<IRule>(new CCheckBitmapAttribute(attributeIndex, dimensionIndex));
}

} // namespace

System::Functions::Template::Function<System::Ref<IRule> (*)(std::int64_t, std::int64_t)>
    CheckBitmapAttribute::New(&NewCheckBitmapAttribute);

} // namespace Quilon_::ObjectSets::Functions::Rules
