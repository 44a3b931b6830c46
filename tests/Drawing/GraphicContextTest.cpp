// The per-thread stack of graphic contexts, with contexts of the test's own.
#include "Quilon_/Drawing/GraphicContext.h"
#include "Quilon_/Drawing/GraphicPropertiesCollection.h"
#include "Quilon_/System/ObjectImpl.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace Quilon_::Tests::DrawingGraphicContext {

using namespace Quilon_::Drawing;
namespace Stack = Quilon_::Drawing::GraphicContext;

class CContext : public System::Template::ObjectImpl<CContext, IGraphicContext> {
public:
    explicit CContext(std::wstring name) : m_name(std::move(name)) {}
    std::wstring Name() override { return m_name; }
    System::Ref<IGraphicPropertiesCollection> Properties() override { return m_properties; }
    void SetProperties(System::Ref<IGraphicPropertiesCollection> properties) override
    {
        m_properties = properties;
    }

private:
    std::wstring m_name;
    System::Ref<IGraphicPropertiesCollection> m_properties;
};

System::Ref<IGraphicContext> Context(const wchar_t* name)
{
    return System::Ref<IGraphicContext>(new CContext(name));
}

std::wstring CurrentName()
{
    System::Pointer<IGraphicContext, 0> current = Stack::CurrentContext();
    return current ? current->Name() : L"(null)";
}

// Each case runs on a thread of its own, which starts without a stack.
template <class Body>
void OnNewThread(Body body)
{
    std::thread thread(body);
    thread.join();
}

TEST(DrawingGraphicContext, PushPopAndCurrentFollowTheCallingThreadsStack)
{
    OnNewThread([] {
        EXPECT_EQ(CurrentName(), L"(null)");
        Stack::Pop(); // no stack yet: nothing happens
        EXPECT_EQ(CurrentName(), L"(null)");

        Stack::Push(Context(L"a"));
        Stack::Push(Context(L"b"));
        EXPECT_EQ(CurrentName(), L"b");
        Stack::Pop();
        EXPECT_EQ(CurrentName(), L"a");
        Stack::Pop();
        EXPECT_EQ(CurrentName(), L"(null)"); // an emptied stack has no current context
        Stack::Pop();                        // popping too often does no harm
        Stack::Push(Context(L"c"));
        EXPECT_EQ(CurrentName(), L"c");
        Stack::Pop();
    });
}

TEST(DrawingGraphicContext, ThreadsSeeOnlyTheirOwnStacks)
{
    OnNewThread([] {
        Stack::Push(Context(L"mine"));
        OnNewThread([] {
            EXPECT_EQ(CurrentName(), L"(null)");
            Stack::Push(Context(L"other"));
            Stack::Pop();
            Stack::Pop();
        });
        EXPECT_EQ(CurrentName(), L"mine");
        Stack::Pop();
    });
}

TEST(DrawingGraphicContext, PoppedContextIsReleased)
{
    OnNewThread([] {
        System::Ref<IGraphicContext> context = Context(L"held");
        Stack::Push(context);
        EXPECT_EQ(context->AddReference(), 3);
        context->ReleaseReference();
        Stack::Pop();
        EXPECT_EQ(context->AddReference(), 2);
        context->ReleaseReference();
    });
}

} // namespace Quilon_::Tests::DrawingGraphicContext
