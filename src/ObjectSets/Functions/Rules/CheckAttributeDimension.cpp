#include "Quilon_/ObjectSets/Functions/Rules/CheckAttributeDimension.h"

#include "ObjectSets/Functions/Rules/ObjectSetArguments.h"
#include "Quilon_/Geometry/ThreeD/Vector.h"
#include "Quilon_/Geometry/TwoD/Vector.h"
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

class CCheckAttributeDimension
    : public System::Template::ObjectImpl<CCheckAttributeDimension, IRule, IRulePresentation> {
public:
    CCheckAttributeDimension(std::int64_t index, const System::LIString& attributeName,
                             std::int64_t dimension, AttributeDimensionRelationEnum relation)
        : index(index), attributeName(attributeName), dimension(dimension), relation(relation)
    {
    }

    bool Apply(std::vector<System::Any>& arguments, RuleFailures& failures) override
    {
        System::Pointer<IAttribute, 0> attribute = FindAttribute(arguments, failures);
        if (!attribute)
            return false;
        std::optional<std::int64_t> found = SpatialDimension(System::Ref<IAttribute>(attribute));
        if (!found)
            return Refuse(failures, index, L"Attribute '%1%' is not a spatial attribute",
                          attribute->Name().Value());
        return Compare(*found, failures);
    }

    std::wstring ClassName() override { return L"CCheckAttributeDimension"; }
    // The name only in the form that was given one, as the call was written.
    std::vector<std::wstring> Arguments() override
    {
        using System::Functions::Rules::Detail::Texts;
        const std::wstring relationText = System::ToString(relation);
        if (attributeName.Value().empty())
            return Texts(index, dimension, relationText);
        return Texts(index, L"\"" + attributeName.Value() + L"\"", dimension, relationText);
    }

private:
    // The attribute itself, or the named one of a set; empty, with the
    // reason appended, when there is none.
    System::Pointer<IAttribute, 0> FindAttribute(const std::vector<System::Any>& arguments,
                                                 RuleFailures& failures) const
    {
        const System::Pointer<System::Interface, 0> argument = Detail::HeldObject(arguments, index);
        if (System::Pointer<IAttribute, 0> attribute{argument})
            return attribute;
        if (System::Pointer<IObjectSet, 0> set{argument}) {
            System::Ref<IAttributeDictionary> attributes = set->Attributes();
            if (attributes->ContainsKey(attributeName))
                return attributes->Item(attributeName);
            Refuse(failures, index, L"Attribute not found '%1%'", attributeName.Value());
            return {};
        }
        Refuse(failures, index, L"Argument must implement IAttribute or IObjectSet");
        return {};
    }

    // The dimension of a spatial attribute, or of an attribute of vectors.
    static std::optional<std::int64_t> SpatialDimension(const System::Ref<IAttribute>& attribute)
    {
        if (System::Pointer<ISpatialAttribute, 0> spatial{attribute})
            return spatial->Dimension();
        const System::Type type = attribute->DataType();
        if (type == Quilon_::Geometry::TwoD::IVectorF::GetType())
            return 2;
        if (type == Quilon_::Geometry::ThreeD::IVectorF::GetType())
            return 3;
        return std::nullopt;
    }

    bool Compare(std::int64_t found, RuleFailures& failures) const
    {
        switch (relation) {
        case adrEqual:
            if (found != dimension)
                return Refuse(failures, index, L"Invalid attribute dimension: %1% (%2% expected)", found,
                              dimension);
            break;
        case adrAtMost:
            if (found > dimension)
                return Refuse(failures, index, L"Invalid attribute dimension: %1% (<= %2% expected)", found,
                              dimension);
            break;
        case adrAtLeast:
            if (found < dimension)
                return Refuse(failures, index, L"Invalid attribute dimension: %1% (>= %2% expected)", found,
                              dimension);
            break;
        }
        return true;
    }

    const std::int64_t index;
    const System::LIString attributeName;
    const std::int64_t dimension;
    const AttributeDimensionRelationEnum relation;
};

System::Ref<IRule> NewCheckAttributeDimensionOfAttribute(std::int64_t index, std::int64_t dimension,
                                                         AttributeDimensionRelationEnum relation)
{
    return System::Ref<IRule>(new CCheckAttributeDimension(index, System::LIString(), dimension, relation));
}

System::Ref<IRule> NewCheckAttributeDimensionByName(std::int64_t index, const System::LIString& attributeName,
                                                    std::int64_t dimension,
                                                    AttributeDimensionRelationEnum relation)
{
    return System::Ref<IRule>(new CCheckAttributeDimension(index, attributeName, dimension, relation));
}

} // namespace

CheckAttributeDimension::Factory CheckAttributeDimension::New(&NewCheckAttributeDimensionOfAttribute,
                                                              &NewCheckAttributeDimensionByName);

} // namespace Quilon_::ObjectSets::Functions::Rules
