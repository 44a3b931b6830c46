// The lists of the measurement model (units, measurements, measurers) share
// one shape: an observable collection whose items are looked up by a name.
// This template gives such a list its lookups, its vector and its copy; a
// class names its interface, its item, its kind of name and how to read it:
//
//   class CUnitCollection : public NamedList<CUnitCollection, IUnitCollection, IUnit, std::wstring> {
//   public:
//       static std::wstring KeyOf(IUnit& unit) { return unit.Name(); }
//       [[noreturn]] static void RaiseMissing(const std::wstring& name);
//       ...
//   };
//
// Names compare by their text: a translatable name finds the one stored
// without the flag.
#pragma once

#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/String.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Basic::Measurements {

template <class Item>
using Store = System::Collections::Template::Detail::ICollectionImplBase<Item>;
using Events = System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>;

inline const std::wstring& KeyText(const std::wstring& key)
{
    return key;
}
inline const std::wstring& KeyText(const System::LIString& key)
{
    return key.Value();
}

// `Deep` says whether a clone clones the items too.
template <class Derived, class I, class Item, class Key, bool Deep = true>
class NamedList
    : public System::Template::ObjectImpl<
          Derived, System::Collections::Template::Detail::ICollectionImpl<I, Item, Events, Store<Item>>,
          System::Collections::Template::Detail::ICollectionImpl<System::Collections::ICollection,
                                                                 System::Interface, Events, Store<Item>>,
          System::Collections::ICloneable> {
protected:
    using TypedView = System::Collections::Template::Detail::ICollectionImpl<I, Item, Events, Store<Item>>;
    using Items = std::vector<System::Ref<Item>>;

public:
    System::Pointer<Item, 0> Find(const Key& key) override
    {
        const std::int64_t index = IndexOfName(key);
        return index < 0 ? System::Pointer<Item, 0>()
                         : System::Pointer<Item, 0>(this->m_items[Position(index)]);
    }
    System::Ref<Item> ItemByName(const Key& key) override
    {
        const std::int64_t index = IndexOfName(key);
        if (index < 0)
            Derived::RaiseMissing(key);
        return this->m_items[Position(index)];
    }
    std::int64_t IndexOfName(const Key& key) override
    {
        for (std::size_t i = 0; i < this->m_items.size(); ++i) {
            if (KeyText(Derived::KeyOf(*this->m_items[i])) == KeyText(key))
                return static_cast<std::int64_t>(i);
        }
        return -1;
    }
    bool ContainsName(const Key& key) override { return IndexOfName(key) >= 0; }
    bool RemoveByName(const Key& key) override
    {
        const std::int64_t index = IndexOfName(key);
        return index >= 0 && TypedView::RemoveAt(index);
    }
    std::vector<Key> Names() override
    {
        std::vector<Key> names;
        names.reserve(this->m_items.size());
        for (const auto& item : this->m_items)
            names.push_back(Derived::KeyOf(*item));
        return names;
    }
    Items ToVector() override { return this->m_items; }
    void AddRange(const Items& items) override
    {
        for (const auto& item : items)
            TypedView::Add(item);
    }
    System::Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::Collections::ICloneable, 1>(
            new Derived(static_cast<const Derived&>(*this)));
    }

protected:
    NamedList() = default;
    // The copy of Clone: the derived class's copy constructor makes the
    // shared bases afresh and calls this.
    void CopyItems(const NamedList& other) { TypedView::CopyFrom(other, Deep); }

    // The items that pass `keep`, in order.
    template <class Predicate>
    Items Where(Predicate keep)
    {
        Items kept;
        for (const auto& item : this->m_items) {
            if (keep(item))
                kept.push_back(item);
        }
        return kept;
    }

    static std::size_t Position(std::int64_t index) { return static_cast<std::size_t>(index); }
};

} // namespace Quilon_::Basic::Measurements
