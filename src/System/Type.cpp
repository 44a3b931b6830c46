#include "Quilon_/System/Type.h"

#include "Quilon_/System/Raise.h"
#include "Quilon_/System/TypeDictionary.h"
#include "System/TypeDictionaryImpl.h"

#include <algorithm>

namespace Quilon_::System {

Type::TypeHolder::~TypeHolder() = default;

Type::Type(boost::shared_ptr<TypeHolder> holder) : m_holder(std::move(holder))
{
    Register(*this);
}

bool Type::operator==(const Type& other) const
{
    if (m_holder == other.m_holder)
        return true;
    return m_holder && other.m_holder && m_holder->Name() == other.m_holder->Name();
}

std::wstring Type::Name() const
{
    return m_holder ? m_holder->Name() : std::wstring();
}

const std::vector<Type>& Type::BaseTypes() const
{
    static const std::vector<Type> none;
    return m_holder ? m_holder->bases : none;
}

void Type::AddBase(const Type& base)
{
    if (base.IsSubclassOf(*this))
        QUILON_RAISE(L"'%1%' cannot be a base type of '%2%' (circular inheritance)", base.Name(), Name());
    if (m_holder)
        m_holder->bases.push_back(base);
}

bool Type::IsSubclassOf(const Type& other) const
{
    std::vector<const TypeHolder*> walked;
    return IsSubclassOf(other, walked);
}

// AddBase accepts a type as its own base, which puts a loop into the graph of
// bases; each description is therefore walked once, so that the answer for a
// type outside the loop is false instead of an endless walk.
bool Type::IsSubclassOf(const Type& other, std::vector<const TypeHolder*>& walked) const
{
    if (!m_holder || std::find(walked.begin(), walked.end(), m_holder.get()) != walked.end())
        return false;
    walked.push_back(m_holder.get());
    for (const Type& base : m_holder->bases) {
        if (base == other || base.IsSubclassOf(other, walked))
            return true;
    }
    return false;
}

bool Type::IsReferenceType() const
{
    return m_holder && m_holder->IsReferenceType();
}

bool Type::IsBaseOf(Pointer<Interface, 1> object) const
{
    return m_holder && m_holder->IsBaseOf(std::move(object));
}

bool Type::IsImplementedBy(Pointer<Interface, 1> object) const
{
    return m_holder && m_holder->IsImplementedBy(std::move(object));
}

namespace {
// Created on first use, during static construction, and never destroyed:
// types of libraries that are unloaded late still find it.
Detail::CTypeDictionary& TypeStore()
{
    static Detail::CTypeDictionary* const dictionary = [] {
        auto* created = new Detail::CTypeDictionary;
        created->AddReference();
        return created;
    }();
    return *dictionary;
}
} // namespace

// Registration reaches the store directly: an interface cast here would ask
// for the type of the internal interface, which may be the very type being
// registered. The test for the name and the insertion are one step under the
// dictionary's lock, so that of two threads registering one name the first
// stays.
void Type::Register(const Type& type)
{
    TypeStore().AddIfAbsent(type.Name(), type);
}

Pointer<ITypeDictionary, 1> Type::Types()
{
    return Pointer<ITypeDictionary, 1>(&TypeStore());
}

void DumpTypesMap() {}

} // namespace Quilon_::System
