#include "Quilon_/System/TypeDictionary.h"

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

using Guard = std::lock_guard<std::recursive_mutex>;

std::int64_t CTypeDictionary::Count()
{
    Guard lock(m_lock);
    return Base::Count();
}

// An absent name is raised after the lock is left: raising may build types,
// and their registration may wait on another thread that holds the lock.
Type CTypeDictionary::Item(const std::wstring& key)
{
    {
        Guard lock(m_lock);
        auto found = m_map.find(key);
        if (found != m_map.end())
            return found->second;
    }
    Collections::Template::Detail::RaiseDictionaryMessage(KeyNotFoundMessage(key));
}

void CTypeDictionary::SetItem(const std::wstring& key, const Type& value)
{
    Guard lock(m_lock);
    Base::SetItem(key, value);
}

void CTypeDictionary::Add(const std::wstring& key, const Type& value)
{
    Guard lock(m_lock);
    Base::Add(key, value);
}

bool CTypeDictionary::Remove(const std::wstring& key)
{
    Guard lock(m_lock);
    return Base::Remove(key);
}

void CTypeDictionary::Clear()
{
    Guard lock(m_lock);
    Base::Clear();
}

bool CTypeDictionary::ContainsKey(const std::wstring& key)
{
    Guard lock(m_lock);
    return Base::ContainsKey(key);
}

std::vector<std::wstring> CTypeDictionary::Keys()
{
    Guard lock(m_lock);
    return Base::Keys();
}

TypeMap& CTypeDictionary::Store()
{
    return m_map;
}

void CTypeDictionary::AddIfAbsent(const std::wstring& key, const Type& value)
{
    Guard lock(m_lock);
    m_map.emplace(key, value);
}

} // namespace Detail

} // namespace Quilon_::System
