// Where a key sits in a dense array: an open-addressing hash table from
// object keys to positions, with no allocation per entry, for the columns
// and row lists of object sets (a labelling makes a hundred thousand rows).
//
//   KeyIndex index;
//   index.Insert(ObjectSets::Key(7), 0);
//   index.Find(ObjectSets::Key(7));   // 0; -1 for a key it has not
//   index.Erase(ObjectSets::Key(7));
//
// Linear probing, at most half full; erasing shifts the following entries
// back, so that there are no tombstones and lookups stay short.
//
// Until the first key out of sequence, no table exists at all: the keys a
// labelling makes are 1, 2, 3, ... at positions 0, 1, 2, ..., so a key's
// position is key - first key. Columns of a hundred thousand objects then
// cost neither hashing nor the memory of a table.
#pragma once

#include "Quilon_/ObjectSets/Key.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Basic::ObjectSets {

class KeyIndex {
public:
    std::int64_t Find(Quilon_::ObjectSets::Key key) const
    {
        if (m_dense) {
            const std::uint64_t offset = OffsetFromFirst(key);
            return offset < m_count ? static_cast<std::int64_t>(offset) : -1;
        }
        if (m_slots.empty())
            return -1;
        for (std::size_t slot = Home(key.Value());; slot = (slot + 1) & m_mask) {
            const Slot& entry = m_slots[slot];
            if (entry.position < 0)
                return -1;
            if (entry.key == key.Value())
                return entry.position;
        }
    }

    // Sets the position of `key`, adding the key when absent.
    void Insert(Quilon_::ObjectSets::Key key, std::int64_t position)
    {
        if (m_dense) {
            if (m_count == 0 && position == 0)
                m_first = key.Value();
            if (OffsetFromFirst(key) == m_count && position == static_cast<std::int64_t>(m_count)) {
                ++m_count;
                return;
            }
            if (Find(key) == position)
                return;
            MakeTable();
        }
        if (2 * (m_count + 1) > m_slots.size())
            Grow();
        std::size_t slot = Home(key.Value());
        while (m_slots[slot].position >= 0 && m_slots[slot].key != key.Value())
            slot = (slot + 1) & m_mask;
        if (m_slots[slot].position < 0)
            ++m_count;
        m_slots[slot] = Slot{key.Value(), position};
    }

    void Erase(Quilon_::ObjectSets::Key key)
    {
        if (m_dense) {
            if (Find(key) < 0)
                return;
            MakeTable();
        }
        if (m_slots.empty())
            return;
        std::size_t hole = Home(key.Value());
        while (m_slots[hole].key != key.Value() || m_slots[hole].position < 0) {
            if (m_slots[hole].position < 0)
                return;
            hole = (hole + 1) & m_mask;
        }
        // Moves back every later entry of the run whose home does not lie
        // between the hole and itself.
        for (std::size_t next = (hole + 1) & m_mask; m_slots[next].position >= 0;
             next = (next + 1) & m_mask) {
            const std::size_t home = Home(m_slots[next].key);
            const bool between = hole <= next ? (hole < home && home <= next) : (hole < home || home <= next);
            if (!between) {
                m_slots[hole] = m_slots[next];
                hole = next;
            }
        }
        m_slots[hole].position = -1;
        --m_count;
    }

    void Clear()
    {
        m_slots.clear();
        m_mask = 0;
        m_count = 0;
        m_dense = true;
        m_first = 0;
    }

    std::size_t Count() const { return m_count; }

private:
    struct Slot {
        std::int64_t key = 0;
        // Negative for a free slot.
        std::int64_t position = -1;
    };

    std::size_t Home(std::int64_t key) const
    {
        std::uint64_t hash = static_cast<std::uint64_t>(key) * 0x9E3779B97F4A7C15ull;
        return static_cast<std::size_t>(hash ^ (hash >> 29)) & m_mask;
    }

    // Unsigned, so that keys far apart wrap instead of overflowing.
    std::uint64_t OffsetFromFirst(Quilon_::ObjectSets::Key key) const
    {
        return static_cast<std::uint64_t>(key.Value()) - static_cast<std::uint64_t>(m_first);
    }

    // The inverse of OffsetFromFirst: a sequence may run past the largest
    // key into the smallest, as the unsigned offsets do.
    std::int64_t KeyAtOffset(std::size_t offset) const
    {
        return static_cast<std::int64_t>(static_cast<std::uint64_t>(m_first) + offset);
    }

    // Leaves the sequence for a table holding the same keys.
    void MakeTable()
    {
        const std::size_t count = m_count;
        m_dense = false;
        m_count = 0;
        std::size_t size = 16;
        while (size < 2 * (count + 1))
            size *= 2;
        m_slots.assign(size, Slot{});
        m_mask = size - 1;
        for (std::size_t position = 0; position < count; ++position)
            Insert(Quilon_::ObjectSets::Key(KeyAtOffset(position)), static_cast<std::int64_t>(position));
    }

    void Grow()
    {
        std::vector<Slot> old;
        old.swap(m_slots);
        m_slots.assign(old.empty() ? 16 : old.size() * 2, Slot{});
        m_mask = m_slots.size() - 1;
        m_count = 0;
        for (const Slot& entry : old)
            if (entry.position >= 0)
                Insert(Quilon_::ObjectSets::Key(entry.key), entry.position);
    }

    std::vector<Slot> m_slots;
    std::size_t m_mask = 0;
    std::size_t m_count = 0;
    // While true, the keys are m_first, m_first + 1, ... at positions 0, 1, ...
    bool m_dense = true;
    std::int64_t m_first = 0;
};

} // namespace Quilon_::Basic::ObjectSets
