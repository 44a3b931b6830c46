#include "Quilon_/System/Collections/CollectionEventArgs.h"

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Type.h"

#include <array>
#include <utility>

namespace Quilon_::System::Collections {

QUILON_DEFINE_INTERFACE_TYPE(ICollectionEventArgs, L"Quilon_::System::Collections::ICollectionEventArgs",
                             IEventArgs)
QUILON_DEFINE_INTERFACE_TYPE(ICollectionEventArgsInternal,
                             L"Quilon_::System::Collections::ICollectionEventArgsInternal", IEventArgs)

std::wstring ToString(CollectionEventTypeEnum type)
{
    static const std::array<const wchar_t*, 9> names = {
        L"cetInserting", L"cetRemoving", L"cetModifying", L"cetClearing", L"cetClearConfirmed",
        L"cetInserted",  L"cetRemoved",  L"cetModified",  L"cetCleared"};
    if (type < 0 || static_cast<std::size_t>(type) >= names.size())
        return std::wstring();
    return names[static_cast<std::size_t>(type)];
}

class CCollectionEventArgs
    : public System::Template::ObjectImpl<CCollectionEventArgs, ICollectionEventArgs, ICollectionEventArgsInternal> {
public:
    CCollectionEventArgs(CollectionEventTypeEnum type, std::int64_t index, Any key, Any item, Any previous)
        : m_type(type), m_index(index), m_key(std::move(key)), m_item(std::move(item)),
          m_previous(std::move(previous))
    {
    }

    CollectionEventTypeEnum EventType() override { return m_type; }
    void SetEventType(CollectionEventTypeEnum type) override { m_type = type; }
    std::int64_t Index() override { return m_index; }
    Any Key() override { return m_key; }
    Any& Item() override { return m_item; }
    Any& PreviousItem() override { return m_previous; }
    bool Allowed() override { return m_allowed; }
    // A veto cannot be taken back by a later listener.
    void SetAllowed(bool allowed) override { m_allowed = m_allowed && allowed; }
    std::wstring Reason() override { return m_reason; }
    void SetReason(const std::wstring& reason) override { m_reason = reason; }

    void SetIndex(std::int64_t index) override { m_index = index; }
    void SetKey(const Any& key) override { m_key = key; }
    void SetItem(const Any& item) override { m_item = item; }
    void SetPreviousItem(const Any& previous) override { m_previous = previous; }
    void ReleaseItems() override
    {
        m_item = Any();
        m_previous = Any();
    }

private:
    CollectionEventTypeEnum m_type;
    std::int64_t m_index;
    Any m_key;
    Any m_item;
    Any m_previous;
    bool m_allowed = true;
    std::wstring m_reason;
};

namespace {

using CollectionEventArgs::Made;

Made Make(CollectionEventTypeEnum type, std::int64_t index, Any key, Any item, Any previous)
{
    return Made(new CCollectionEventArgs(type, index, std::move(key), std::move(item), std::move(previous)));
}

Made NewEmpty(CollectionEventTypeEnum type)
{
    return Make(type, -1, Any(), Any(), Any());
}

Made NewAtIndex(CollectionEventTypeEnum type, std::int64_t index, const Any& item)
{
    return Make(type, index, ToAny(index), item, Any());
}

Made NewAtIndexReplacing(CollectionEventTypeEnum type, std::int64_t index, const Any& item, const Any& previous)
{
    return Make(type, index, ToAny(index), item, previous);
}

Made NewForKey(CollectionEventTypeEnum type, const Any& key, const Any& item)
{
    return Make(type, -1, key, item, Any());
}

Made NewForKeyReplacing(CollectionEventTypeEnum type, const Any& key, const Any& item, const Any& previous)
{
    return Make(type, -1, key, item, previous);
}

} // namespace

CollectionEventArgs::Factory::Factory()
{
    Register(L"CCollectionEventArgs", &NewEmpty);
    Register(L"CCollectionEventArgs", &NewAtIndex);
    Register(L"CCollectionEventArgs", &NewAtIndexReplacing);
    Register(L"CCollectionEventArgs", &NewForKey);
    Register(L"CCollectionEventArgs", &NewForKeyReplacing);
}

CollectionEventArgs::Factory CollectionEventArgs::New;

} // namespace Quilon_::System::Collections
