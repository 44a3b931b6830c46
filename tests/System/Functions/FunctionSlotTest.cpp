// Registered functions: a plain function-pointer slot behind a free function.
#include "Quilon_/System/Functions/FunctionSlot.h"
#include "Quilon_/Library.h"

#include "../../Support/Raised.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace Quilon_::Tests::FunctionSlots {

double Area(double width, double height);
QUILON_DECLARE_FUNCTION_SLOT(Area, 1, double (*)(double, double));

QUILON_DEFINE_FUNCTION_SLOT(Area, 1, double (*)(double, double))
double Area(double width, double height)
{
    return QUILON_FUNCTION_SLOT(Area, 1)(width, height);
}

TEST(FunctionSlot, ForwardsToWhatIsSetAndRaisesWhenEmpty)
{
    EXPECT_FALSE(AreaFunction1IsImplemented());
    System::Pointer<System::IException, 0> thrown = Raised([] { Area(2, 3); });
    EXPECT_EQ(thrown->Message(), L"Function has no implementation");
    EXPECT_NE(thrown->Function().find(L"Area"), std::wstring::npos);

    SetAreaFunction1(+[](double width, double height) { return width * height; });
    EXPECT_TRUE(AreaFunction1IsImplemented());
    EXPECT_EQ(Area(2, 3), 6);
    // Failures of the implementation pass through unchanged.
    SetAreaFunction1(+[](double, double) -> double { throw std::domain_error("negative side"); });
    EXPECT_THROW(Area(-1, 3), std::domain_error);

    SetAreaFunction1(nullptr);
    EXPECT_FALSE(AreaFunction1IsImplemented());
    Library::ErrorManager()->TakeLastError();
}

} // namespace Quilon_::Tests::FunctionSlots
