// Registered functions: a plain function-pointer slot behind a free function.
#include "Quilon_/System/Functions/FunctionSlot.h"
#include "Quilon_/Library.h"

#include "../../Support/Raised.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

namespace Quilon_::Tests::FunctionSlots {

double Area(double width, double height);
QUILON_DECLARE_FUNCTION_SLOT(Area, 1, double (*)(double, double));

QUILON_DEFINE_FUNCTION_SLOT(Area, 1, double (*)(double, double))
double Area(double width, double height)
{
    return QUILON_FUNCTION_SLOT(Area, 1)(width, height);
}

} // namespace Quilon_::Tests::FunctionSlots

namespace {

using namespace Quilon_;
using namespace Quilon_::Tests::FunctionSlots;
using ::testing::HasSubstr;

double Rectangle(double width, double height)
{
    return width * height;
}

double Refusing(double, double)
{
    throw std::domain_error("negative side");
}

class FunctionSlot : public ::testing::Test {
protected:
    void TearDown() override
    {
        SetAreaFunction1(nullptr);
        Library::ErrorManager()->TakeLastError();
    }
};

TEST_F(FunctionSlot, EmptySlotRaisesInTheNameOfTheFunction)
{
    EXPECT_FALSE(AreaFunction1IsImplemented());
    System::Pointer<System::IException, 0> thrown = Tests::Raised([] { Area(2, 3); });
    ASSERT_TRUE(thrown);
    EXPECT_EQ(thrown->Message(), L"Function has no implementation");
    EXPECT_THAT(thrown->Function(), HasSubstr(L"Area"));
}

TEST_F(FunctionSlot, SetSlotForwardsAndNullMakesItUnimplementedAgain)
{
    SetAreaFunction1(&Rectangle);
    EXPECT_TRUE(AreaFunction1IsImplemented());
    EXPECT_EQ(Area(2, 3), 6);

    SetAreaFunction1(nullptr);
    EXPECT_FALSE(AreaFunction1IsImplemented());
    EXPECT_EQ(Tests::RaisedMessage([] { Area(2, 3); }), L"Function has no implementation");
}

TEST_F(FunctionSlot, FailuresOfTheImplementationPassThroughUnchanged)
{
    SetAreaFunction1(&Refusing);
    EXPECT_THROW(Area(-1, 3), std::domain_error);
}

} // namespace
