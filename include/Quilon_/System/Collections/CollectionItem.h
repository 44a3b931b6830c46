// An item that knows the collection it belongs to.
//
// A collection sets itself as the owner of an item it takes in, unless the
// item already has one, and clears the owner when the item leaves:
//
//   collection->Add(shape);
//   Pointer<ICollectionItem, 1>(shape)->Owner();   // the collection
//
// The owner is not counted: a counted owner and its counted items would keep
// each other alive.
#pragma once

#include "Quilon_/System/Interface.h"

namespace Quilon_::System::Collections {

class QUILON_API ICollectionItem : public virtual Interface {
    QUILON_INTERFACE(ICollectionItem)
public:
    // The owning collection as an object, or null.
    virtual Interface* Owner() = 0;
    virtual void SetOwner(Interface* owner) = 0;
};

} // namespace Quilon_::System::Collections
