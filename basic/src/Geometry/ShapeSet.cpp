// Shape collections and shape sets, for ShapeCollection::New, ShapeSet::New
// and ShapeSetCollection::New. A set is a value: its clone holds clones of
// the shapes and keeps the name. Its name is its extended property
// "Property.Object.Name", so that ExtendedPropertiesHelper::SetName and
// IShapeSet::SetName are one and the same.
#include "Quilon_/Geometry/ShapeSet.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ExtendedPropertiesHelper.h"
#include "Quilon_/System/ExtendedPropertyDictionary.h"
#include "Quilon_/System/ObjectImpl.h"

namespace Quilon_::Basic::Geometry {

namespace {

namespace QG = ::Quilon_::Geometry;
namespace Collections = System::Collections::Template;
template <class Item>
using ShapeSetStore = Collections::Detail::ICollectionImplBase<Item>;
using Events = Collections::ICollectionEventsImpl<System::Collections::ICollectionEvents>;

// A list of `Item`s under the typed interface I and the untyped one, with
// the cloning interface `Cloneable`.
template <class Derived, class I, class Item, class Cloneable, class... More>
class CList : public System::Template::ObjectImpl<
                  Derived, Collections::Detail::ICollectionImpl<I, Item, Events, ShapeSetStore<Item>>,
                  Collections::Detail::ICollectionImpl<System::Collections::ICollection, System::Interface,
                                                       Events, ShapeSetStore<Item>>,
                  Cloneable, More...> {
protected:
    using ShapeSetView = Collections::Detail::ICollectionImpl<I, Item, Events, ShapeSetStore<Item>>;

    CList() = default;
    // A deep copy: the items are cloned.
    CList(const CList& other) : Events(), ShapeSetStore<Item>(), CList::ObjectImpl()
    {
        ShapeSetView::CopyFrom(other, true);
    }

public:
    System::Pointer<Cloneable, 1> Clone() override
    {
        return System::Pointer<Cloneable, 1>(new Derived(static_cast<const Derived&>(*this)));
    }
};

class CShapeCollection
    : public CList<CShapeCollection, QG::IShapeCollection, QG::IShapeND, System::Collections::ICloneable> {
public:
    CShapeCollection() = default;
    CShapeCollection(const CShapeCollection& other) : Events(), ShapeSetStore<QG::IShapeND>(), CList(other) {}
};

class CShapeSetCollection : public CList<CShapeSetCollection, QG::IShapeSetCollection, QG::IShapeSet,
                                         System::Collections::ICloneable> {
public:
    CShapeSetCollection() = default;
    CShapeSetCollection(const CShapeSetCollection& other)
        : Events(), ShapeSetStore<QG::IShapeSet>(), CList(other)
    {
    }
};

// A set is a value (Pointer<IShapeSet, 2> copies it), so it clones through
// System::ICloneable.
class CShapeSet : public CList<CShapeSet, QG::IShapeSet, QG::IShapeND, System::ICloneable,
                               QG::IShapeSetInternal, System::Template::IExtendedPropertiesContainerImpl> {
public:
    CShapeSet() = default;
    // The shapes only: the owner stays with the original, and Clone gives
    // the copy the name once a reference holds it.
    CShapeSet(const CShapeSet& other) : Events(), ShapeSetStore<QG::IShapeND>(), CList(other) {}

    System::Pointer<System::ICloneable, 1> Clone() override
    {
        auto* copy = new CShapeSet(*this);
        System::Pointer<System::ICloneable, 1> result(copy);
        const std::wstring name = Name();
        if (!name.empty())
            copy->SetName(name);
        return result;
    }

    std::wstring Name() override
    {
        if (!HasExtendedProperties())
            return std::wstring();
        return System::ExtendedPropertiesHelper::Name(Self(this)).Value();
    }
    void SetName(const std::wstring& name) override
    {
        System::ExtendedPropertiesHelper::SetName(Self(this), System::LIString(name));
    }

    System::Pointer<QG::IBoxD, 0> Bounds() override
    {
        System::Pointer<QG::IBoxD, 0> bounds;
        for (const auto& shape : m_items)
            bounds = bounds ? QG::BoxD::Union(bounds, shape->Bounds()) : shape->Bounds();
        return bounds;
    }

    bool Contains(System::Ref<QG::ICoordinatesD> location) override
    {
        for (const auto& shape : m_items)
            if (shape->Contains(location))
                return true;
        return false;
    }

    System::Interface* Owner() override { return m_owner; }
    void SetOwner(System::Interface* owner) override { m_owner = owner; }

private:
    static System::Pointer<System::Interface, 1> Self(CShapeSet* set)
    {
        return System::Pointer<System::Interface, 1>(static_cast<QG::IShapeSet*>(set));
    }

    System::Interface* m_owner = nullptr;
};

System::Ref<QG::IShapeCollection> NewShapeCollection()
{
    return System::Ref<QG::IShapeCollection>(new CShapeCollection());
}

System::Ref<QG::IShapeSet> NewShapeSet()
{
    return System::Ref<QG::IShapeSet>(new CShapeSet());
}

System::Ref<QG::IShapeSetCollection> NewShapeSetCollection()
{
    return System::Ref<QG::IShapeSetCollection>(new CShapeSetCollection());
}

void RegisterShapeSets()
{
    QG::ShapeCollection::New.Register(L"Shape collection", &NewShapeCollection);
    QG::ShapeSet::New.Register(L"Shape set", &NewShapeSet);
    QG::ShapeSetCollection::New.Register(L"Shape set collection", &NewShapeSetCollection);
}

const System::Template::Initializer<::Library> shapeSets(&RegisterShapeSets, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Geometry
