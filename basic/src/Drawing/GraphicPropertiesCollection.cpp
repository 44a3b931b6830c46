// The collection of graphic properties, behind
// GraphicPropertiesCollection::New, and its defaults: one of each kind of
// properties, from the defaults of that kind.
#include "Quilon_/Drawing/GraphicPropertiesCollection.h"
#include "Quilon_/Drawing/ArrowProperties.h"
#include "Quilon_/Drawing/CenterProperties.h"
#include "Quilon_/Drawing/CircleProperties.h"
#include "Quilon_/Drawing/EllipseProperties.h"
#include "Quilon_/Drawing/PointProperties.h"
#include "Quilon_/Drawing/StandardProperties.h"
#include "Quilon_/Drawing/TextProperties.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"
#include "System/SettingsLifetime.h"

#include <vector>

namespace Quilon_::Basic::Drawing {

using namespace Quilon_::Drawing;
using System::Pointer;
using System::Ref;

namespace {

using GraphicPropertiesCollectionStore =
    System::Collections::Template::Detail::ICollectionImplBase<IGraphicProperties>;
using Events = System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>;
using GraphicPropertiesCollectionView =
    System::Collections::Template::Detail::ICollectionImpl<IGraphicPropertiesCollection, IGraphicProperties,
                                                           Events, GraphicPropertiesCollectionStore>;

// The kinds of properties that a collection holds one of.
const System::Type& KindOf(IGraphicProperties& properties)
{
    static const System::Type* const kinds[] = {
        &IStandardProperties::GetType(), &ITextProperties::GetType(),   &IArrowProperties::GetType(),
        &ICenterProperties::GetType(),   &ICircleProperties::GetType(), &IPointProperties::GetType(),
        &IEllipseProperties::GetType()};
    const Ref<System::Interface> object(&properties);
    for (const System::Type* kind : kinds) {
        if (kind->IsImplementedBy(object))
            return *kind;
    }
    // A kind of another library: only the same object counts as its kind.
    return IGraphicProperties::GetType();
}

class CGraphicPropertiesCollection
    : public System::Template::ObjectImpl<
          CGraphicPropertiesCollection, GraphicPropertiesCollectionView,
          System::Collections::Template::Detail::ICollectionImpl<
              System::Collections::ICollection, System::Interface, Events, GraphicPropertiesCollectionStore>,
          System::Collections::ICloneable> {
public:
    CGraphicPropertiesCollection() = default;
    // A deep copy: each thread and each context changes its own values.
    CGraphicPropertiesCollection(const CGraphicPropertiesCollection& other)
        : Events(), GraphicPropertiesCollectionStore(), ObjectImpl()
    {
        GraphicPropertiesCollectionView::CopyFrom(other, true);
    }

    Pointer<IGraphicProperties, 0> Find(const System::Type& type) override
    {
        const std::int64_t index = IndexOfType(type);
        return index < 0 ? Pointer<IGraphicProperties, 0>()
                         : Pointer<IGraphicProperties, 0>(m_items[std::size_t(index)]);
    }
    bool Contains(const System::Type& type) override { return IndexOfType(type) >= 0; }
    bool RemoveType(const System::Type& type) override
    {
        bool removed = false;
        for (std::int64_t index = IndexOfType(type); index >= 0; index = IndexOfType(type))
            removed = GraphicPropertiesCollectionView::RemoveAt(index) || removed;
        return removed;
    }
    std::int64_t SetProperties(const Ref<IGraphicProperties>& properties) override
    {
        const System::Type& kind = KindOf(*properties);
        const std::int64_t index = kind == IGraphicProperties::GetType()
                                       ? GraphicPropertiesCollectionView::IndexOf(properties)
                                       : IndexOfType(kind);
        if (index < 0)
            return GraphicPropertiesCollectionView::Add(properties);
        GraphicPropertiesCollectionView::SetItem(index, properties);
        return index;
    }
    void AddRange(const std::vector<Ref<IGraphicProperties>>& properties) override
    {
        for (const auto& item : properties)
            GraphicPropertiesCollectionView::Add(item);
    }
    std::vector<Ref<IGraphicProperties>> ToVector() override { return m_items; }
    void CopyValuesFrom(const Ref<IGraphicPropertiesCollection>& source) override
    {
        for (const auto& item : source->ToVector()) {
            const System::Type& kind = KindOf(*item);
            if (kind == IGraphicProperties::GetType())
                continue;
            if (Pointer<IGraphicProperties, 0> mine = Find(kind))
                mine->CopyFrom(item);
        }
    }
    void ResetAll() override
    {
        for (const auto& item : ToVector())
            item->Reset();
    }
    Pointer<IStandardProperties, 0> FindStandard() override { return Find(IStandardProperties::GetType()); }
    Pointer<ITextProperties, 0> FindText() override { return Find(ITextProperties::GetType()); }
    Pointer<IArrowProperties, 0> FindArrow() override { return Find(IArrowProperties::GetType()); }
    Pointer<ICenterProperties, 0> FindCenter() override { return Find(ICenterProperties::GetType()); }
    Pointer<ICircleProperties, 0> FindCircle() override { return Find(ICircleProperties::GetType()); }
    Pointer<IPointProperties, 0> FindPoint() override { return Find(IPointProperties::GetType()); }
    Pointer<IEllipseProperties, 0> FindEllipse() override { return Find(IEllipseProperties::GetType()); }

    Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        return Pointer<System::Collections::ICloneable, 1>(new CGraphicPropertiesCollection(*this));
    }

private:
    std::int64_t IndexOfType(const System::Type& type)
    {
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            if (type.IsImplementedBy(m_items[i]))
                return static_cast<std::int64_t>(i);
        }
        return -1;
    }
};

Ref<IGraphicPropertiesCollection> NewGraphicPropertiesCollection()
{
    return Ref<IGraphicPropertiesCollection>(new CGraphicPropertiesCollection());
}

void StartCollection()
{
    GraphicPropertiesCollection::New.Register(L"Graphic properties collection",
                                              &NewGraphicPropertiesCollection);
    Ref<IGraphicPropertiesCollection> defaults = NewGraphicPropertiesCollection();
    defaults->Add(StandardProperties::New());
    defaults->Add(TextProperties::New());
    defaults->Add(ArrowProperties::New());
    defaults->Add(CenterProperties::New());
    defaults->Add(CircleProperties::New());
    defaults->Add(PointProperties::New());
    defaults->Add(EllipseProperties::New());
    GraphicPropertiesCollection::SetDefaultValues(defaults);
}

void StopCollection()
{
    GraphicPropertiesCollection::ClearDefaultValues();
}

// After the properties of each kind, whose defaults it copies.
const SettingsLifetime collection(&StartCollection, &StopCollection, 0.35f);

} // namespace

} // namespace Quilon_::Basic::Drawing
