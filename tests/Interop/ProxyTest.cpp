#include "Quilon_/Interop/Proxy.h"
#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Threading/CriticalSection.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace Quilon_::Tests::ProxyTests {

using namespace Kernel;
using Interop::IProxy;
using Interop::IProxyContainer;
using System::Pointer;

// Whether the count lock is held, asked from another thread so that the
// caller's own hold is seen too.
bool ObjectLockHeld()
{
    bool held = false;
    std::thread([&] {
        System::Threading::CriticalSection& section = System::ObjectCriticalSection();
        if (section.TryEnter())
            section.Leave();
        else
            held = true;
    }).join();
    return held;
}

// Logs "pin" and "unpin", each with "(locked)" when called under the count
// lock.
class CRecordingProxy : public System::Template::ObjectImpl<CRecordingProxy, IProxy> {
public:
    void Reserved() override { log.push_back("reserved"); }
    void Pin() override
    {
        log.push_back(ObjectLockHeld() ? "pin (locked)" : "pin");
        if (pinFails)
            QUILON_RAISE(L"peer is gone");
    }
    void Unpin() override { log.push_back(ObjectLockHeld() ? "unpin (locked)" : "unpin"); }

    std::vector<std::string> log;
    bool pinFails = false;
};

using Log = std::vector<std::string>;

class CFirstKind : public System::Template::ObjectImpl<CFirstKind, IThing> {
public:
    int Value() override { return 1; }
};

class CSecondKind : public System::Template::ObjectImpl<CSecondKind, IThing> {
public:
    int Value() override { return 2; }
};

TEST(ProxyTest, ObjectWithProxyOutlivesItsCountUntilProxyDetaches)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    CRecordingProxy proxy;
    {
        Pointer<IThing, 1> held(thing);
        thing->SetProxy(&proxy); // held natively: pinned at once
        EXPECT_EQ(thing->Proxy(), &proxy);
    }
    EXPECT_EQ(proxy.log, (Log{"pin (locked)", "unpin"}));
    EXPECT_EQ(destructions, 0);
    EXPECT_EQ(thing->ReferenceCount(), 0);

    // Held again and let go again: the peer is told each time.
    Pointer<IThing, 1>{thing};
    EXPECT_EQ(proxy.log, (Log{"pin (locked)", "unpin", "pin", "unpin"}));
    EXPECT_EQ(destructions, 0);

    thing->SetProxy(nullptr);
    EXPECT_EQ(destructions, 1);
    EXPECT_EQ(proxy.log.size(), 4u) << "detaching calls nothing on the proxy";
}

TEST(ProxyTest, SettingSameProxyAgainCallsNothing)
{
    auto* thing = new CThing;
    Pointer<IThing, 1> held(thing);
    CRecordingProxy proxy;
    thing->SetProxy(&proxy);
    thing->SetProxy(&proxy);
    EXPECT_EQ(proxy.log, Log{"pin (locked)"});
    thing->SetProxy(nullptr);
}

TEST(ProxyTest, ProxyOnUnheldObjectIsPinnedByFirstReference)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    CRecordingProxy proxy;
    thing->SetProxy(&proxy);
    EXPECT_TRUE(proxy.log.empty());

    {
        Pointer<IThing, 1> first(thing);
        Pointer<IThing, 1> second(first);
        EXPECT_EQ(proxy.log, Log{"pin"}) << "only the step from 0 to 1 pins";
    }
    EXPECT_EQ(proxy.log, (Log{"pin", "unpin"}));

    thing->SetProxy(nullptr);
    EXPECT_EQ(destructions, 1);
}

TEST(ProxyTest, DetachingWhileHeldLeavesDeletionToLastRelease)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    CRecordingProxy proxy;
    {
        Pointer<IThing, 1> held(thing);
        thing->SetProxy(&proxy);
        thing->SetProxy(nullptr);
        EXPECT_EQ(destructions, 0);
    }
    EXPECT_EQ(destructions, 1);
    EXPECT_EQ(proxy.log, Log{"pin (locked)"});
}

TEST(ProxyTest, DetachingAfterFinalisationLeavesObjectAlive)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    CRecordingProxy proxy;
    thing->SetProxy(&proxy);

    const int state = System::InitializationState();
    System::SetInitializationState(-1);
    thing->SetProxy(nullptr);
    System::SetInitializationState(state);
    EXPECT_EQ(destructions, 0);
    EXPECT_EQ(thing->Proxy(), nullptr);

    Pointer<IThing, 1>{thing};
    EXPECT_EQ(destructions, 1);
}

TEST(ProxyTest, FailingPinReachesTheCaller)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    CRecordingProxy proxy;
    proxy.pinFails = true;
    thing->SetProxy(&proxy);

    IThing* raw = thing;
    EXPECT_EQ(RaisedMessage([&] { raw->AddReference(); }), L"peer is gone");
    Library::ErrorManager()->TakeLastError();
    EXPECT_EQ(thing->ReferenceCount(), 1) << "the reference was taken before the peer was told";

    EXPECT_EQ(raw->ReleaseReference(), 0);
    thing->SetProxy(nullptr);
    EXPECT_EQ(destructions, 1);
}

TEST(ProxyTest, ContainerIsReachedByInterfaceCast)
{
    Pointer<IThing, 1> thing(new CThing);
    Pointer<IProxyContainer, 1> container(thing);
    CRecordingProxy proxy;
    container->SetProxy(&proxy);
    EXPECT_EQ(container->Proxy(), &proxy);
    EXPECT_EQ(proxy.log, Log{"pin (locked)"});
    container->SetProxy(nullptr);
}

TEST(ProxyClassTest, WordIsKeptPerConcreteClassAndNotClearedByNull)
{
    int firstWord = 0;
    int secondWord = 0;
    Pointer<IProxyContainer, 1> first(Pointer<IThing, 1>(new CFirstKind));
    Pointer<IProxyContainer, 1> sameKind(Pointer<IThing, 1>(new CFirstKind));
    Pointer<IProxyContainer, 1> second(Pointer<IThing, 1>(new CSecondKind));

    EXPECT_EQ(first->SetProxyClass(&firstWord), &firstWord);
    EXPECT_EQ(sameKind->ProxyClass(), &firstWord);
    EXPECT_EQ(second->SetProxyClass(&secondWord), &secondWord);
    EXPECT_EQ(first->ProxyClass(), &firstWord);

    EXPECT_EQ(first->SetProxyClass(nullptr), &firstWord);
    EXPECT_EQ(sameKind->ProxyClass(), &firstWord);
    EXPECT_EQ(second->ProxyClass(), &secondWord);
}

} // namespace Quilon_::Tests::ProxyTests
