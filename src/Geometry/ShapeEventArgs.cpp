#include "Quilon_/Geometry/ShapeEventArgs.h"

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include <utility>

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(IMoveEventArgs, L"Quilon_::Geometry::IMoveEventArgs", System::IEventArgs)
QUILON_DEFINE_INTERFACE_TYPE(IResizeEventArgs, L"Quilon_::Geometry::IResizeEventArgs", System::IEventArgs)

namespace {

class CMoveEventArgs : public System::Template::ObjectImpl<CMoveEventArgs, IMoveEventArgs> {
public:
    explicit CMoveEventArgs(System::Ref<ICoordinatesD> offset) : m_offset(std::move(offset)) {}
    System::Ref<ICoordinatesD> Offset() override { return m_offset; }

private:
    System::Ref<ICoordinatesD> m_offset;
};

class CResizeEventArgs : public System::Template::ObjectImpl<CResizeEventArgs, IResizeEventArgs> {
public:
    explicit CResizeEventArgs(System::Ref<IBoxD> bounds) : m_bounds(std::move(bounds)) {}
    System::Ref<IBoxD> Bounds() override { return m_bounds; }

private:
    System::Ref<IBoxD> m_bounds;
};

System::Ref<IMoveEventArgs> NewMoveEventArgs(System::Ref<ICoordinatesD> offset)
{
    return System::Ref<IMoveEventArgs>(new CMoveEventArgs(std::move(offset)));
}

System::Ref<IResizeEventArgs> NewResizeEventArgs(System::Ref<IBoxD> bounds)
{
    return System::Ref<IResizeEventArgs>(new CResizeEventArgs(std::move(bounds)));
}

} // namespace

MoveEventArgs::Factory::Factory()
{
    Register(L"CMoveEventArgs", &NewMoveEventArgs);
}

ResizeEventArgs::Factory::Factory()
{
    Register(L"CResizeEventArgs", &NewResizeEventArgs);
}

MoveEventArgs::Factory MoveEventArgs::New;
ResizeEventArgs::Factory ResizeEventArgs::New;

} // namespace Quilon_::Geometry
