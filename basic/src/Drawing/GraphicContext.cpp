// Graphic contexts and their collection, behind GraphicContext::New and
// GraphicContextCollection::New.
#include "Quilon_/Drawing/GraphicContext.h"
#include "Quilon_/Drawing/GraphicPropertiesCollection.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Raise.h"

#include <string>
#include <utility>
#include <vector>

namespace Quilon_::Basic::Drawing {

using namespace Quilon_::Drawing;
using System::Pointer;
using System::Ref;

namespace {

class CGraphicContext
    : public System::Template::ObjectImpl<CGraphicContext, IGraphicContext, System::ICloneable> {
public:
    CGraphicContext(std::wstring name, Ref<IGraphicPropertiesCollection> properties)
        : m_name(std::move(name)), m_properties(std::move(properties))
    {
    }

    std::wstring Name() override { return m_name; }
    Ref<IGraphicPropertiesCollection> Properties() override { return m_properties; }
    void SetProperties(Ref<IGraphicPropertiesCollection> properties) override
    {
        m_properties = std::move(properties);
    }

    // A copy with its own properties.
    Pointer<System::ICloneable, 1> Clone() override
    {
        Pointer<IGraphicPropertiesCollection, 0> copy;
        System::Template::CloneVariable<IGraphicPropertiesCollection>(m_properties, copy);
        return Pointer<System::ICloneable, 1>(
            new CGraphicContext(m_name, Ref<IGraphicPropertiesCollection>(copy)));
    }

private:
    std::wstring m_name;
    Ref<IGraphicPropertiesCollection> m_properties;
};

// The thread's default properties, copied, so that changing the context
// leaves the defaults alone; an empty collection when there are none.
Ref<IGraphicPropertiesCollection> CopyOfDefaults()
{
    Pointer<IGraphicPropertiesCollection, 0> defaults(GraphicPropertiesCollection::DefaultValues());
    Pointer<IGraphicPropertiesCollection, 0> copy;
    if (!System::Template::CloneVariable<IGraphicPropertiesCollection>(defaults, copy))
        return GraphicPropertiesCollection::New();
    return Ref<IGraphicPropertiesCollection>(copy);
}

Ref<IGraphicContext> NewNamedContext(const std::wstring& name)
{
    return Ref<IGraphicContext>(new CGraphicContext(name, CopyOfDefaults()));
}

Ref<IGraphicContext> NewContext(const std::wstring& name, Ref<IGraphicPropertiesCollection> properties)
{
    return Ref<IGraphicContext>(new CGraphicContext(name, std::move(properties)));
}

using GraphicContextStore = System::Collections::Template::Detail::ICollectionImplBase<IGraphicContext>;
using Events = System::Collections::Template::ICollectionEventsImpl<System::Collections::ICollectionEvents>;
using GraphicContextView =
    System::Collections::Template::Detail::ICollectionImpl<IGraphicContextCollection, IGraphicContext, Events,
                                                           GraphicContextStore>;

class CGraphicContextCollection
    : public System::Template::ObjectImpl<
          CGraphicContextCollection, GraphicContextView,
          System::Collections::Template::Detail::ICollectionImpl<
              System::Collections::ICollection, System::Interface, Events, GraphicContextStore>,
          System::Collections::ICloneable> {
public:
    CGraphicContextCollection() = default;
    CGraphicContextCollection(const CGraphicContextCollection& other)
        : Events(), GraphicContextStore(), ObjectImpl()
    {
        GraphicContextView::CopyFrom(other, true);
        // The copy's active context is the copy of the active one.
        const std::int64_t active = const_cast<CGraphicContextCollection&>(other).ActiveIndex();
        if (active >= 0)
            m_activeContext = m_items[std::size_t(active)];
    }

    Pointer<IGraphicContext, 0> Find(const std::wstring& name) override
    {
        const std::int64_t index = IndexOfName(name);
        return index < 0 ? Pointer<IGraphicContext, 0>()
                         : Pointer<IGraphicContext, 0>(m_items[std::size_t(index)]);
    }
    std::int64_t IndexOfName(const std::wstring& name) override
    {
        for (std::size_t i = 0; i < m_items.size(); ++i) {
            if (m_items[i]->Name() == name)
                return static_cast<std::int64_t>(i);
        }
        return -1;
    }
    bool Contains(const std::wstring& name) override { return IndexOfName(name) >= 0; }
    bool RemoveByName(const std::wstring& name) override
    {
        const std::int64_t index = IndexOfName(name);
        return index >= 0 && GraphicContextView::RemoveAt(index);
    }
    std::int64_t AddOrReplace(const Ref<IGraphicContext>& context) override
    {
        const std::int64_t index = IndexOfName(context->Name());
        if (index < 0)
            return GraphicContextView::Add(context);
        GraphicContextView::SetItem(index, context);
        return index;
    }
    void AddRange(const std::vector<Ref<IGraphicContext>>& contexts) override
    {
        for (const auto& context : contexts)
            GraphicContextView::Add(context);
    }
    std::vector<std::wstring> Names() override
    {
        std::vector<std::wstring> names;
        for (const auto& context : m_items)
            names.push_back(context->Name());
        return names;
    }
    std::vector<Ref<IGraphicContext>> ToVector() override { return m_items; }

    // The active context is kept as the object, so that it stays active
    // wherever insertions and removals move it.
    Pointer<IGraphicContext, 0> Active() override
    {
        return m_activeContext && GraphicContextView::IndexOf(Ref<IGraphicContext>(m_activeContext)) >= 0
                   ? m_activeContext
                   : Pointer<IGraphicContext, 0>();
    }
    void SetActive(const Pointer<IGraphicContext, 0>& context) override
    {
        if (context && GraphicContextView::IndexOf(Ref<IGraphicContext>(context)) < 0)
            QUILON_RAISE(L"The graphic context is not in the collection");
        m_activeContext = context;
    }
    std::int64_t ActiveIndex() override
    {
        return m_activeContext ? GraphicContextView::IndexOf(Ref<IGraphicContext>(m_activeContext)) : -1;
    }
    void SetActiveIndex(std::int64_t index) override
    {
        SetActive(index < 0 ? Pointer<IGraphicContext, 0>()
                            : Pointer<IGraphicContext, 0>(GraphicContextView::Item(index)));
    }

    Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        return Pointer<System::Collections::ICloneable, 1>(new CGraphicContextCollection(*this));
    }

    void OnItemRemoved(Ref<IGraphicContext> item) override
    {
        if (m_activeContext == item && GraphicContextView::IndexOf(item) < 0)
            m_activeContext = nullptr;
    }

private:
    Pointer<IGraphicContext, 0> m_activeContext;
};

Ref<IGraphicContextCollection> NewGraphicContextCollection()
{
    return Ref<IGraphicContextCollection>(new CGraphicContextCollection());
}

void RegisterContexts()
{
    GraphicContext::New.Register(L"Graphic context", &NewNamedContext);
    GraphicContext::New.Register(L"Graphic context", &NewContext);
    GraphicContextCollection::New.Register(L"Graphic context collection", &NewGraphicContextCollection);
}

const System::Template::Initializer<::Library> contexts(&RegisterContexts, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Drawing
