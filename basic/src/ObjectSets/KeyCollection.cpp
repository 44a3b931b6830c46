// Lists of keys of one object set (KeyCollection::New): a plain ordered
// list; a key may appear once or more, and nothing checks that the set
// holds it, so that a list can be made before the rows it names.
#include "Quilon_/ObjectSets/KeyCollection.h"
#include "Quilon_/ObjectSets/ObjectSet.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Collections/CollectionImpl.h"
#include "Quilon_/System/ObjectImpl.h"

#include <algorithm>

namespace Quilon_::Basic::ObjectSets {

namespace {

using Quilon_::ObjectSets::IKeyCollection;
using Quilon_::ObjectSets::IObjectSet;
using Quilon_::ObjectSets::Key;
namespace CD = System::Collections::Template::Detail;

class CKeyCollection : public System::Template::ObjectImpl<CKeyCollection, IKeyCollection> {
public:
    CKeyCollection(System::Pointer<IObjectSet, 0> set, std::vector<Key> keys)
        : m_set(std::move(set)), m_keys(std::move(keys))
    {
    }

    std::int64_t Count() override { return static_cast<std::int64_t>(m_keys.size()); }

    std::int64_t IndexOf(const Key& key) override
    {
        auto found = std::find(m_keys.begin(), m_keys.end(), key);
        return found == m_keys.end() ? -1 : found - m_keys.begin();
    }

    Key Item(std::int64_t index) override { return m_keys[Checked(index)]; }
    void SetItem(std::int64_t index, const Key& key) override { m_keys[Checked(index)] = key; }

    std::int64_t Add(const Key& key) override
    {
        m_keys.push_back(key);
        return Count() - 1;
    }

    void Insert(std::int64_t index, const Key& key) override
    {
        if (index < 0 || index > Count())
            CD::RaiseInsertIndexOutOfRange(index);
        m_keys.insert(m_keys.begin() + index, key);
    }

    bool RemoveAt(std::int64_t index) override
    {
        if (index < 0 || index >= Count())
            return false;
        m_keys.erase(m_keys.begin() + index);
        return true;
    }

    bool Remove(const Key& key) override { return RemoveAt(IndexOf(key)); }
    void Clear() override { m_keys.clear(); }
    bool IsReadOnly() override { return false; }

private:
    std::size_t Checked(std::int64_t index)
    {
        if (index < 0 || index >= Count())
            CD::RaiseIndexOutOfRange(index);
        return static_cast<std::size_t>(index);
    }

    // Kept alive with the list: the keys mean something only in their set.
    System::Pointer<IObjectSet, 0> m_set;
    std::vector<Key> m_keys;
};

System::Ref<IKeyCollection> NewEmptyKeyCollection(System::Pointer<IObjectSet, 0> set)
{
    return System::Ref<IKeyCollection>(new CKeyCollection(std::move(set), {}));
}

System::Ref<IKeyCollection> NewKeyCollection(System::Pointer<IObjectSet, 0> set, const std::vector<Key>& keys)
{
    return System::Ref<IKeyCollection>(new CKeyCollection(std::move(set), keys));
}

void RegisterKeyCollections()
{
    Quilon_::ObjectSets::KeyCollection::New.Register(L"Key collection", &NewEmptyKeyCollection);
    Quilon_::ObjectSets::KeyCollection::New.Register(L"Key collection", &NewKeyCollection);
}

const System::Template::Initializer<::Library> keyCollections(&RegisterKeyCollections, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets
