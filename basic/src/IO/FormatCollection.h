// A list of file-format objects (readers, writers) under the collection
// interface of its kind, for the collection factories of the registries:
//
//   using CReaders = Basic::IO::CFormatCollection<Quilon_::IO::IReaderCollection, Quilon_::IO::IReader>;
//   System::Ref<Quilon_::IO::IReaderCollection> readers(new CReaders());
//
// Cloneable, since each thread starts from a clone of the main thread's
// list: the clone has a list of its own over the same format objects, which
// the IO operators never change (they clone a reader before opening a file).
#pragma once

#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Basic::IO {

template <class Collection, class T>
class CFormatCollection
    : public System::Template::ObjectImpl<
          CFormatCollection<Collection, T>,
          System::Collections::Template::Detail::ICollectionImpl<
              Collection, T,
              System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>,
              System::Collections::Template::Detail::ICollectionImplBase<T>>,
          System::Collections::Template::Detail::ICollectionImpl<
              System::Collections::ICollection, System::Interface,
              System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>,
              System::Collections::Template::Detail::ICollectionImplBase<T>>,
          System::Collections::ICloneable> {
    using Events =
        System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>;
    using Store = System::Collections::Template::Detail::ICollectionImplBase<T>;
    using TypedView = System::Collections::Template::Detail::ICollectionImpl<Collection, T, Events, Store>;

public:
    CFormatCollection() = default;
    CFormatCollection(const CFormatCollection& other) : Events(), Store(), CFormatCollection::ObjectImpl()
    {
        TypedView::CopyFrom(other, false);
    }

    System::Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::Collections::ICloneable, 1>(new CFormatCollection(*this));
    }

    static System::Ref<Collection> Make() { return System::Ref<Collection>(new CFormatCollection()); }
};

} // namespace Quilon_::Basic::IO
