// Accesses and their properties, for BitmapAccess::New and
// BitmapAccessProperties::New.
#include "Images/BitmapImpl.h"

#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <cstring>

namespace Quilon_::Basic::Images {

using Quilon_::Images::BitmapAccessOptionsEnum;
using Quilon_::Images::IBitmapAccess;
using Quilon_::Images::IBitmapAccessProperties;
using ShapePointer = System::Pointer<Geometry::IShapeND, 0>;
using MaskPointer = System::Pointer<IBitmap, 0>;

namespace {

// Copies the samples of `from` to `to`, both of one layout; with a mask,
// only where the mask's sample at the same spatial location is not 0.
void CopyBack(CBitmap& from, const SampleBlock& to, IBitmap* mask)
{
    const Layout& layout = from.GetLayout();
    const std::int64_t bytes = layout.bytes;
    if (!mask) {
        std::memcpy(static_cast<char*>(to.data), from.Data(), static_cast<std::size_t>(bytes));
        return;
    }
    const SampleBlock maskBlock = BlockOf(*mask);
    const std::int64_t sampleBytes = SampleBytes(to.type);
    Extent c{};
    for (c[4] = 0; c[4] < layout.size[4]; ++c[4])
        for (c[3] = 0; c[3] < layout.size[3]; ++c[3])
            for (c[2] = 0; c[2] < layout.size[2]; ++c[2])
                for (c[1] = 0; c[1] < layout.size[1]; ++c[1])
                    for (c[0] = 0; c[0] < layout.size[0]; ++c[0]) {
                        // The mask is read at the location's values on its own axes.
                        std::int64_t m = maskBlock.layout.origin;
                        bool inside = true;
                        for (int i = 0; i < maskBlock.layout.axisCount; ++i) {
                            const int j = layout.IndexOf(maskBlock.layout.axes[i]);
                            const std::int64_t v = j >= 0 ? c[j] : 0;
                            inside = inside && v < maskBlock.layout.size[i];
                            m += v * maskBlock.layout.stride[i];
                        }
                        if (!inside)
                            continue;
                        const bool set = DispatchSampleType(maskBlock.type, [&](auto tag) {
                            using T = typename decltype(tag)::type;
                            return *reinterpret_cast<const T*>(static_cast<const char*>(maskBlock.data) +
                                                               m) != T(0);
                        });
                        if (!set)
                            continue;
                        std::int64_t offset = layout.origin;
                        for (int i = 0; i < layout.axisCount; ++i)
                            offset += c[i] * layout.stride[i];
                        std::memcpy(static_cast<char*>(to.data) + offset,
                                    static_cast<char*>(from.Data()) + offset,
                                    static_cast<std::size_t>(sampleBytes));
                    }
}

class CBitmapAccess : public System::Template::ObjectImpl<CBitmapAccess, IBitmapAccess> {
public:
    CBitmapAccess(BitmapRef bitmap, ShapePointer shape, MaskPointer mask, BitmapAccessOptionsEnum options,
                  bool copy)
        : m_source(std::move(bitmap)), m_shape(std::move(shape)), m_mask(std::move(mask)), m_options(options),
          m_copy(copy)
    {
        m_exposed = copy ? BitmapRef(System::Pointer<System::ICloneable, 1>(m_source)->Clone()) : m_source;
    }
    ~CBitmapAccess() override
    {
        try {
            Close();
        } catch (...) {
            // A destructor has nobody to report to; Close() is the place for
            // a caller who wants to know.
        }
    }

    void NotifyDestroyed() override { m_destroyed.Fire(System::EventArgs::Empty()); }
    System::DestroyedEvent& Destroyed() override { return m_destroyed; }

    BitmapAccessOptionsEnum Options() override { return m_options; }
    BitmapRef Bitmap() override { return m_exposed; }
    ShapePointer Shape() override { return m_shape; }
    MaskPointer Mask() override { return m_mask; }
    bool IsCopy() override { return m_copy; }
    bool IsOpen() override { return m_open; }
    void Close() override
    {
        if (!m_open)
            return;
        m_open = false;
        if (m_copy && (m_options & Quilon_::Images::baoWrite))
            if (auto* copy = dynamic_cast<CBitmap*>(m_exposed.Get()))
                CopyBack(*copy, BlockOf(*m_source), m_mask.Get());
    }

private:
    BitmapRef m_source;
    BitmapRef m_exposed;
    ShapePointer m_shape;
    MaskPointer m_mask;
    BitmapAccessOptionsEnum m_options;
    bool m_copy;
    bool m_open = true;
    System::DestroyedEvent m_destroyed{static_cast<IBitmapAccess*>(this)};
};

class CBitmapAccessProperties
    : public System::Template::ObjectImpl<CBitmapAccessProperties, IBitmapAccessProperties> {
public:
    BitmapAccessOptionsEnum Options() override { return m_options; }
    void SetOptions(BitmapAccessOptionsEnum options) override { m_options = options; }
    ShapePointer Shape() override { return m_shape; }
    void SetShape(ShapePointer shape) override { m_shape = std::move(shape); }
    MaskPointer Mask() override { return m_mask; }
    void SetMask(MaskPointer mask) override { m_mask = std::move(mask); }
    bool Copy() override { return m_copy; }
    void SetCopy(bool copy) override { m_copy = copy; }
    System::Pointer<IFormat, 0> Format() override { return m_format; }
    void SetFormat(System::Pointer<IFormat, 0> format) override { m_format = std::move(format); }

private:
    BitmapAccessOptionsEnum m_options = Quilon_::Images::baoMemory;
    ShapePointer m_shape;
    MaskPointer m_mask;
    bool m_copy = false;
    System::Pointer<IFormat, 0> m_format;
};

System::Pointer<IBitmapAccess, 1> NewAccess(BitmapRef bitmap, ShapePointer shape, MaskPointer mask,
                                            BitmapAccessOptionsEnum options, bool copy)
{
    return System::Pointer<IBitmapAccess, 1>(
        new CBitmapAccess(std::move(bitmap), std::move(shape), std::move(mask), options, copy));
}

System::Pointer<IBitmapAccessProperties, 1> NewProperties()
{
    return System::Pointer<IBitmapAccessProperties, 1>(new CBitmapAccessProperties());
}

void RegisterAccess()
{
    Quilon_::Images::BitmapAccess::New.Register(L"Bitmap access", &NewAccess);
    Quilon_::Images::BitmapAccessProperties::New.Register(L"Bitmap access properties", &NewProperties);
}

const System::Template::Initializer<::Library> access(&RegisterAccess, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images
