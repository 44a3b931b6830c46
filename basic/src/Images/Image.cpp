// The image of the reference library, for Image::New: a bitmap, the linked
// data, the extended properties and a Changed event that can be held back.
#include "Quilon_/Images/Image.h"
#include "Images/BitmapImpl.h"
#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Images/BitmapAccess.h"
#include "Quilon_/Images/BitmapConverter.h"
#include "Quilon_/Images/ImageAxes.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/DisableEvents.h"
#include "Quilon_/System/ExtendedPropertiesHelper.h"
#include "Quilon_/System/ExtendedPropertyDictionary.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"
#include "System/SettingsLifetime.h"

#include <typeinfo>
#include <utility>

namespace Quilon_::Basic::Images {

namespace {

namespace QI = ::Quilon_::Images;
using QI::IImage;
using ImageRef = System::Ref<IImage>;
using BitmapRef = System::Ref<QI::IBitmap>;
using FormatRef = System::Ref<QI::IFormat>;
using SizeRef = System::Ref<Geometry::ICoordinates>;

template <class T>
System::Ref<T> CloneOf(const System::Ref<T>& object)
{
    return System::Ref<T>(System::Ref<System::ICloneable>(object)->Clone());
}

// Refuses a layout beyond this thread's MaximumImageSizeInBytes (-1: none).
void CheckImageSize(QI::IFormat& format, const SizeRef& size)
{
    const std::int64_t maximum = QI::Globals::MaximumImageSizeInBytes();
    if (maximum < 0)
        return;
    const std::int64_t bytes = format.MemorySize(size);
    if (bytes > maximum)
        QUILON_RAISE(L"An image of %1% bytes exceeds the maximum image size of %2% bytes", bytes, maximum);
}

BitmapRef NewBitmap(const SizeRef& size, const FormatRef& format)
{
    CheckImageSize(*format, size);
    return QI::Bitmap::New(size, format);
}

class CImage
    : public System::Template::ObjectImpl<CImage, IImage, QI::IBitmapAccessProvider, System::IDisableEvents,
                                          System::Template::IExtendedPropertiesContainerImpl,
                                          System::ICloneable> {
public:
    explicit CImage(BitmapRef bitmap, System::Pointer<QI::IBitmapAccess, 0> access = nullptr)
        : m_bitmap(std::move(bitmap)), m_access(std::move(access)), m_changed(static_cast<IImage*>(this))
    {
    }

    SizeRef Size() override { return m_bitmap->Size(); }
    BitmapRef Bitmap() override { return m_bitmap; }
    FormatRef Format() override { return m_bitmap->Format(); }
    System::Pointer<System::Interface, 0> LinkedData() override { return m_linkedData; }
    void SetLinkedData(System::Pointer<System::Interface, 0> data) override
    {
        m_linkedData = std::move(data);
        FireChanged();
    }

    void SetBitmap(BitmapRef bitmap, bool notify) override
    {
        m_bitmap = std::move(bitmap);
        // The image no longer shows what an access it was made on exposes.
        m_access = nullptr;
        if (notify)
            FireChanged();
    }

    std::int64_t BandCount() override
    {
        if (Geometry::ICoordinates* size = OwnSize())
            return (size->Axes() & Geometry::aB) ? size->B() : 1;
        SizeRef size = Size();
        return (size->Axes() & Geometry::aB) ? size->B() : 1;
    }

    // The size of the bitmap when it is this library's own, read in place:
    // Size() copies it. Null for a bitmap of another library.
    Geometry::ICoordinates* OwnSize() const
    {
        QI::IBitmap* bitmap = m_bitmap.Get();
        if (!bitmap || typeid(*bitmap) != typeid(CBitmap))
            return nullptr;
        return &static_cast<CBitmap*>(bitmap)->OwnSize();
    }

    void Reshape(FormatRef format, SizeRef size, bool discard, const QI::Padding& padding) override
    {
        if (discard) {
            m_bitmap = NewBitmap(size, format);
            m_access = nullptr;
        } else {
            CheckImageSize(*format, size);
            m_bitmap->Reshape(size, format, padding);
        }
        FireChanged();
    }

    std::int64_t Dimension() override
    {
        const Geometry::ICoordinates* own = OwnSize();
        const unsigned char spatial =
            (own ? own->Axes() : Size()->Axes()) & (Geometry::aX | Geometry::aY | Geometry::aZ);
        return Geometry::Axes(spatial).AxisCount();
    }

    bool IsEmpty() override
    {
        if (Format()->DataType() != System::ntUInt8)
            return false;
        SizeRef size = Size();
        for (std::int64_t i = 0; i < size->AxisCount(); ++i)
            if (size->Value(i) == 0)
                return true;
        return false;
    }

    std::int64_t SizeInBytes() override { return Format()->MemorySize(Size()); }

    System::Ref<Geometry::IBox> Bounds() override
    {
        SizeRef size = Size();
        return Geometry::Box::New(Geometry::Coordinates::New(size->Axes()), size);
    }

    QI::ImageChangeEvent& Changed() override { return m_changed; }

    System::Ref<QI::IBitmapAccess> Access(System::Ref<QI::IBitmapAccessProperties> properties) override
    {
        return System::Ref<QI::IBitmapAccessProvider>(m_bitmap)->Access(properties);
    }

    bool EventsDisabled() override { return m_eventsDisabled; }
    void SetEventsDisabled(bool disabled) override { m_eventsDisabled = disabled; }

    // Samples of its own, the same linked data, and copies of the properties
    // that travel (category, palette, region of interest, origin).
    System::Ref<System::ICloneable> Clone() override
    {
        auto* clone = new CImage(CloneOf(m_bitmap));
        System::Ref<System::ICloneable> result(clone);
        clone->m_linkedData = m_linkedData;
        if (HasExtendedProperties())
            System::ExtendedPropertiesHelper::CopyCopiableExtendedProperties(ImageRef(this), ImageRef(clone));
        return result;
    }

private:
    void FireChanged()
    {
        if (!m_eventsDisabled && m_changed)
            m_changed.Fire(System::EventArgs::Empty());
    }

    BitmapRef m_bitmap;
    // Kept open while the image shows the bitmap of a provider.
    System::Pointer<QI::IBitmapAccess, 0> m_access;
    System::Pointer<System::Interface, 0> m_linkedData;
    QI::ImageChangeEvent m_changed;
    bool m_eventsDisabled = false;
};

ImageRef Wrap(BitmapRef bitmap, System::Pointer<QI::IBitmapAccess, 0> access = nullptr)
{
    return ImageRef(new CImage(std::move(bitmap), std::move(access)));
}

ImageRef NewEmptyImage()
{
    return Wrap(QI::Bitmap::New(Geometry::Coordinates::New(Geometry::Axes::aXY)));
}

ImageRef NewOfSize(SizeRef size)
{
    SizeRef held = size;
    BitmapRef bitmap = QI::Bitmap::New(std::move(size));
    CheckImageSize(*bitmap->Format(), held);
    return Wrap(std::move(bitmap));
}

ImageRef NewOfSizeAndFormat(SizeRef size, FormatRef format)
{
    return Wrap(NewBitmap(size, format));
}

ImageRef NewOnBitmap(BitmapRef bitmap)
{
    return Wrap(std::move(bitmap));
}

ImageRef NewOnProvider(System::Ref<QI::IBitmapAccessProvider> provider)
{
    System::Ref<QI::IBitmapAccess> access = provider->Access(QI::BitmapAccessProperties::New());
    return Wrap(access->Bitmap(), access);
}

// The common end of the overloads after a model: the model's size and format
// unless given, and with `copyProperties` its copiable properties.
ImageRef NewAfter(const ImageRef& model, const SizeRef& size, const FormatRef& format, bool copyProperties)
{
    ImageRef image = Wrap(NewBitmap(size, format));
    if (copyProperties)
        System::ExtendedPropertiesHelper::CopyCopiableExtendedProperties(model, image);
    return image;
}

ImageRef NewLike(ImageRef model, bool copyProperties)
{
    return NewAfter(model, model->Size(), model->Format(), copyProperties);
}

ImageRef NewLikeOfType(ImageRef model, System::NumericTypeEnum type, bool copyProperties)
{
    FormatRef format = CloneOf(model->Format());
    format->SetDataType(type);
    return NewAfter(model, model->Size(), format, copyProperties);
}

ImageRef NewLikeOfSize(ImageRef model, SizeRef size, bool copyProperties)
{
    return NewAfter(model, size, model->Format(), copyProperties);
}

ImageRef NewLikeOfFormat(ImageRef model, FormatRef format, bool copyProperties)
{
    return NewAfter(model, model->Size(), format, copyProperties);
}

ImageRef NewLikeOfSizeAndFormat(ImageRef model, SizeRef size, FormatRef format, bool copyProperties)
{
    return NewAfter(model, size, format, copyProperties);
}

// The size of this library's images without its copy.
bool ReadOwnImageExtent(IImage& image, QI::ImageAxes::Extent& extent)
{
    if (typeid(image) != typeid(CImage))
        return false;
    Geometry::ICoordinates* size = static_cast<CImage&>(image).OwnSize();
    if (!size)
        return false;
    extent.axes = size->Axes();
    for (Geometry::AxisEnum axis : {Geometry::aX, Geometry::aY, Geometry::aZ, Geometry::aT, Geometry::aB})
        if (extent.axes & axis)
            extent.values[QI::ImageAxes::Extent::Position(axis)] = size->Value(axis);
    return true;
}

void RegisterImages()
{
    QI::ImageAxes::SetReader(&ReadOwnImageExtent);
    QI::Image::New.Register(L"Image", &NewEmptyImage);
    QI::Image::New.Register(L"Image", &NewOfSize);
    QI::Image::New.Register(L"Image", &NewOfSizeAndFormat);
    QI::Image::New.Register(L"Image", &NewOnBitmap);
    QI::Image::New.Register(L"Image", &NewOnProvider);
    QI::Image::New.Register(L"Image", &NewLike);
    QI::Image::New.Register(L"Image", &NewLikeOfType);
    QI::Image::New.Register(L"Image", &NewLikeOfSize);
    QI::Image::New.Register(L"Image", &NewLikeOfFormat);
    QI::Image::New.Register(L"Image", &NewLikeOfSizeAndFormat);
}

// Set from the thread that starts the library, the collection becomes what
// every other thread starts from, by a clone of its own. After the factories
// of rank 0.2, whatever the order of their sources.
void SetImageSettings()
{
    QI::Globals::SetBitmapConverters(QI::BitmapConverterCollection::New());
}

void ReleaseImageSettings()
{
    QI::Globals::ClearBitmapConverters();
}

// Before the library's code goes, operators stop asking it.
void UnregisterImages()
{
    QI::ImageAxes::SetReader(nullptr);
}

const System::Template::Initializer<::Library> images(&RegisterImages, &UnregisterImages, 0.2f);
const SettingsLifetime imageSettings(&SetImageSettings, &ReleaseImageSettings, 0.3f);

} // namespace

} // namespace Quilon_::Basic::Images
