// Bitmaps for Bitmap::New: samples in one block, laid out by the format.
#include "Images/BitmapImpl.h"

#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include "Images/SampleValue.h"

#include <algorithm>
#include <complex>
#include <cstring>
#include <typeinfo>
#include <vector>

namespace Quilon_::Basic::Images {

namespace {

std::wstring AxesText(Geometry::ICoordinates& size)
{
    return size.Axes().ToString();
}

// The axis position of each axis of `to` in `from`, or -1.
std::array<int, 5> AxisMap(const Layout& to, const Layout& from)
{
    std::array<int, 5> map{-1, -1, -1, -1, -1};
    for (int i = 0; i < to.axisCount; ++i)
        map[i] = from.IndexOf(to.axes[i]);
    return map;
}

// One line of samples read into complex doubles and written back: a change
// of data type keeps each value, rounded and saturated as SampleFromDouble
// does; a complex value written into a real type keeps its real part.
using Wide = std::complex<double>;
using LineReader = void (*)(const char* source, std::int64_t step, std::int64_t count, Wide* values);
using LineWriter = void (*)(char* target, std::int64_t step, std::int64_t count, const Wide* values);

LineReader ReaderOf(System::NumericTypeEnum type)
{
    return DispatchSampleType(type, [](auto tag) -> LineReader {
        using T = typename decltype(tag)::type;
        return [](const char* source, std::int64_t step, std::int64_t count, Wide* values) {
            for (std::int64_t i = 0; i < count; ++i) {
                T value;
                std::memcpy(&value, source + i * step, sizeof(T));
                values[i] = Wide(value);
            }
        };
    });
}

LineWriter WriterOf(System::NumericTypeEnum type)
{
    return DispatchSampleType(type, [](auto tag) -> LineWriter {
        using T = typename decltype(tag)::type;
        return [](char* target, std::int64_t step, std::int64_t count, const Wide* values) {
            for (std::int64_t i = 0; i < count; ++i) {
                T value;
                if constexpr (IsComplex<T>::value)
                    value = T(values[i]);
                else
                    value = SampleFromDouble<T>(values[i].real());
                std::memcpy(target + i * step, &value, sizeof(T));
            }
        };
    });
}

// How samples travel from one bitmap to another: bytes as they are, or
// values converted when the data types differ.
struct SampleCopy {
    std::int64_t bytes = 0;
    LineReader read = nullptr;
    LineWriter write = nullptr;
};

SampleCopy SampleCopyOf(System::NumericTypeEnum from, System::NumericTypeEnum to, std::int64_t bytes)
{
    if (from == to)
        return {bytes, nullptr, nullptr};
    return {bytes, ReaderOf(from), WriterOf(to)};
}

// Copies the samples at locations that both layouts have: on shared axes up
// to the smaller size, on axes only one of them has at 0. Returns the kept
// extent in `to`'s axes.
Extent CopyCommon(const Layout& to, char* target, const Layout& from, const char* source,
                  const SampleCopy& copy)
{
    const std::int64_t bytes = copy.bytes;
    const std::array<int, 5> map = AxisMap(to, from);
    Extent kept{1, 1, 1, 1, 1};
    for (int i = 0; i < to.axisCount; ++i)
        kept[i] =
            map[i] >= 0 ? std::min(to.size[i], from.size[map[i]]) : std::min<std::int64_t>(1, to.size[i]);
    for (int i = 0; i < from.axisCount; ++i)
        if (to.IndexOf(from.axes[i]) < 0 && from.size[i] == 0)
            kept.fill(0); // nothing of `from` at 0 on an axis it has no sample on
    for (std::int64_t k : kept)
        if (k == 0)
            return Extent{0, 0, 0, 0, 0};
    const std::int64_t fromStride0 = map[0] >= 0 ? from.stride[map[0]] : 0;
    const bool contiguous = to.stride[0] == bytes && fromStride0 == bytes;
    std::vector<Wide> line(copy.read ? static_cast<std::size_t>(kept[0]) : 0);
    Extent c{};
    for (c[4] = 0; c[4] < kept[4]; ++c[4])
        for (c[3] = 0; c[3] < kept[3]; ++c[3])
            for (c[2] = 0; c[2] < kept[2]; ++c[2])
                for (c[1] = 0; c[1] < kept[1]; ++c[1]) {
                    std::int64_t t = to.origin, s = from.origin;
                    for (int i = 1; i < to.axisCount; ++i) {
                        t += c[i] * to.stride[i];
                        if (map[i] >= 0)
                            s += c[i] * from.stride[map[i]];
                    }
                    if (copy.read) {
                        copy.read(source + s, fromStride0, kept[0], line.data());
                        copy.write(target + t, to.stride[0], kept[0], line.data());
                        continue;
                    }
                    if (contiguous) {
                        std::memcpy(target + t, source + s, static_cast<std::size_t>(kept[0] * bytes));
                        continue;
                    }
                    for (std::int64_t x = 0; x < kept[0]; ++x)
                        std::memcpy(target + t + x * to.stride[0], source + s + x * fromStride0,
                                    static_cast<std::size_t>(bytes));
                }
    for (int i = to.axisCount; i < 5; ++i)
        kept[i] = 1;
    return kept;
}

} // namespace

CBitmap::CBitmap(CoordinatesRef size, FormatRef format, MemoryRef memory)
    : m_size(System::Pointer<System::ICloneable, 1>(size)->Clone()), m_format(OwnCopy(std::move(format))),
      m_memory(std::move(memory)), m_layout(LayoutOf(*m_size, *m_format)), m_type(m_format->DataType())
{
    CheckFits(m_layout, *m_memory);
    m_kept = m_layout.size;
}

FormatRef CBitmap::OwnCopy(FormatRef format)
{
    // A bitmap keeps a format of its own, so that a caller who goes on
    // changing the format it passed does not move the samples under it.
    System::Pointer<System::ICloneable, 0> cloneable = format;
    return cloneable ? FormatRef(cloneable->Clone()) : format;
}

Layout CBitmap::LayoutOf(Geometry::ICoordinates& size, IFormat& format)
{
    CoordinatesRef held(&size);
    if (!format.Accepts(held))
        QUILON_RAISE(L"The format %1% does not fit a bitmap of axes '%2%'", format.ToString(),
                     AxesText(size));
    if (auto* own = dynamic_cast<CUniformFormat*>(&format))
        return own->LayoutFor(size);
    if (auto* own = dynamic_cast<CColorFormat*>(&format))
        return own->LayoutFor(size);
    if (auto* own = dynamic_cast<CBinaryFormat*>(&format))
        return own->LayoutFor(size);
    // Another library's format: its own answers, in the same axes.
    Layout layout = MakeLayout(size, *format.StorageOrder(), format.BytesPerSample());
    const std::vector<std::int64_t> strides = format.Strides(held);
    for (int i = 0; i < layout.axisCount && i < static_cast<int>(strides.size()); ++i)
        layout.stride[i] = strides[i];
    layout.origin = format.Origin(held);
    layout.bytes = format.MemorySize(held);
    return layout;
}

void CBitmap::CheckFits(const Layout& layout, System::IMemory& memory)
{
    if (memory.Size() < layout.bytes)
        QUILON_RAISE(L"A block of %1% bytes is too small for a bitmap of %2% bytes", memory.Size(),
                     layout.bytes);
}

CoordinatesRef CBitmap::Size()
{
    return CopyOfSize(*m_size);
}

void CBitmap::Reshape(CoordinatesRef size, FormatRef format, const Padding& padding)
{
    CoordinatesRef newSize(System::Pointer<System::ICloneable, 1>(size)->Clone());
    FormatRef newFormat = OwnCopy(std::move(format));
    const Layout layout = LayoutOf(*newSize, *newFormat);
    if (newFormat->IsCompatible(m_format) && layout.Strides() == m_layout.Strides() &&
        layout.size == m_layout.size && layout.axes == m_layout.axes) {
        m_size = newSize;
        m_format = newFormat;
        return;
    }
    MemoryRef memory = System::Memory::New(layout.bytes, true);
    const Extent kept = CopyCommon(layout, static_cast<char*>(memory->Data()), m_layout,
                                   static_cast<const char*>(m_memory->Data()),
                                   SampleCopyOf(m_type, newFormat->DataType(), m_format->BytesPerSample()));
    const SampleBlock block{layout, memory->Data(), newFormat->DataType()};
    PadOutside(block, Extent{0, 0, 0, 0, 0}, kept, padding);
    // Nothing changes until everything that can fail has run.
    m_size = newSize;
    m_format = newFormat;
    m_memory = memory;
    m_layout = layout;
    m_type = block.type;
    m_kept = kept;
}

void CBitmap::SetMemory(MemoryRef memory)
{
    CheckFits(m_layout, *memory);
    m_memory = std::move(memory);
}

void CBitmap::SetFormat(FormatRef format)
{
    FormatRef newFormat = OwnCopy(std::move(format));
    const Layout layout = LayoutOf(*m_size, *newFormat);
    CheckFits(layout, *m_memory);
    m_format = newFormat;
    m_layout = layout;
    m_type = newFormat->DataType();
    m_kept = layout.size;
}

System::Pointer<Quilon_::Images::IBitmapAccess, 1>
CBitmap::Access(System::Pointer<Quilon_::Images::IBitmapAccessProperties, 1> properties)
{
    System::Pointer<IFormat, 0> wanted = properties->Format();
    if (wanted && !wanted->IsCompatible(m_format))
        QUILON_RAISE(L"An access in the format %1% is not offered by a bitmap in %2%", wanted->ToString(),
                     m_format->ToString());
    return Quilon_::Images::BitmapAccess::New(BitmapRef(this), properties->Shape(), properties->Mask(),
                                              properties->Options(), properties->Copy());
}

System::Pointer<System::ICloneable, 1> CBitmap::Clone()
{
    MemoryRef memory = System::Memory::New(m_layout.bytes, false);
    if (m_layout.bytes > 0)
        memory->CopyFrom(m_memory->Data(), m_layout.bytes, 0);
    auto* clone = new CBitmap(m_size, m_format, memory);
    System::Pointer<System::ICloneable, 1> result(clone);
    clone->m_kept = m_kept;
    return result;
}

SampleBlock BlockOf(IBitmap& bitmap)
{
    // Compared by type first: a failing or successful cast through the
    // virtual bases costs more than the rest of a small operator's set-up.
    CBitmap* own =
        typeid(bitmap) == typeid(CBitmap) ? static_cast<CBitmap*>(&bitmap) : dynamic_cast<CBitmap*>(&bitmap);
    if (own)
        return {own->GetLayout(), own->Data(), own->DataType()};
    FormatRef format = bitmap.Format();
    CoordinatesRef size = bitmap.Size();
    SampleBlock block{MakeLayout(*size, *format->StorageOrder(), format->BytesPerSample()), nullptr,
                      format->DataType()};
    const std::vector<std::int64_t> strides = bitmap.Strides();
    for (int i = 0; i < block.layout.axisCount && i < static_cast<int>(strides.size()); ++i)
        block.layout.stride[i] = strides[i];
    block.layout.origin = bitmap.Origin();
    block.data = bitmap.Memory()->Data();
    return block;
}

namespace {

FormatRef DefaultFormat(Geometry::ICoordinates& size)
{
    // The size's own axes in ascending bit order: X fastest, one plane per
    // band.
    return FormatRef(new CUniformFormat(
        System::ntUInt8, OrderRef(new CStorageOrder(CStorageOrder::Parse(size.Axes().ToString())))));
}

BitmapRef NewBitmapWith(CoordinatesRef size, FormatRef format, MemoryRef memory)
{
    return BitmapRef(new CBitmap(std::move(size), std::move(format), std::move(memory)));
}

BitmapRef NewBitmapOf(CoordinatesRef size, FormatRef format)
{
    const Layout layout = CBitmap::LayoutOf(*size, *format);
    return NewBitmapWith(std::move(size), std::move(format), System::Memory::New(layout.bytes, true));
}

BitmapRef NewBitmap(CoordinatesRef size)
{
    FormatRef format = DefaultFormat(*size);
    return NewBitmapOf(std::move(size), std::move(format));
}

void RegisterBitmaps()
{
    Quilon_::Images::Bitmap::New.Register(L"Bitmap", &NewBitmap);
    Quilon_::Images::Bitmap::New.Register(L"Bitmap", &NewBitmapOf);
    Quilon_::Images::Bitmap::New.Register(L"Bitmap", &NewBitmapWith);
}

const System::Template::Initializer<::Library> bitmaps(&RegisterBitmaps, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images
