// Read, Write, Import and Export: the choice of a reader or writer from the
// calling thread's collections, and the slices of Import and Export.
//
// Read trusts the content over the name: the readers whose signature
// matches the file's first bytes are asked, the extension only choosing
// among several. When no signature matches, the reader of the extension
// reads anyway, so that the message says what is wrong with the file
// ("no PNG signature") rather than that nothing knows it.
#include "Images/IO/ImageFile.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/IO/Functions.h"
#include "Quilon_/Images/IO/Globals.h"
#include "Quilon_/Images/Padding.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Any.h"
#include "Quilon_/System/Collections/StringCollection.h"

#include <algorithm>
#include <sys/stat.h>

namespace Quilon_::Basic::Images::IO {

namespace {

using ReaderRef = System::Ref<QI::IO::IBitmapReader>;
using WriterRef = System::Ref<QI::IO::IBitmapWriter>;

bool Exists(const std::wstring& path)
{
    struct stat status {};
    return ::stat(System::ToAnsi(path).c_str(), &status) == 0;
}

bool HasExtension(const std::vector<std::wstring>& extensions, const std::wstring& extension)
{
    return !extension.empty() &&
           std::find(extensions.begin(), extensions.end(), extension) != extensions.end();
}

// A relative name not found from the working folder is looked for in the
// folders of Images::IO::Globals::ImageFolders(), in their order.
std::wstring Locate(const std::wstring& fileName)
{
    if (fileName.empty() || fileName.front() == L'/' || Exists(fileName))
        return fileName;
    System::Pointer<System::Collections::IStringCollection, 0> folders = QI::IO::Globals::ImageFolders();
    if (folders)
        for (std::int64_t i = 0; i < folders->Count(); ++i) {
            std::wstring folder = folders->Item(i);
            if (!folder.empty() && folder.back() != L'/')
                folder += L'/';
            if (Exists(folder + fileName))
                return folder + fileName;
        }
    return fileName;
}

// A reader of its own for this call: the collection's are shared by every
// thread that cloned the collection.
ReaderRef OwnReader(const ReaderRef& reader)
{
    System::Pointer<System::ICloneable, 0> cloneable(reader);
    if (!cloneable)
        return reader;
    return ReaderRef(cloneable->Clone());
}

ReaderRef ChooseReader(System::IMemory& bytes, const std::wstring& fileName)
{
    System::Pointer<QI::IO::IBitmapReaderCollection, 0> readers = QI::IO::Globals::BitmapReaders();
    const std::wstring extension = ExtensionOf(fileName);
    System::Pointer<QI::IO::IBitmapReader, 0> byContent;
    System::Pointer<QI::IO::IBitmapReader, 0> byExtension;
    const std::int64_t count = readers ? readers->Count() : 0;
    for (std::int64_t i = 0; i < count; ++i) {
        ReaderRef reader = readers->Item(i);
        const bool named = HasExtension(reader->Extensions(), extension);
        if (reader->CanRead(static_cast<const std::uint8_t*>(bytes.Data()), bytes.Size())) {
            if (!byContent || named)
                byContent = reader;
            if (named)
                break;
        } else if (named && !byExtension) {
            byExtension = reader;
        }
    }
    if (byContent)
        return ReaderRef(byContent);
    if (byExtension)
        return ReaderRef(byExtension);
    QUILON_RAISE(L"No image file reader recognises the file '%1%'", fileName);
}

void ReadFile(const ImageRef& image, const std::wstring& fileName)
{
    const std::wstring path = Locate(fileName);
    System::Ref<System::IMemory> bytes = LoadFile(path);
    ReaderRef reader = OwnReader(ChooseReader(*bytes, path));
    reader->OpenMemory(bytes, path);
    // Into an image of its own, so that a file that fails half-way leaves
    // the caller's image as it was.
    ImageRef read = QI::Image::New();
    reader->Read(read);
    reader->Close();
    image->SetBitmap(read->Bitmap(), true);
    QI::Image::SetCategory(image, QI::Image::Category(read), false);
}

void WriteFile(const ImageRef& image, const std::wstring& fileName)
{
    System::Pointer<QI::IO::IBitmapWriterCollection, 0> writers = QI::IO::Globals::BitmapWriters();
    const std::wstring extension = ExtensionOf(fileName);
    System::Pointer<QI::IO::IBitmapWriter, 0> best;
    Quilon_::IO::ConversionOptionsEnum bestConversion = Quilon_::IO::coLossyConversion;
    bool named = false;
    const std::int64_t count = writers ? writers->Count() : 0;
    for (std::int64_t i = 0; i < count; ++i) {
        WriterRef writer = writers->Item(i);
        if (!HasExtension(writer->Extensions(), extension))
            continue;
        named = true;
        const System::Nullable<Quilon_::IO::ConversionOptionsEnum> conversion = writer->Conversion(image);
        if (conversion.HasValue() && (!best || conversion.Value() < bestConversion)) {
            best = writer;
            bestConversion = conversion.Value();
        }
    }
    if (!named)
        QUILON_RAISE(L"No image file writer for the extension of the file '%1%'", fileName);
    if (!best)
        QUILON_RAISE(L"No image file writer can store this image in the file '%1%'", fileName);
    best->Write(image, fileName);
}

// The position of `axis` among the axes of `size`, which Bitmap views
// follow; raises when the size has not the axis or `index` is outside it.
int SliceAxis(const System::Ref<Geometry::ICoordinates>& size, Geometry::AxisEnum axis, std::int64_t index)
{
    const Geometry::Axes axes = size->Axes();
    if (!(axes & axis))
        QUILON_RAISE(L"The image has no axis %1%", System::ToString(axis));
    const std::int64_t extent = size->Value(axis);
    if (index < 0 || index >= extent)
        QUILON_RAISE(L"Slice %1% is outside the %2% slices of the image along %3%", index, extent,
                     System::ToString(axis));
    int position = 0;
    for (unsigned bit = 1; bit < unsigned(axis); bit <<= 1)
        if (axes & bit)
            ++position;
    return position;
}

// An image shaped as the slice of `image` along `axis`: the size and the
// storage order without the axis, the data type, colour space and category
// kept.
ImageRef NewSliceImage(const ImageRef& image, Geometry::AxisEnum axis)
{
    System::Ref<Geometry::ICoordinates> size = image->Size();
    const Geometry::Axes axes(static_cast<unsigned char>(size->Axes() & ~unsigned(axis)));
    System::Ref<Geometry::ICoordinates> sliceSize = Geometry::Coordinates::New(axes);
    for (Geometry::AxisEnum kept : axes.ToVector())
        sliceSize->SetValue(kept, size->Value(kept));
    System::Ref<QI::IFormat> format = image->Format();
    System::Ref<QI::IStorageOrder> order = QI::StorageOrder::Remove(format->StorageOrder(), axis);
    System::Pointer<QI::IFormat, 0> sliceFormat;
    System::Pointer<QI::Color::IColorFormat, 0> colour(format);
    if (colour && axis != Geometry::aB) {
        System::Ref<QI::Color::IColorFormat> sliceColour = QI::Color::UniformColorFormat::New(order);
        sliceColour->SetColorSpace(colour->ColorSpace());
        sliceFormat = sliceColour;
    } else {
        sliceFormat = QI::UniformFormat::New(order);
    }
    sliceFormat->SetDataType(format->DataType());
    ImageRef slice = QI::Image::New(sliceSize, System::Ref<QI::IFormat>(sliceFormat));
    System::Nullable<System::LIString> category = QI::Image::Category(image);
    if (category.HasValue())
        QI::Image::SetCategory(slice, category, false);
    return slice;
}

// Copies between the slice at `index` along the view axis `position` of
// `image` and the image `slice` one axis smaller; `toSlice` gives the
// direction.
void CopySlice(const ImageRef& image, const ImageRef& slice, int position, std::int64_t index, bool toSlice)
{
    DispatchSampleType(image->Format()->DataType(), [&](auto tag) {
        using T = typename decltype(tag)::type;
        const BitmapView<T> whole = BitmapView<T>::Of(image->Bitmap());
        const BitmapView<T> part = BitmapView<T>::Of(slice->Bitmap());
        std::array<std::int64_t, maxViewAxes> at{};
        std::array<std::int64_t, maxViewAxes> from{};
        // The loops run over the slice's view; the image's location is the
        // same with `index` inserted at `position`.
        for (at[3] = 0; at[3] < part.size[3]; ++at[3])
            for (at[2] = 0; at[2] < part.size[2]; ++at[2])
                for (at[1] = 0; at[1] < part.size[1]; ++at[1])
                    for (at[0] = 0; at[0] < part.size[0]; ++at[0]) {
                        for (int axis = 0, k = 0; axis < maxViewAxes; ++axis)
                            from[axis] = axis == position ? index : at[k++];
                        if (toSlice)
                            *part.At(at) = *whole.At(from);
                        else
                            *whole.At(from) = *part.At(at);
                    }
    });
}

void ReadImage(ImageRef image, const std::wstring& fileName)
{
    ReadFile(image, fileName);
}

void WriteImage(ImageRef image, const std::wstring& fileName)
{
    WriteFile(image, fileName);
}

void ExportSlice(ImageRef image, const std::wstring& fileName, Geometry::AxisEnum axis, std::int64_t index)
{
    const int position = SliceAxis(image->Size(), axis, index);
    ImageRef slice = NewSliceImage(image, axis);
    CopySlice(image, slice, position, index, true);
    WriteFile(slice, fileName);
}

void ImportSlice(ImageRef image, const std::wstring& fileName, Geometry::AxisEnum axis, std::int64_t index)
{
    const int position = SliceAxis(image->Size(), axis, index);
    ImageRef file = QI::Image::New();
    ReadFile(file, fileName);
    System::Ref<Geometry::ICoordinates> size = image->Size();
    System::Ref<Geometry::ICoordinates> found = file->Size();
    const Geometry::Axes axes(static_cast<unsigned char>(size->Axes() & ~unsigned(axis)));
    bool fits = found->Axes() == axes && file->Format()->DataType() == image->Format()->DataType();
    for (Geometry::AxisEnum kept : axes.ToVector())
        fits = fits && found->Value(kept) == size->Value(kept);
    if (!fits)
        QUILON_RAISE(L"The image of the file '%1%' has not the size and data type of a slice along %2%",
                     fileName, System::ToString(axis));
    CopySlice(image, file, position, index, false);
}

void RegisterOperatorsOperators()
{
    QI::IO::Functions::Read.Register(L"Image files", &ReadImage);
    QI::IO::Functions::Write.Register(L"Image files", &WriteImage);
    QI::IO::Functions::Import.Register(L"Image files", &ImportSlice);
    QI::IO::Functions::Export.Register(L"Image files", &ExportSlice);
}

const System::Template::Initializer<::Library> operatorsInitializer(&RegisterOperatorsOperators, nullptr,
                                                                    0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::IO
