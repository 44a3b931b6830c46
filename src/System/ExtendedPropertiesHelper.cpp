#include "Quilon_/System/ExtendedPropertiesHelper.h"

#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Raise.h"

#include <typeinfo>

namespace Quilon_::System::ExtendedPropertiesHelper {

namespace {

// The object itself when it is a dictionary, else the dictionary that it
// hands out as a container; null when it is neither.
Pointer<IExtendedPropertyDictionary, 0> DictionaryOf(const Pointer<Interface, 0>& object)
{
    Pointer<IExtendedPropertyDictionary, 0> dictionary(object);
    if (dictionary)
        return dictionary;
    Pointer<IExtendedPropertiesContainer, 0> container(object);
    if (container)
        return container->ExtendedProperties();
    return nullptr;
}

Pointer<IExtendedPropertyDictionary, 1> DictionaryForWriting(const Pointer<Interface, 0>& object)
{
    Pointer<IExtendedPropertyDictionary, 0> dictionary = DictionaryOf(object);
    if (!dictionary) {
        // The dynamic type, read from a plain pointer: typeid of a call would
        // evaluate the call.
        const Interface* target = object.Get();
        QUILON_RAISE(L"Object should implement IExtendedPropertiesContainer ('%1%')",
                     target ? Helper::TypeName(typeid(*target)) : Helper::TypeName(typeid(Interface)));
    }
    return Pointer<IExtendedPropertyDictionary, 1>(dictionary);
}

// Makes the property `key` with `value`, sets its flags when given, and
// adds it to the object's properties.
void Create(const Pointer<Interface, 0>& object, const LIString& key, const Any& value,
            const unsigned char* flags)
{
    Pointer<IExtendedPropertyDictionary, 1> dictionary = DictionaryForWriting(object);
    Pointer<IExtendedProperty, 1> property = ExtendedProperty::New(key, value, false, false);
    if (flags)
        property->SetFlags(*flags);
    dictionary->Add(property);
}

} // namespace

Pointer<IExtendedProperty, 0> Find(Pointer<Interface, 1> object, const std::wstring& key)
{
    return Find(std::move(object), LIString(key));
}

Pointer<IExtendedProperty, 0> Find(Pointer<Interface, 1> object, const LIString& key)
{
    Pointer<IExtendedPropertyDictionary, 0> dictionary = DictionaryOf(object);
    return dictionary ? dictionary->Find(key) : nullptr;
}

Pointer<IExtendedProperty, 1> Property(Pointer<Interface, 1> object, const std::wstring& key)
{
    return Property(std::move(object), LIString(key));
}

Pointer<IExtendedProperty, 1> Property(Pointer<Interface, 1> object, const LIString& key)
{
    Pointer<IExtendedProperty, 0> found = Find(std::move(object), key);
    if (!found)
        QUILON_RAISE(L"Extended property '%1%' is not defined", key.Value());
    return Pointer<IExtendedProperty, 1>(found);
}

Any Value(Pointer<Interface, 1> object, const std::wstring& key)
{
    return Value(std::move(object), LIString(key));
}

Any Value(Pointer<Interface, 1> object, const LIString& key)
{
    Any value;
    if (Pointer<IExtendedProperty, 0> found = Find(std::move(object), key))
        found->GetValue(value);
    return value;
}

void SetValue(Pointer<Interface, 1> object, const std::wstring& key, const Any& value)
{
    Pointer<IExtendedProperty, 0> found = Find(std::move(object), key);
    if (!found)
        QUILON_RAISE(L"Property '%1%' does not exist (use 'LIString' overload for implicit creation)", key);
    found->SetValue(value);
}

void SetValue(Pointer<Interface, 1> object, const LIString& key, const Any& value)
{
    if (Pointer<IExtendedProperty, 0> found = Find(object, key))
        found->SetValue(value);
    else
        Create(object, key, value, nullptr);
}

void SetValue(Pointer<Interface, 1> object, const LIString& key, const Any& value, unsigned char flags)
{
    if (Pointer<IExtendedProperty, 0> found = Find(object, key)) {
        found->SetFlags(flags);
        found->SetValue(value);
    } else {
        Create(object, key, value, &flags);
    }
}

void Remove(Pointer<Interface, 1> object, const std::wstring& key)
{
    Remove(std::move(object), LIString(key));
}

void Remove(Pointer<Interface, 1> object, const LIString& key)
{
    if (Find(object, key))
        DictionaryOf(object)->Remove(key);
}

LIString Name(Pointer<Interface, 1> object)
{
    const Any value = Value(std::move(object), ExtendedPropertyKeys::Name());
    if (value.TypeInfo() == typeid(LIString))
        return value.CastTo<LIString>();
    if (value.TypeInfo() == typeid(std::wstring))
        return LIString(value.CastTo<std::wstring>(), false);
    return LIString(std::wstring(), true);
}

void SetName(Pointer<Interface, 1> object, const LIString& name)
{
    SetValue(std::move(object), ExtendedPropertyKeys::Name(), ToAny(name), epfPersistent | epfHidden);
}

Nullable<System::DateTime> DateTime(Pointer<Interface, 1> object)
{
    const Any value = Value(std::move(object), ExtendedPropertyKeys::DateTime());
    if (value.TypeInfo() == typeid(System::DateTime))
        return value.CastTo<System::DateTime>();
    return {};
}

void SetDateTime(Pointer<Interface, 1> object, const System::DateTime& dateTime)
{
    SetValue(std::move(object), ExtendedPropertyKeys::DateTime(), ToAny(dateTime));
}

void CopyCopiableExtendedProperties(Pointer<Interface, 1> source, Pointer<Interface, 1> destination)
{
    if (source == destination)
        return;
    Pointer<IExtendedPropertyDictionary, 1> from =
        Pointer<IExtendedPropertiesContainer, 1>(source)->ExtendedProperties();
    Pointer<IExtendedPropertyDictionary, 1> to =
        Pointer<IExtendedPropertiesContainer, 1>(destination)->ExtendedProperties();
    for (const LIString& key : from->Keys()) {
        Pointer<IExtendedProperty, 1> property = from->Item(key);
        if ((property->Flags() & epfCopiable) == 0)
            continue;
        Pointer<IExtendedProperty, 1> clone(Pointer<ICloneable, 1>(property)->Clone());
        to->SetItem(key, clone);
    }
}

} // namespace Quilon_::System::ExtendedPropertiesHelper
