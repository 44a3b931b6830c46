#include "Quilon_/Library.h"
#include "Quilon_/System/Cloneable.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::CloneableTests {

using namespace Kernel;
using System::Pointer;

// The two cloning interfaces declare the same Clone(); a class offering both
// overrides each through its own base.
class SystemCloner : public System::ICloneable {
public:
    Pointer<System::ICloneable, 1> Clone() override { return Pointer<IThing, 1>(MakeSystemClone()); }

protected:
    virtual IThing* MakeSystemClone() = 0;
};

class CollectionCloner : public System::Collections::ICloneable {
public:
    Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        return Pointer<IThing, 1>(MakeCollectionClone());
    }

protected:
    virtual IThing* MakeCollectionClone() = 0;
};

// Clones through either interface; Value() of a clone tells which made it:
// 1 for Collections::ICloneable, 2 for System::ICloneable.
class CTwin : public System::Template::ObjectImpl<CTwin, IThing, SystemCloner, CollectionCloner> {
public:
    explicit CTwin(int madeBy = 0) : m_madeBy(madeBy) {}
    int Value() override { return m_madeBy; }

protected:
    IThing* MakeSystemClone() override { return new CTwin(2); }
    IThing* MakeCollectionClone() override { return new CTwin(1); }

private:
    int m_madeBy;
};

TEST(CloneVariableTest, NullSourceGivesNullAndFalse)
{
    Pointer<IThing, 0> target(new CThing);
    EXPECT_FALSE(System::Template::CloneVariable<IThing>(nullptr, target));
    EXPECT_FALSE(target);
}

TEST(CloneVariableTest, ClonesThroughSystemICloneable)
{
    int clones = 0;
    Pointer<IThing, 0> source(new CCloneableThing(9, &clones));
    Pointer<IThing, 0> target;
    EXPECT_TRUE(System::Template::CloneVariable<IThing>(source, target));
    ASSERT_TRUE(target);
    EXPECT_FALSE(target == source);
    EXPECT_EQ(target->Value(), 9);
    EXPECT_EQ(clones, 1);
}

TEST(CloneVariableTest, PrefersCollectionsICloneable)
{
    Pointer<IThing, 0> source(new CTwin);
    Pointer<IThing, 0> target;
    EXPECT_TRUE(System::Template::CloneVariable<IThing>(source, target));
    ASSERT_TRUE(target);
    EXPECT_EQ(target->Value(), 1);
}

TEST(CloneVariableTest, SourceWithoutEitherInterfaceIsRefused)
{
    Library::ErrorManager()->TakeLastError();
    Pointer<IThing, 0> source(new CThing);
    Pointer<IThing, 0> target;
    Pointer<System::IException, 0> raised =
        Raised([&] { System::Template::CloneVariable<IThing>(source, target); });
    ASSERT_TRUE(raised);
    EXPECT_EQ(raised->Message(), L"Class 'Quilon_::Tests::Kernel::IThing' does not implement ICloneable");
    EXPECT_EQ(raised->File(), L"System/Cloneable.cpp");
    EXPECT_TRUE(Library::ErrorManager()->TakeLastError() == raised);
    EXPECT_FALSE(target);
}

} // namespace Quilon_::Tests::CloneableTests
