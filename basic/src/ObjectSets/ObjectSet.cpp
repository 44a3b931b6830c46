// The object set of the reference library, its rows (objects) and its two
// dictionaries.
//
// The set owns its dictionaries, the dictionaries own the rows and the
// columns; each of these knows the set by a plain pointer, which the set
// clears when it goes. The dictionaries keep the set consistent whichever
// way they are changed: a row added through Objects()->Add belongs to the
// set, a row removed takes its cells out of every column, a column added
// through Attributes()->Add is attached.
#include "ObjectSets/Attributes.h"
#include "ObjectSets/OrderedMap.h"

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/AttributeFactoryDictionary.h"
#include "Quilon_/ObjectSets/Globals.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/Collections/ValueDictionaryImpl.h"
#include "Quilon_/System/ExtendedPropertiesHelper.h"
#include "Quilon_/System/ExtendedPropertyDictionary.h"

#include <algorithm>
#include <cwctype>
#include <optional>
#include <unordered_map>

namespace Quilon_::Basic::ObjectSets {

namespace {

using QOS::Key;
using System::LIString;
using System::Pointer;
using System::Ref;
namespace CT = System::Collections::Template;

// ---------------------------------------------------------------- rows

class CObject : public System::Template::ObjectImpl<CObject, QOS::IObject, QOS::IObjectInternal> {
public:
    CObject(Key key, QOS::IObjectSet* set) : m_key(key), m_set(set) {}

    Key ObjectKey() override { return m_key; }
    Pointer<QOS::IObjectSet, 0> ObjectSet() override { return Pointer<QOS::IObjectSet, 0>(m_set); }

    // The column must exist: a name the set has not raises the dictionary's
    // missing-key message.
    System::Any Value(const LIString& attributeName) override { return Column(attributeName)->Value(m_key); }
    void SetValue(const LIString& attributeName, const System::Any& value) override
    {
        Column(attributeName)->SetValue(m_key, value);
    }

    void SetObjectSet(Pointer<QOS::IObjectSet, 0> set) override { m_set = set.Get(); }
    QOS::IObjectSet* Set() const { return m_set; }

private:
    Ref<QOS::IAttribute> Column(const LIString& name)
    {
        if (!m_set)
            QUILON_RAISE(L"Object %1% belongs to no object set", m_key);
        return m_set->Attributes()->Item(name);
    }

    Key m_key;
    QOS::IObjectSet* m_set;
};

Ref<QOS::IObject> NewObject(Key key, Pointer<QOS::IObjectSet, 0> set)
{
    return Ref<QOS::IObject>(new CObject(key, set.Get()));
}

// Gives `object` to `set` (or to none); objects of other libraries are told
// through IObjectInternal when they have it.
void AssignObject(const Ref<QOS::IObject>& object, QOS::IObjectSet* set)
{
    Pointer<QOS::IObjectInternal, 0> internal(object);
    if (internal)
        internal->SetObjectSet(Pointer<QOS::IObjectSet, 0>(set));
}

using RowMap = OrderedMap<Key, Ref<QOS::IObject>, KeyIndex>;

class CObjectDictionary
    : public System::Template::ObjectImpl<CObjectDictionary,
                                          CT::IValueDictionaryImpl<QOS::IObjectDictionary, RowMap>> {
    using Base = CT::IValueDictionaryImpl<QOS::IObjectDictionary, RowMap>;

public:
    explicit CObjectDictionary(QOS::IObjectSet* set) : m_set(set) {}

    void Add(const Key& key, const Ref<QOS::IObject>& object) override
    {
        if (Listened())
            Base::Add(key, object);
        else
            AddUnheard(key, object);
        AssignObject(object, m_set);
        if (m_largest && key.Value() > m_largest->Value())
            m_largest = key;
    }

    void SetItem(const Key& key, const Ref<QOS::IObject>& object) override
    {
        if (!ContainsKey(key)) {
            Add(key, object);
            return;
        }
        Ref<QOS::IObject> old = Item(key);
        Base::SetItem(key, object);
        AssignObject(old, nullptr);
        AssignObject(object, m_set);
    }

    // A removed row takes its cells with it, in every column of the set.
    bool Remove(const Key& key) override
    {
        Pointer<QOS::IObject, 0> object;
        if (ContainsKey(key))
            object = Item(key);
        if (!Base::Remove(key))
            return false;
        DropCells(key);
        if (object)
            AssignObject(Ref<QOS::IObject>(object), nullptr);
        if (m_largest && *m_largest == key)
            m_largest.reset();
        return true;
    }

    void Clear() override
    {
        std::vector<Ref<QOS::IObject>> rows;
        rows.reserve(m_map.size());
        for (auto& entry : m_map)
            rows.push_back(entry.second);
        Base::Clear();
        if (m_set && !rows.empty()) {
            Ref<QOS::IAttributeDictionary> columns = m_set->Attributes();
            for (std::int64_t i = 0; i < columns->Count(); ++i)
                columns->ItemAt(i)->Clear();
        }
        for (const Ref<QOS::IObject>& row : rows)
            AssignObject(row, nullptr);
        m_largest = Key(0);
    }

    Pointer<QOS::IObjectSet, 0> ObjectSet() override { return Pointer<QOS::IObjectSet, 0>(m_set); }

    Key NextKey() override
    {
        if (!m_largest) {
            Key largest(0);
            for (auto& entry : m_map)
                largest = std::max(largest, entry.first);
            m_largest = largest;
        }
        return m_map.empty() ? Key(1) : Key(m_largest->Value() + 1);
    }

    std::int64_t IndexOf(Key key) override { return m_map.Position(key); }

    Key KeyAt(std::int64_t index) override { return m_map.Entry(CheckedIndex(index)).first; }
    Ref<QOS::IObject> ItemAt(std::int64_t index) override { return m_map.Entry(CheckedIndex(index)).second; }

    // The set is going: its rows belong to none any more.
    void Orphan()
    {
        m_set = nullptr;
        for (auto& entry : m_map)
            AssignObject(entry.second, nullptr);
    }

    void Reserve(std::size_t count) { m_map.reserve(count); }

private:
    std::size_t CheckedIndex(std::int64_t index)
    {
        if (index < 0 || index >= Count())
            CT::Detail::RaiseIndexOutOfRange(index);
        return static_cast<std::size_t>(index);
    }

    bool Listened() { return !m_eventsDisabled && (ItemInserting() || ItemInserted()); }

    // What Add does when nobody listens, without making the event's
    // arguments: a labelling adds a hundred thousand rows.
    void AddUnheard(const Key& key, const Ref<QOS::IObject>& object)
    {
        if (m_readOnly)
            CT::Detail::RaiseDictionaryReadOnly();
        if (!m_map.emplace(key, object).second)
            CT::Detail::RaiseDictionaryMessage(
                CT::Detail::DictionaryText(L"There is already an item of key %1%", key));
    }

    void DropCells(Key key)
    {
        if (!m_set)
            return;
        Ref<QOS::IAttributeDictionary> columns = m_set->Attributes();
        for (std::int64_t i = 0; i < columns->Count(); ++i)
            columns->ItemAt(i)->RemoveValue(key);
    }

    QOS::IObjectSet* m_set;
    // The largest key, known unless the largest row was removed; a first
    // NextKey after that looks again. The smallest largest key is 0, so
    // that an empty set starts at 1 and negative keys never lower it.
    std::optional<Key> m_largest = Key(0);
};

// ------------------------------------------------------------- columns

// Column names by their text, with their case or without, as the setting
// said when the set was made; their localizable flag does not count.
class NameLookup {
public:
    void SetCaseSensitive(bool caseSensitive) { m_caseSensitive = caseSensitive; }
    bool CaseSensitive() const { return m_caseSensitive; }

    std::int64_t Find(const LIString& name) const
    {
        auto found = m_positions.find(Fold(name));
        return found == m_positions.end() ? -1 : found->second;
    }
    void Insert(const LIString& name, std::int64_t position) { m_positions[Fold(name)] = position; }
    void Erase(const LIString& name) { m_positions.erase(Fold(name)); }
    void Clear() { m_positions.clear(); }

    std::wstring Fold(const LIString& name) const
    {
        std::wstring text = name.Value();
        if (!m_caseSensitive)
            std::transform(text.begin(), text.end(), text.begin(),
                           [](wchar_t c) { return static_cast<wchar_t>(std::towlower(c)); });
        return text;
    }

private:
    bool m_caseSensitive = false;
    std::unordered_map<std::wstring, std::int64_t> m_positions;
};

using ColumnMap = OrderedMap<LIString, Ref<QOS::IAttribute>, NameLookup>;

class CAttributeDictionary
    : public System::Template::ObjectImpl<CAttributeDictionary,
                                          CT::IValueDictionaryImpl<QOS::IAttributeDictionary, ColumnMap>> {
    using Base = CT::IValueDictionaryImpl<QOS::IAttributeDictionary, ColumnMap>;

public:
    CAttributeDictionary(QOS::IObjectSet* set, bool caseSensitive) : m_set(set)
    {
        m_map.Lookups().SetCaseSensitive(caseSensitive);
    }

    // The column takes the name it is added under, and belongs to one set.
    void Add(const LIString& name, const Ref<QOS::IAttribute>& attribute) override
    {
        RefuseAttached(attribute);
        Base::Add(name, attribute);
        if (!(attribute->Name() == name))
            attribute->SetName(name);
        attribute->Attach(Pointer<QOS::IObjectSet, 0>(m_set));
    }

    void SetItem(const LIString& name, const Ref<QOS::IAttribute>& attribute) override
    {
        if (!ContainsKey(name)) {
            Add(name, attribute);
            return;
        }
        Ref<QOS::IAttribute> old = Item(name);
        if (old.Get() == attribute.Get())
            return;
        RefuseAttached(attribute);
        Base::SetItem(name, attribute);
        old->Attach(Pointer<QOS::IObjectSet, 0>());
        if (!(attribute->Name() == name))
            attribute->SetName(name);
        attribute->Attach(Pointer<QOS::IObjectSet, 0>(m_set));
    }

    bool Remove(const LIString& name) override
    {
        Pointer<QOS::IAttribute, 0> attribute = Find(name);
        if (!Base::Remove(name))
            return false;
        attribute->Attach(Pointer<QOS::IObjectSet, 0>());
        return true;
    }

    void Clear() override
    {
        std::vector<Ref<QOS::IAttribute>> columns;
        for (auto& entry : m_map)
            columns.push_back(entry.second);
        Base::Clear();
        for (const Ref<QOS::IAttribute>& column : columns)
            column->Attach(Pointer<QOS::IObjectSet, 0>());
    }

    Pointer<QOS::IObjectSet, 0> ObjectSet() override { return Pointer<QOS::IObjectSet, 0>(m_set); }

    Pointer<QOS::IAttribute, 0> Find(const LIString& name) override
    {
        auto found = m_map.find(name);
        return found == m_map.end() ? Pointer<QOS::IAttribute, 0>()
                                    : Pointer<QOS::IAttribute, 0>(found->second);
    }

    std::int64_t IndexOf(const LIString& name) override { return m_map.Position(name); }

    Ref<QOS::IAttribute> ItemAt(std::int64_t index) override
    {
        if (index < 0 || index >= Count())
            CT::Detail::RaiseIndexOutOfRange(index);
        return m_map.Entry(static_cast<std::size_t>(index)).second;
    }

    // In place, without collection events: the column keeps its position.
    void Rename(const LIString& from, const LIString& to) override
    {
        const std::int64_t position = m_map.Position(from);
        if (position < 0)
            CT::Detail::RaiseDictionaryMessage(KeyNotFoundMessage(from));
        const std::int64_t taken = m_map.Position(to);
        if (taken >= 0 && taken != position)
            CT::Detail::RaiseDictionaryMessage(
                CT::Detail::DictionaryText(L"There is already an item of key %1%", to));
        if (IsReadOnly())
            CT::Detail::RaiseDictionaryReadOnly();
        m_map.Rekey(static_cast<std::size_t>(position), to);
        Ref<QOS::IAttribute> column = m_map.Entry(static_cast<std::size_t>(position)).second;
        if (auto* own = dynamic_cast<AttributeNameHolder*>(column.Get()))
            own->StoreName(to);
        else if (!(column->Name() == to))
            column->SetName(to);
    }

    bool CaseSensitive() override { return m_map.Lookups().CaseSensitive(); }

    void Orphan()
    {
        m_set = nullptr;
        for (auto& entry : m_map)
            entry.second->Attach(Pointer<QOS::IObjectSet, 0>());
    }

private:
    static void RefuseAttached(const Ref<QOS::IAttribute>& attribute)
    {
        if (attribute->ObjectSet())
            QUILON_RAISE(L"Attribute '%1%' is already attached to an ObjectSet", attribute->Name());
    }

    QOS::IObjectSet* m_set;
};

// ----------------------------------------------------------------- set

class CObjectSet : public System::Template::ObjectImpl<CObjectSet, QOS::IObjectSet,
                                                       System::Template::IExtendedPropertiesContainerImpl,
                                                       System::ICloneable> {
public:
    CObjectSet()
        : m_rows(new CObjectDictionary(this)),
          m_columns(new CAttributeDictionary(this, QOS::Globals::CaseSensitiveAttributes())),
          m_objects(m_rows), m_attributes(m_columns)
    {
    }

    ~CObjectSet() override
    {
        m_rows->Orphan();
        m_columns->Orphan();
    }

    Ref<QOS::IObjectDictionary> Objects() override { return m_objects; }
    Ref<QOS::IAttributeDictionary> Attributes() override { return m_attributes; }

    Ref<QOS::IObject> AddObject() override { return AddObject(m_rows->NextKey()); }

    Ref<QOS::IObject> AddObject(Key key) override
    {
        Ref<QOS::IObject> object(new CObject(key, this));
        m_rows->Add(key, object);
        return object;
    }

    bool RemoveObject(Key key) override { return m_rows->Remove(key); }

    Ref<QOS::IAttribute> AddAttribute(const LIString& name, const System::Type& dataType) override
    {
        Ref<QOS::IAttribute> attribute = QOS::Globals::AttributeFactories()->Create(dataType, name);
        m_columns->Add(name, attribute);
        return attribute;
    }

    bool RemoveAttribute(const LIString& name) override { return m_columns->Remove(name); }

    void Clear() override
    {
        m_rows->Clear();
        m_columns->Clear();
    }

    Ref<QOS::IObjectSet> Copy() override
    {
        auto* copy = new CObjectSet();
        Ref<QOS::IObjectSet> held(copy);
        for (std::int64_t i = 0; i < m_columns->Count(); ++i) {
            Ref<QOS::IAttribute> column = m_columns->ItemAt(i);
            copy->m_columns->Add(column->Name(), column->Clone());
        }
        copy->m_rows->Reserve(static_cast<std::size_t>(m_rows->Count()));
        for (std::int64_t i = 0; i < m_rows->Count(); ++i)
            copy->AddObject(m_rows->KeyAt(i));
        if (HasExtendedProperties())
            System::ExtendedPropertiesHelper::CopyCopiableExtendedProperties(Ref<QOS::IObjectSet>(this),
                                                                             held);
        return held;
    }

    std::int64_t Count() override { return m_rows->Count(); }

    Pointer<System::ICloneable, 1> Clone() override { return Pointer<System::ICloneable, 1>(Copy()); }

private:
    CObjectDictionary* m_rows;
    CAttributeDictionary* m_columns;
    Ref<QOS::IObjectDictionary> m_objects;
    Ref<QOS::IAttributeDictionary> m_attributes;
};

Ref<QOS::IObjectSet> NewObjectSet()
{
    return Ref<QOS::IObjectSet>(new CObjectSet());
}

void RegisterObjectSets()
{
    QOS::ObjectSet::New.Register(L"Object set", &NewObjectSet);
    QOS::Object::New.Register(L"Object", &NewObject);
}

const System::Template::Initializer<::Library> objectSets(&RegisterObjectSets, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets
