#include "Images/Operators/OperatorSupport.h"

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/System/Equatable.h"

#include <sstream>

namespace Quilon_::Basic::Images::Operators {

namespace {

std::wstring ExtentText(const Extent& extent)
{
    std::wostringstream text;
    for (int slot = 0; slot < maxViewAxes; ++slot)
        text << (slot ? L"x" : L"") << extent[slot];
    return text.str();
}

} // namespace

void CheckBroadcast(const Extent& output, const Extent& input)
{
    for (int slot = 0; slot < maxViewAxes; ++slot)
        if (input[slot] != output[slot] && input[slot] != 1)
            QUILON_RAISE(L"Image sizes do not match: %1% and %2%", ExtentText(output), ExtentText(input));
}

void RaiseUnsupportedType(System::NumericTypeEnum type, const wchar_t* expected)
{
    QUILON_RAISE(L"Invalid image data type '%1%': %2% expected", System::ToString(type),
                 std::wstring(expected));
}

AnyView AnyViewOf(const ImageRef& image)
{
    System::Ref<Quilon_::Images::IBitmap> bitmap = image->Bitmap();
    System::Ref<Geometry::ICoordinates> size = bitmap->Size();
    const std::vector<std::int64_t> strides = bitmap->Strides();
    const unsigned axes = static_cast<unsigned char>(size->Axes());
    AnyView view;
    view.type = bitmap->Format()->DataType();
    view.bytes.axisCount = maxViewAxes;
    view.bytes.data = static_cast<char*>(bitmap->Memory()->Data()) + bitmap->Origin();
    for (int slot = 0, index = 0; slot < maxViewAxes; ++slot) {
        if (!(axes & (1u << slot)))
            continue;
        view.bytes.size[slot] = size->Value(std::int64_t(index));
        view.bytes.stride[slot] = strides[static_cast<std::size_t>(index)];
        ++index;
    }
    return view;
}

void Shape(const ImageRef& output, const System::Ref<Geometry::ICoordinates>& size,
           System::NumericTypeEnum type, const ImageRef& model)
{
    using namespace Quilon_::Images;
    System::Ref<IFormat> present = output->Format();
    if (present->DataType() == type && System::Equals(output->Size(), size))
        return;
    StorageOrder::Order order = model->Format()->StorageOrder();
    const unsigned wanted = static_cast<unsigned char>(size->Axes());
    for (unsigned bit = 1; bit <= Geometry::aB; bit <<= 1) {
        const bool inOrder = static_cast<unsigned char>(order->Axes()) & bit;
        const auto axis = static_cast<Geometry::AxisEnum>(bit);
        if ((wanted & bit) && !inOrder)
            order = StorageOrder::Add(order, axis);
        else if (!(wanted & bit) && inOrder)
            order = StorageOrder::Remove(order, axis);
    }
    System::Ref<IFormat> format = UniformFormat::New(order);
    format->SetDataType(type);
    output->Reshape(format, size, true, Padding(ptConstant, System::ToAny(std::int64_t(0))));
}

} // namespace Quilon_::Basic::Images::Operators
