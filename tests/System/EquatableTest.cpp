// System::Equals: identity first, then both objects must agree.
#include "Quilon_/System/Equatable.h"

#include "../Support/KernelDoubles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Quilon_::Tests::EquatableTests {

using namespace Kernel;
using System::Equals;
using System::Pointer;
using Log = std::vector<std::string>;

// Answers Equals with a fixed value and logs each question as
// "<name> asked about <other's value>".
class CEquatable : public System::Template::ObjectImpl<CEquatable, IThing, System::IEquatable> {
public:
    CEquatable(int name, bool answer, Log& log) : m_name(name), m_answer(answer), m_log(log) {}
    int Value() override { return m_name; }
    bool Equals(Pointer<System::Interface, 1> other) override
    {
        m_log.push_back(std::to_string(m_name) + " asked about " + std::to_string(Pointer<IThing, 1>(other)->Value()));
        return m_answer;
    }

private:
    int m_name;
    bool m_answer;
    Log& m_log;
};

TEST(EqualsTest, SameObjectIsEqualWithoutAskingOthersWhenBothSidesAgree)
{
    Log log;
    Pointer<IThing, 1> plain(new CThing);
    Pointer<IThing, 1> equatable(new CEquatable(1, false, log));
    EXPECT_TRUE(Equals(plain, plain));
    EXPECT_TRUE(Equals(nullptr, nullptr));
    EXPECT_TRUE(Equals(equatable, Pointer<System::IEquatable, 1>(equatable)));

    Pointer<IThing, 1> yes(new CEquatable(2, true, log));
    EXPECT_FALSE(Equals(plain, Pointer<IThing, 1>(new CThing)));
    EXPECT_FALSE(Equals(plain, yes));
    EXPECT_FALSE(Equals(yes, plain));
    EXPECT_FALSE(Equals(yes, nullptr));
    EXPECT_TRUE(log.empty());

    // Otherwise both directions must agree.
    Pointer<IThing, 1> alsoYes(new CEquatable(3, true, log));
    EXPECT_TRUE(Equals(yes, alsoYes));
    EXPECT_FALSE(Equals(yes, equatable));
    EXPECT_FALSE(Equals(equatable, yes));
    EXPECT_EQ(log, (Log{"2 asked about 3", "3 asked about 2", "2 asked about 1", "1 asked about 2", "1 asked about 2"}))
        << "the second direction is not asked after a false";
}

} // namespace Quilon_::Tests::EquatableTests
