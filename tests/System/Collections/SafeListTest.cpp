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

TEST(SafeListTest, ChangesDuringAWalkWaitUntilTheLastIteratorGoes)
{
    List list;
    for (int value : {1, 2, 3})
        list.Add(value);
    Values seen;
    for (auto it = list.begin(false), end = list.end(); it != end; ++it) {
        seen.push_back(*it);
        if (*it != 1)
            continue;
        list.Remove(2);
        list.Add(4);
        list.AddFront(0);
        EXPECT_EQ(list.Count(), 2) << "only settled values count";
        EXPECT_EQ(list.PendingCount(), 3);
        EXPECT_EQ(Walk(list, true), (Values{1, 3, 4})) << "pending additions are reached by steps, not by begin";
    }
    EXPECT_EQ(seen, (Values{1, 3}));
    EXPECT_EQ(list.Count(), 4);
    EXPECT_EQ(list.PendingCount(), 0);
    EXPECT_EQ(Walk(list), (Values{0, 1, 3, 4}));
    list.Remove(4); // settled: unlinked at once, the tail included
    list.Add(5);
    EXPECT_EQ(Walk(list), (Values{0, 1, 3, 5}));
}

TEST(SafeListTest, RemoveAllDuringAWalkEndsItAndStepsPastTheEndRaise)
{
    List list;
    list.Add(1);
    list.Add(2);
    Values seen;
    for (auto it = list.begin(false), end = list.end(); it != end; ++it) {
        seen.push_back(*it);
        list.RemoveAll();
        list.Add(7);
    }
    EXPECT_EQ(seen, Values{1});
    EXPECT_EQ(Walk(list), Values{7});

    const std::wstring message = L"Attempt to access passed the end of the list";
    EXPECT_EQ(RaisedMessage([&] { *list.end(); }), message);
    EXPECT_EQ(RaisedMessage([&] { ++list.end(); }), message);
    EXPECT_EQ(list.IteratorCount(), 0);
}

} // namespace Quilon_::Tests::SafeListTests
