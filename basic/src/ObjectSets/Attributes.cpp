// The attribute kinds of the reference library and the factory table that
// makes them by data type: 32-bit integers, floats and doubles, strings,
// vectors of those and of keys, images, and shapes (spatial attributes of
// 2-D and 3-D bitmap shapes, and of any 2-D or 3-D shape).
#include "ObjectSets/Attributes.h"

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/Geometry/ThreeD/BitmapShape.h"
#include "Quilon_/Geometry/ThreeD/Shape.h"
#include "Quilon_/Geometry/TwoD/BitmapShape.h"
#include "Quilon_/Geometry/TwoD/Shape.h"
#include "Quilon_/Images/Image.h"
#include "Quilon_/ObjectSets/AttributeFactoryDictionary.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/ObjectSets/Globals.h"
#include "Quilon_/ObjectSets/ImageAttribute.h"
#include "Quilon_/ObjectSets/KeyVectorAttribute.h"
#include "Quilon_/ObjectSets/ScalarAttribute.h"
#include "Quilon_/ObjectSets/SpatialAttribute.h"
#include "Quilon_/ObjectSets/StringAttribute.h"
#include "Quilon_/ObjectSets/VectorAttribute.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Helper.h"
#include "System/SettingsLifetime.h"

namespace Quilon_::Basic::ObjectSets {

namespace {

using System::LIString;
using System::Ref;

template <class T>
std::vector<double> ToDoubles(const std::vector<T>& values)
{
    return std::vector<double>(values.begin(), values.end());
}

class CDoubleAttribute : public CAttribute<CDoubleAttribute, double, QOS::IScalarAttribute> {
public:
    using CAttribute::CAttribute;
    CDoubleAttribute* MakeEmpty() { return new CDoubleAttribute(m_name, m_dataType); }
    double ScalarValue(QOS::Key key) override { return Read(key); }
    void SetScalarValue(QOS::Key key, double value) override { Store(key, value); }
};

class CInt32Attribute : public CAttribute<CInt32Attribute, std::int32_t, QOS::IInt32Attribute> {
public:
    using CAttribute::CAttribute;
    CInt32Attribute* MakeEmpty() { return new CInt32Attribute(m_name, m_dataType); }
    double ScalarValue(QOS::Key key) override { return Read(key); }
    // Truncated toward zero, as a number boxed into an int cell is.
    void SetScalarValue(QOS::Key key, double value) override { Store(key, static_cast<std::int32_t>(value)); }
    std::int32_t Int32Value(QOS::Key key) override { return Read(key); }
    void SetInt32Value(QOS::Key key, std::int32_t value) override { Store(key, value); }
};

class CFloatAttribute : public CAttribute<CFloatAttribute, float, QOS::IFloatAttribute> {
public:
    using CAttribute::CAttribute;
    CFloatAttribute* MakeEmpty() { return new CFloatAttribute(m_name, m_dataType); }
    double ScalarValue(QOS::Key key) override { return Read(key); }
    void SetScalarValue(QOS::Key key, double value) override { Store(key, static_cast<float>(value)); }
    float FloatValue(QOS::Key key) override { return Read(key); }
    void SetFloatValue(QOS::Key key, float value) override { Store(key, value); }
};

class CStringAttribute : public CAttribute<CStringAttribute, std::wstring, QOS::IStringAttribute> {
public:
    using CAttribute::CAttribute;
    CStringAttribute* MakeEmpty() { return new CStringAttribute(m_name, m_dataType); }
    std::wstring StringValue(QOS::Key key) override { return Read(key); }
    void SetStringValue(QOS::Key key, const std::wstring& value) override { Store(key, value); }
};

class CDoubleVectorAttribute
    : public CAttribute<CDoubleVectorAttribute, std::vector<double>, QOS::IVectorAttribute> {
public:
    using CAttribute::CAttribute;
    CDoubleVectorAttribute* MakeEmpty() { return new CDoubleVectorAttribute(m_name, m_dataType); }
    std::vector<double> VectorValue(QOS::Key key) override { return Read(key); }
};

class CInt32VectorAttribute
    : public CAttribute<CInt32VectorAttribute, std::vector<std::int32_t>, QOS::IInt32VectorAttribute> {
public:
    using CAttribute::CAttribute;
    CInt32VectorAttribute* MakeEmpty() { return new CInt32VectorAttribute(m_name, m_dataType); }
    std::vector<double> VectorValue(QOS::Key key) override { return ToDoubles(Read(key)); }
    std::vector<std::int32_t> Int32Values(QOS::Key key) override { return Read(key); }
    void SetInt32Values(QOS::Key key, const std::vector<std::int32_t>& values) override
    {
        Store(key, values);
    }
};

class CFloatVectorAttribute
    : public CAttribute<CFloatVectorAttribute, std::vector<float>, QOS::IFloatVectorAttribute> {
public:
    using CAttribute::CAttribute;
    CFloatVectorAttribute* MakeEmpty() { return new CFloatVectorAttribute(m_name, m_dataType); }
    std::vector<double> VectorValue(QOS::Key key) override { return ToDoubles(Read(key)); }
    std::vector<float> FloatValues(QOS::Key key) override { return Read(key); }
    void SetFloatValues(QOS::Key key, const std::vector<float>& values) override { Store(key, values); }
};

class CKeyVectorAttribute
    : public CAttribute<CKeyVectorAttribute, std::vector<QOS::Key>, QOS::IKeyVectorAttribute> {
public:
    using CAttribute::CAttribute;
    CKeyVectorAttribute* MakeEmpty() { return new CKeyVectorAttribute(m_name, m_dataType); }
    std::vector<QOS::Key> KeyValues(QOS::Key key) override { return Read(key); }
    void SetKeyValues(QOS::Key key, const std::vector<QOS::Key>& values) override { Store(key, values); }
};

using ImageCell = System::Pointer<Quilon_::Images::IImage, 0>;

// Images are shared, not copied: a cell holds a reference, as an
// argument of an operator would.
class CImageAttribute : public CAttribute<CImageAttribute, ImageCell, QOS::IImageAttribute> {
public:
    using CAttribute::CAttribute;
    CImageAttribute* MakeEmpty() { return new CImageAttribute(m_name, m_dataType); }
    ImageCell ImageValue(QOS::Key key) override { return Read(key); }
    void SetImageValue(QOS::Key key, Ref<Quilon_::Images::IImage> image) override
    {
        Store(key, ImageCell(image));
    }

protected:
    // An empty reference unsets the cell.
    void Store(QOS::Key key, ImageCell image) override
    {
        if (image)
            m_cells.Set(key, std::move(image));
        else
            m_cells.Remove(key);
    }
};

using ShapeCell = System::Pointer<Quilon_::Geometry::IShapeND, 0>;

// Shapes of one interface (the data type) and one dimension.
class CSpatialAttribute : public CAttribute<CSpatialAttribute, ShapeCell, QOS::ISpatialAttribute> {
public:
    CSpatialAttribute(const LIString& name, const System::Type& dataType, std::int64_t dimension)
        : CAttribute(name, dataType), m_dimension(dimension)
    {
    }
    CSpatialAttribute* MakeEmpty() { return new CSpatialAttribute(m_name, m_dataType, m_dimension); }

    std::int64_t Dimension() override { return m_dimension; }
    ShapeCell ShapeValue(QOS::Key key) override { return Read(key); }
    void SetShapeValue(QOS::Key key, Ref<Quilon_::Geometry::IShapeND> shape) override
    {
        Store(key, ShapeCell(shape));
    }
    System::Pointer<Quilon_::Geometry::IBoxD, 0> ShapeBounds(QOS::Key key) override
    {
        const ShapeCell* shape = m_cells.Find(key);
        if (!shape || !*shape)
            return System::Pointer<Quilon_::Geometry::IBoxD, 0>();
        return System::Pointer<Quilon_::Geometry::IBoxD, 0>((*shape)->Bounds());
    }

protected:
    void Store(QOS::Key key, ShapeCell shape) override
    {
        if (!shape) {
            m_cells.Remove(key);
            return;
        }
        if (!m_dataType.IsImplementedBy(System::Pointer<System::Interface, 1>(shape)))
            QUILON_RAISE(L"The shape does not implement '%1%', the data type of attribute '%2%'", m_dataType,
                         m_name);
        m_cells.Set(key, std::move(shape));
    }

private:
    std::int64_t m_dimension;
};

template <class C>
Ref<QOS::IAttribute> MakeAttribute(const LIString& name, const System::Type& dataType)
{
    return Ref<QOS::IAttribute>(new C(name, dataType));
}

// One creator per registered data type: the factory's signature is the name
// alone.
template <class C, class T>
Ref<QOS::IAttribute> NewValueAttribute(const LIString& name)
{
    return MakeAttribute<C>(name, QOS::DataTypeOf<T>());
}

template <class Shape, std::int64_t dimension>
Ref<QOS::IAttribute> NewSpatialAttribute(const LIString& name)
{
    return Ref<QOS::IAttribute>(new CSpatialAttribute(name, Shape::GetType(), dimension));
}

template <class T>
void AddKind(QOS::IAttributeFactoryDictionary& table, const wchar_t* name,
             QOS::AttributeFactory::Creator create)
{
    table.Add(QOS::DataTypeOf<T>(), QOS::AttributeFactory(LIString(name, false), create));
}

void SetAttributeKinds()
{
    namespace TwoD = Quilon_::Geometry::TwoD;
    namespace ThreeD = Quilon_::Geometry::ThreeD;
    Ref<QOS::IAttributeFactoryDictionary> table = QOS::AttributeFactoryDictionary::New();
    AddKind<std::int32_t>(*table, L"Int32 attribute", &NewValueAttribute<CInt32Attribute, std::int32_t>);
    AddKind<float>(*table, L"Float attribute", &NewValueAttribute<CFloatAttribute, float>);
    AddKind<double>(*table, L"Double attribute", &NewValueAttribute<CDoubleAttribute, double>);
    AddKind<std::wstring>(*table, L"String attribute", &NewValueAttribute<CStringAttribute, std::wstring>);
    AddKind<std::vector<double>>(*table, L"Double vector attribute",
                                 &NewValueAttribute<CDoubleVectorAttribute, std::vector<double>>);
    AddKind<std::vector<std::int32_t>>(*table, L"Int32 vector attribute",
                                       &NewValueAttribute<CInt32VectorAttribute, std::vector<std::int32_t>>);
    AddKind<std::vector<float>>(*table, L"Float vector attribute",
                                &NewValueAttribute<CFloatVectorAttribute, std::vector<float>>);
    AddKind<std::vector<QOS::Key>>(*table, L"Key vector attribute",
                                   &NewValueAttribute<CKeyVectorAttribute, std::vector<QOS::Key>>);
    AddKind<Quilon_::Images::IImage>(*table, L"Image attribute",
                                     &NewValueAttribute<CImageAttribute, Quilon_::Images::IImage>);
    AddKind<TwoD::IBitmapShape>(*table, L"2-D bitmap shape attribute",
                                &NewSpatialAttribute<TwoD::IBitmapShape, 2>);
    AddKind<ThreeD::IBitmapShape>(*table, L"3-D bitmap shape attribute",
                                  &NewSpatialAttribute<ThreeD::IBitmapShape, 3>);
    AddKind<TwoD::IShape>(*table, L"2-D shape attribute", &NewSpatialAttribute<TwoD::IShape, 2>);
    AddKind<ThreeD::IShape>(*table, L"3-D shape attribute", &NewSpatialAttribute<ThreeD::IShape, 3>);
    QOS::Globals::SetAttributeFactories(table);
}

void ReleaseAttributeKinds()
{
    QOS::Globals::ClearAttributeFactories();
}

// After the factory table's own class is registered (0.2).
const SettingsLifetime attributeKinds(&SetAttributeKinds, &ReleaseAttributeKinds, 0.3f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets
