// Any object as a bag of extended properties, without testing its
// interfaces: the object itself may be the dictionary, or a container that
// hands one out. The object is a reference: a null object raises, as any
// Pointer<Interface> does when null is assigned to it.
//
//   ExtendedPropertiesHelper::SetName(image, LIString(L"Left view"));
//   Any exposure = ExtendedPropertiesHelper::Value(image, L"Exposure");   // empty when absent
//   ExtendedPropertiesHelper::CopyCopiableExtendedProperties(source, result);
#pragma once

#include "Quilon_/System/DateTime.h"
#include "Quilon_/System/ExtendedPropertyDictionary.h"
#include "Quilon_/System/Nullable.h"

#include <string>

namespace Quilon_::System::ExtendedPropertiesHelper {

// The property, or null, also when the object has no properties at all.
QUILON_API Pointer<IExtendedProperty, 0> Find(Pointer<Interface, 1> object, const std::wstring& key);
QUILON_API Pointer<IExtendedProperty, 0> Find(Pointer<Interface, 1> object, const LIString& key);

// The property; raises when it is not defined.
QUILON_API Pointer<IExtendedProperty, 1> Property(Pointer<Interface, 1> object, const std::wstring& key);
QUILON_API Pointer<IExtendedProperty, 1> Property(Pointer<Interface, 1> object, const LIString& key);

// The value; empty when the property is not defined.
QUILON_API Any Value(Pointer<Interface, 1> object, const std::wstring& key);
QUILON_API Any Value(Pointer<Interface, 1> object, const LIString& key);

// Sets the value of an existing property; only the LIString forms create a
// property that is missing, since only they name it properly.
QUILON_API void SetValue(Pointer<Interface, 1> object, const std::wstring& key, const Any& value);
QUILON_API void SetValue(Pointer<Interface, 1> object, const LIString& key, const Any& value);
// The same, setting the flags first.
QUILON_API void SetValue(Pointer<Interface, 1> object, const LIString& key, const Any& value,
                         unsigned char flags);

// Removes the property if there is one.
QUILON_API void Remove(Pointer<Interface, 1> object, const std::wstring& key);
QUILON_API void Remove(Pointer<Interface, 1> object, const LIString& key);

// The object's name and date; they are never copied to other objects.
QUILON_API LIString Name(Pointer<Interface, 1> object);
QUILON_API void SetName(Pointer<Interface, 1> object, const LIString& name);
QUILON_API Nullable<System::DateTime> DateTime(Pointer<Interface, 1> object);
QUILON_API void SetDateTime(Pointer<Interface, 1> object, const System::DateTime& dateTime);

// A literal key is a wide string: it finds and sets, but never creates.
inline Pointer<IExtendedProperty, 0> Find(Pointer<Interface, 1> object, const wchar_t* key)
{
    return Find(std::move(object), std::wstring(key));
}
inline Pointer<IExtendedProperty, 1> Property(Pointer<Interface, 1> object, const wchar_t* key)
{
    return Property(std::move(object), std::wstring(key));
}
inline Any Value(Pointer<Interface, 1> object, const wchar_t* key)
{
    return Value(std::move(object), std::wstring(key));
}
inline void SetValue(Pointer<Interface, 1> object, const wchar_t* key, const Any& value)
{
    SetValue(std::move(object), std::wstring(key), value);
}
inline void Remove(Pointer<Interface, 1> object, const wchar_t* key)
{
    Remove(std::move(object), std::wstring(key));
}

// Copies the properties flagged copiable from one object to the other,
// replacing entries of the same names.
QUILON_API void CopyCopiableExtendedProperties(Pointer<Interface, 1> source,
                                               Pointer<Interface, 1> destination);

} // namespace Quilon_::System::ExtendedPropertiesHelper
