// CloneVariable and value references: which cloning interface is used, and
// what happens without one or with a clone that is null.
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/Library.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::CloneableTests {

using namespace Kernel;
using System::Pointer;
using System::Template::CloneVariable;

// The two cloning interfaces declare the same Clone(); a class offering both
// overrides each through its own base. Clones tell which interface made
// them: 1 for Collections::ICloneable, 2 for System::ICloneable.
class SystemCloner : public System::ICloneable {
    Pointer<System::ICloneable, 1> Clone() override { return Pointer<IThing, 1>(MakeClone(2)); }
    virtual IThing* MakeClone(int madeBy) = 0;
};

class CollectionCloner : public System::Collections::ICloneable {
    Pointer<System::Collections::ICloneable, 1> Clone() override { return Pointer<IThing, 1>(MakeClone(1)); }
    virtual IThing* MakeClone(int madeBy) = 0;
};

class CTwin : public System::Template::ObjectImpl<CTwin, IThing, SystemCloner, CollectionCloner> {
public:
    explicit CTwin(int madeBy = 0) : m_madeBy(madeBy) {}
    int Value() override { return m_madeBy; }

private:
    IThing* MakeClone(int madeBy) override { return new CTwin(madeBy); }
    int m_madeBy;
};

TEST(CloneVariableTest, ClonesPreferringCollectionsICloneable)
{
    Pointer<IThing, 0> target(new CThing);
    EXPECT_FALSE(CloneVariable<IThing>(nullptr, target));
    EXPECT_FALSE(target);

    Pointer<IThing, 0> source(new CCloneableThing(9));
    EXPECT_TRUE(CloneVariable<IThing>(source, target));
    EXPECT_FALSE(target == source);
    EXPECT_EQ(target->Value(), 9);

    EXPECT_TRUE(CloneVariable<IThing>(Pointer<IThing, 0>(new CTwin), target));
    EXPECT_EQ(target->Value(), 1);
}

TEST(CloneVariableTest, SourceWithoutEitherInterfaceIsRefused)
{
    Pointer<IThing, 0> target;
    EXPECT_EQ(RaisedMessage([&] { CloneVariable<IThing>(Pointer<IThing, 0>(new CThing), target); }),
              L"Class 'Quilon_::Tests::Kernel::IThing' does not implement ICloneable");
    EXPECT_FALSE(target);
    Library::ErrorManager()->TakeLastError();
}

// A Clone() that answers null, which its Pointer<ICloneable> result lets
// through.
class CNullCloner : public System::Template::ObjectImpl<CNullCloner, IThing, System::ICloneable> {
public:
    int Value() override { return 0; }
    Pointer<System::ICloneable, 1> Clone() override { return {}; }
};

TEST(CloneVariableTest, ANullCloneIsRefusedAsANullReference)
{
    Pointer<IThing, 0> target;
    EXPECT_EQ(RaisedMessage([&] { CloneVariable<IThing>(Pointer<IThing, 0>(new CNullCloner), target); }),
              L"Pointer <Quilon_::System::ICloneable> : attempt to assign 0 to a reference");
    Pointer<IThing, 2> value(new CNullCloner); // adopted, not cloned
    EXPECT_EQ(RaisedMessage([&] { Pointer<IThing, 2> copy(value); }),
              L"Pointer <Quilon_::Tests::Kernel::IThing> : attempt to assign 0 to a reference");
    Library::ErrorManager()->TakeLastError();
}

} // namespace Quilon_::Tests::CloneableTests
