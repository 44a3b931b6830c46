// The list that events walk while handlers change it.
#include "Quilon_/System/Collections/SafeList.h"

#include "../../Support/Raised.h"

#include <gtest/gtest.h>

#include <vector>

namespace Quilon_::Tests::SafeListTests {

using List = System::Collections::Template::SafeList<int>;
using Values = std::vector<int>;

Values Walk(List& list, bool includePending = false)
{
    Values values;
    for (auto it = list.begin(includePending), end = list.end(); it != end; ++it)
        values.push_back(*it);
    return values;
}

List Make(const Values& values)
{
    List list;
    for (int value : values)
        list.Add(value);
    return list;
}

TEST(SafeListTest, ChangesDuringAWalkWaitUntilTheLastIteratorGoes)
{
    List list = Make({1, 2, 3});
    Values seen;
    {
        auto end = list.end();
        for (auto it = list.begin(false); it != end; ++it) {
            seen.push_back(*it);
            if (*it == 1) {
                list.Remove(2);
                list.Add(4);
                list.AddFront(0);
                EXPECT_EQ(list.Count(), 2) << "only settled values count";
                EXPECT_EQ(list.PendingCount(), 3);
                EXPECT_EQ(Walk(list, true), (Values{1, 3, 4})) << "a nested walk skips removed values";
                EXPECT_EQ(list.IteratorCount(), 2) << "the nested walk is gone, this one and end remain";
            }
        }
    }
    EXPECT_EQ(seen, (Values{1, 3})) << "neither the removed nor the added values are reached";
    EXPECT_EQ(list.Count(), 4);
    EXPECT_EQ(list.PendingCount(), 0);
    EXPECT_EQ(list.IteratorCount(), 0);
    EXPECT_EQ(Walk(list), (Values{0, 1, 3, 4}));

    // Settled again, removal unlinks at once, first match only.
    list.Add(3);
    list.Remove(3);
    list.Remove(42);
    list.Remove(0);
    EXPECT_EQ(Walk(list), (Values{1, 4, 3}));
    list.Add(5);
    EXPECT_EQ(Walk(list), (Values{1, 4, 3, 5})) << "the tail moved with the removals";
}

TEST(SafeListTest, PendingValuesAreReachedOnlyByStepsThatIncludeThem)
{
    List list;
    auto outer = list.begin(true);
    list.Add(1);
    list.Add(2);
    EXPECT_TRUE(list.begin(true) == list.end()) << "begin lands on settled values only, whatever the flag";

    List one = Make({1});
    auto it = one.begin(true);
    one.Add(2);
    ++it;
    ASSERT_FALSE(it == one.end());
    EXPECT_EQ(*it, 2);
    one.Remove(2);
    EXPECT_EQ(*it, 2) << "the iterator standing on a removed node can still read it";
    ++it;
    EXPECT_TRUE(it == one.end());
}

TEST(SafeListTest, RemoveAllDuringAWalkEndsItAndLeavesRoomForNewValues)
{
    List list = Make({1, 2, 3});
    Values seen;
    for (auto it = list.begin(false), end = list.end(); it != end; ++it) {
        seen.push_back(*it);
        if (*it == 1) {
            list.RemoveAll();
            list.Add(7);
            EXPECT_EQ(list.Count(), 0);
            EXPECT_EQ(list.PendingCount(), 4);
        }
    }
    EXPECT_EQ(seen, Values{1});
    EXPECT_EQ(Walk(list), Values{7});
    list.RemoveAll();
    EXPECT_EQ(list.Count(), 0);
    EXPECT_TRUE(list.begin() == list.end());
    list.AddFront(8);
    EXPECT_EQ(Walk(list), Values{8});
}

TEST(SafeListTest, StepOrReadPastTheEndRaisesAndKeepsTheListConsistent)
{
    List list = Make({1});
    const std::wstring message = L"Attempt to access passed the end of the list";
    EXPECT_EQ(RaisedMessage([&] { *list.end(); }), message);
    EXPECT_EQ(RaisedMessage([&] {
                  auto it = list.begin();
                  ++it;
                  ++it;
              }),
              message);
    EXPECT_EQ(list.IteratorCount(), 0);
    EXPECT_EQ(Walk(list), Values{1});
}

TEST(SafeListTest, CopiesTakeSettledValuesAndAssignmentAppends)
{
    List source = Make({1, 2});
    auto walking = source.begin();
    source.Add(3);
    List copy(source);
    EXPECT_EQ(Walk(copy), (Values{1, 2}));

    List target = Make({0});
    target = source;
    target = target;
    EXPECT_EQ(Walk(target), (Values{0, 1, 2}));
}

} // namespace Quilon_::Tests::SafeListTests
