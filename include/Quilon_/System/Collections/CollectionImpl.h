// The one implementation of the collection protocol.
//
// A concrete collection stamps ICollectionImpl once for its typed view and
// once for the untyped one; both stamps share the store, the flags and the
// events, which are virtual bases:
//
//   using Store = Template::Detail::ICollectionImplBase<IShape>;
//   using Events = Template::ICollectionEventsImpl<ICollectionEvents>;
//   class CShapes : public System::Template::ObjectImpl<CShapes,
//                       Template::Detail::ICollectionImpl<IShapeCollection, IShape, Events, Store>,
//                       Template::Detail::ICollectionImpl<ICollection, Interface, Events, Store>> {};
//
// Every change follows one skeleton: refuse if read-only; validate; fire
// the before-event (unless events are disabled); raise if a listener
// vetoed; change the store; call the hook; fire the after-event on the same
// args. A failure or a veto leaves the store as it was. No lock is taken:
// only the events are safe against other threads.
#pragma once

#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Collections/CollectionEvents.h"
#include "Quilon_/System/Collections/CollectionItem.h"
#include "Quilon_/System/DisableEvents.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace Quilon_::System::Collections::Template::Detail {

// The failures of collections, raised from one source file.
[[noreturn]] QUILON_API void RaiseReadOnly();
[[noreturn]] QUILON_API void RaiseInsertIndexOutOfRange(std::int64_t index);
[[noreturn]] QUILON_API void RaiseIndexOutOfRange(std::int64_t index);
[[noreturn]] QUILON_API void RaiseAlreadyInCollection();
// Raises a text that is already translated and formatted.
[[noreturn]] QUILON_API void RaiseMessage(const std::wstring& text);
// The translated `format` with the args' reason in %1%.
QUILON_API std::wstring DeniedMessage(const wchar_t* format, const Pointer<ICollectionEventArgs, 1>& args);
QUILON_API std::wstring NotInCollectionMessage();
QUILON_API void ReleaseItems(const Pointer<ICollectionEventArgs, 1>& args);
// A clone of `item` with one reference for the caller; raises when the item
// cannot be cloned.
QUILON_API Interface* CloneItem(Interface* item, const Type& itemType);

// The store, the flags and the hooks, shared by the stamps of one class.
template <class T>
class ICollectionImplBase : public virtual IDisableEvents {
public:
    using ItemType = T;
    using Storage = std::vector<Pointer<T, 1>>;

    virtual ~ICollectionImplBase() = default;
    // Called after an item has joined or left the collection.
    virtual void OnItemAdded(Pointer<T, 1> /*item*/) {}
    virtual void OnItemRemoved(Pointer<T, 1> /*item*/) {}

    bool EventsDisabled() override { return m_eventsDisabled; }
    void SetEventsDisabled(bool disabled) override { m_eventsDisabled = disabled; }

protected:
    Storage m_items;
    bool m_allowMultipleInsertion = false;
    // Set by the implementing class; no interface offers a setter.
    bool m_readOnly = false;
    bool m_eventsDisabled = false;
};

template <class I, class ItemInterface, class Events, class Storage>
class ICollectionImpl : public I, public virtual Events, public virtual Storage {
public:
    using T = typename Storage::ItemType;
    using ItemPointer = Pointer<ItemInterface, 1>;
    using Stored = Pointer<T, 1>;
    using Args = Pointer<ICollectionEventArgs, 1>;

    ICollectionImpl() = default;
    // Copies the flags, then each item, cloned when `deep`; no event fires.
    // Only one stamp of a class copies: the other shares its store.
    ICollectionImpl(const ICollectionImpl& source, bool deep) { CopyFrom(source, deep); }

    std::int64_t Count() override { return static_cast<std::int64_t>(this->m_items.size()); }

    std::int64_t IndexOf(const ItemPointer& item) override
    {
        Stored typed = ToStored(item);
        for (std::size_t i = 0; i < this->m_items.size(); ++i) {
            if (this->m_items[i] == typed)
                return static_cast<std::int64_t>(i);
        }
        return -1;
    }

    ItemPointer Item(std::int64_t index) override
    {
        try {
            return ItemPointer(this->m_items.at(static_cast<std::size_t>(index)));
        } catch (const std::out_of_range&) {
            Detail::RaiseIndexOutOfRange(index);
        }
    }

    void SetItem(std::int64_t index, const ItemPointer& item) override
    {
        RefuseIfReadOnly();
        ItemPointer old = Item(index);
        if (old == item)
            return;
        CheckMultipleInsertion(item);
        Args args = MakeArgs(cetModifying, index, item, &old);
        FireBefore(this->ItemModifying(), args, &ICollectionImpl::ModificationDeniedMessage);
        Stored typed = ToStored(item);
        SetItemImpl(index, typed);
        // A replaced item keeps its owner: only removal detaches.
        this->OnItemRemoved(ToStored(old));
        this->OnItemAdded(typed);
        FireAfter(this->ItemModified(), args, cetModified);
    }

    std::int64_t Add(const ItemPointer& item) override
    {
        RefuseIfReadOnly();
        CheckMultipleInsertion(item);
        Args args = MakeArgs(cetInserting, Count(), item);
        FireBefore(this->ItemInserting(), args, &ICollectionImpl::InsertionDeniedMessage);
        Stored typed = ToStored(item);
        AddImpl(typed);
        this->OnItemAdded(typed);
        FireAfter(this->ItemInserted(), args, cetInserted);
        return Count() - 1;
    }

    void Insert(std::int64_t index, const ItemPointer& item) override
    {
        RefuseIfReadOnly();
        if (index > Count())
            Detail::RaiseInsertIndexOutOfRange(index);
        CheckMultipleInsertion(item);
        Args args = MakeArgs(cetInserting, index, item);
        FireBefore(this->ItemInserting(), args, &ICollectionImpl::InsertionDeniedMessage);
        Stored typed = ToStored(item);
        InsertImpl(index, typed);
        this->OnItemAdded(typed);
        FireAfter(this->ItemInserted(), args, cetInserted);
    }

    bool RemoveAt(std::int64_t index) override
    {
        RefuseIfReadOnly();
        ItemPointer item = Item(index);
        Args args = MakeArgs(cetRemoving, index, item);
        FireBefore(this->ItemRemoving(), args, &ICollectionImpl::RemovalDeniedMessage);
        RemoveAtImpl(index);
        this->OnItemRemoved(ToStored(item));
        FireAfter(this->ItemRemoved(), args, cetRemoved);
        return true;
    }

    // An absent item is no change, so a read-only collection does not refuse.
    bool Remove(const ItemPointer& item) override
    {
        std::int64_t index = IndexOf(item);
        if (index == -1)
            return false;
        return RemoveAt(index);
    }

    // Emptying an empty collection is no change: nothing is refused, nothing
    // fires.
    void Clear() override
    {
        if (this->m_items.empty())
            return;
        RefuseIfReadOnly();
        Args args;
        if (!this->m_eventsDisabled) {
            args = CollectionEventArgs::New(cetClearing);
            FireBefore(this->Clearing(), args, &ICollectionImpl::ClearingDeniedMessage);
            // The telling pass: a veto now is not looked at.
            args->SetEventType(cetClearConfirmed);
            this->Clearing().Fire(args);
        }
        for (std::size_t i = 0; i < this->m_items.size(); ++i)
            this->OnItemRemoved(this->m_items[i]);
        ClearImpl();
        if (args && !this->m_eventsDisabled) {
            args->SetEventType(cetCleared);
            this->Cleared().Fire(args);
        }
    }

    bool AllowMultipleInsertion() override { return this->m_allowMultipleInsertion; }
    void SetAllowMultipleInsertion(bool allow) override { this->m_allowMultipleInsertion = allow; }
    bool IsReadOnly() override { return this->m_readOnly; }

    // The store's side of the changes, for classes that keep more than the
    // vector.
    virtual void SetItemImpl(std::int64_t index, const Stored& item)
    {
        try {
            this->m_items.at(static_cast<std::size_t>(index)) = item;
        } catch (const std::out_of_range&) {
            Detail::RaiseIndexOutOfRange(index);
        }
        AttachItem(item);
    }
    virtual void AddImpl(const Stored& item)
    {
        this->m_items.push_back(item);
        AttachItem(item);
    }
    // A negative index is refused here, where the store would otherwise be
    // reached outside of its bounds.
    virtual void InsertImpl(std::int64_t index, const Stored& item)
    {
        if (index < 0)
            Detail::RaiseIndexOutOfRange(index);
        this->m_items.insert(this->m_items.begin() + index, item);
        AttachItem(item);
    }
    virtual void RemoveAtImpl(std::int64_t index)
    {
        Stored item;
        try {
            item = this->m_items.at(static_cast<std::size_t>(index));
        } catch (const std::out_of_range&) {
            Detail::RaiseIndexOutOfRange(index);
        }
        DetachItem(item);
        this->m_items.erase(this->m_items.begin() + index);
    }
    virtual void ClearImpl()
    {
        for (std::size_t i = 0; i < this->m_items.size(); ++i)
            DetachItem(this->m_items[i]);
        this->m_items.clear();
    }
    virtual void CheckMultipleInsertion(const ItemPointer& item)
    {
        if (!this->m_allowMultipleInsertion && IndexOf(item) >= 0)
            Detail::RaiseAlreadyInCollection();
    }
    // An item that already has an owner keeps it.
    virtual void AttachItem(const Stored& item)
    {
        Pointer<ICollectionItem, 0> member(item);
        if (member && !member->Owner())
            member->SetOwner(static_cast<Interface*>(this));
    }
    virtual void DetachItem(const Stored& item)
    {
        Pointer<ICollectionItem, 0> member(item);
        if (member)
            member->SetOwner(nullptr);
    }
    virtual std::wstring NotInCollectionMessage() { return Detail::NotInCollectionMessage(); }
    virtual std::wstring ModificationDeniedMessage(Args args)
    {
        return Detail::DeniedMessage(L"Collection item modification denied: %1%", args);
    }
    virtual std::wstring InsertionDeniedMessage(Args args)
    {
        return Detail::DeniedMessage(L"Collection item insertion denied: %1%", args);
    }
    virtual std::wstring RemovalDeniedMessage(Args args)
    {
        return Detail::DeniedMessage(L"Collection item removal denied: %1%", args);
    }
    virtual std::wstring ClearingDeniedMessage(Args args)
    {
        return Detail::DeniedMessage(L"Collection clearing denied: %1%", args);
    }

protected:
    // The copy itself, for a class that copies in its own constructor.
    void CopyFrom(const ICollectionImpl& source, bool deep)
    {
        this->m_allowMultipleInsertion = source.m_allowMultipleInsertion;
        this->m_readOnly = source.m_readOnly;
        this->m_eventsDisabled = source.m_eventsDisabled;
        this->m_items.reserve(source.m_items.size());
        for (const Stored& item : source.m_items) {
            Stored copy = deep ? Clone(item) : item;
            this->m_items.push_back(copy);
            AttachItem(copy);
        }
    }

private:
    using DeniedText = std::wstring (ICollectionImpl::*)(Args);

    void RefuseIfReadOnly()
    {
        if (this->m_readOnly)
            Detail::RaiseReadOnly();
    }

    // The item as the store holds it; an item of the wrong interface raises.
    static Stored ToStored(const ItemPointer& item)
    {
        if constexpr (std::is_same_v<ItemInterface, T>)
            return item;
        else
            return Stored(item);
    }

    static Stored Clone(const Stored& item)
    {
        Pointer<Interface, 0> clone(Detail::CloneItem(item.Get(), T::GetType()));
        clone->ReleaseReference();
        return Stored(clone);
    }

    // The args of a change, or null while events are disabled.
    Args MakeArgs(CollectionEventTypeEnum type, std::int64_t index, const ItemPointer& item,
                  const ItemPointer* previous = nullptr)
    {
        if (this->m_eventsDisabled)
            return Args();
        if (previous)
            return CollectionEventArgs::New(type, index, ToAny(item), ToAny(*previous));
        return CollectionEventArgs::New(type, index, ToAny(item));
    }

    // Every listener runs, even after a veto; the message is raised once
    // all have.
    void FireBefore(CollectionEvent& event, const Args& args, DeniedText denied)
    {
        if (!args)
            return;
        event.Fire(args);
        if (!args->Allowed())
            Detail::RaiseMessage((this->*denied)(args));
    }

    // The flag is looked at again: a before-listener or a hook may have
    // switched events off during the change.
    void FireAfter(CollectionEvent& event, const Args& args, CollectionEventTypeEnum type)
    {
        if (!args || this->m_eventsDisabled)
            return;
        args->SetEventType(type);
        event.Fire(args);
        Detail::ReleaseItems(args);
    }
};

} // namespace Quilon_::System::Collections::Template::Detail
