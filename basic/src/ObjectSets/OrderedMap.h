// The store of the object-set dictionaries: entries in insertion order, so
// that rows come out in the order they were added and columns in the order
// they were made, reached by key through a lookup of the caller's choice.
// It offers what Collections::Template::IValueDictionaryImpl asks of its
// map, and positions besides:
//
//   OrderedMap<Key, Row, RowLookup> rows;
//   rows.emplace(Key(3), row);
//   rows.find(Key(3))->second;
//   rows.Position(Key(3));        // 0
//   rows.Entry(0).first;          // Key(3)
//
// A Lookup has Find(key) (the position or -1), Insert(key, position),
// Erase(key) and Clear(). Erasing moves the later entries up by one.
// Values need only be copy-constructible.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace Quilon_::Basic::ObjectSets {

template <class K, class V, class Lookup>
class OrderedMap {
public:
    using key_type = K;
    using mapped_type = V;
    using value_type = std::pair<K, V>;
    using iterator = typename std::vector<value_type>::iterator;

    iterator begin() { return m_entries.begin(); }
    iterator end() { return m_entries.end(); }
    std::size_t size() const { return m_entries.size(); }
    bool empty() const { return m_entries.empty(); }

    iterator find(const K& key)
    {
        const std::int64_t position = m_lookup.Find(key);
        return position < 0 ? end() : begin() + position;
    }

    std::pair<iterator, bool> emplace(const K& key, const V& value)
    {
        const std::int64_t position = m_lookup.Find(key);
        if (position >= 0)
            return {begin() + position, false};
        m_lookup.Insert(key, static_cast<std::int64_t>(m_entries.size()));
        m_entries.emplace_back(key, value);
        return {end() - 1, true};
    }

    std::size_t erase(const K& key)
    {
        const std::int64_t position = m_lookup.Find(key);
        if (position < 0)
            return 0;
        m_lookup.Erase(m_entries[position].first);
        // Rebuilt rather than shifted: a value need not be assignable (an
        // operator object is not).
        std::vector<value_type> kept;
        kept.reserve(m_entries.size() - 1);
        for (std::size_t i = 0; i < m_entries.size(); ++i)
            if (i != static_cast<std::size_t>(position))
                kept.push_back(m_entries[i]);
        m_entries.swap(kept);
        for (std::size_t later = position; later < m_entries.size(); ++later)
            m_lookup.Insert(m_entries[later].first, static_cast<std::int64_t>(later));
        return 1;
    }

    void clear()
    {
        m_entries.clear();
        m_lookup.Clear();
    }

    void reserve(std::size_t count) { m_entries.reserve(count); }

    std::int64_t Position(const K& key) const { return m_lookup.Find(key); }
    value_type& Entry(std::size_t position) { return m_entries[position]; }

    // Gives the entry at `position` the key `key`, in place.
    void Rekey(std::size_t position, const K& key)
    {
        m_lookup.Erase(m_entries[position].first);
        m_entries[position].first = key;
        m_lookup.Insert(key, static_cast<std::int64_t>(position));
    }

    Lookup& Lookups() { return m_lookup; }

private:
    std::vector<value_type> m_entries;
    Lookup m_lookup;
};

} // namespace Quilon_::Basic::ObjectSets
