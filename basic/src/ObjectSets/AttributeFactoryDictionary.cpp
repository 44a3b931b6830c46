// The table of attribute factories by data type
// (AttributeFactoryDictionary::New), in the order the kinds were added.
// Cloneable, since each thread starts from a clone of the main thread's
// table: the clone holds the same factories, which are values.
#include "ObjectSets/OrderedMap.h"

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/AttributeFactoryDictionary.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Collections/ValueDictionaryImpl.h"
#include "Quilon_/System/ObjectImpl.h"

#include <unordered_map>

namespace Quilon_::Basic::ObjectSets {

namespace {

using Quilon_::ObjectSets::AttributeFactory;
using Quilon_::ObjectSets::IAttribute;
using Quilon_::ObjectSets::IAttributeFactoryDictionary;
namespace CT = System::Collections::Template;

// Types by name: the name is what identifies a type across libraries.
class TypeLookup {
public:
    std::int64_t Find(const System::Type& type) const
    {
        auto found = m_positions.find(type.Name());
        return found == m_positions.end() ? -1 : found->second;
    }
    void Insert(const System::Type& type, std::int64_t position) { m_positions[type.Name()] = position; }
    void Erase(const System::Type& type) { m_positions.erase(type.Name()); }
    void Clear() { m_positions.clear(); }

private:
    std::unordered_map<std::wstring, std::int64_t> m_positions;
};

using FactoryMap = OrderedMap<System::Type, AttributeFactory, TypeLookup>;

class CAttributeFactoryDictionary
    : public System::Template::ObjectImpl<CAttributeFactoryDictionary,
                                          CT::IValueDictionaryImpl<IAttributeFactoryDictionary, FactoryMap>,
                                          System::Collections::ICloneable> {
public:
    CAttributeFactoryDictionary() = default;

    bool Supports(const System::Type& dataType) override { return ContainsKey(dataType); }

    System::Ref<IAttribute> Create(const System::Type& dataType, const System::LIString& name) override
    {
        AttributeFactory factory = Item(dataType);
        return factory(name);
    }

    System::Pointer<System::Collections::ICloneable, 1> Clone() override
    {
        auto* copy = new CAttributeFactoryDictionary();
        for (auto& entry : m_map)
            copy->m_map.emplace(entry.first, entry.second);
        copy->m_readOnly = m_readOnly;
        return System::Pointer<System::Collections::ICloneable, 1>(copy);
    }
};

System::Ref<IAttributeFactoryDictionary> NewAttributeFactoryDictionary()
{
    return System::Ref<IAttributeFactoryDictionary>(new CAttributeFactoryDictionary());
}

void RegisterAttributeFactoryDictionaries()
{
    Quilon_::ObjectSets::AttributeFactoryDictionary::New.Register(L"Attribute factory dictionary",
                                                                  &NewAttributeFactoryDictionary);
}

const System::Template::Initializer<::Library>
    attributeFactoryDictionaries(&RegisterAttributeFactoryDictionaries, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::ObjectSets
