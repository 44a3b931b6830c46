// Extended properties, their collection and the dictionary of an object's
// properties, for the core's New objects.
#include "Quilon_/System/ExtendedProperty.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/Collections/ValueDictionaryImpl.h"
#include "Quilon_/System/ExtendedPropertyDictionary.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Serialization/Binary/Serializable.h"
#include "Quilon_/System/Serialization/FactoryDictionary.h"

#include <unordered_map>

namespace Quilon_::Basic {

using namespace Quilon_::System;

namespace {

// The state and operations that every kind of property shares.
template <class Derived, class I>
class CPropertyBase
    : public Template::ObjectImpl<Derived, I, ICloneable, Serialization::Binary::ISerializable> {
public:
    CPropertyBase(LIString name, Any value, bool readOnly, unsigned char flags)
        : m_name(std::move(name)), m_value(std::move(value)), m_readOnly(readOnly), m_flags(flags)
    {
    }
    // A clone is a new object: its count starts afresh.
    CPropertyBase(const CPropertyBase& other)
        : Template::ObjectImpl<Derived, I, ICloneable, Serialization::Binary::ISerializable>(),
          m_name(other.m_name), m_value(other.m_value), m_readOnly(other.m_readOnly), m_flags(other.m_flags),
          m_description(other.m_description)
    {
    }

    LIString Name() override { return m_name; }
    void GetValue(Any& value) override { value = m_value; }
    void SetValue(const Any& value) override { m_value = value; }
    bool IsReadOnly() override { return m_readOnly; }
    void SetReadOnly(bool readOnly) override { m_readOnly = readOnly; }
    unsigned char Flags() override { return m_flags; }
    void SetFlags(unsigned char flags) override { m_flags = flags; }
    LIString Description() override { return m_description; }
    void SetDescription(const LIString& description) override { m_description = description; }
    bool HasValue() override { return !m_value.IsEmpty(); }
    Pointer<ICloneable, 1> Clone() override
    {
        return Pointer<ICloneable, 1>(new Derived(static_cast<Derived&>(*this)));
    }

    // Name, value, read-only flag, flags and description.
    void Serialize(Pointer<Serialization::Binary::IWriter, 1> writer) override
    {
        writer << m_name << m_value << m_readOnly << m_flags << m_description;
    }
    void Deserialize(Pointer<Serialization::Binary::IReader, 1> reader) override
    {
        reader >> m_name >> m_value >> m_readOnly >> m_flags >> m_description;
    }

protected:
    LIString m_name;
    Any m_value;
    bool m_readOnly;
    unsigned char m_flags;
    LIString m_description;
};

class CExtendedProperty : public CPropertyBase<CExtendedProperty, IExtendedProperty> {
public:
    using CPropertyBase::CPropertyBase;
};

class CScalarExtendedProperty : public CPropertyBase<CScalarExtendedProperty, IScalarExtendedProperty> {
public:
    CScalarExtendedProperty(LIString name, Any value, bool readOnly, Pointer<Math::IRangeD, 0> range,
                            double increment)
        : CPropertyBase(std::move(name), std::move(value), readOnly, 0), m_range(std::move(range)),
          m_increment(increment)
    {
    }

    // The common fields, then the range (an object, or null) and the increment.
    void Serialize(Pointer<Serialization::Binary::IWriter, 1> writer) override
    {
        CPropertyBase::Serialize(writer);
        writer << m_range << m_increment;
    }
    void Deserialize(Pointer<Serialization::Binary::IReader, 1> reader) override
    {
        CPropertyBase::Deserialize(reader);
        reader >> m_range >> m_increment;
    }

    Pointer<Math::IRangeD, 0> Range() override { return m_range; }
    void SetRange(Pointer<Math::IRangeD, 0> range) override { m_range = std::move(range); }
    double Increment() override { return m_increment; }
    void SetIncrement(double increment) override { m_increment = increment; }
    double ScalarValue() override { return m_value.IsEmpty() ? 0.0 : Helper::ScalarValue(m_value); }
    bool IsInRange(double value) override
    {
        return !m_range || (m_range->Minimum() <= value && value <= m_range->Maximum());
    }

private:
    Pointer<Math::IRangeD, 0> m_range;
    double m_increment;
};

using Store = Collections::Template::Detail::ICollectionImplBase<IExtendedProperty>;
using Events = Collections::Template::ICollectionEventsImpl<Collections::ICollectionEvents>;

class CExtendedPropertyCollection
    : public Template::ObjectImpl<CExtendedPropertyCollection,
                                  Collections::Template::Detail::ICollectionImpl<
                                      IExtendedPropertyCollection, IExtendedProperty, Events, Store>,
                                  Collections::Template::Detail::ICollectionImpl<Collections::ICollection,
                                                                                 Interface, Events, Store>> {
};

using PropertyMap =
    std::unordered_map<LIString, Pointer<IExtendedProperty, 1>, LIStringTextHash, LIStringTextEqual>;

class CExtendedPropertyDictionary
    : public Template::ObjectImpl<
          CExtendedPropertyDictionary,
          Collections::Template::IValueDictionaryImpl<IExtendedPropertyDictionary, PropertyMap>,
          Serialization::Binary::ISerializable> {
public:
    // The properties as objects, in the order of Keys(); reading adds them
    // under their own names, without events.
    void Serialize(Pointer<Serialization::Binary::IWriter, 1> writer) override { writer << Properties(); }
    void Deserialize(Pointer<Serialization::Binary::IReader, 1> reader) override
    {
        std::vector<Pointer<IExtendedProperty, 1>> properties;
        reader >> properties;
        PropertyMap read;
        for (const auto& property : properties)
            read.insert_or_assign(property->Name(), property);
        m_map = std::move(read);
    }

    bool GetValue(const LIString& name, Any& value) override
    {
        Pointer<IExtendedProperty, 0> found = Find(name);
        if (!found)
            return false;
        found->GetValue(value);
        return true;
    }
    void SetValue(const LIString& name, const Any& value) override { Item(name)->SetValue(value); }
    void Add(const Pointer<IExtendedProperty, 1>& property) override { Add(property->Name(), property); }
    bool RemoveProperty(const Pointer<IExtendedProperty, 1>& property) override
    {
        for (const auto& [key, value] : m_map) {
            if (value == property)
                return Remove(LIString(key));
        }
        return false;
    }
    std::vector<Pointer<IExtendedProperty, 1>> Properties() override
    {
        std::vector<Pointer<IExtendedProperty, 1>> properties;
        for (const LIString& key : Keys())
            properties.push_back(m_map.at(key));
        return properties;
    }
    Pointer<IExtendedProperty, 0> Find(const LIString& name) override
    {
        auto found = m_map.find(name);
        return found == m_map.end() ? nullptr : Pointer<IExtendedProperty, 0>(found->second);
    }

    using IValueDictionaryImpl::Add;
};

// The empty instances that archives are read into.
Pointer<Interface, 1> NewEmptyProperty()
{
    return Pointer<Interface, 1>(
        static_cast<IExtendedProperty*>(new CExtendedProperty(LIString(), Any(), false, 0)));
}

Pointer<Interface, 1> NewEmptyScalar()
{
    return Pointer<Interface, 1>(
        static_cast<IExtendedProperty*>(new CScalarExtendedProperty(LIString(), Any(), false, nullptr, 0.0)));
}

Pointer<Interface, 1> NewEmptyDictionary()
{
    return Pointer<Interface, 1>(static_cast<IExtendedPropertyDictionary*>(new CExtendedPropertyDictionary));
}

Pointer<IExtendedProperty, 1> NewNamedProperty(LIString name, bool readOnly)
{
    return Pointer<IExtendedProperty, 1>(new CExtendedProperty(std::move(name), Any(), readOnly, 0));
}

Pointer<IExtendedProperty, 1> NewProperty(LIString name, Any value, bool readOnly, bool hidden)
{
    return Pointer<IExtendedProperty, 1>(
        new CExtendedProperty(std::move(name), std::move(value), readOnly, hidden ? epfHidden : 0));
}

Pointer<IScalarExtendedProperty, 1> NewScalar(LIString name, Any value, bool readOnly)
{
    return Pointer<IScalarExtendedProperty, 1>(
        new CScalarExtendedProperty(std::move(name), std::move(value), readOnly, nullptr, 0.0));
}

Pointer<IScalarExtendedProperty, 1> NewBoundedScalar(LIString name, Any value,
                                                     Pointer<Math::IRangeD, 0> range, double increment)
{
    return Pointer<IScalarExtendedProperty, 1>(
        new CScalarExtendedProperty(std::move(name), std::move(value), false, std::move(range), increment));
}

Pointer<IExtendedPropertyCollection, 1> NewCollection()
{
    return Pointer<IExtendedPropertyCollection, 1>(new CExtendedPropertyCollection);
}

Pointer<IExtendedPropertyDictionary, 1> NewDictionary()
{
    return Pointer<IExtendedPropertyDictionary, 1>(new CExtendedPropertyDictionary);
}

void RegisterExtendedProperties()
{
    System::Serialization::RegisterClass<CExtendedProperty>(&NewEmptyProperty);
    System::Serialization::RegisterClass<CScalarExtendedProperty>(&NewEmptyScalar);
    System::Serialization::RegisterClass<CExtendedPropertyDictionary>(&NewEmptyDictionary);
    ExtendedProperty::New.Register(L"Extended property", &NewNamedProperty);
    ExtendedProperty::New.Register(L"Extended property", &NewProperty);
    ScalarExtendedProperty::New.Register(L"Scalar extended property", &NewScalar);
    ScalarExtendedProperty::New.Register(L"Scalar extended property", &NewBoundedScalar);
    ExtendedPropertyCollection::New.Register(L"Extended property collection", &NewCollection);
    ExtendedPropertyDictionary::New.Register(L"Extended property dictionary", &NewDictionary);
}

const Template::Initializer<::Library> extendedProperties(&RegisterExtendedProperties, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic
