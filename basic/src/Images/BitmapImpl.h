// The bitmap of the reference library: one IMemory block laid out by the
// format, with the layout kept at hand so that operators take pointers and
// strides without asking the format again.
#pragma once

#include "Images/FormatImpl.h"
#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/Images/BitmapAccess.h"

#include <array>

namespace Quilon_::Basic::Images {

using Quilon_::Images::IBitmap;
using Quilon_::Images::Padding;
using BitmapRef = System::Pointer<IBitmap, 1>;
using MemoryRef = System::Pointer<System::IMemory, 1>;
using Extent = std::array<std::int64_t, 5>;

class CBitmap
    : public System::Template::ObjectImpl<CBitmap, IBitmap, Quilon_::Images::IBitmapInternal,
                                          Quilon_::Images::IBitmapAccessProvider, System::ICloneable> {
public:
    // Raises when `format` does not accept `size` or `memory` is too small.
    CBitmap(CoordinatesRef size, FormatRef format, MemoryRef memory);

    CoordinatesRef Size() override;
    FormatRef Format() override { return m_format; }
    void Reshape(CoordinatesRef size, FormatRef format, const Padding& padding) override;
    std::vector<std::int64_t> Strides() override { return m_layout.Strides(); }
    MemoryRef Memory() override { return m_memory; }
    std::int64_t Origin() override { return m_layout.origin; }

    void SetMemory(MemoryRef memory) override;
    void SetFormat(FormatRef format) override;

    System::Pointer<Quilon_::Images::IBitmapAccess, 1>
    Access(System::Pointer<Quilon_::Images::IBitmapAccessProperties, 1> properties) override;

    // A new bitmap with a block of its own holding the same samples.
    System::Pointer<System::ICloneable, 1> Clone() override;

    static Layout LayoutOf(Geometry::ICoordinates& size, IFormat& format);

    // The size itself, which Size() copies: for readers that only look.
    Geometry::ICoordinates& OwnSize() const { return *m_size; }
    const Layout& GetLayout() const { return m_layout; }
    // The samples that the last reshaping kept: from 0 to Kept() on each axis.
    const Extent& Kept() const { return m_kept; }
    System::NumericTypeEnum DataType() const { return m_type; }
    void* Data() const { return m_memory->Data(); }

private:
    static FormatRef OwnCopy(FormatRef format);
    static void CheckFits(const Layout& layout, System::IMemory& memory);

    CoordinatesRef m_size;
    FormatRef m_format;
    MemoryRef m_memory;
    Layout m_layout;
    System::NumericTypeEnum m_type;
    Extent m_kept;
};

// The typed view of a layout over its block.
template <class T>
BitmapView<T> ViewOf(const Layout& layout, void* block)
{
    BitmapView<T> view;
    view.data = reinterpret_cast<T*>(static_cast<char*>(block) + layout.origin);
    view.axisCount = layout.axisCount;
    for (int i = 0; i < 5; ++i) {
        view.size[i] = layout.size[i];
        view.stride[i] = layout.stride[i] / std::int64_t(sizeof(T));
    }
    return view;
}

// The samples of any bitmap: its layout, first byte and data type, read
// once through its interface.
struct SampleBlock {
    Layout layout;
    void* data = nullptr;
    System::NumericTypeEnum type = System::ntUInt8;
};
SampleBlock BlockOf(IBitmap& bitmap);

// A new copy of a size, as its Clone() makes it; the reference library's
// own coordinates are copied without the interface casts of Clone(), since
// every rule of an operator call asks an image for its size
// (Geometry/Coordinates.cpp).
CoordinatesRef CopyOfSize(Geometry::ICoordinates& size);

// Fills the samples of `block` outside the box [lower, upper) as `padding`
// says (Pad.cpp).
void PadOutside(const SampleBlock& block, const Extent& lower, const Extent& upper, const Padding& padding);

} // namespace Quilon_::Basic::Images
