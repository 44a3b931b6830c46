// A cache of images by key, bounded in bytes: the least recently used images
// leave first when a new one would overflow the capacity.
//
//   Ref<Images::IImageCache> cache = Images::ImageCache::New(std::int64_t(64) << 20);
//   cache->Add(L"frame 12", image);
//   if (Pointer<Images::IImage, 0> hit = cache->Find(L"frame 12"))
//       show(hit);
//
// Held per thread by Images::Globals::ImageCache().
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <string>

namespace Quilon_::Images {

class IImage;

class QUILON_API IImageCache : public virtual System::Interface {
    QUILON_INTERFACE(IImageCache)
public:
    // The most bytes of samples that the cache holds.
    virtual std::int64_t Capacity() = 0;
    // Lowering the capacity drops images until they fit.
    virtual void SetCapacity(std::int64_t bytes) = 0;
    // The bytes of samples held now.
    virtual std::int64_t UsedBytes() = 0;
    // Adds or replaces the image of `key`.
    virtual void Add(const std::wstring& key, System::Ref<IImage> image) = 0;
    // The image of `key`, now the most recently used; null when absent.
    virtual System::Pointer<IImage, 0> Find(const std::wstring& key) = 0;
    virtual bool Remove(const std::wstring& key) = 0;
    virtual void Clear() = 0;
};

namespace ImageCache {
// New(capacity in bytes).
using Factory = System::Functions::Template::Factory<System::Ref<IImageCache>(std::int64_t)>;
extern QUILON_API Factory New;
} // namespace ImageCache

} // namespace Quilon_::Images
