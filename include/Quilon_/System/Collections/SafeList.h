// A list that may be changed while it is being walked: the handler lists of
// events and event targets.
//
// Values added or removed while an iterator is alive are not linked in or
// out at once. They wait as pending nodes, on the physical chain that the
// iterators walk, until the last iterator of the list goes; then the list
// settles them (the purge). So an iterator never lands on a removed value,
// a walk without pending values (the firing of an event) never reaches a
// value added during the walk, and Count() only counts settled values.
//
//   SafeList<Handler*> handlers;
//   handlers.Add(first);
//   for (auto it = handlers.begin(false), end = handlers.end(); it != end; ++it) {
//       handlers.Remove(*it);    // safe: the node stays until the walk ends
//       handlers.Add(other);     // pending: not reached by this walk
//   }
//   // both iterators gone: `first` is freed, `other` counts
//
// The list takes no lock of its own; every operation and every iterator,
// its destruction included, runs under the caller's lock (for events the
// general critical section).
#pragma once

#include "Quilon_/System/Object.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace Quilon_::System::Collections::Template {

namespace Detail {
// "Attempt to access passed the end of the list".
[[noreturn]] QUILON_API void RaisePassedTheEnd();
} // namespace Detail

template <class T>
class SafeList {
    enum NodeState : std::int32_t {
        settled = 0,
        addedWhileIterated = 1,
        removedWhileIterated = 2,
    };

    struct Node {
        T value;
        Node* next;
        Node* previous;
        Node* liveNext;
        std::int32_t state;

        // Nodes live on the library's heap, like the objects.
        static void* operator new(std::size_t size) { return Object::operator new(size); }
        static void operator delete(void* block) noexcept { Object::operator delete(block); }
    };

public:
    class iterator {
    public:
        iterator(const iterator& other) noexcept
            : m_node(other.m_node), m_list(other.m_list), m_includePending(other.m_includePending)
        {
            ++m_list->iteratorCount;
        }
        iterator& operator=(const iterator& other) noexcept
        {
            iterator copy(other);
            std::swap(m_node, copy.m_node);
            std::swap(m_list, copy.m_list);
            std::swap(m_includePending, copy.m_includePending);
            return *this;
        }
        ~iterator() { m_list->ReleaseIterator(); }

        T& operator*() const
        {
            if (!m_node)
                Detail::RaisePassedTheEnd();
            return m_node->value;
        }
        T* operator->() const { return &operator*(); }

        // Steps over removed nodes, and over added ones unless the iterator
        // includes pending values.
        iterator& operator++()
        {
            if (!m_node)
                Detail::RaisePassedTheEnd();
            do
                m_node = m_node->next;
            while (m_node && !LandsOn(*m_node));
            return *this;
        }

        bool operator==(const iterator& other) const noexcept { return m_node == other.m_node; }

        // Whether a step would reach the end, as the list stands now.
        bool IsLast() const noexcept
        {
            const Node* node = m_node ? m_node->next : nullptr;
            while (node && !LandsOn(*node))
                node = node->next;
            return !node;
        }

    private:
        friend class SafeList;
        iterator(Node* node, SafeList* list, bool includePending) noexcept
            : m_node(node), m_list(list), m_includePending(includePending)
        {
            ++m_list->iteratorCount;
        }
        bool LandsOn(const Node& node) const noexcept
        {
            return m_includePending ? node.state != removedWhileIterated : node.state == settled;
        }

        Node* m_node;
        SafeList* m_list;
        std::uint8_t m_includePending;
    };

    SafeList() noexcept = default;
    // A copy holds the settled values of the source; assignment appends them.
    SafeList(const SafeList& other) { Append(other); }
    SafeList& operator=(const SafeList& other)
    {
        if (this != &other)
            Append(other);
        return *this;
    }
    ~SafeList() { FreeAll(); }

    // Push at the back.
    void Add(const T& value)
    {
        Node* node = new Node{value, nullptr, tail, nullptr, settled};
        (head ? tail->next : head) = node;
        (liveHead ? liveTail->liveNext : liveHead) = node;
        CountNew(*node);
        tail = liveTail = node;
    }

    // Push at the front. The former head keeps its `previous`: nothing
    // walks the physical chain backwards.
    void AddFront(const T& value)
    {
        Node* node = new Node{value, head, nullptr, liveHead, settled};
        if (!tail)
            tail = node;
        if (!liveTail)
            liveTail = node;
        CountNew(*node);
        head = liveHead = node;
    }

    // Removes the first live node holding `value`; nothing if there is none.
    void Remove(const T& value)
    {
        Node* previous = nullptr;
        Node* node = liveHead;
        while (node && !(node->value == value)) {
            previous = node;
            node = node->liveNext;
        }
        if (!node)
            return;
        if (iteratorCount < 1) {
            // Without iterators nothing is pending: both chains are one.
            Uncount(*node);
            UnlinkPhysical(*node, previous);
            delete node;
            return;
        }
        if (node->state == settled) {
            count.fetch_sub(1, std::memory_order_relaxed);
            ++pendingCount;
        }
        node->state = removedWhileIterated;
        (previous ? previous->liveNext : liveHead) = node->liveNext;
        if (liveTail == node)
            liveTail = previous;
    }

    void RemoveAll()
    {
        if (iteratorCount < 1) {
            FreeAll();
            return;
        }
        pendingCount += count.exchange(0, std::memory_order_relaxed);
        for (Node* node = head; node; node = node->next)
            node->state = removedWhileIterated;
        liveHead = liveTail = nullptr;
    }

    // The first settled node, whatever `includePending` says; the flag
    // decides where the steps land.
    iterator begin(bool includePending = false)
    {
        Node* node = head;
        while (node && node->state != settled)
            node = node->next;
        return iterator(node, this, includePending);
    }
    iterator end() { return iterator(nullptr, this, false); }

    // Whether a live node holds `value`, pending additions included, which
    // begin() would pass over at the head.
    bool Contains(const T& value) const noexcept
    {
        for (const Node* node = liveHead; node; node = node->liveNext) {
            if (node->value == value)
                return true;
        }
        return false;
    }

    // Settled values; readable without the lock, as a hint.
    std::int64_t Count() const noexcept { return count.load(std::memory_order_relaxed); }
    std::int64_t PendingCount() const noexcept { return pendingCount; }
    std::int64_t IteratorCount() const noexcept { return iteratorCount; }

private:
    void CountNew(Node& node) noexcept
    {
        if (iteratorCount >= 1) {
            node.state = addedWhileIterated;
            ++pendingCount;
        } else {
            count.fetch_add(1, std::memory_order_relaxed);
        }
    }

    void Uncount(const Node& node) noexcept
    {
        if (node.state == settled)
            count.fetch_sub(1, std::memory_order_relaxed);
        else
            --pendingCount;
    }

    // Takes `node` off the physical chain, and off the live chain when it
    // is still there; `previous` is its predecessor on the physical chain.
    void UnlinkPhysical(Node& node, Node* previous) noexcept
    {
        (previous ? previous->next : head) = node.next;
        if (node.next)
            node.next->previous = previous;
        if (tail == &node)
            tail = previous;
        if (liveHead == &node)
            liveHead = node.liveNext;
        else if (previous && previous->liveNext == &node)
            previous->liveNext = node.liveNext;
        if (liveTail == &node)
            liveTail = previous;
    }

    void ReleaseIterator() noexcept
    {
        if (--iteratorCount == 0)
            Purge();
    }

    // Settles the nodes added during the walks and frees the removed ones.
    void Purge() noexcept
    {
        Node* previous = nullptr;
        for (Node* node = head; node && pendingCount != 0;) {
            Node* next = node->next;
            if (node->state == removedWhileIterated) {
                --pendingCount;
                UnlinkPhysical(*node, previous);
                delete node;
            } else {
                if (node->state == addedWhileIterated) {
                    node->state = settled;
                    --pendingCount;
                    count.fetch_add(1, std::memory_order_relaxed);
                }
                previous = node;
            }
            node = next;
        }
    }

    void FreeAll() noexcept
    {
        for (Node* node = head; node;) {
            Node* next = node->next;
            delete node;
            node = next;
        }
        head = tail = liveHead = liveTail = nullptr;
        count.store(0, std::memory_order_relaxed);
        pendingCount = 0;
    }

    void Append(const SafeList& other)
    {
        for (const Node* node = other.head; node; node = node->next) {
            if (node->state == settled)
                Add(node->value);
        }
    }

    Node* head = nullptr;
    Node* tail = nullptr;
    Node* liveHead = nullptr;
    Node* liveTail = nullptr;
    std::int64_t iteratorCount = 0;
    std::atomic<std::int64_t> count{0};
    std::int64_t pendingCount = 0;
};

} // namespace Quilon_::System::Collections::Template
