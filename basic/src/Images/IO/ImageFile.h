// What the reference library's image file readers and writers share: the
// layout that a file header describes, the checks made before anything is
// allocated for it, the moving of interleaved rows between files and
// images, and writing through a temporary file.
//
//   ImageLayout layout{640, 480, 1, 3, System::ntUInt8};   // from a header
//   CheckLayout(layout, L"PNG", fileName);                 // before allocating
//   PrepareImage(image, layout);                           // colour, RGB space
//   RowWriter<std::uint8_t> rows(image, layout);
//   rows.Store(line.data(), y, 0);                         // 640 * 3 samples
//
//   TemporaryFile file(target, L"PNG");                    // beside `target`
//   std::fwrite(bytes, 1, count, file.Stream());
//   file.Commit();                                         // renames it
#pragma once

#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/IO/ConversionOptions.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/IO/BitmapReader.h"
#include "Quilon_/Images/IO/BitmapWriter.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Memory.h"
#include "Quilon_/System/ObjectImpl.h"
#include "System/ProgressReport.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Quilon_::Basic::Images::IO {

namespace QI = ::Quilon_::Images;
using System::NumericTypeEnum;
using ImageRef = System::Ref<QI::IImage>;

// The shape of a file's image: interleaved bands, planes along Z.
struct ImageLayout {
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::int64_t depth = 1;
    std::int64_t bands = 1;
    NumericTypeEnum type = System::ntUInt8;

    std::int64_t SamplesPerRow() const { return width * bands; }
};

// "Cannot read the %1% file '%2%': %3%", the reason being the decoder's own.
[[noreturn]] void RaiseUnreadable(const std::wstring& format, const std::wstring& file,
                                  const std::wstring& reason);
// "Cannot write the %1% file '%2%': %3%".
[[noreturn]] void RaiseUnwritable(const std::wstring& format, const std::wstring& file,
                                  const std::wstring& reason);

// Refuses a layout read from a header before anything is allocated for it:
// sizes that are not positive, a byte count that overflows, or one above
// this thread's Images::Globals::MaximumImageSizeInBytes(). Without such a
// maximum, a file may not claim more than maximumExpansion bytes of samples
// per byte of file: no real image compresses that well, and a few bytes of
// forged header must not make the reader allocate gigabytes.
inline constexpr std::int64_t maximumExpansion = 65536;
void CheckLayout(const ImageLayout& layout, const std::wstring& format, const std::wstring& file,
                 std::int64_t fileBytes);

// The whole file in memory; raises naming the file when it cannot be read.
System::Ref<System::IMemory> LoadFile(const std::wstring& file);
// The extension of `file`, lower case, without the dot; empty when none.
std::wstring ExtensionOf(const std::wstring& file);

System::Ref<Geometry::ICoordinates> SizeOf(const ImageLayout& layout);
// One band: a grey order XY(Z); three: a colour format in the RGB space;
// others: bands side by side, B first.
System::Ref<QI::IFormat> FormatOf(const ImageLayout& layout);
// Gives `image` the layout's size and format, discarding its samples, and
// the category its bands mean: grey for one, colour for three.
void PrepareImage(const ImageRef& image, const ImageLayout& layout);
// The layout of an image that a file can hold (X, Y and optionally Z and
// B, no complex samples); none for any other.
std::optional<ImageLayout> LayoutOf(const ImageRef& image);

// How a format that stores the sample types `stored` keeps an image of
// samples `source`: the type written and what that costs. Complex samples
// cannot be stored.
struct StoragePlan {
    NumericTypeEnum type;
    Quilon_::IO::ConversionOptionsEnum conversion;
};
std::optional<StoragePlan> PlanStorage(NumericTypeEnum source, std::initializer_list<NumericTypeEnum> stored);

// A value converted to another sample type, saturated to its range;
// floating-point values are rounded half away from zero, and NaN gives 0.
template <class Out, class In>
Out Saturate(In value)
{
    if constexpr (std::is_floating_point_v<Out> || std::is_same_v<Out, In>) {
        return static_cast<Out>(value);
    } else if constexpr (std::is_floating_point_v<In>) {
        if (!(value == value))
            return Out(0);
        const double rounded = std::round(static_cast<double>(value));
        if (rounded <= static_cast<double>(std::numeric_limits<Out>::lowest()))
            return std::numeric_limits<Out>::lowest();
        if (rounded >= static_cast<double>(std::numeric_limits<Out>::max()))
            return std::numeric_limits<Out>::max();
        return static_cast<Out>(rounded);
    } else {
        if (std::cmp_less(value, std::numeric_limits<Out>::lowest()))
            return std::numeric_limits<Out>::lowest();
        if (std::cmp_greater(value, std::numeric_limits<Out>::max()))
            return std::numeric_limits<Out>::max();
        return static_cast<Out>(value);
    }
}

// The positions of the axes Z and B in the BitmapView of an image (X and Y
// come first); -1 for an axis that the size has not. Taken from the image,
// not the layout: a Z of extent 1 still takes its place in the view.
struct ViewAxes {
    int z = -1;
    int b = -1;
};
ViewAxes ViewAxesOf(const ImageRef& image);

// Writes interleaved rows of samples T into an image prepared for the
// layout: one typed view, no call per sample. Each row is a step of the
// progress of the call (a cancellation raises from Store).
template <class T>
class RowWriter {
public:
    RowWriter(const ImageRef& image, const ImageLayout& layout)
        : m_view(BitmapView<T>::Of(image->Bitmap())), m_layout(layout), m_axes(ViewAxesOf(image)),
          m_progress(layout.height * layout.depth)
    {
    }
    // `row` holds width * bands samples, bands side by side.
    void Store(const T* row, std::int64_t y, std::int64_t z) const
    {
        T* line = m_view.data + y * m_view.stride[1] + (m_axes.z >= 0 ? z * m_view.stride[m_axes.z] : 0);
        const std::int64_t xStep = m_view.stride[0];
        const std::int64_t bStep = m_axes.b >= 0 ? m_view.stride[m_axes.b] : 0;
        for (std::int64_t x = 0; x < m_layout.width; ++x)
            for (std::int64_t b = 0; b < m_layout.bands; ++b)
                line[x * xStep + b * bStep] = *row++;
        m_progress.Step();
    }

private:
    BitmapView<T> m_view;
    ImageLayout m_layout;
    ViewAxes m_axes;
    mutable ProgressReport m_progress;
};

// Reads interleaved rows of an image, converted to the sample type Out that
// a file stores (saturated, see Saturate); each row a step of progress, as
// for RowWriter.
class RowReader {
public:
    RowReader(const ImageRef& image, const ImageLayout& layout);
    template <class Out>
    void Load(Out* row, std::int64_t y, std::int64_t z) const
    {
        DispatchSampleType(m_layout.type, [&](auto tag) {
            using In = typename decltype(tag)::type;
            if constexpr (std::is_arithmetic_v<In>)
                LoadAs<In>(row, y, z);
        });
        m_progress.Step();
    }

private:
    template <class In, class Out>
    void LoadAs(Out* row, std::int64_t y, std::int64_t z) const
    {
        const BitmapView<In> view = BitmapView<In>::Of(m_bitmap);
        const In* line = view.data + y * view.stride[1] + (m_axes.z >= 0 ? z * view.stride[m_axes.z] : 0);
        const std::int64_t xStep = view.stride[0];
        const std::int64_t bStep = m_axes.b >= 0 ? view.stride[m_axes.b] : 0;
        for (std::int64_t x = 0; x < m_layout.width; ++x)
            for (std::int64_t b = 0; b < m_layout.bands; ++b)
                *row++ = Saturate<Out>(line[x * xStep + b * bStep]);
    }

    System::Ref<QI::IBitmap> m_bitmap;
    ImageLayout m_layout;
    ViewAxes m_axes;
    mutable ProgressReport m_progress;
};

// A file written beside its target and renamed over it by Commit, so that a
// failure or a cancellation never leaves a half-written target: without
// Commit the destructor removes it.
class TemporaryFile {
public:
    TemporaryFile(const std::wstring& target, std::wstring format);
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    // Open for writing, at its start.
    std::FILE* Stream() const { return m_stream; }
    const std::string& Path() const { return m_path; }
    const std::wstring& Target() const { return m_target; }
    // Flushes, closes and renames; raises naming the target on failure.
    void Commit();

private:
    std::wstring m_target;
    std::wstring m_format;
    std::string m_path;
    std::FILE* m_stream = nullptr;
    bool m_committed = false;
};

// The part every reader shares: the bytes of the open file, its name and
// layout, and the clone that Read works on. A reader states its name,
// extensions, signature, how it parses a header (ParseHeader, filling the
// layout) and how it decodes into a prepared image (Decode).
template <class Derived, class Interface = QI::IO::IBitmapReader, class... More>
class ReaderBase : public System::Template::ObjectImpl<Derived, Interface, More..., System::ICloneable> {
public:
    void Open(const std::wstring& fileName) override { OpenMemory(LoadFile(fileName), fileName); }
    void OpenMemory(System::Ref<System::IMemory> bytes, const std::wstring& name) override
    {
        Close();
        m_bytes = std::move(bytes);
        m_name = name;
        try {
            m_layout = static_cast<Derived*>(this)->ParseHeader();
            CheckLayout(m_layout, this->Name(), m_name, ByteCount());
        } catch (...) {
            Close();
            throw;
        }
    }
    void Close() override
    {
        m_bytes = nullptr;
        m_layout = {};
    }
    System::Ref<Geometry::ICoordinates> Size() override { return SizeOf(OpenLayout()); }
    System::Ref<QI::IFormat> Format() override { return FormatOf(OpenLayout()); }
    void Read(ImageRef image) override
    {
        PrepareImage(image, OpenLayout());
        static_cast<Derived*>(this)->Decode(image);
    }
    System::Pointer<System::ICloneable, 1> Clone() override
    {
        return System::Pointer<System::ICloneable, 1>(new Derived());
    }

protected:
    const std::uint8_t* Bytes() const { return static_cast<const std::uint8_t*>(m_bytes->Data()); }
    std::int64_t ByteCount() const { return m_bytes->Size(); }
    const std::wstring& FileName() const { return m_name; }
    const ImageLayout& Layout() const { return m_layout; }
    [[noreturn]] void Unreadable(const std::wstring& reason)
    {
        RaiseUnreadable(this->Name(), m_name, reason);
    }

private:
    const ImageLayout& OpenLayout()
    {
        if (!m_bytes)
            QUILON_RAISE(L"No %1% file is open", this->Name());
        return m_layout;
    }

    System::Pointer<System::IMemory, 0> m_bytes;
    std::wstring m_name;
    ImageLayout m_layout;
};

// The readers and writers of the reference library, for the collections.
System::Ref<QI::IO::IBitmapReader> NewPNMReader();
System::Ref<QI::IO::IBitmapWriter> NewPNMWriter();
System::Ref<QI::IO::IBitmapReader> NewPNGReader();
System::Ref<QI::IO::IBitmapWriter> NewPNGWriter();
System::Ref<QI::IO::IBitmapReader> NewTIFFReader();
System::Ref<QI::IO::IBitmapWriter> NewTIFFWriter();
System::Ref<QI::IO::IBitmapReader> NewJPEGReader();
System::Ref<QI::IO::IBitmapWriter> NewJPEGWriter();

} // namespace Quilon_::Basic::Images::IO
