// Lists of shapes, and the named shape set that images carry as their
// region of interest.
//
//   Ref<Geometry::IShapeSet> roi = Geometry::ShapeSet::New();
//   roi->Add(circle);
//   roi->SetName(L"ShapeSet.Name.ROI");
//   roi->Contains(location);   // in any of its shapes
//
// A shape set is a value: a Pointer<IShapeSet, 2> copies it on assignment.
#pragma once

#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/System/Functions/Factory.h"

#include <string>

namespace Quilon_::Geometry {

class QUILON_API IShapeCollection : public virtual System::Collections::Template::ICollection<IShapeND> {
    QUILON_INTERFACE(IShapeCollection)
};

class QUILON_API IShapeSet : public virtual IShapeCollection {
    QUILON_INTERFACE(IShapeSet)
public:
    virtual std::wstring Name() = 0;
    virtual void SetName(const std::wstring& name) = 0;
    // The union of the bounds of the shapes; null for an empty set.
    virtual System::Pointer<IBoxD, 0> Bounds() = 0;
    // Whether any of the shapes contains `location`.
    virtual bool Contains(System::Ref<ICoordinatesD> location) = 0;
};

// The owner's side of a shape set: the object (an image, a view) that the
// set belongs to, held without a reference so that the two do not keep each
// other alive.
class QUILON_API IShapeSetInternal : public virtual System::Interface {
    QUILON_INTERFACE(IShapeSetInternal)
public:
    virtual System::Interface* Owner() = 0;
    virtual void SetOwner(System::Interface* owner) = 0;
};

class QUILON_API IShapeSetCollection : public virtual System::Collections::Template::ICollection<IShapeSet> {
    QUILON_INTERFACE(IShapeSetCollection)
};

namespace ShapeCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IShapeCollection>()>;
extern QUILON_API Factory New;
} // namespace ShapeCollection

namespace ShapeSet {
using Factory = System::Functions::Template::Factory<System::Ref<IShapeSet>()>;
extern QUILON_API Factory New;
} // namespace ShapeSet

namespace ShapeSetCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IShapeSetCollection>()>;
extern QUILON_API Factory New;
} // namespace ShapeSetCollection

} // namespace Quilon_::Geometry
