// Formats for UniformFormat::New, BinaryFormat::New and
// Color::UniformColorFormat::New.
#include "Images/FormatImpl.h"

#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/PrivateLibrary.h"

namespace Quilon_::Basic::Images {

template <class Derived, class... Interfaces>
void CFormatBase<Derived, Interfaces...>::SetDataType(System::NumericTypeEnum type)
{
    SampleBytes(type); // refuses a value that is no data type
    m_type = type;
}

template <class Derived, class... Interfaces>
std::int64_t CFormatBase<Derived, Interfaces...>::BytesPerSample()
{
    return SampleBytes(m_type);
}

template <class Derived, class... Interfaces>
bool CFormatBase<Derived, Interfaces...>::Accepts(CoordinatesRef size)
{
    for (std::int64_t i = 0; i < size->AxisCount(); ++i)
        if (size->Value(i) < 0)
            return false;
    return true;
}

System::Pointer<System::ICloneable, 1> CUniformFormat::Clone()
{
    return System::Pointer<System::ICloneable, 1>(new CUniformFormat(m_type, m_order));
}

void CBinaryFormat::SetDataType(System::NumericTypeEnum type)
{
    if (type != System::ntUInt1)
        QUILON_RAISE(L"A binary format holds ntUInt1 samples, not %1%", System::ToString(type));
}

void CBinaryFormat::SetForegroundValue(std::uint8_t value)
{
    if (value == 0)
        QUILON_RAISE(L"The foreground value of a binary format cannot be 0");
    m_foreground = value;
}

System::Pointer<System::ICloneable, 1> CBinaryFormat::Clone()
{
    auto* clone = new CBinaryFormat(m_order);
    clone->m_foreground = m_foreground;
    return System::Pointer<System::ICloneable, 1>(clone);
}

void CColorFormat::SetBandCount(std::int64_t count)
{
    if (count < 1)
        QUILON_RAISE(L"Invalid band count: %1%", count);
    m_bands = count;
}

bool CColorFormat::Accepts(CoordinatesRef size)
{
    const std::int64_t bands = size->IndexOfAxis(Geometry::aB) >= 0 ? size->B() : 1;
    return bands == m_bands && CFormatBase::Accepts(size);
}

System::Pointer<System::ICloneable, 1> CColorFormat::Clone()
{
    auto* clone = new CColorFormat(m_order);
    clone->m_type = m_type;
    clone->m_bands = m_bands;
    clone->m_space = m_space;
    return System::Pointer<System::ICloneable, 1>(clone);
}

namespace {

FormatRef NewUniformFormat(OrderRef order)
{
    return FormatRef(new CUniformFormat(System::ntUInt8, std::move(order)));
}

System::Pointer<Quilon_::Images::IBinaryFormat, 1> NewBinaryFormat(OrderRef order)
{
    return System::Pointer<Quilon_::Images::IBinaryFormat, 1>(new CBinaryFormat(std::move(order)));
}

System::Pointer<Quilon_::Images::Color::IColorFormat, 1> NewColorFormat(OrderRef order)
{
    return System::Pointer<Quilon_::Images::Color::IColorFormat, 1>(new CColorFormat(std::move(order)));
}

void RegisterFormats()
{
    Quilon_::Images::UniformFormat::New.Register(L"Uniform format", &NewUniformFormat);
    Quilon_::Images::BinaryFormat::New.Register(L"Binary format", &NewBinaryFormat);
    Quilon_::Images::Color::UniformColorFormat::New.Register(L"Uniform colour format", &NewColorFormat);
}

const System::Template::Initializer<::Library> formats(&RegisterFormats, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images

namespace Quilon_::Basic::Images {
// The shared operations, once for each format.
template class CFormatBase<CUniformFormat, IFormat>;
template class CFormatBase<CBinaryFormat, Quilon_::Images::IBinaryFormat>;
template class CFormatBase<CColorFormat, Quilon_::Images::Color::IColorFormat>;
} // namespace Quilon_::Basic::Images
