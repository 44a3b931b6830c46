// An object with a proxy outlives its count until the proxy lets it go;
// the proxy is pinned while native references exist.
#include "Quilon_/Interop/Proxy.h"

#include "../Support/KernelDoubles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Quilon_::Tests::ProxyTests {

using namespace Kernel;
using Interop::IProxyContainer;
using System::Pointer;
using Log = std::vector<std::string>;

class CRecordingProxy : public System::Template::ObjectImpl<CRecordingProxy, Interop::IProxy> {
public:
    void Reserved() override { log.push_back("reserved"); }
    void Pin() override { log.push_back("pin"); }
    void Unpin() override { log.push_back("unpin"); }

    Log log;
};

TEST(ProxyTest, HeldObjectIsPinnedAtOnceUnpinnedAtZeroAndDeletedWhenDetached)
{
    int destructions = 0;
    auto* thing = new CThing(&destructions);
    CRecordingProxy proxy;
    {
        Pointer<IThing, 1> held(thing);
        Pointer<IProxyContainer, 1>(held)->SetProxy(&proxy);
        thing->SetProxy(&proxy); // the same proxy again calls nothing
        EXPECT_EQ(thing->Proxy(), &proxy);
        EXPECT_EQ(proxy.log, Log{"pin"});
    }
    EXPECT_EQ(proxy.log, (Log{"pin", "unpin"}));
    EXPECT_EQ(destructions, 0);

    thing->SetProxy(nullptr);
    EXPECT_EQ(destructions, 1);
    EXPECT_EQ(proxy.log.size(), 2u) << "detaching calls nothing on the proxy";
}

TEST(ProxyTest, ProxySetOnUnheldObjectIsPinnedByTheNextReference)
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

    // Detached while held, the object goes with its last release.
    Pointer<IThing, 0> held(thing);
    thing->SetProxy(nullptr);
    EXPECT_EQ(destructions, 0);
    held = nullptr;
    EXPECT_EQ(destructions, 1);
}

TEST(ProxyTest, ProxyClassIsKeptPerConcreteClassAndNotClearedByNull)
{
    static int word = 0;
    Pointer<IProxyContainer, 1> first(Pointer<IThing, 1>(new CThing));
    Pointer<IProxyContainer, 1> sameKind(Pointer<IThing, 1>(new CThing));
    Pointer<IProxyContainer, 1> otherKind(Pointer<IThing, 1>(new CBoth));

    EXPECT_EQ(first->SetProxyClass(&word), &word);
    EXPECT_EQ(sameKind->ProxyClass(), &word);
    EXPECT_EQ(otherKind->ProxyClass(), nullptr);
    EXPECT_EQ(first->SetProxyClass(nullptr), &word);
    EXPECT_EQ(sameKind->ProxyClass(), &word);
}

} // namespace Quilon_::Tests::ProxyTests
