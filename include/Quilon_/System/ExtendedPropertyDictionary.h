// The properties of one object, by name, and the interface through which an
// object hands them out.
//
//   Pointer<IExtendedPropertyDictionary, 1> properties = ExtendedPropertyDictionary::New();
//   properties->Add(ExtendedProperty::New(LIString(L"Owner"), ToAny(L"me"), false, false));
//   if (Pointer<IExtendedProperty, 0> found = properties->Find(LIString(L"Owner"))) ...
//
// Names compare by their text: a key with the translatable flag finds the
// property stored without it, and the other way round.
#pragma once

#include "Quilon_/System/Collections/Dictionary.h"
#include "Quilon_/System/ExtendedProperty.h"
#include "Quilon_/System/Functions/Function.h"

#include <functional>
#include <string>
#include <vector>

namespace Quilon_::System {

// Hashing and equality of property names by their text alone.
struct LIStringTextHash {
    std::size_t operator()(const LIString& key) const noexcept
    {
        return std::hash<std::wstring>()(key.Value());
    }
};
struct LIStringTextEqual {
    bool operator()(const LIString& a, const LIString& b) const noexcept { return a.Value() == b.Value(); }
};

class QUILON_API IExtendedPropertyDictionary
    : public Collections::Template::IDictionary<LIString, IExtendedProperty> {
    QUILON_INTERFACE(IExtendedPropertyDictionary)
public:
    // Copies the value of the property `name` into `value`; false, and
    // `value` untouched, when there is none.
    virtual bool GetValue(const LIString& name, Any& value) = 0;
    // Sets the value of the property `name`, which must exist.
    virtual void SetValue(const LIString& name, const Any& value) = 0;
    // Adds `property` under its own name.
    virtual void Add(const Pointer<IExtendedProperty, 1>& property) = 0;
    // Removes the entry that holds that very object; false if none does.
    virtual bool RemoveProperty(const Pointer<IExtendedProperty, 1>& property) = 0;
    // Every property, in the order of Keys().
    virtual std::vector<Pointer<IExtendedProperty, 1>> Properties() = 0;
    // The property `name`, or null.
    virtual Pointer<IExtendedProperty, 0> Find(const LIString& name) = 0;

    using Collections::Template::IDictionary<LIString, IExtendedProperty>::Add;
};

// An object that carries extended properties.
class QUILON_API IExtendedPropertiesContainer : public virtual Interface {
    QUILON_INTERFACE(IExtendedPropertiesContainer)
public:
    // The object's properties, made on first use.
    virtual Pointer<IExtendedPropertyDictionary, 1> ExtendedProperties() = 0;
    // Whether it has any, without making the dictionary.
    virtual bool HasExtendedProperties() = 0;
};

namespace ExtendedPropertyDictionary {
extern QUILON_API Functions::Template::Function<Pointer<IExtendedPropertyDictionary, 1> (*)()> New;
} // namespace ExtendedPropertyDictionary

namespace Template {
// For a class that carries extended properties: its dictionary is made by
// ExtendedPropertyDictionary::New on first use. No lock, as for collections.
class IExtendedPropertiesContainerImpl : public IExtendedPropertiesContainer {
public:
    Pointer<IExtendedPropertyDictionary, 1> ExtendedProperties() override
    {
        if (!m_properties)
            m_properties = ExtendedPropertyDictionary::New();
        return Pointer<IExtendedPropertyDictionary, 1>(m_properties);
    }
    bool HasExtendedProperties() override { return m_properties && m_properties->Count() > 0; }

private:
    Pointer<IExtendedPropertyDictionary, 0> m_properties;
};
} // namespace Template

} // namespace Quilon_::System
