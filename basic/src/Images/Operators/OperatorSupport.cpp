#include "Images/Operators/OperatorSupport.h"

#include "Images/BitmapImpl.h"

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

void RaiseSampleTypeMismatch(System::NumericTypeEnum type)
{
    QUILON_RAISE(L"Bitmap samples are not of the requested type: %1%", System::ToString(type));
}

SlotBlock SlotsOf(Quilon_::Images::IBitmap& bitmap)
{
    const SampleBlock block = BlockOf(bitmap);
    SlotBlock slots;
    slots.data = static_cast<char*>(block.data) + block.layout.origin;
    slots.type = block.type;
    for (int i = 0; i < block.layout.axisCount; ++i) {
        const int slot = SlotOf(block.layout.axes[i]);
        slots.size[slot] = block.layout.size[i];
        slots.stride[slot] = block.layout.stride[i];
    }
    return slots;
}

AnyView AnyViewOf(const ImageRef& image)
{
    const SlotBlock block = SlotsOf(*image->Bitmap());
    AnyView view;
    view.type = block.type;
    view.bytes.axisCount = maxViewAxes;
    view.bytes.data = block.data;
    view.bytes.size = block.size;
    view.bytes.stride = block.stride;
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
