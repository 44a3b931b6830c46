#include "Images/IO/ImageFile.h"

#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/Color/ColorSpaceDictionary.h"
#include "Quilon_/Images/Padding.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/System/Any.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/String.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <cwctype>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Quilon_::Basic::Images::IO {

void RaiseUnreadable(const std::wstring& format, const std::wstring& file, const std::wstring& reason)
{
    QUILON_RAISE(L"Cannot read the %1% file '%2%': %3%", format, file, reason);
}

void RaiseUnwritable(const std::wstring& format, const std::wstring& file, const std::wstring& reason)
{
    QUILON_RAISE(L"Cannot write the %1% file '%2%': %3%", format, file, reason);
}

void CheckLayout(const ImageLayout& layout, const std::wstring& format, const std::wstring& file,
                 std::int64_t fileBytes)
{
    if (layout.width <= 0 || layout.height <= 0 || layout.depth <= 0 || layout.bands <= 0)
        RaiseUnreadable(format, file, L"the header gives an empty image");
    // Each factor is checked against what is left, so that the product
    // never overflows whatever the header claims.
    std::int64_t bytes = SampleBytes(layout.type);
    for (std::int64_t factor : {layout.width, layout.height, layout.depth, layout.bands}) {
        if (factor > std::numeric_limits<std::int64_t>::max() / bytes)
            RaiseUnreadable(format, file, L"the header gives an image too large to address");
        bytes *= factor;
    }
    const std::int64_t maximum = QI::Globals::MaximumImageSizeInBytes();
    if (maximum >= 0 && bytes > maximum)
        QUILON_RAISE(
            L"The image of the %1% file '%2%' takes %3% bytes, above the maximum image size of %4% bytes",
            format, file, bytes, maximum);
    if (maximum < 0 && bytes / maximumExpansion > fileBytes)
        RaiseUnreadable(format, file,
                        L"the header claims " + std::to_wstring(bytes) + L" bytes of samples in a file of " +
                            std::to_wstring(fileBytes) + L" bytes");
}

System::Ref<System::IMemory> LoadFile(const std::wstring& file)
{
    const std::string path = System::ToAnsi(file);
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        QUILON_RAISE(L"Failed to open file '%1%' for read access", file);
    struct stat status {};
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(descriptor);
        QUILON_RAISE(L"Failed to open file '%1%' for read access", file);
    }
    System::Pointer<System::IMemory, 0> bytes;
    try {
        bytes = System::Memory::New(std::int64_t(status.st_size), false);
    } catch (...) {
        ::close(descriptor);
        throw;
    }
    char* data = static_cast<char*>(bytes->Data());
    std::int64_t done = 0;
    while (done < status.st_size) {
        const ssize_t count = ::read(descriptor, data + done, std::size_t(status.st_size - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        done += count;
    }
    ::close(descriptor);
    if (done != status.st_size)
        QUILON_RAISE(L"Failed to read file '%1%'", file);
    return bytes;
}

std::wstring ExtensionOf(const std::wstring& file)
{
    const std::size_t dot = file.rfind(L'.');
    const std::size_t slash = file.rfind(L'/');
    if (dot == std::wstring::npos || (slash != std::wstring::npos && dot < slash))
        return {};
    std::wstring extension = file.substr(dot + 1);
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](wchar_t c) { return wchar_t(std::towlower(wint_t(c))); });
    return extension;
}

System::Ref<Geometry::ICoordinates> SizeOf(const ImageLayout& layout)
{
    using Geometry::Coordinates::New;
    const bool planes = layout.depth > 1;
    const bool bands = layout.bands > 1;
    if (planes && bands)
        return New(layout.width, layout.height, layout.depth, layout.bands, Geometry::Axes::aXYZB);
    if (planes)
        return New(layout.width, layout.height, layout.depth, Geometry::Axes::aXYZ);
    if (bands)
        return New(layout.width, layout.height, layout.bands, Geometry::Axes::aXYB);
    return New(layout.width, layout.height, Geometry::Axes::aXY);
}

System::Ref<QI::IFormat> FormatOf(const ImageLayout& layout)
{
    std::wstring order = layout.depth > 1 ? L"XYZ" : L"XY";
    if (layout.bands > 1)
        order = L"B" + order;
    System::Ref<QI::IStorageOrder> storage = QI::StorageOrder::New(order);
    System::Pointer<QI::IFormat, 0> format;
    if (layout.bands == 3) {
        System::Ref<QI::Color::IColorFormat> colour = QI::Color::UniformColorFormat::New(storage);
        System::Pointer<QI::Color::IColorSpaceDictionary, 0> spaces = QI::Color::Globals::ColorSpaces();
        if (spaces)
            colour->SetColorSpace(spaces->Find(L"RGB"));
        format = colour;
    } else {
        format = QI::UniformFormat::New(storage);
    }
    format->SetDataType(layout.type);
    return format;
}

void PrepareImage(const ImageRef& image, const ImageLayout& layout)
{
    image->Reshape(FormatOf(layout), SizeOf(layout), true,
                   QI::Padding(QI::ptConstant, System::ToAny(std::int64_t(0))));
    if (layout.bands == 1)
        QI::Image::SetCategory(image, QI::picGrey, false);
    else if (layout.bands == 3)
        QI::Image::SetCategory(image, QI::picColor, false);
}

std::optional<ImageLayout> LayoutOf(const ImageRef& image)
{
    System::Ref<Geometry::ICoordinates> size = image->Size();
    const Geometry::Axes axes = size->Axes();
    if (!(axes & Geometry::aX) || !(axes & Geometry::aY) || (axes & Geometry::aT))
        return std::nullopt;
    ImageLayout layout;
    layout.type = image->Format()->DataType();
    if (System::IsComplex(layout.type))
        return std::nullopt;
    layout.width = size->Value(Geometry::aX);
    layout.height = size->Value(Geometry::aY);
    layout.depth = (axes & Geometry::aZ) ? size->Value(Geometry::aZ) : 1;
    layout.bands = (axes & Geometry::aB) ? size->Value(Geometry::aB) : 1;
    if (layout.width <= 0 || layout.height <= 0 || layout.depth <= 0 || layout.bands <= 0)
        return std::nullopt;
    return layout;
}

std::optional<StoragePlan> PlanStorage(NumericTypeEnum source, std::initializer_list<NumericTypeEnum> stored)
{
    if (System::IsComplex(source) || stored.size() == 0)
        return std::nullopt;
    if (std::find(stored.begin(), stored.end(), source) != stored.end())
        return StoragePlan{source, Quilon_::IO::coNoConversion};
    // The samples of 1, 2 and 4 bits take a byte each in the bitmaps.
    const bool subByte = source == System::ntUInt1 || source == System::ntUInt2 || source == System::ntUInt4;
    for (NumericTypeEnum type : stored)
        if ((subByte && type == System::ntUInt8) ||
            (!subByte && System::ContainingNumericType(source, type) == type))
            return StoragePlan{type, Quilon_::IO::coLosslessConversion};
    // Floating-point values go to the first type (for 8-bit formats, what a
    // display shows), integers to the last, the widest.
    const bool floating = source == System::ntFloat || source == System::ntDouble;
    return StoragePlan{floating ? *stored.begin() : *(stored.end() - 1), Quilon_::IO::coLossyConversion};
}

ViewAxes ViewAxesOf(const ImageRef& image)
{
    // The view's axes follow the size's in ascending bit order.
    const Geometry::Axes axes = image->Size()->Axes();
    ViewAxes positions;
    int next = 0;
    for (unsigned bit = Geometry::aX; bit <= Geometry::aB; bit <<= 1) {
        if (!(axes & bit))
            continue;
        if (bit == Geometry::aZ)
            positions.z = next;
        else if (bit == Geometry::aB)
            positions.b = next;
        ++next;
    }
    return positions;
}

RowReader::RowReader(const ImageRef& image, const ImageLayout& layout)
    : m_bitmap(image->Bitmap()), m_layout(layout), m_axes(ViewAxesOf(image)),
      m_progress(layout.height * layout.depth)
{
}

namespace {

std::atomic<unsigned> temporaryCounter{0};

// The mode a new file gets under the process' umask, read without changing
// it (umask() would, for every thread at once).
mode_t NewFileMode()
{
    mode_t mask = 022;
    if (std::FILE* status = std::fopen("/proc/self/status", "r")) {
        char line[256];
        while (std::fgets(line, sizeof line, status))
            if (std::strncmp(line, "Umask:", 6) == 0)
                mask = mode_t(std::strtoul(line + 6, nullptr, 8));
        std::fclose(status);
    }
    return 0666 & ~mask;
}

} // namespace

TemporaryFile::TemporaryFile(const std::wstring& target, std::wstring format)
    : m_target(target), m_format(std::move(format))
{
    const std::string path = System::ToAnsi(target);
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
    const std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
    // Hidden and unique: a reader of the folder never takes it for an
    // image, and two writers of the same target never share it.
    for (int attempt = 0; attempt < 100 && !m_stream; ++attempt) {
        m_path = folder + "." + name + "." + std::to_string(::getpid()) + "-" +
                 std::to_string(temporaryCounter.fetch_add(1)) + ".part";
        const int descriptor = ::open(m_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, NewFileMode());
        if (descriptor >= 0)
            // Read access too: libtiff reads back what it wrote to link the
            // pages of a stack.
            m_stream = ::fdopen(descriptor, "w+b");
        else if (errno != EEXIST)
            break;
    }
    if (!m_stream)
        QUILON_RAISE(L"Failed to open file '%1%' for write access", target);
}

TemporaryFile::~TemporaryFile()
{
    if (m_committed)
        return;
    if (m_stream)
        std::fclose(m_stream);
    ::unlink(m_path.c_str());
}

void TemporaryFile::Commit()
{
    const bool flushed = std::fflush(m_stream) == 0 && !std::ferror(m_stream);
    const bool closed = std::fclose(m_stream) == 0;
    m_stream = nullptr;
    if (!flushed || !closed)
        RaiseUnwritable(m_format, m_target, System::ToString(std::string(std::strerror(errno))));
    if (::rename(m_path.c_str(), System::ToAnsi(m_target).c_str()) != 0)
        RaiseUnwritable(m_format, m_target, System::ToString(std::string(std::strerror(errno))));
    m_committed = true;
}

} // namespace Quilon_::Basic::Images::IO
