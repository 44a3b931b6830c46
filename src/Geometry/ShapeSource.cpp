#include "Quilon_/Geometry/ShapeSource.h"

#include "Quilon_/System/EnumText.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include <utility>

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(IShapeSourceEventArgs, L"Quilon_::Geometry::IShapeSourceEventArgs",
                             System::IEventArgs)
QUILON_DEFINE_INTERFACE_TYPE(IShapeSource, L"Quilon_::Geometry::IShapeSource", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IShapeSourceCollection, L"Quilon_::Geometry::IShapeSourceCollection",
                             System::Collections::Template::ICollection<IShapeSource>)

namespace {

class CShapeSourceEventArgs
    : public System::Template::ObjectImpl<CShapeSourceEventArgs, IShapeSourceEventArgs> {
public:
    CShapeSourceEventArgs(ShapeSourceEventTypeEnum type, System::Pointer<IShapeND, 0> shape,
                          System::Pointer<System::IEventArgs, 0> inner)
        : m_type(type), m_shape(std::move(shape)), m_inner(std::move(inner))
    {
    }

    ShapeSourceEventTypeEnum EventType() override { return m_type; }
    System::Pointer<IShapeND, 0> Shape() override { return m_shape; }
    System::Pointer<System::IEventArgs, 0> InnerEventArgs() override { return m_inner; }

private:
    ShapeSourceEventTypeEnum m_type;
    System::Pointer<IShapeND, 0> m_shape;
    System::Pointer<System::IEventArgs, 0> m_inner;
};

using ShapeSourceEventArgs::Made;

Made NewOfType(ShapeSourceEventTypeEnum type)
{
    return Made(new CShapeSourceEventArgs(type, nullptr, nullptr));
}

Made NewForShape(ShapeSourceEventTypeEnum type, System::Ref<IShapeND> shape)
{
    return Made(new CShapeSourceEventArgs(type, std::move(shape), nullptr));
}

Made NewForInner(ShapeSourceEventTypeEnum type, System::Ref<System::IEventArgs> inner)
{
    return Made(new CShapeSourceEventArgs(type, nullptr, std::move(inner)));
}

} // namespace

ShapeSourceEventArgs::Factory::Factory()
{
    Register(L"CShapeSourceEventArgs", &NewOfType);
    Register(L"CShapeSourceEventArgs", &NewForShape);
    Register(L"CShapeSourceEventArgs", &NewForInner);
}

ShapeSourceEventArgs::Factory ShapeSourceEventArgs::New;
ShapeSourceCollection::Factory ShapeSourceCollection::New;

} // namespace Quilon_::Geometry

QUILON_DEFINE_ENUM_TEXT(Geometry::ShapeSourceEventTypeEnum, Empty, {Geometry::sseAdded, L"sseAdded"},
                        {Geometry::sseRemoved, L"sseRemoved"}, {Geometry::sseModified, L"sseModified"},
                        {Geometry::sseCleared, L"sseCleared"}, {Geometry::sseReset, L"sseReset"})
