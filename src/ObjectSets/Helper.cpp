#include "Quilon_/ObjectSets/Helper.h"

#include "Quilon_/Library.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"
#include "Quilon_/System/ErrorManager.h"
#include "Quilon_/System/ExtendedPropertiesHelper.h"
#include "Quilon_/System/Raise.h"

namespace Quilon_::ObjectSets::Helper {

namespace {

// The end of every failed check: the exception has been reported when it
// was made; a caller without a slot gets it reported once more and thrown.
bool FailHelperCheck(const System::Pointer<System::IException, 1>& failure, ExceptionSlot e)
{
    if (!e) {
        Library::ErrorManager()->SetLastError(failure);
        System::Detail::Throw(failure);
    }
    *e = failure;
    return false;
}

std::wstring SetName(const System::Ref<IObjectSet>& set)
{
    return System::ExtendedPropertiesHelper::Name(set).Value();
}

} // namespace

bool CheckObjectSetNotNull(System::Ref<IAttribute> attribute, ExceptionSlot e)
{
    if (attribute->ObjectSet())
        return true;
    return FailHelperCheck(
        QUILON_MAKE_EXCEPTION(L"Attribute '%1%' is not attached to any ObjectSet", attribute->Name().Value()),
        e);
}

bool CheckSameObjectSet(System::Ref<IAttribute> a, System::Ref<IAttribute> b, ExceptionSlot e)
{
    if (!CheckObjectSetNotNull(a, e) || !CheckObjectSetNotNull(b, e))
        return false;
    if (a->ObjectSet().Get() == b->ObjectSet().Get())
        return true;
    return FailHelperCheck(
        QUILON_MAKE_EXCEPTION(L"Attributes '%1%' and '%2%' must belong to the same ObjectSet",
                              a->Name().Value(), b->Name().Value()),
        e);
}

bool CheckSameObjectKeys(System::Ref<IObjectSet> a, System::Ref<IObjectSet> b, ExceptionSlot e)
{
    // One set has its own keys: no need to walk them.
    if (a.Get() == b.Get())
        return true;
    if (a->Objects()->Keys() == b->Objects()->Keys())
        return true;
    return FailHelperCheck(
        QUILON_MAKE_EXCEPTION(L"ObjectSets '%1%' and '%2%' must have the same keys", SetName(a), SetName(b)),
        e);
}

bool CheckSameObjectKeys(System::Ref<IAttribute> a, System::Ref<IAttribute> b, ExceptionSlot e)
{
    if (!CheckObjectSetNotNull(a, e) || !CheckObjectSetNotNull(b, e))
        return false;
    return CheckSameObjectKeys(System::Ref<IObjectSet>(a->ObjectSet()),
                               System::Ref<IObjectSet>(b->ObjectSet()), e);
}

bool CheckSameObjectCount(System::Ref<IObjectSet> a, System::Ref<IObjectSet> b, ExceptionSlot e)
{
    if (a->Objects()->Count() == b->Objects()->Count())
        return true;
    return FailHelperCheck(
        QUILON_MAKE_EXCEPTION(L"ObjectSets '%1%' and '%2%' must have the same number of objects", SetName(a),
                              SetName(b)),
        e);
}

bool CheckSameObjectCount(System::Ref<IAttribute> a, System::Ref<IAttribute> b, ExceptionSlot e)
{
    if (!CheckObjectSetNotNull(a, e) || !CheckObjectSetNotNull(b, e))
        return false;
    return CheckSameObjectCount(System::Ref<IObjectSet>(a->ObjectSet()),
                                System::Ref<IObjectSet>(b->ObjectSet()), e);
}

bool CheckType(System::Ref<IAttribute> attribute, const System::Type& type, ExceptionSlot e)
{
    if (attribute->DataType() == type)
        return true;
    return FailHelperCheck(QUILON_MAKE_EXCEPTION(L"Attribute '%1%' must be of type '%2%'",
                                                 attribute->Name().Value(), type.Name()),
                           e);
}

bool CheckSpatial(System::Ref<IAttribute> attribute, ExceptionSlot e)
{
    if (System::Pointer<ISpatialAttribute, 0>(attribute))
        return true;
    return FailHelperCheck(
        QUILON_MAKE_EXCEPTION(L"Attribute '%1%' must be a spatial attribute", attribute->Name().Value()), e);
}

} // namespace Quilon_::ObjectSets::Helper
