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
    return static_cast<std::int64_t>(m_map.size());
}

Type CTypeDictionary::Item(const std::wstring& key)
{
    auto found = m_map.find(key);
    if (found == m_map.end())
        QUILON_RAISE(L"The dictionary does not contain key '%1%'", key);
    return found->second;
}

void CTypeDictionary::SetItem(const std::wstring& key, const Type& value)
{
    m_map.insert_or_assign(key, value);
}

void CTypeDictionary::Add(const std::wstring& key, const Type& value)
{
    if (!m_map.emplace(key, value).second)
        QUILON_RAISE(L"There is already an item of key %1%", key);
}

bool CTypeDictionary::Remove(const std::wstring& key)
{
    return m_map.erase(key) != 0;
}

void CTypeDictionary::Clear()
{
    m_map.clear();
}

bool CTypeDictionary::ContainsKey(const std::wstring& key)
{
    return m_map.find(key) != m_map.end();
}

std::vector<std::wstring> CTypeDictionary::Keys()
{
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

} // namespace Detail

} // namespace Quilon_::System
