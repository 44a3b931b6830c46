// The collections of image file readers and writers, and their start-up:
// the factories at rank 0.2, then the settings of the main thread, filled
// with the reference library's formats, which every other thread clones.
#include "Images/IO/ImageFile.h"
#include "Quilon_/Images/IO/Globals.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "System/SettingsLifetime.h"

namespace Quilon_::Basic::Images::IO {

namespace {

using Events = System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>;

// A collection of T under the interface Collection. Cloneable, since each
// thread starts from a clone of the main thread's: the clone has a list of
// its own over the same readers or writers, which Read and Write never
// change (a reader is cloned before it opens a file).
template <class Collection, class T>
class CFormatCollection
    : public System::Template::ObjectImpl<
          CFormatCollection<Collection, T>,
          System::Collections::Template::Detail::ICollectionImpl<
              Collection, T, Events, System::Collections::Template::Detail::ICollectionImplBase<T>>,
          System::Collections::Template::Detail::ICollectionImpl<
              System::Collections::ICollection, System::Interface, Events,
              System::Collections::Template::Detail::ICollectionImplBase<T>>,
          System::Collections::ICloneable> {
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
};

using CReaderCollection = CFormatCollection<QI::IO::IBitmapReaderCollection, QI::IO::IBitmapReader>;
using CWriterCollection = CFormatCollection<QI::IO::IBitmapWriterCollection, QI::IO::IBitmapWriter>;

System::Ref<QI::IO::IBitmapReaderCollection> NewReaders()
{
    return System::Ref<QI::IO::IBitmapReaderCollection>(new CReaderCollection());
}

System::Ref<QI::IO::IBitmapWriterCollection> NewWriters()
{
    return System::Ref<QI::IO::IBitmapWriterCollection>(new CWriterCollection());
}

void RegisterCollections()
{
    QI::IO::BitmapReaderCollection::New.Register(L"Bitmap reader collection", &NewReaders);
    QI::IO::BitmapWriterCollection::New.Register(L"Bitmap writer collection", &NewWriters);
}

// The order is the order of the content test: the cheap exact signatures
// first.
void SetFormats()
{
    System::Ref<QI::IO::IBitmapReaderCollection> readers = QI::IO::BitmapReaderCollection::New();
    readers->Add(NewPNGReader());
    readers->Add(NewTIFFReader());
    readers->Add(NewJPEGReader());
    readers->Add(NewPNMReader());
    QI::IO::Globals::SetBitmapReaders(readers);
    System::Ref<QI::IO::IBitmapWriterCollection> writers = QI::IO::BitmapWriterCollection::New();
    writers->Add(NewPNGWriter());
    writers->Add(NewTIFFWriter());
    writers->Add(NewJPEGWriter());
    writers->Add(NewPNMWriter());
    QI::IO::Globals::SetBitmapWriters(writers);
}

void ReleaseFormats()
{
    QI::IO::Globals::ClearBitmapReaders();
    QI::IO::Globals::ClearBitmapWriters();
}

const System::Template::Initializer<::Library> collections(&RegisterCollections, nullptr, 0.2f);
const SettingsLifetime formats(&SetFormats, &ReleaseFormats, 0.3f);

} // namespace

} // namespace Quilon_::Basic::Images::IO
