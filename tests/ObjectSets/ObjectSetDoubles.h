// Small object sets for the suites of the core's object-set checks: rows
// are bare keys, columns carry a name, a data type and, for spatial ones, a
// dimension. Only what the checks read works; the rest raises.
//
//   auto set = Tests::ObjectSetDoubles::MakeSet({1, 2, 3});
//   auto area = Tests::ObjectSetDoubles::AddColumn(set, L"Area", DataTypeOf<float>());
//   auto shape = Tests::ObjectSetDoubles::AddSpatialColumn(set, L"Shape", TwoD::IBitmapShape::GetType(), 2);
//
// A column refers to its set without owning it: keep the set alive.
#pragma once

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/AttributeValue.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace Quilon_::Tests::ObjectSetDoubles {

using namespace Quilon_::ObjectSets;
using System::LIString;
using System::Pointer;
using System::Ref;

[[noreturn]] inline void NotInDouble()
{
    QUILON_RAISE(L"Not offered by the test double");
}

struct TestSetRows {
    std::vector<Key> keys;
    std::vector<Ref<IAttribute>> columns;
};

template <class Derived, class Column>
class TestColumnBase : public System::Template::ObjectImpl<Derived, Column> {
public:
    TestColumnBase(LIString name, System::Type type) : m_name(std::move(name)), m_type(std::move(type)) {}

    LIString Name() override { return m_name; }
    void SetName(const LIString& name) override { m_name = name; }
    System::Type DataType() override { return m_type; }
    Pointer<IObjectSet, 0> ObjectSet() override { return Pointer<IObjectSet, 0>(m_set); }
    System::Any Value(Key) override { NotInDouble(); }
    void SetValue(Key, const System::Any&) override { NotInDouble(); }
    bool HasValue(Key) override { NotInDouble(); }
    void RemoveValue(Key) override { NotInDouble(); }
    void Clear() override { NotInDouble(); }
    Ref<IAttributeValue> Cell(Key) override { NotInDouble(); }
    void Attach(Pointer<IObjectSet, 0> set) override { m_set = set.Get(); }
    Ref<IAttribute> Clone() override { NotInDouble(); }

private:
    LIString m_name;
    System::Type m_type;
    IObjectSet* m_set = nullptr;
};

class CTestColumn : public TestColumnBase<CTestColumn, IAttribute> {
public:
    using TestColumnBase::TestColumnBase;
};

class CTestSpatialColumn : public TestColumnBase<CTestSpatialColumn, ISpatialAttribute> {
public:
    CTestSpatialColumn(LIString name, System::Type type, std::int64_t dimension)
        : TestColumnBase(std::move(name), std::move(type)), m_dimension(dimension)
    {
    }
    std::int64_t Dimension() override { return m_dimension; }
    Pointer<Quilon_::Geometry::IShapeND, 0> ShapeValue(Key) override { NotInDouble(); }
    void SetShapeValue(Key, Ref<Quilon_::Geometry::IShapeND>) override { NotInDouble(); }
    Pointer<Quilon_::Geometry::IBoxD, 0> ShapeBounds(Key) override { NotInDouble(); }

private:
    std::int64_t m_dimension;
};

class CTestRows : public System::Template::ObjectImpl<CTestRows, IObjectDictionary> {
public:
    explicit CTestRows(std::shared_ptr<TestSetRows> rows) : m_rows(std::move(rows)) {}
    std::int64_t Count() override { return static_cast<std::int64_t>(m_rows->keys.size()); }
    ValuePointer Item(const Key&) override { NotInDouble(); }
    void SetItem(const Key&, const ValuePointer&) override { NotInDouble(); }
    void Add(const Key&, const ValuePointer&) override { NotInDouble(); }
    bool Remove(const Key&) override { NotInDouble(); }
    void Clear() override { NotInDouble(); }
    bool ContainsKey(const Key&) override { NotInDouble(); }
    std::vector<Key> Keys() override { return m_rows->keys; }
    bool IsReadOnly() override { return false; }
    Pointer<IObjectSet, 0> ObjectSet() override { NotInDouble(); }
    Key NextKey() override { NotInDouble(); }
    std::int64_t IndexOf(Key) override { NotInDouble(); }
    Key KeyAt(std::int64_t) override { NotInDouble(); }
    Ref<IObject> ItemAt(std::int64_t) override { NotInDouble(); }

private:
    std::shared_ptr<TestSetRows> m_rows;
};

class CTestColumns : public System::Template::ObjectImpl<CTestColumns, IAttributeDictionary> {
public:
    explicit CTestColumns(std::shared_ptr<TestSetRows> rows) : m_rows(std::move(rows)) {}
    std::int64_t Count() override { return static_cast<std::int64_t>(m_rows->columns.size()); }
    ValuePointer Item(const LIString& name) override
    {
        auto found = Find(name);
        if (!found)
            QUILON_RAISE(L"The dictionary does not contain key '%1%'", name.Value());
        return ValuePointer(found);
    }
    void SetItem(const LIString&, const ValuePointer&) override { NotInDouble(); }
    void Add(const LIString&, const ValuePointer&) override { NotInDouble(); }
    bool Remove(const LIString&) override { NotInDouble(); }
    void Clear() override { NotInDouble(); }
    bool ContainsKey(const LIString& name) override { return static_cast<bool>(Find(name)); }
    std::vector<LIString> Keys() override
    {
        std::vector<LIString> names;
        for (auto& column : m_rows->columns)
            names.push_back(column->Name());
        return names;
    }
    bool IsReadOnly() override { return false; }
    Pointer<IObjectSet, 0> ObjectSet() override { NotInDouble(); }
    Pointer<IAttribute, 0> Find(const LIString& name) override
    {
        for (auto& column : m_rows->columns)
            if (column->Name().Value() == name.Value())
                return column;
        return {};
    }
    std::int64_t IndexOf(const LIString&) override { NotInDouble(); }
    Ref<IAttribute> ItemAt(std::int64_t) override { NotInDouble(); }
    void Rename(const LIString&, const LIString&) override { NotInDouble(); }
    bool CaseSensitive() override { return true; }

private:
    std::shared_ptr<TestSetRows> m_rows;
};

class CTestSet : public System::Template::ObjectImpl<CTestSet, IObjectSet> {
public:
    explicit CTestSet(std::vector<Key> keys) : m_rows(std::make_shared<TestSetRows>())
    {
        m_rows->keys = keys;
    }
    Ref<IObjectDictionary> Objects() override { return Ref<IObjectDictionary>(new CTestRows(m_rows)); }
    Ref<IAttributeDictionary> Attributes() override
    {
        return Ref<IAttributeDictionary>(new CTestColumns(m_rows));
    }
    Ref<IObject> AddObject() override { NotInDouble(); }
    Ref<IObject> AddObject(Key) override { NotInDouble(); }
    bool RemoveObject(Key) override { NotInDouble(); }
    Ref<IAttribute> AddAttribute(const LIString&, const System::Type&) override { NotInDouble(); }
    bool RemoveAttribute(const LIString&) override { NotInDouble(); }
    void Clear() override { NotInDouble(); }
    Ref<IObjectSet> Copy() override { NotInDouble(); }
    std::int64_t Count() override { return static_cast<std::int64_t>(m_rows->keys.size()); }

    void Adopt(const Ref<IAttribute>& column)
    {
        column->Attach(Pointer<IObjectSet, 0>(this));
        m_rows->columns.push_back(column);
    }

private:
    std::shared_ptr<TestSetRows> m_rows;
};

inline Ref<IObjectSet> MakeSet(const std::vector<std::int64_t>& keys)
{
    std::vector<Key> rows;
    for (std::int64_t key : keys)
        rows.emplace_back(key);
    return Ref<IObjectSet>(new CTestSet(rows));
}

inline Ref<IAttribute> DetachedColumn(const LIString& name, const System::Type& type)
{
    return Ref<IAttribute>(new CTestColumn(name, type));
}

inline Ref<IAttribute> Adopted(const Ref<IObjectSet>& set, Ref<IAttribute> column)
{
    dynamic_cast<CTestSet&>(*set.Get()).Adopt(column);
    return column;
}

inline Ref<IAttribute> AddColumn(const Ref<IObjectSet>& set, const LIString& name, const System::Type& type)
{
    return Adopted(set, DetachedColumn(name, type));
}

inline Ref<IAttribute> AddSpatialColumn(const Ref<IObjectSet>& set, const LIString& name,
                                        const System::Type& type, std::int64_t dimension)
{
    return Adopted(set, Ref<IAttribute>(new CTestSpatialColumn(name, type, dimension)));
}

} // namespace Quilon_::Tests::ObjectSetDoubles
