// Lists of images, for ImageCollection::New. A clone holds the same images:
// images are large, and a list of them is copied to be reordered or
// filtered, not to duplicate the samples.
#include "Quilon_/Images/ImageCollection.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Basic::Images {

namespace {

using Quilon_::Images::IImage;
using Quilon_::Images::IImageCollection;
namespace Collections = System::Collections::Template;
using Store = Collections::Detail::ICollectionImplBase<IImage>;
using Events = Collections::ICollectionEventsImpl<System::Collections::ICollectionEvents>;
using TypedView = Collections::Detail::ICollectionImpl<IImageCollection, IImage, Events, Store>;

class CImageCollection : public System::Template::ObjectImpl<
                             CImageCollection, TypedView,
                             Collections::Detail::ICollectionImpl<System::Collections::ICollection,
                                                                  System::Interface, Events, Store>,
                             System::Collections::ICloneable> {
public:
    CImageCollection() = default;
    CImageCollection(const CImageCollection& other) : Events(), Store(), ObjectImpl()
    {
        TypedView::CopyFrom(other, false);
    }

    System::Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::Collections::ICloneable, 1>(new CImageCollection(*this));
    }
};

System::Ref<IImageCollection> NewImageCollection()
{
    return System::Ref<IImageCollection>(new CImageCollection());
}

void RegisterImageCollections()
{
    Quilon_::Images::ImageCollection::New.Register(L"Image collection", &NewImageCollection);
}

const System::Template::Initializer<::Library> imageCollections(&RegisterImageCollections, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images
