// Collections: the order of events and hooks, the veto protocol, the
// read-only and duplicate rules, owners of items, and the untyped view.
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/TypeDictionary.h"

#include "../../Support/CollectionDoubles.h"
#include "../../Support/KernelDoubles.h"
#include "../../Support/Raised.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace Quilon_::Tests::Collections {

using namespace Quilon_::System;
namespace Coll = System::Collections;
using Coll::ICollection;
using Coll::ICollectionEvents;
using Coll::ICollectionItem;
using Kernel::IThing;
using Thing = Pointer<IThing, 1>;

using Store = Coll::Template::Detail::ICollectionImplBase<IThing>;
using Events = Coll::Template::ICollectionEventsImpl<ICollectionEvents>;
using TypedView = Coll::Template::Detail::ICollectionImpl<Coll::Template::ICollection<IThing>, IThing, Events, Store>;
using UntypedView = Coll::Template::Detail::ICollectionImpl<ICollection, Interface, Events, Store>;

// A collection of things with both views; notes its hooks in `hooks`.
class CThings : public System::Template::ObjectImpl<CThings, TypedView, UntypedView> {
public:
    CThings() = default;
    CThings(const CThings& other, bool deep) : Events(), Store(), ObjectImpl() { TypedView::CopyFrom(other, deep); }

    void SetReadOnly(bool readOnly) { m_readOnly = readOnly; }
    void OnItemAdded(Thing item) override { hooks.push_back("added " + std::to_string(item->Value())); }
    void OnItemRemoved(Thing item) override { hooks.push_back("removed " + std::to_string(item->Value())); }

    std::vector<std::string> hooks;
};

// An item that knows its owner.
class CMember : public System::Template::ObjectImpl<CMember, IThing, ICollectionItem> {
public:
    explicit CMember(int value = 0) : m_value(value) {}
    int Value() override { return m_value; }
    Interface* Owner() override { return m_owner; }
    void SetOwner(Interface* owner) override { m_owner = owner; }

private:
    int m_value;
    Interface* m_owner = nullptr;
};

// Implements neither IThing nor ICollectionItem.
class COtherOnly : public System::Template::ObjectImpl<COtherOnly, Kernel::IOther> {
public:
    int Other() override { return 0; }
};

class CollectionTest : public RaisingTest {
protected:
    // Listeners are held until the end of the test.
    CCollectionListener* Listener()
    {
        auto* made = new CCollectionListener;
        held.push_back(Pointer<IThing, 1>(made));
        return made;
    }
    std::vector<Pointer<IThing, 1>> held;
    CThings* things = new CThings;
    Pointer<Coll::Template::ICollection<IThing>, 1> view{things};
    CCollectionListener* listener = Listener();
    Thing a{new Kernel::CThing(nullptr, 1)}, b{new Kernel::CThing(nullptr, 2)}, c{new Kernel::CThing(nullptr, 3)};

    void Fill()
    {
        view->Add(a);
        view->Add(b);
        things->hooks.clear();
    }
    std::vector<Thing> Items()
    {
        std::vector<Thing> items;
        for (std::int64_t i = 0; i < view->Count(); ++i)
            items.push_back(view->Item(i));
        return items;
    }
};

TEST_F(CollectionTest, ChangesFireBeforeAndAfterOnOneArgsObjectAndReleaseTheItemsAfterwards)
{
    listener->ListenTo(*things);
    std::vector<Args> seen;
    listener->onCall = [&](const std::string&, Args& args) { seen.push_back(args); };

    EXPECT_EQ(view->Add(a), 0);
    EXPECT_EQ(view->Add(b), 1);
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[2].Get(), seen[3].Get());
    EXPECT_EQ(seen[3]->Index(), 1);
    EXPECT_EQ(seen[3]->Key().CastTo<std::int64_t>(), 1);
    // The item has been let go after the after-event; the key stays.
    EXPECT_TRUE(seen[3]->Item().IsEmpty());

    listener->onCall = [&](const std::string& event, Args& args) {
        if (event == "ItemModifying") {
            EXPECT_EQ(args->Item().CastTo<Thing>(), c);
            EXPECT_EQ(args->PreviousItem().CastTo<Thing>(), a);
        }
    };
    view->SetItem(0, c);
    view->Insert(0, a);
    EXPECT_TRUE(view->RemoveAt(2));
    view->Clear();
    EXPECT_EQ(listener->calls,
              (std::vector<std::string>{"ItemInserting 0", "ItemInserted 5", "ItemInserting 0", "ItemInserted 5",
                                        "ItemModifying 2", "ItemModified 7", "ItemInserting 0", "ItemInserted 5",
                                        "ItemRemoving 1", "ItemRemoved 6", "Clearing 3", "Clearing 4",
                                        "Cleared 8"}));
    EXPECT_EQ(things->hooks, (std::vector<std::string>{"added 1", "added 2", "removed 1", "added 3", "added 1",
                                                       "removed 2", "removed 1", "removed 3"}));
}

TEST_F(CollectionTest, VetoRaisesAfterAllListenersRanWithTheLastReasonAndLeavesTheStoreUnchanged)
{
    Fill();
    CCollectionListener* second = Listener();
    listener->ListenTo(*things);
    second->ListenTo(*things);
    listener->onCall = Veto(L"first");
    // Allowing again cannot take the veto back.
    second->onCall = [](const std::string&, Args& args) {
        args->SetAllowed(true);
        args->SetReason(L"100% second");
    };

    EXPECT_EQ(RaisedMessage([&] { view->Add(c); }), L"Collection item insertion denied: 100% second");
    EXPECT_EQ(RaisedMessage([&] { view->Insert(0, c); }), L"Collection item insertion denied: 100% second");
    EXPECT_EQ(RaisedMessage([&] { view->SetItem(0, c); }), L"Collection item modification denied: 100% second");
    EXPECT_EQ(RaisedMessage([&] { view->RemoveAt(1); }), L"Collection item removal denied: 100% second");
    EXPECT_EQ(RaisedMessage([&] { view->Remove(a); }), L"Collection item removal denied: 100% second");
    Pointer<IException, 0> clearing = Raised([&] { view->Clear(); });
    ASSERT_TRUE(clearing);
    EXPECT_EQ(clearing->Message(), L"Collection clearing denied: 100% second");
    EXPECT_EQ(clearing->File(), L"System/Collections/Collection.cpp");

    EXPECT_EQ(second->calls, listener->calls);
    for (const std::string& call : listener->calls)
        EXPECT_TRUE(call.find("ing ") != std::string::npos) << call; // no after-event fired
    EXPECT_EQ(Items(), (std::vector<Thing>{a, b}));
    EXPECT_TRUE(things->hooks.empty());

    // A listener that throws passes through the same way.
    listener->onCall = [](const std::string&, Args&) { throw 7; };
    EXPECT_THROW(view->Add(c), int);
    EXPECT_EQ(Items(), (std::vector<Thing>{a, b}));
}

TEST_F(CollectionTest, ReadOnlyRefusesChangesButNotChangesThatChangeNothing)
{
    listener->ListenTo(*things);
    things->SetReadOnly(true);
    EXPECT_TRUE(view->IsReadOnly());
    view->Clear();                  // empty: nothing to refuse
    EXPECT_FALSE(view->Remove(a));  // absent: nothing to refuse
    EXPECT_EQ(RaisedMessage([&] { view->Add(a); }), L"Collection is read-only");

    things->SetReadOnly(false);
    Fill();
    things->SetReadOnly(true);
    EXPECT_FALSE(view->Remove(c));
    EXPECT_EQ(RaisedMessage([&] { view->Clear(); }), L"Collection is read-only");
    // Read-only is tested before the index.
    EXPECT_EQ(RaisedMessage([&] { view->RemoveAt(9); }), L"Collection is read-only");
    EXPECT_EQ(RaisedMessage([&] { view->SetItem(0, c); }), L"Collection is read-only");
    EXPECT_EQ(listener->calls, (std::vector<std::string>{"ItemInserting 0", "ItemInserted 5", "ItemInserting 0",
                                                         "ItemInserted 5"}));
}

TEST_F(CollectionTest, IndexesAreCheckedSignedForInsertAndUnsignedElsewhere)
{
    Fill();
    EXPECT_EQ(RaisedMessage([&] { view->Insert(3, c); }), L"Index is out of range (3)");
    view->Insert(2, c); // Count() appends
    EXPECT_EQ(Items(), (std::vector<Thing>{a, b, c}));
    EXPECT_EQ(RaisedMessage([&] { view->Item(-1); }), L"Collection index is out of range (-1)");
    EXPECT_EQ(RaisedMessage([&] { view->SetItem(5, Thing(new Kernel::CThing)); }),
              L"Collection index is out of range (5)");
    EXPECT_EQ(RaisedMessage([&] { view->RemoveAt(-2); }), L"Collection index is out of range (-2)");
    EXPECT_EQ(view->Count(), 3);
}

TEST_F(CollectionTest, DuplicatesAreRefusedBeforeAnyEventUnlessAllowed)
{
    Fill();
    listener->ListenTo(*things);
    EXPECT_EQ(RaisedMessage([&] { view->Add(a); }), L"Item is already in the collection");
    EXPECT_EQ(RaisedMessage([&] { view->SetItem(1, a); }), L"Item is already in the collection");
    // Putting an item back in its own place is no change, duplicates forbidden or not.
    view->SetItem(0, view->Item(0));
    EXPECT_TRUE(listener->calls.empty());
    EXPECT_TRUE(things->hooks.empty());

    view->SetAllowMultipleInsertion(true);
    view->Add(a);
    EXPECT_EQ(view->IndexOf(a), 0);
    EXPECT_TRUE(view->Remove(a)); // the first occurrence
    EXPECT_EQ(Items(), (std::vector<Thing>{b, a}));
    EXPECT_EQ(view->IndexOf(c), -1);
}

TEST_F(CollectionTest, DisabledEventsBeforeOrDuringAChangeFireNothingMoreButHooksAndChecksRemain)
{
    listener->ListenTo(*things);
    Pointer<IDisableEvents, 1> switchable(things);
    switchable->SetEventsDisabled(true);
    EXPECT_TRUE(switchable->EventsDisabled());
    listener->onCall = Veto(L"never asked");

    CMember* member = new CMember(4);
    Thing held(member);
    view->Add(a);
    view->Add(held);
    EXPECT_EQ(member->Owner(), static_cast<Interface*>(view.Get()));
    EXPECT_EQ(RaisedMessage([&] { view->Add(a); }), L"Item is already in the collection");
    view->Clear();
    EXPECT_EQ(member->Owner(), nullptr);
    EXPECT_TRUE(listener->calls.empty());
    EXPECT_EQ(things->hooks, (std::vector<std::string>{"added 1", "added 4", "removed 1", "removed 4"}));

    // Switched off by a before-listener, a change goes on without its after-event.
    Fill();
    things->hooks.clear();
    listener->onCall = [&](const std::string&, Args&) { switchable->SetEventsDisabled(true); };
    const std::function<void()> changes[] = {[&] { view->Add(c); }, [&] { view->SetItem(0, held); },
                                             [&] { view->RemoveAt(0); }, [&] { view->Clear(); }};
    for (const auto& change : changes) {
        switchable->SetEventsDisabled(false);
        change();
    }
    EXPECT_EQ(listener->calls, (std::vector<std::string>{"ItemInserting 0", "ItemModifying 2", "ItemRemoving 1",
                                                         "Clearing 3", "Clearing 4"}));
    EXPECT_EQ(things->hooks,
              (std::vector<std::string>{"added 3", "removed 1", "added 4", "removed 4", "removed 2", "removed 3"}));
}

TEST_F(CollectionTest, AnItemKeepsItsFirstOwnerAndLosesItOnAnyRemoval)
{
    Pointer<Coll::Template::ICollection<IThing>, 1> other(new CThings);
    CMember* member = new CMember;
    Thing held(member);
    view->Add(held);
    other->Add(held);
    EXPECT_EQ(member->Owner(), static_cast<Interface*>(view.Get()));
    other->Remove(held);
    EXPECT_EQ(member->Owner(), nullptr);

    // Replacing does not detach the item replaced.
    other->Add(held);
    other->SetItem(0, c);
    EXPECT_EQ(member->Owner(), static_cast<Interface*>(other.Get()));
}

TEST_F(CollectionTest, TheUntypedViewSharesTheStoreAndRefusesItemsOfOtherInterfaces)
{
    Fill();
    listener->ListenTo(*things);
    Pointer<ICollection, 1> untyped(things);
    EXPECT_EQ(untyped->Item(1), b);
    EXPECT_EQ(untyped->IndexOf(Pointer<Interface, 1>(b)), 1);
    Pointer<Interface, 1> stranger(new Kernel::CBoth);
    untyped->Add(stranger); // a CBoth is an IThing too
    EXPECT_EQ(view->Item(2), stranger);

    Pointer<Interface, 1> notAThing(new COtherOnly);
    Pointer<IException, 0> refused = Raised([&] { untyped->Add(notAThing); });
    EXPECT_TRUE(refused);
    EXPECT_EQ(view->Count(), 3);
    EXPECT_TRUE((ICollection::GetType() == Type::Types()->Item(L"Quilon_::System::Collections::ICollection")));
    EXPECT_EQ((Coll::Template::ICollection<IThing>::GetType().Name()),
              L"Quilon_::System::Collections::Template::ICollection<Quilon_::Tests::Kernel::IThing>");
}

TEST_F(CollectionTest, CopiesTakeFlagsAndItemsWithoutEventsAndCloneWhenDeep)
{
    Pointer<Kernel::IThing, 1> cloneable(new Kernel::CCloneableThing(5));
    view->Add(cloneable);
    view->SetAllowMultipleInsertion(true);
    listener->ListenTo(*things);

    Pointer<ICollection, 1> shallow(new CThings(*things, false));
    Pointer<Coll::Template::ICollection<IThing>, 1> deep(new CThings(*things, true));
    EXPECT_TRUE(listener->calls.empty());
    EXPECT_TRUE(shallow->AllowMultipleInsertion());
    EXPECT_EQ(shallow->Item(0), cloneable);
    Thing copied = deep->Item(0);
    EXPECT_FALSE(copied == cloneable);
    EXPECT_EQ(copied->Value(), 5);

    view->Add(a); // not cloneable
    EXPECT_EQ(RaisedMessage([&] { Pointer<ICollection, 1> failed(new CThings(*things, true)); }),
              L"Class 'Quilon_::Tests::Kernel::IThing' does not implement ICloneable");
}

} // namespace Quilon_::Tests::Collections
