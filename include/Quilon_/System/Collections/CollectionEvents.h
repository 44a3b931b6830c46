// The eight events of collections and dictionaries: a before-event that
// listeners can veto and an after-event for each kind of change.
//
//   collection->ItemInserting() += NewEventHandler(listener, &CListener::OnInserting);
//   collection->Add(item);   // OnInserting runs first; a veto raises
//
// Clearing fires twice for one Clear: first with cetClearing, when a veto
// still stops it, then with cetClearConfirmed.
#pragma once

#include "Quilon_/System/Collections/CollectionEventArgs.h"
#include "Quilon_/System/Event.h"

namespace Quilon_::System::Collections {

using CollectionEvent = Event<Pointer<ICollectionEventArgs, 1>>;

class QUILON_API ICollectionEvents : public virtual Interface {
    QUILON_INTERFACE(ICollectionEvents)
public:
    virtual CollectionEvent& ItemInserting() = 0;
    virtual CollectionEvent& ItemInserted() = 0;
    virtual CollectionEvent& ItemRemoving() = 0;
    virtual CollectionEvent& ItemRemoved() = 0;
    virtual CollectionEvent& ItemModifying() = 0;
    virtual CollectionEvent& ItemModified() = 0;
    virtual CollectionEvent& Clearing() = 0;
    virtual CollectionEvent& Cleared() = 0;
};

namespace Template {

// Owns the eight events, with the object itself as their sender.
template <class I = ICollectionEvents>
class ICollectionEventsImpl : public I {
public:
    ICollectionEventsImpl() noexcept
        : m_itemInserting(this), m_itemInserted(this), m_itemRemoving(this), m_itemRemoved(this),
          m_itemModifying(this), m_itemModified(this), m_clearing(this), m_cleared(this)
    {
    }
    // A copy is another sender, with listeners of its own.
    ICollectionEventsImpl(const ICollectionEventsImpl& other)
        : I(other), m_itemInserting(this), m_itemInserted(this), m_itemRemoving(this), m_itemRemoved(this),
          m_itemModifying(this), m_itemModified(this), m_clearing(this), m_cleared(this)
    {
    }
    ICollectionEventsImpl& operator=(const ICollectionEventsImpl& other)
    {
        I::operator=(other);
        return *this;
    }

    CollectionEvent& ItemInserting() override { return m_itemInserting; }
    CollectionEvent& ItemInserted() override { return m_itemInserted; }
    CollectionEvent& ItemRemoving() override { return m_itemRemoving; }
    CollectionEvent& ItemRemoved() override { return m_itemRemoved; }
    CollectionEvent& ItemModifying() override { return m_itemModifying; }
    CollectionEvent& ItemModified() override { return m_itemModified; }
    CollectionEvent& Clearing() override { return m_clearing; }
    CollectionEvent& Cleared() override { return m_cleared; }

private:
    CollectionEvent m_itemInserting;
    CollectionEvent m_itemInserted;
    CollectionEvent m_itemRemoving;
    CollectionEvent m_itemRemoved;
    CollectionEvent m_itemModifying;
    CollectionEvent m_itemModified;
    CollectionEvent m_clearing;
    CollectionEvent m_cleared;
};

} // namespace Template

} // namespace Quilon_::System::Collections
