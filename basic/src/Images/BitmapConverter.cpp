// The collection of converters, for BitmapConverterCollection::New.
#include "Quilon_/Images/BitmapConverter.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Basic::Images {

namespace {

using Quilon_::Images::IBitmapConverter;
using Quilon_::Images::IBitmapConverterCollection;
using Store = System::Collections::Template::Detail::ICollectionImplBase<IBitmapConverter>;
using Events = System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>;

using TypedView = System::Collections::Template::Detail::ICollectionImpl<IBitmapConverterCollection,
                                                                         IBitmapConverter, Events, Store>;

// Cloneable, since each thread starts from a clone of the collection of
// Images::Globals::BitmapConverters(). The clone has a list of its own over
// the same converters, which hold no state of a thread.
class CBitmapConverterCollection
    : public System::Template::ObjectImpl<
          CBitmapConverterCollection, TypedView,
          System::Collections::Template::Detail::ICollectionImpl<System::Collections::ICollection,
                                                                 System::Interface, Events, Store>,
          System::Collections::ICloneable> {
public:
    CBitmapConverterCollection() = default;
    CBitmapConverterCollection(const CBitmapConverterCollection& other) : Events(), Store(), ObjectImpl()
    {
        TypedView::CopyFrom(other, false);
    }

    System::Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::Collections::ICloneable, 1>(new CBitmapConverterCollection(*this));
    }
};

System::Pointer<IBitmapConverterCollection, 1> NewConverters()
{
    return System::Pointer<IBitmapConverterCollection, 1>(new CBitmapConverterCollection());
}

void RegisterConverters()
{
    Quilon_::Images::BitmapConverterCollection::New.Register(L"Bitmap converter collection", &NewConverters);
}

const System::Template::Initializer<::Library> converters(&RegisterConverters, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images
