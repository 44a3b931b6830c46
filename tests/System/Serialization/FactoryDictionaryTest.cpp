// Serialization factories: the range of minimum versions, and the
// process-wide dictionary that finds them by class name.
#include "Quilon_/System/Serialization/Binary/Functions.h"
#include "Quilon_/System/Serialization/FactoryDictionary.h"

#include "../../Support/KernelDoubles.h"
#include "../../Support/Raised.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::SerializationTests {

using namespace Quilon_::System;
using namespace Quilon_::System::Serialization;

Pointer<Interface, 1> MakeThing()
{
    return Pointer<Interface, 1>(new Kernel::CThing(nullptr, 9));
}

using SerializationFactoryTest = RaisingTest;

TEST_F(SerializationFactoryTest, MinimumVersionsFrom4000To4401AreAccepted)
{
    EXPECT_EQ(Factory(&MakeThing, 4000).minimumVersion, 4000);
    EXPECT_EQ(Factory(&MakeThing, 4401).minimumVersion, 4401);
    EXPECT_EQ(RaisedMessage([] { Factory(&MakeThing, 3999); }),
              L"Invalid minimum version value: 3999 (current version is 4401)");
    EXPECT_EQ(RaisedMessage([] { Factory(&MakeThing, 4402); }),
              L"Invalid minimum version value: 4402 (current version is 4401)");
    EXPECT_EQ(Binary::Functions(nullptr, nullptr, 4401).version, 4401);
    EXPECT_EQ(RaisedMessage([] { Binary::Functions(nullptr, nullptr, 4402); }),
              L"Invalid minimum version value: 4402 (current version is 4401)");
}

TEST_F(SerializationFactoryTest, FactoriesAreFoundByClassNameAndMakeInstances)
{
    Pointer<IFactoryDictionary, 1> factories = Factories();
    EXPECT_EQ(factories, Factories());
    const std::wstring name = L"Quilon_::Tests::SerializationTests::CThing";
    factories->Add(name, Factory(&MakeThing, 4100));
    Factory found = factories->Item(name);
    EXPECT_EQ(found.minimumVersion, 4100);
    EXPECT_EQ((Pointer<Kernel::IThing, 1>(found())->Value()), 9);
    EXPECT_EQ(ToAny(found).CastTo<Factory>().minimumVersion, 4100);
    EXPECT_TRUE(factories->Remove(name));
    EXPECT_FALSE(factories->ContainsKey(name));
}

} // namespace Quilon_::Tests::SerializationTests
