// The arguments of the events of collections and dictionaries.
//
// One args object goes to every listener of a firing, and the sender uses
// the same object for the before-event and the after-event. A listener of a
// before-event vetoes by clearing Allowed, and may say why:
//
//   void OnInserting(Interface*, Pointer<ICollectionEventArgs, 1> args)
//   {
//       if (args->Item().CastTo<Pointer<IShape, 0>>() == nullptr) {
//           args->SetAllowed(false);             // cannot be taken back
//           args->SetReason(L"shapes only");
//       }
//   }
//
// Args are made by CollectionEventArgs::New, one overload per shape:
//
//   CollectionEventArgs::New(cetClearing);
//   CollectionEventArgs::New(cetInserting, index, ToAny(item));
//   CollectionEventArgs::New(cetModifying, ToAny(key), ToAny(value), ToAny(old));
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/EventArgs.h"
#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <string>

namespace Quilon_::System::Collections {

enum CollectionEventTypeEnumTag : std::int32_t {
    cetInserting = 0,
    cetRemoving = 1,
    cetModifying = 2,
    cetClearing = 3,
    // The second firing of Clearing, once no listener has vetoed.
    cetClearConfirmed = 4,
    cetInserted = 5,
    cetRemoved = 6,
    cetModified = 7,
    cetCleared = 8,
};
using CollectionEventTypeEnum = CollectionEventTypeEnumTag;

// The enumerator's name; empty for any other value.
QUILON_API std::wstring ToString(CollectionEventTypeEnum type);

class QUILON_API ICollectionEventArgs : public IEventArgs {
    QUILON_INTERFACE(ICollectionEventArgs)
public:
    virtual CollectionEventTypeEnum EventType() = 0;
    virtual void SetEventType(CollectionEventTypeEnum type) = 0;
    // The position of a collection's item; -1 for dictionaries and clearing.
    virtual std::int64_t Index() = 0;
    // The item's index, or a dictionary's key.
    virtual Any Key() = 0;
    virtual Any& Item() = 0;
    virtual Any& PreviousItem() = 0;
    virtual bool Allowed() = 0;
    // One-way: once false, it stays false.
    virtual void SetAllowed(bool allowed) = 0;
    virtual std::wstring Reason() = 0;
    virtual void SetReason(const std::wstring& reason) = 0;
};

// The sender's side of the args.
class QUILON_API ICollectionEventArgsInternal : public IEventArgs {
    QUILON_INTERFACE(ICollectionEventArgsInternal)
public:
    virtual void SetIndex(std::int64_t index) = 0;
    virtual void SetKey(const Any& key) = 0;
    virtual void SetItem(const Any& item) = 0;
    virtual void SetPreviousItem(const Any& previous) = 0;
    // Lets go of the item and the previous item, keeping the key: listeners
    // that keep the args must not keep removed items alive.
    virtual void ReleaseItems() = 0;
};

namespace CollectionEventArgs {

using Made = Pointer<ICollectionEventArgs, 1>;

// The five overloads, each with the core's own implementation registered.
class QUILON_API Factory
    : public Functions::Template::Factory<Made(CollectionEventTypeEnum),
                                          Made(CollectionEventTypeEnum, std::int64_t, const Any&),
                                          Made(CollectionEventTypeEnum, std::int64_t, const Any&, const Any&),
                                          Made(CollectionEventTypeEnum, const Any&, const Any&),
                                          Made(CollectionEventTypeEnum, const Any&, const Any&, const Any&)> {
public:
    Factory();
};

extern QUILON_API Factory New;

} // namespace CollectionEventArgs

} // namespace Quilon_::System::Collections
