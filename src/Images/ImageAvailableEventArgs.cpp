#include "Quilon_/Images/ImageAvailableEventArgs.h"

#include "Quilon_/Images/Image.h"
#include "Quilon_/Images/ImageCollection.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include <utility>

namespace Quilon_::Images {

QUILON_DEFINE_INTERFACE_TYPE(IImageAvailableEventArgs, L"Quilon_::Images::IImageAvailableEventArgs",
                             System::IEventArgs)
QUILON_DEFINE_INTERFACE_TYPE(IImagesAvailableEventArgs, L"Quilon_::Images::IImagesAvailableEventArgs",
                             System::IEventArgs)

namespace {

class CImageAvailableEventArgs
    : public System::Template::ObjectImpl<CImageAvailableEventArgs, IImageAvailableEventArgs> {
public:
    explicit CImageAvailableEventArgs(System::Ref<IImage> image) : m_image(std::move(image)) {}
    System::Ref<IImage> Image() override { return m_image; }
    void SetImage(System::Ref<IImage> image) override { m_image = std::move(image); }

private:
    System::Ref<IImage> m_image;
};

class CImagesAvailableEventArgs
    : public System::Template::ObjectImpl<CImagesAvailableEventArgs, IImagesAvailableEventArgs> {
public:
    explicit CImagesAvailableEventArgs(System::Ref<IImageCollection> images) : m_images(std::move(images)) {}
    System::Ref<IImageCollection> Images() override { return m_images; }

private:
    System::Ref<IImageCollection> m_images;
};

System::Ref<IImageAvailableEventArgs> NewImageAvailableEventArgs(System::Ref<IImage> image)
{
    return System::Ref<IImageAvailableEventArgs>(new CImageAvailableEventArgs(std::move(image)));
}

System::Ref<IImagesAvailableEventArgs> NewImagesAvailableEventArgs(System::Ref<IImageCollection> images)
{
    return System::Ref<IImagesAvailableEventArgs>(new CImagesAvailableEventArgs(std::move(images)));
}

} // namespace

ImageAvailableEventArgs::Factory::Factory()
{
    Register(L"CImageAvailableEventArgs", &NewImageAvailableEventArgs);
}

ImagesAvailableEventArgs::Factory::Factory()
{
    Register(L"CImagesAvailableEventArgs", &NewImagesAvailableEventArgs);
}

ImageAvailableEventArgs::Factory ImageAvailableEventArgs::New;
ImagesAvailableEventArgs::Factory ImagesAvailableEventArgs::New;

} // namespace Quilon_::Images
