#include "Quilon_/Drawing/GraphicContext.h"

#include "Quilon_/System/Threading/CriticalSection.h"
#include "Quilon_/System/Threading/ThreadId.h"

#include <unordered_map>
#include <utility>
#include <vector>

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IGraphicContext, L"Quilon_::Drawing::IGraphicContext", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IGraphicContextCollection, L"Quilon_::Drawing::IGraphicContextCollection",
                             System::Collections::Template::ICollection<IGraphicContext>)

namespace GraphicContextCollection {
Factory New;
} // namespace GraphicContextCollection

namespace GraphicContext {

Factory New;

namespace {

using Stack = std::vector<System::Ref<IGraphicContext>>;
using Stacks = std::unordered_map<std::uint32_t, Stack, System::Threading::ThreadIdHash>;

// Guarded by the general critical section. Made at first use and never
// destroyed, so that a context may be pushed or popped while the process
// exits; the entry of a thread that has ended stays.
Stacks& ThreadStacks()
{
    static auto* const stacks = new Stacks();
    return *stacks;
}

} // namespace

void Push(System::Ref<IGraphicContext> context)
{
    const std::uint32_t thread = System::Threading::CurrentThreadId();
    System::Threading::GeneralCriticalSectionScope lock;
    ThreadStacks()[thread].push_back(std::move(context));
}

void Pop()
{
    const std::uint32_t thread = System::Threading::CurrentThreadId();
    // The dropped context is released after the lock is left, since its
    // release may run the code of its deletion.
    System::Pointer<IGraphicContext, 0> dropped;
    System::Threading::GeneralCriticalSectionScope lock;
    auto found = ThreadStacks().find(thread);
    if (found == ThreadStacks().end())
        return;
    Stack& stack = found->second;
    // Popping an empty stack is the caller's mistake; it is answered with
    // nothing rather than with undefined behaviour.
    if (stack.empty())
        return;
    dropped = stack.back();
    stack.pop_back();
}

System::Pointer<IGraphicContext, 0> CurrentContext()
{
    const std::uint32_t thread = System::Threading::CurrentThreadId();
    System::Threading::GeneralCriticalSectionScope lock;
    auto found = ThreadStacks().find(thread);
    if (found == ThreadStacks().end() || found->second.empty())
        return {};
    return found->second.back();
}

} // namespace GraphicContext

} // namespace Quilon_::Drawing
