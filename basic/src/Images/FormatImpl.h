// The formats of the reference library: uniform, binary and colour, all
// laid out by Layout.
#pragma once

#include "Images/Layout.h"
#include "Quilon_/Images/Color/ColorFormat.h"
#include "Quilon_/Images/Color/ColorSpace.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Basic::Images {

using Quilon_::Images::IFormat;
using FormatRef = System::Pointer<IFormat, 1>;
using OrderRef = System::Pointer<IStorageOrder, 1>;
using CoordinatesRef = System::Pointer<Geometry::ICoordinates, 1>;

// The operations every format shares. Derived states the interfaces.
template <class Derived, class... Interfaces>
class CFormatBase : public System::Template::ObjectImpl<Derived, Quilon_::Images::IUniformFormat,
                                                        System::ICloneable, Interfaces...> {
public:
    CFormatBase(System::NumericTypeEnum type, OrderRef order) : m_type(type), m_order(std::move(order)) {}

    System::NumericTypeEnum DataType() override { return m_type; }
    void SetDataType(System::NumericTypeEnum type) override;
    std::int64_t BytesPerSample() override;
    bool IsBinary() override { return m_type == System::ntUInt1; }
    std::vector<std::int64_t> Strides(CoordinatesRef size) override { return LayoutFor(*size).Strides(); }
    std::int64_t Origin(CoordinatesRef size) override { return LayoutFor(*size).origin; }
    std::int64_t MemorySize(CoordinatesRef size) override { return LayoutFor(*size).bytes; }
    std::int64_t Offset(CoordinatesRef size, CoordinatesRef location) override
    {
        return LayoutFor(*size).Offset(*location);
    }
    OrderRef StorageOrder() override { return m_order; }
    void SetStorageOrder(OrderRef order) override { m_order = std::move(order); }
    bool IsCompatible(FormatRef other) override
    {
        return other->DataType() == m_type && other->StorageOrder()->ToString() == m_order->ToString();
    }
    bool Accepts(CoordinatesRef size) override;
    std::wstring ToString() override { return System::ToString(m_type) + L" " + m_order->ToString(); }

    Layout LayoutFor(Geometry::ICoordinates& size) { return MakeLayout(size, *m_order, BytesPerSample()); }

protected:
    System::NumericTypeEnum m_type;
    OrderRef m_order;
};

class CUniformFormat : public CFormatBase<CUniformFormat, IFormat> {
public:
    using CFormatBase::CFormatBase;
    System::Pointer<System::ICloneable, 1> Clone() override;
};

class CBinaryFormat : public CFormatBase<CBinaryFormat, Quilon_::Images::IBinaryFormat> {
public:
    explicit CBinaryFormat(OrderRef order) : CFormatBase(System::ntUInt1, std::move(order)) {}
    // Raises: the samples of a binary format are ntUInt1.
    void SetDataType(System::NumericTypeEnum type) override;
    std::uint8_t ForegroundValue() override { return m_foreground; }
    void SetForegroundValue(std::uint8_t value) override;
    System::Pointer<System::ICloneable, 1> Clone() override;

private:
    std::uint8_t m_foreground = 1;
};

class CColorFormat : public CFormatBase<CColorFormat, Quilon_::Images::Color::IColorFormat> {
public:
    explicit CColorFormat(OrderRef order) : CFormatBase(System::ntUInt8, std::move(order)) {}
    std::int64_t BandCount() override { return m_bands; }
    void SetBandCount(std::int64_t count) override;
    System::Pointer<Quilon_::Images::Color::IColorSpace, 0> ColorSpace() override { return m_space; }
    void SetColorSpace(System::Pointer<Quilon_::Images::Color::IColorSpace, 0> space) override
    {
        m_space = std::move(space);
    }
    // A size without aB has one band.
    bool Accepts(CoordinatesRef size) override;
    System::Pointer<System::ICloneable, 1> Clone() override;

private:
    std::int64_t m_bands = 3;
    System::Pointer<Quilon_::Images::Color::IColorSpace, 0> m_space;
};

} // namespace Quilon_::Basic::Images
