// Graphic contexts: named sets of graphic properties that drawing code
// works in, such as "Overlay" or "Selection", and the per-thread stack of
// the context in force.
//
//   Ref<Drawing::IGraphicContext> overlay = Drawing::GraphicContext::New(L"Overlay", properties);
//   Drawing::GraphicContext::Push(overlay);
//   Drawing::GraphicContext::CurrentContext();    // overlay, on this thread only
//   Drawing::GraphicContext::Pop();
//
// Every thread has its own stack, made at its first Push. Pop on a thread
// that never pushed does nothing, and Pop does not check for an empty
// stack: popping more often than pushing is the caller's fault.
#pragma once

#include "Quilon_/System/Collections/Collection.h"
#include "Quilon_/System/Functions/Factory.h"

#include <string>
#include <vector>

namespace Quilon_::Drawing {

class IGraphicPropertiesCollection;

class QUILON_API IGraphicContext : public virtual System::Interface {
    QUILON_INTERFACE(IGraphicContext)
public:
    virtual std::wstring Name() = 0;
    virtual System::Ref<IGraphicPropertiesCollection> Properties() = 0;
    virtual void SetProperties(System::Ref<IGraphicPropertiesCollection> properties) = 0;
};

class QUILON_API IGraphicContextCollection
    : public virtual System::Collections::Template::ICollection<IGraphicContext> {
    QUILON_INTERFACE(IGraphicContextCollection)
public:
    // The first context of that name, or null.
    virtual System::Pointer<IGraphicContext, 0> Find(const std::wstring& name) = 0;
    // Its position, -1 if none.
    virtual std::int64_t IndexOfName(const std::wstring& name) = 0;
    virtual bool Contains(const std::wstring& name) = 0;
    // Removes the first context of that name; false if none.
    virtual bool RemoveByName(const std::wstring& name) = 0;
    // Adds `context`, or puts it in the place of the context of the same
    // name; its position.
    virtual std::int64_t AddOrReplace(const System::Ref<IGraphicContext>& context) = 0;
    virtual void AddRange(const std::vector<System::Ref<IGraphicContext>>& contexts) = 0;
    virtual std::vector<std::wstring> Names() = 0;
    virtual std::vector<System::Ref<IGraphicContext>> ToVector() = 0;
    // The context that tools draw in; null when none is chosen. A context
    // that leaves the collection stops being the active one.
    virtual System::Pointer<IGraphicContext, 0> Active() = 0;
    // Raises if `context` is not null and not in the collection.
    virtual void SetActive(const System::Pointer<IGraphicContext, 0>& context) = 0;
    // The position of Active(), -1 if none.
    virtual std::int64_t ActiveIndex() = 0;
    // -1 chooses none.
    virtual void SetActiveIndex(std::int64_t index) = 0;
};

namespace GraphicContext {
// New(name): with a copy of GraphicPropertiesCollection::DefaultValues();
// New(name, properties): with `properties` themselves.
using Factory =
    System::Functions::Template::Factory<System::Ref<IGraphicContext>(const std::wstring&),
                                         System::Ref<IGraphicContext>(
                                             const std::wstring&, System::Ref<IGraphicPropertiesCollection>)>;
extern QUILON_API Factory New;

QUILON_API void Push(System::Ref<IGraphicContext> context);
QUILON_API void Pop();
// The calling thread's last pushed context; null when the thread has no
// stack or an empty one.
QUILON_API System::Pointer<IGraphicContext, 0> CurrentContext();
} // namespace GraphicContext

namespace GraphicContextCollection {
using Factory = System::Functions::Template::Factory<System::Ref<IGraphicContextCollection>()>;
extern QUILON_API Factory New;
} // namespace GraphicContextCollection

} // namespace Quilon_::Drawing
