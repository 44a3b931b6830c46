// Dictionaries: where their order of checks and events differs from that
// of collections, their own messages, and the type dictionary on them.
#include "Quilon_/System/Collections/ValueDictionaryImpl.h"
#include "Quilon_/System/TypeDictionary.h"

#include "../../Support/CollectionDoubles.h"
#include "../../Support/Raised.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace Quilon_::System::Collections::Template {
template <>
const Type& IValueDictionary<std::wstring, std::int64_t>::GetType()
{
    static const Type type{Type::ReferenceType<IValueDictionary<std::wstring, std::int64_t>>(
        L"Quilon_::Tests::Collections::IValueDictionary<std::wstring,__int64>")};
    return type;
}
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Tests::Collections {

using namespace Quilon_::System;
namespace Coll = System::Collections;
using Counts = Coll::Template::IValueDictionary<std::wstring, std::int64_t>;

// An ordered map keeps Keys() predictable.
class CCounts : public System::Template::ObjectImpl<
                    CCounts, Coll::Template::IValueDictionaryImpl<Counts, std::map<std::wstring, std::int64_t>>> {
public:
    void SetReadOnly(bool readOnly) { m_readOnly = readOnly; }
};

class DictionaryTest : public RaisingTest {
protected:
    CCounts* counts = new CCounts;
    Pointer<Counts, 1> dictionary{counts};
    CCollectionListener* listener = new CCollectionListener;
    Pointer<Kernel::IThing, 1> heldListener{listener};
};

TEST_F(DictionaryTest, KeyedArgsAndTheOrderOfEvents)
{
    listener->ListenTo(*counts);
    std::vector<Args> seen;
    listener->onCall = [&](const std::string&, Args& args) { seen.push_back(args); };

    dictionary->SetItem(L"a", 1); // absent: an insertion
    dictionary->SetItem(L"a", 2);
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[2]->Index(), -1);
    EXPECT_EQ(seen[2]->Key().CastTo<std::wstring>(), L"a");
    // New value first, then the old; dictionaries do not release them.
    EXPECT_EQ(seen[3]->Item().CastTo<std::int64_t>(), 2);
    EXPECT_EQ(seen[3]->PreviousItem().CastTo<std::int64_t>(), 1);

    dictionary->Add(L"b", 3);
    EXPECT_TRUE(dictionary->Remove(L"a"));
    EXPECT_FALSE(dictionary->Remove(L"zz"));
    dictionary->Clear();
    EXPECT_EQ(listener->calls,
              (std::vector<std::string>{"ItemInserting 0", "ItemInserted 5", "ItemModifying 2", "ItemModified 7",
                                        "ItemInserting 0", "ItemInserted 5", "ItemRemoving 1", "ItemRemoved 6",
                                        "Clearing 3", "Clearing 4", "Cleared 8"}));
    EXPECT_EQ(dictionary->Count(), 0);
}

TEST_F(DictionaryTest, ADuplicateKeyIsFoundOnlyAfterListenersSawTheInsertion)
{
    dictionary->Add(L"a", 1);
    listener->ListenTo(*counts);
    Pointer<IException, 0> duplicate = Raised([&] { dictionary->Add(L"a", 2); });
    ASSERT_TRUE(duplicate);
    EXPECT_EQ(duplicate->Message(), L"There is already an item of key a");
    EXPECT_EQ(duplicate->File(), L"System/Collections/Dictionary.cpp");
    EXPECT_EQ(listener->calls, (std::vector<std::string>{"ItemInserting 0"}));
    EXPECT_EQ(dictionary->Item(L"a"), 1);
    EXPECT_EQ(RaisedMessage([&] { dictionary->Item(L"b"); }), L"The dictionary does not contain key 'b'");
}

TEST_F(DictionaryTest, VetoesUseTheDictionaryTextsWithTheBlankBeforeTheColon)
{
    dictionary->Add(L"a", 1);
    listener->ListenTo(*counts);
    listener->onCall = Veto(L"no");
    EXPECT_EQ(RaisedMessage([&] { dictionary->Add(L"b", 2); }), L"Item insertion denied : no");
    EXPECT_EQ(RaisedMessage([&] { dictionary->SetItem(L"a", 2); }), L"Item modification denied : no");
    EXPECT_EQ(RaisedMessage([&] { dictionary->Remove(L"a"); }), L"Item removal denied : no");
    EXPECT_EQ(RaisedMessage([&] { dictionary->Clear(); }), L"Clearing dictionary denied : no");
    EXPECT_EQ(dictionary->Keys(), std::vector<std::wstring>{L"a"});
    EXPECT_EQ(dictionary->Item(L"a"), 1);

    // Disabled events ask nobody.
    Pointer<IDisableEvents, 1> switchable(counts);
    switchable->SetEventsDisabled(true);
    dictionary->SetItem(L"a", 5);
    EXPECT_EQ(dictionary->Item(L"a"), 5);
    EXPECT_EQ(listener->calls.size(), 4u);

    // Switched off by the before-listener, a change has no after-event.
    listener->calls.clear();
    listener->onCall = [&](const std::string&, Args&) { switchable->SetEventsDisabled(true); };
    const std::function<void()> changes[] = {[&] { dictionary->Add(L"b", 1); },
                                             [&] { dictionary->SetItem(L"b", 2); },
                                             [&] { dictionary->Remove(L"a"); }, [&] { dictionary->Clear(); }};
    for (const auto& change : changes) {
        switchable->SetEventsDisabled(false);
        change();
    }
    EXPECT_EQ(listener->calls, (std::vector<std::string>{"ItemInserting 0", "ItemModifying 2",
                                                         "ItemRemoving 1", "Clearing 3", "Clearing 4"}));
    EXPECT_EQ(dictionary->Count(), 0);
}

TEST_F(DictionaryTest, ReadOnlyIsTestedFirstExceptWhenClearingAnEmptyDictionary)
{
    counts->SetReadOnly(true);
    dictionary->Clear();
    // Unlike a collection, removing an absent key is refused.
    EXPECT_EQ(RaisedMessage([&] { dictionary->Remove(L"absent"); }), L"Dictionary is read-only");
    EXPECT_EQ(RaisedMessage([&] { dictionary->SetItem(L"a", 1); }), L"Dictionary is read-only");
    EXPECT_EQ(RaisedMessage([&] { dictionary->Add(L"a", 1); }), L"Dictionary is read-only");
    EXPECT_TRUE(dictionary->IsReadOnly());
}

TEST(TypeDictionaryTest, PublicChangesFireEventsWhileRegistrationDoesNot)
{
    Pointer<ITypeDictionary, 1> types = Type::Types();
    auto* listener = new CCollectionListener;
    Pointer<Kernel::IThing, 1> held(listener);
    listener->ListenTo(*Pointer<Coll::ICollectionEvents, 1>(types));

    Type registered{Type::ValueType(L"Quilon_::Tests::Collections::Registered")};
    EXPECT_TRUE(types->ContainsKey(registered.Name()));
    types->Add(L"Quilon_::Tests::Collections::Added", registered);
    EXPECT_TRUE(types->Remove(L"Quilon_::Tests::Collections::Added"));
    EXPECT_EQ(listener->calls, (std::vector<std::string>{"ItemInserting 0", "ItemInserted 5", "ItemRemoving 1",
                                                         "ItemRemoved 6"}));
}

} // namespace Quilon_::Tests::Collections
