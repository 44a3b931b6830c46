// Storage orders: the registered functions before and after the reference
// library fills them, and the orders it makes.
#include "Quilon_/Basic/Images/StorageOrder.h"
#include "Quilon_/Images/StorageOrder.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/String.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <vector>

namespace Quilon_::Tests::StorageOrderSuite {

using namespace Quilon_::Images;
using Geometry::AxisEnum;
using Order = System::Pointer<IStorageOrder, 1>;

using StorageOrderSlots = RaisingTest;

using Function = Order (*)(Order, AxisEnum);
using Setter = void (*)(Function);

struct Slot {
    const char* name;
    Setter set;
    bool (*isImplemented)();
    Function call;
};

const Slot slots[] = {
    {"Add", &StorageOrder::SetAddFunction1, &StorageOrder::AddFunction1IsImplemented, &StorageOrder::Add},
    {"Remove", &StorageOrder::SetRemoveFunction1, &StorageOrder::RemoveFunction1IsImplemented,
     &StorageOrder::Remove},
    {"First", &StorageOrder::SetFirstFunction1, &StorageOrder::FirstFunction1IsImplemented,
     &StorageOrder::First},
    {"Last", &StorageOrder::SetLastFunction1, &StorageOrder::LastFunction1IsImplemented, &StorageOrder::Last},
    {"Reverse", &StorageOrder::SetReverseFunction1, &StorageOrder::ReverseFunction1IsImplemented,
     &StorageOrder::Reverse},
};

// A stand-in order, and a function that records the axis it was given.
class COrder : public System::Template::ObjectImpl<COrder, IStorageOrder> {
public:
    std::wstring ToString() override { return L"XY"; }
    Geometry::Axes Axes() override { return Geometry::Axes::aXY; }
    std::int64_t AxisCount() override { return 2; }
    AxisEnum Axis(std::int64_t index) override { return index == 0 ? Geometry::aX : Geometry::aY; }
    bool IsReversed(AxisEnum) override { return false; }
};

std::vector<int> recorded;
Order Record(Order order, AxisEnum axis)
{
    recorded.push_back(axis);
    return order;
}

TEST_F(StorageOrderSlots, EmptySlotsRaiseFromTheirSourceAndFillOnlyWhenSet)
{
    const Order order(new COrder);
    for (const Slot& slot : slots) {
        SCOPED_TRACE(slot.name);
        EXPECT_FALSE(slot.isImplemented());
        auto raised = Raised([&] { slot.call(order, Geometry::aX); });
        ASSERT_TRUE(raised);
        EXPECT_EQ(raised->Message(), L"Function has no implementation");
        EXPECT_EQ(raised->File(), L"Images/StorageOrder.cpp");

        slot.set(&Record);
        EXPECT_TRUE(slot.isImplemented());
        recorded.clear();
        EXPECT_EQ(slot.call(order, Geometry::aZ), order);
        EXPECT_EQ(recorded, std::vector<int>{Geometry::aZ});

        slot.set(nullptr);
        EXPECT_FALSE(slot.isImplemented());
        EXPECT_EQ(RaisedMessage([&] { slot.call(order, Geometry::aX); }), L"Function has no implementation");
    }
}

TEST_F(StorageOrderSlots, BandShortcutsForwardTheBandAxisToFirstAndLast)
{
    const Order order(new COrder);
    EXPECT_EQ(RaisedMessage([&] { StorageOrder::BFirst(order); }), L"Function has no implementation");
    EXPECT_EQ(RaisedMessage([&] { StorageOrder::BLast(order); }), L"Function has no implementation");

    recorded.clear();
    StorageOrder::SetFirstFunction1(&Record);
    StorageOrder::BFirst(order);
    StorageOrder::SetFirstFunction1(nullptr);
    StorageOrder::SetLastFunction1(&Record);
    StorageOrder::BLast(order);
    StorageOrder::SetLastFunction1(nullptr);
    EXPECT_EQ(recorded, (std::vector<int>{16, 16}));
}

TEST_F(StorageOrderSlots, NullOrderIsRefusedByTheReference)
{
    EXPECT_EQ(RaisedMessage([] { StorageOrder::Add(nullptr, Geometry::aB); }),
              L"Pointer <Quilon_::Images::IStorageOrder> : attempt to assign 0 to a reference");
}

TEST(StorageOrderBasic, TextsThatNewAcceptsReadBackAsThemselves)
{
    InChildProcess([] {
        StartBasic();
        for (const wchar_t* text : {L"", L"X", L"XY", L"BXY", L"X-Y", L"-B-X-Y-Z-T", L"TZYXB"})
            EXPECT_EQ(StorageOrder::New(text)->ToString(), text);
        Order order = StorageOrder::New(L"B-XY");
        EXPECT_EQ(order->AxisCount(), 3);
        EXPECT_EQ(order->Axes(), Geometry::Axes::aXYB);
        EXPECT_EQ(order->Axis(0), Geometry::aB);
        EXPECT_EQ(order->Axis(2), Geometry::aY);
        EXPECT_TRUE(order->IsReversed(Geometry::aX));
        EXPECT_FALSE(order->IsReversed(Geometry::aY));
        EXPECT_FALSE(order->IsReversed(Geometry::aZ));
        EXPECT_EQ(RaisedMessage([&] { order->Axis(3); }),
                  L"Axis index is out of range: '3' (maximum is '3')");

        for (const wchar_t* text : {L"XX", L"x", L"XYA", L"X-", L"--X", L"X Y", L"X-Y-X"})
            EXPECT_EQ(RaisedMessage([&] { StorageOrder::New(text); }),
                      L"Invalid storage order: '" + std::wstring(text) + L"'");
    });
}

TEST(StorageOrderBasic, FunctionsReturnNewOrdersAndLeaveTheirArgument)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            const wchar_t* from;
            Function function;
            AxisEnum axis;
            const wchar_t* expected;
        };
        const Case cases[] = {
            {L"XY", &StorageOrder::Add, Geometry::aB, L"XYB"},
            {L"X-Y", &StorageOrder::Add, Geometry::aY, L"X-Y"},
            {L"XYB", &StorageOrder::Remove, Geometry::aB, L"XY"},
            {L"XY", &StorageOrder::Remove, Geometry::aB, L"XY"},
            {L"X", &StorageOrder::Remove, Geometry::aX, L""},
            {L"XY-B", &StorageOrder::First, Geometry::aB, L"-BXY"},
            {L"BXY", &StorageOrder::Last, Geometry::aB, L"XYB"},
            {L"XZY", &StorageOrder::Last, Geometry::aZ, L"XYZ"},
            {L"XY", &StorageOrder::Reverse, Geometry::aY, L"X-Y"},
            {L"X-Y", &StorageOrder::Reverse, Geometry::aY, L"XY"},
        };
        for (const Case& c : cases) {
            Order from = StorageOrder::New(c.from);
            Order result = c.function(from, c.axis);
            EXPECT_EQ(result->ToString(), c.expected) << System::ToAnsi(c.from);
            EXPECT_EQ(from->ToString(), c.from);
            EXPECT_FALSE(result == from);
        }
        EXPECT_EQ(StorageOrder::BFirst(StorageOrder::Add(StorageOrder::New(L"XY"), Geometry::aB))->ToString(),
                  L"BXY");

        Order xy = StorageOrder::New(L"XY");
        EXPECT_EQ(RaisedMessage([&] { StorageOrder::First(xy, Geometry::aB); }),
                  L"Axis aB is not in the storage order 'XY'");
        EXPECT_EQ(RaisedMessage([&] { StorageOrder::Reverse(xy, Geometry::aT); }),
                  L"Axis aT is not in the storage order 'XY'");
        EXPECT_EQ(RaisedMessage([&] { StorageOrder::Add(xy, static_cast<AxisEnum>(3)); }),
                  L"Invalid axis: 3");
    });
}

} // namespace Quilon_::Tests::StorageOrderSuite
