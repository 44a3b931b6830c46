#include "Quilon_/System/Equatable.h"

#include "../Support/KernelDoubles.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Quilon_::Tests::EquatableTests {

using namespace Kernel;
using System::Interface;
using System::Pointer;

// Answers Equals with a fixed value and logs each question as
// "<name> asked about <other's name>".
class CEquatable : public System::Template::ObjectImpl<CEquatable, IThing, System::IEquatable> {
public:
    CEquatable(std::string name, bool answer, std::vector<std::string>& log)
        : m_name(std::move(name)), m_answer(answer), m_log(log)
    {
    }
    int Value() override { return 0; }
    bool Equals(Pointer<Interface, 1> other) override
    {
        Pointer<IThing, 0> thing(other);
        auto* equatable = dynamic_cast<CEquatable*>(thing.Get());
        m_log.push_back(m_name + " asked about " + (equatable ? equatable->m_name : "?"));
        return m_answer;
    }

private:
    std::string m_name;
    bool m_answer;
    std::vector<std::string>& m_log;
};

using Log = std::vector<std::string>;

TEST(EqualsTest, SameObjectIsEqualWithoutAsking)
{
    Log log;
    Pointer<IThing, 1> plain(new CThing);
    EXPECT_TRUE(System::Equals(plain, plain));
    EXPECT_TRUE(System::Equals(nullptr, nullptr));

    // Held through different interfaces, and never equal to itself by its
    // own answer.
    Pointer<IThing, 1> thing(new CEquatable("a", false, log));
    Pointer<System::IEquatable, 1> equatable(thing);
    EXPECT_TRUE(System::Equals(thing, equatable));
    EXPECT_TRUE(log.empty());
}

TEST(EqualsTest, ObjectsWithoutIEquatableOnBothSidesAreNotEqual)
{
    Log log;
    Pointer<IThing, 1> plain(new CThing);
    Pointer<IThing, 1> otherPlain(new CThing);
    Pointer<IThing, 1> equatable(new CEquatable("a", true, log));

    EXPECT_FALSE(System::Equals(plain, otherPlain));
    EXPECT_FALSE(System::Equals(plain, equatable));
    EXPECT_FALSE(System::Equals(equatable, plain));
    EXPECT_FALSE(System::Equals(equatable, nullptr));
    EXPECT_FALSE(System::Equals(nullptr, equatable));
    EXPECT_TRUE(log.empty());
}

TEST(EqualsTest, BothDirectionsMustAgree)
{
    Log log;
    Pointer<IThing, 1> yes(new CEquatable("yes", true, log));
    Pointer<IThing, 1> alsoYes(new CEquatable("alsoYes", true, log));
    Pointer<IThing, 1> no(new CEquatable("no", false, log));

    EXPECT_TRUE(System::Equals(yes, alsoYes));
    EXPECT_EQ(log, (Log{"yes asked about alsoYes", "alsoYes asked about yes"}));

    log.clear();
    EXPECT_FALSE(System::Equals(yes, no));
    EXPECT_EQ(log, (Log{"yes asked about no", "no asked about yes"}));

    log.clear();
    EXPECT_FALSE(System::Equals(no, yes));
    EXPECT_EQ(log, Log{"no asked about yes"}) << "the second direction is not asked after a false";
}

} // namespace Quilon_::Tests::EquatableTests
