// The cells of one attribute: values of one type in a dense array, found by
// key through a KeyIndex. No Any and no allocation per cell for numbers:
//
//   CellStore<float> areas;
//   areas.Set(Key(4), 12.5f);
//   if (const float* area = areas.Find(Key(4))) use(*area);
//   areas.Remove(Key(4));     // the last cell moves into its place
//
// The order of the cells is no order of the set's rows: the rows' order is
// the set's, and a cell is always reached through its key.
#pragma once

#include "ObjectSets/KeyIndex.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace Quilon_::Basic::ObjectSets {

template <class T>
class CellStore {
public:
    using Key = Quilon_::ObjectSets::Key;

    const T* Find(Key key) const
    {
        const std::int64_t position = m_index.Find(key);
        return position < 0 ? nullptr : &m_values[position];
    }

    void Set(Key key, T value)
    {
        const std::int64_t position = m_index.Find(key);
        if (position >= 0) {
            m_values[position] = std::move(value);
            return;
        }
        m_index.Insert(key, static_cast<std::int64_t>(m_values.size()));
        m_keys.push_back(key);
        m_values.push_back(std::move(value));
    }

    bool Remove(Key key)
    {
        const std::int64_t position = m_index.Find(key);
        if (position < 0)
            return false;
        m_index.Erase(key);
        const std::size_t last = m_values.size() - 1;
        if (static_cast<std::size_t>(position) != last) {
            m_values[position] = std::move(m_values[last]);
            m_keys[position] = m_keys[last];
            m_index.Insert(m_keys[position], position);
        }
        m_values.pop_back();
        m_keys.pop_back();
        return true;
    }

    void Clear()
    {
        m_index.Clear();
        m_keys.clear();
        m_values.clear();
    }

    // Room for `count` cells in all, so that adding a column's cells one
    // after the other never copies.
    void Reserve(std::size_t count)
    {
        m_keys.reserve(count);
        m_values.reserve(count);
    }

    std::size_t Count() const { return m_values.size(); }
    const std::vector<Key>& Keys() const { return m_keys; }
    const std::vector<T>& Values() const { return m_values; }

private:
    KeyIndex m_index;
    std::vector<Key> m_keys;
    std::vector<T> m_values;
};

} // namespace Quilon_::Basic::ObjectSets
