#include "Quilon_/System/TypeDictionary.h"

#include "Quilon_/System/Raise.h"
#include "System/TypeDictionaryImpl.h"

namespace Quilon_::System {

namespace Collections::Template {
template <>
const Type& IValueDictionary<std::wstring, Type>::GetType()
{
    static const Type type{Type::ReferenceType<IValueDictionary<std::wstring, Type>>(
        L"Quilon_::System::Collections::Template::IValueDictionary<std::wstring,Quilon_::System::Type>")};
    return type;
}
} // namespace Collections::Template

QUILON_DEFINE_INTERFACE_TYPE(ITypeDictionary, L"Quilon_::System::ITypeDictionary",
                             Collections::Template::IValueDictionary<std::wstring, Type>)
QUILON_DEFINE_INTERFACE_TYPE(ITypeDictionaryInternal, L"Quilon_::System::ITypeDictionaryInternal", Interface)

namespace Detail {

std::int64_t CTypeDictionary::Count()
{
    std::lock_guard<std::mutex> lock(m_lock);
    return static_cast<std::int64_t>(m_map.size());
}

// Failures are raised after the lock is left: raising may build types.
Type CTypeDictionary::Item(const std::wstring& key)
{
    {
        std::lock_guard<std::mutex> lock(m_lock);
        auto found = m_map.find(key);
        if (found != m_map.end())
            return found->second;
    }
    QUILON_RAISE(L"The dictionary does not contain key '%1%'", key);
}

void CTypeDictionary::SetItem(const std::wstring& key, const Type& value)
{
    std::lock_guard<std::mutex> lock(m_lock);
    m_map.insert_or_assign(key, value);
}

void CTypeDictionary::Add(const std::wstring& key, const Type& value)
{
    bool added;
    {
        std::lock_guard<std::mutex> lock(m_lock);
        added = m_map.emplace(key, value).second;
    }
    if (!added)
        QUILON_RAISE(L"There is already an item of key %1%", key);
}

bool CTypeDictionary::Remove(const std::wstring& key)
{
    std::lock_guard<std::mutex> lock(m_lock);
    return m_map.erase(key) != 0;
}

void CTypeDictionary::Clear()
{
    std::unordered_map<std::wstring, Type> removed;
    std::lock_guard<std::mutex> lock(m_lock);
    m_map.swap(removed);
}

bool CTypeDictionary::ContainsKey(const std::wstring& key)
{
    std::lock_guard<std::mutex> lock(m_lock);
    return m_map.find(key) != m_map.end();
}

std::vector<std::wstring> CTypeDictionary::Keys()
{
    std::lock_guard<std::mutex> lock(m_lock);
    std::vector<std::wstring> keys;
    keys.reserve(m_map.size());
    for (const auto& entry : m_map)
        keys.push_back(entry.first);
    return keys;
}

bool CTypeDictionary::IsReadOnly()
{
    return false;
}

std::unordered_map<std::wstring, Type>& CTypeDictionary::Store()
{
    return m_map;
}

void CTypeDictionary::AddIfAbsent(const std::wstring& key, const Type& value)
{
    std::lock_guard<std::mutex> lock(m_lock);
    m_map.emplace(key, value);
}

} // namespace Detail

} // namespace Quilon_::System
