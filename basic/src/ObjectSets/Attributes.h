// The columns of the reference library's object sets: one class template
// for every kind, over a CellStore of the kind's value type, with what
// converts a cell from and to Any given by the kind's traits:
//
//   class CFloatAttribute : public CAttribute<CFloatAttribute, float, Quilon_::ObjectSets::IFloatAttribute> {
//       ...   // the typed reads and writes of IFloatAttribute
//   };
//
// A column holds a plain pointer to the set it is attached to: the set owns
// its columns and detaches them when it goes, so the pointer never dangles
// and no reference cycle keeps a set alive.
#pragma once

#include "ObjectSets/CellStore.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/AttributeValue.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/System/Helper.h"
#include "Quilon_/System/ObjectImpl.h"

#include <type_traits>
#include <utility>
#include <vector>

namespace Quilon_::Basic::ObjectSets {

namespace QOS = Quilon_::ObjectSets;

// What the attribute dictionary of a set renames a column of this library
// through, so that renaming from either side takes one step.
class AttributeNameHolder {
public:
    virtual void StoreName(const System::LIString& name) = 0;

protected:
    ~AttributeNameHolder() = default;
};

// What the measuring operators write a whole column of numbers through: one
// call per column instead of one per cell. Each value is converted to the
// column's type as the typed setter converts it (an int column truncates,
// so callers round first).
class NumberColumnHolder {
public:
    // The cell of keys[k] becomes values[k], for every k not marked in
    // `unset` (an empty `unset` marks none).
    virtual void StoreNumbers(const std::vector<QOS::Key>& keys, const std::vector<double>& values,
                              const std::vector<bool>& unset) = 0;

protected:
    ~NumberColumnHolder() = default;
};

// Cell conversions of a value type T: From(Any) raises the Any cast error
// for a value of another kind.
template <class T>
struct CellTraits {
    static System::Any To(const T& value) { return System::ToAny(value); }
    static T From(const System::Any& value) { return value.CastTo<T>(); }
};

// Numbers are converted to the column's type: a float column takes an int.
template <class T>
requires std::is_arithmetic_v<T>
struct CellTraits<T> {
    static System::Any To(const T& value) { return System::ToAny(value); }
    // Strings and other kinds fail with the cast error.
    static T From(const System::Any& value)
    {
        if (!System::Helper::IsScalar(value))
            return value.CastTo<T>();
        return static_cast<T>(System::Helper::ScalarValue(value));
    }
};

template <class Derived, class T, class... Interfaces>
class CAttribute : public System::Template::ObjectImpl<Derived, Interfaces...>,
                   public AttributeNameHolder,
                   public NumberColumnHolder {
public:
    CAttribute(const System::LIString& name, const System::Type& dataType)
        : m_name(name), m_dataType(dataType)
    {
    }

    System::LIString Name() override { return m_name; }

    // Attached, the set's dictionary renames, and refuses a name in use.
    void SetName(const System::LIString& name) override
    {
        if (m_set)
            m_set->Attributes()->Rename(m_name, name);
        else
            m_name = name;
    }

    void StoreName(const System::LIString& name) override { m_name = name; }

    System::Type DataType() override { return m_dataType; }
    System::Pointer<QOS::IObjectSet, 0> ObjectSet() override
    {
        return System::Pointer<QOS::IObjectSet, 0>(m_set);
    }

    System::Any Value(QOS::Key key) override
    {
        const T* cell = m_cells.Find(key);
        return cell ? CellTraits<T>::To(*cell) : System::Any();
    }

    // An empty Any unsets the cell.
    void SetValue(QOS::Key key, const System::Any& value) override
    {
        if (value.IsEmpty())
            m_cells.Remove(key);
        else
            Store(key, CellTraits<T>::From(value));
    }

    bool HasValue(QOS::Key key) override { return m_cells.Find(key) != nullptr; }
    void RemoveValue(QOS::Key key) override { m_cells.Remove(key); }
    void Clear() override { m_cells.Clear(); }

    System::Ref<QOS::IAttributeValue> Cell(QOS::Key key) override;

    void Attach(System::Pointer<QOS::IObjectSet, 0> set) override { m_set = set.Get(); }

    System::Ref<QOS::IAttribute> Clone() override
    {
        Derived* copy = static_cast<Derived*>(this)->MakeEmpty();
        System::Ref<QOS::IAttribute> held(copy);
        copy->m_cells = m_cells;
        return held;
    }

    const CellStore<T>& Cells() const { return m_cells; }

    void StoreNumbers(const std::vector<QOS::Key>& keys, const std::vector<double>& values,
                      const std::vector<bool>& unset) override
    {
        if constexpr (std::is_arithmetic_v<T>) {
            // No kind of number checks its values (only images and shapes
            // override Store), so the cells are written directly.
            m_cells.Reserve(m_cells.Count() + keys.size());
            for (std::size_t k = 0; k < keys.size(); ++k)
                if (unset.empty() || !unset[k])
                    m_cells.Set(keys[k], static_cast<T>(values[k]));
        } else {
            for (std::size_t k = 0; k < keys.size(); ++k)
                if (unset.empty() || !unset[k])
                    SetValue(keys[k], System::ToAny(values[k]));
        }
    }

protected:
    // Every write of a cell passes here: a kind that checks its values
    // overrides it.
    virtual void Store(QOS::Key key, T value) { m_cells.Set(key, std::move(value)); }

    // The cell, or T() for an unset cell: the typed reads give 0, an empty
    // string, vector or pointer then.
    T Read(QOS::Key key) const
    {
        const T* cell = m_cells.Find(key);
        return cell ? *cell : T();
    }

    System::LIString m_name;
    System::Type m_dataType;
    QOS::IObjectSet* m_set = nullptr;
    CellStore<T> m_cells;
};

// One cell taken out of its column: reads and writes go to the column.
class CAttributeValue : public System::Template::ObjectImpl<CAttributeValue, QOS::IAttributeValue> {
public:
    CAttributeValue(System::Ref<QOS::IAttribute> attribute, QOS::Key key)
        : m_attribute(std::move(attribute)), m_key(key)
    {
    }
    System::Any Value() override { return m_attribute->Value(m_key); }
    void SetValue(const System::Any& value) override { m_attribute->SetValue(m_key, value); }

private:
    System::Ref<QOS::IAttribute> m_attribute;
    QOS::Key m_key;
};

template <class Derived, class T, class... Interfaces>
System::Ref<QOS::IAttributeValue> CAttribute<Derived, T, Interfaces...>::Cell(QOS::Key key)
{
    return System::Ref<QOS::IAttributeValue>(
        new CAttributeValue(System::Ref<QOS::IAttribute>(static_cast<Derived*>(this)), key));
}

} // namespace Quilon_::Basic::ObjectSets
