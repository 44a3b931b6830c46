// The per-thread settings of object sets: what a new thread starts from,
// what the main thread's writes change, and how the factory table is
// copied for each thread.
#include "Quilon_/ObjectSets/Globals.h"
#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/DataType.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Threading/ThreadId.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"
#include "ObjectSetDoubles.h"

#include <gtest/gtest.h>

#include <future>
#include <utility>

namespace Quilon_::Tests::ObjectSetGlobals {

using namespace Quilon_::ObjectSets;
using System::Pointer;
using System::Ref;

template <class Code>
auto OnNewThread(Code code)
{
    return std::async(std::launch::async, code).get();
}

// A factory table kept in insertion order, cloneable or not.
template <class Derived, class... Extra>
class FactoryTableBase : public System::Template::ObjectImpl<Derived, IAttributeFactoryDictionary, Extra...> {
public:
    std::int64_t Count() override { return static_cast<std::int64_t>(m_rows.size()); }
    AttributeFactory Item(const System::Type& type) override { return *Find(type); }
    void SetItem(const System::Type& type, const AttributeFactory& factory) override { Add(type, factory); }
    void Add(const System::Type& type, const AttributeFactory& factory) override
    {
        m_rows.emplace_back(type, factory);
    }
    bool Remove(const System::Type&) override { ObjectSetDoubles::NotInDouble(); }
    void Clear() override { m_rows.clear(); }
    bool ContainsKey(const System::Type& type) override { return Find(type) != nullptr; }
    std::vector<System::Type> Keys() override
    {
        std::vector<System::Type> types;
        for (auto& row : m_rows)
            types.push_back(row.first);
        return types;
    }
    bool IsReadOnly() override { return false; }
    bool Supports(const System::Type& type) override { return ContainsKey(type); }
    Ref<IAttribute> Create(const System::Type& type, const System::LIString& name) override
    {
        return (*Find(type))(name);
    }

protected:
    const AttributeFactory* Find(const System::Type& type) const
    {
        for (auto& row : m_rows)
            if (row.first == type)
                return &row.second;
        return nullptr;
    }
    std::vector<std::pair<System::Type, AttributeFactory>> m_rows;
};

class CPlainFactoryTable : public FactoryTableBase<CPlainFactoryTable> {};

class CCloneableFactoryTable : public FactoryTableBase<CCloneableFactoryTable, System::ICloneable> {
public:
    Pointer<System::ICloneable, 1> Clone() override
    {
        auto* copy = new CCloneableFactoryTable;
        for (auto& row : m_rows)
            copy->m_rows.emplace_back(row);
        return Pointer<System::ICloneable, 1>(copy);
    }
};

Ref<IAttribute> NewFloatColumn(const System::LIString& name)
{
    return ObjectSetDoubles::DetachedColumn(name, DataTypeOf<float>());
}

bool HasFactoryTable()
{
    return static_cast<bool>(Pointer<IAttributeFactoryDictionary, 0>(Globals::AttributeFactories()));
}

class ObjectSetGlobals : public RaisingTest {
protected:
    void SetUp() override
    {
        ASSERT_EQ(System::Threading::CurrentThreadId(), System::Threading::MainThreadId());
    }
    void TearDown() override
    {
        Globals::ClearAttributeFactories();
        Globals::ClearCaseSensitiveAttributes();
        Globals::ClearPrefixMeasurementAttributes();
        RaisingTest::TearDown();
    }
};

TEST_F(ObjectSetGlobals, StartFromTheDocumentedDefaults)
{
    EXPECT_FALSE(Globals::CaseSensitiveAttributes());
    EXPECT_TRUE(Globals::PrefixMeasurementAttributes());
    EXPECT_FALSE(HasFactoryTable());
    // Emptying a table that does not exist does nothing.
    Globals::ClearCollectionAttributeFactories();
}

TEST_F(ObjectSetGlobals, AnotherThreadsWriteStaysWithThatThread)
{
    OnNewThread([] {
        Globals::SetCaseSensitiveAttributes(true);
        return Globals::CaseSensitiveAttributes();
    });
    EXPECT_FALSE(OnNewThread([] { return Globals::CaseSensitiveAttributes(); }));
    EXPECT_FALSE(Globals::CaseSensitiveAttributes());
}

TEST_F(ObjectSetGlobals, MainThreadWritesReachThreadsThatReadLater)
{
    // A thread that has read keeps its copy; one that reads later sees the
    // main thread's write.
    std::promise<void> written;
    std::promise<bool> firstRead;
    std::future<bool> firstReadValue = firstRead.get_future();
    auto early = std::async(std::launch::async, [&] {
        firstRead.set_value(Globals::PrefixMeasurementAttributes());
        written.get_future().wait();
        return Globals::PrefixMeasurementAttributes();
    });
    EXPECT_TRUE(firstReadValue.get());
    Globals::SetPrefixMeasurementAttributes(false);
    written.set_value();
    EXPECT_TRUE(early.get());
    EXPECT_FALSE(OnNewThread([] { return Globals::PrefixMeasurementAttributes(); }));

    Globals::ClearPrefixMeasurementAttributes();
    EXPECT_TRUE(Globals::PrefixMeasurementAttributes());
    EXPECT_TRUE(OnNewThread([] { return Globals::PrefixMeasurementAttributes(); }));
}

TEST_F(ObjectSetGlobals, EachThreadGetsItsOwnCloneOfTheFactoryTable)
{
    Ref<IAttributeFactoryDictionary> table(new CCloneableFactoryTable);
    table->Add(DataTypeOf<float>(), AttributeFactory(L"Test float column", &NewFloatColumn));
    Globals::SetAttributeFactories(table);
    EXPECT_EQ(Globals::AttributeFactories().Get(), table.Get());

    const auto [sameObject, name, countAfterClearing] = OnNewThread([&] {
        Ref<IAttributeFactoryDictionary> own = Globals::AttributeFactories();
        const bool same = own.Get() == table.Get();
        const std::wstring made = own->Create(DataTypeOf<float>(), L"Area")->Name().Value();
        Globals::ClearCollectionAttributeFactories();
        return std::make_tuple(same, made, own->Count());
    });
    EXPECT_FALSE(sameObject);
    EXPECT_EQ(name, L"Area");
    EXPECT_EQ(countAfterClearing, 0);
    EXPECT_EQ(table->Count(), 1);

    Globals::ClearAttributeFactories();
    EXPECT_FALSE(HasFactoryTable());
    EXPECT_FALSE(OnNewThread([] {
        return static_cast<bool>(Pointer<IAttributeFactoryDictionary, 0>(Globals::AttributeFactories()));
    }));
}

TEST_F(ObjectSetGlobals, AFactoryTableThatCannotBeClonedFailsInOtherThreads)
{
    Globals::SetAttributeFactories(Ref<IAttributeFactoryDictionary>(new CPlainFactoryTable));
    const std::wstring message =
        OnNewThread([] { return RaisedMessage([] { Globals::AttributeFactories(); }); });
    EXPECT_EQ(message,
              L"Class 'Quilon_::ObjectSets::IAttributeFactoryDictionary' does not implement ICloneable");
    OnNewThread([] { return Library::ErrorManager()->TakeLastError(); });
}

TEST(ObjectSetGlobalsLifetime, LibraryEndClearsTheSettings)
{
    InChildProcess([] {
        StartBasic();
        EXPECT_TRUE(HasFactoryTable());
        Globals::SetCaseSensitiveAttributes(true);
        Library::Finalize(nullptr);
        EXPECT_FALSE(HasFactoryTable());
        EXPECT_FALSE(Globals::CaseSensitiveAttributes());
    });
}

TEST_F(ObjectSetGlobals, AnEmptyAttributeFactoryNamesItselfWhenCalled)
{
    AttributeFactory empty;
    EXPECT_FALSE(empty.CheckImplemented(false));
    const std::wstring message = RaisedMessage([&] { empty(L"Area"); });
    EXPECT_EQ(message.rfind(L"No implementation available for function 'AttributeFactory'", 0), 0u)
        << message;
    const AttributeFactory original(&NewFloatColumn);
    const AttributeFactory copied(original);
    EXPECT_EQ(copied(L"Perimeter")->DataType(), DataTypeOf<float>());
}

} // namespace Quilon_::Tests::ObjectSetGlobals
