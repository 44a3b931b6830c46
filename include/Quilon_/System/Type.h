// The toolkit's own description of a type: a stable name, the declared
// bases, and whether it is a reference type.
//
// Every interface has exactly one Type, reached by GetType(). Types work
// across libraries and are keyed by their fully qualified names, which are
// written to files, so the names are literals:
//
//   const Type& t = IThing::GetType();
//   t.Name();                                 // L"Quilon_::IThing"
//   t.IsSubclassOf(System::Interface::GetType());
//   t.IsImplementedBy(object);                // the interface cast succeeds
//   Type::Types()->Item(L"Quilon_::IThing");  // the registered description
#pragma once

#include "Quilon_/System/Pointer.h"

#include <boost/shared_ptr.hpp>
#include <string>
#include <type_traits>
#include <vector>

namespace Quilon_::System {

class ITypeDictionary;

class QUILON_API Type {
public:
    // The shared description behind a Type.
    class QUILON_API TypeHolder {
    public:
        explicit TypeHolder(std::wstring name) : name(std::move(name)) {}
        TypeHolder(const TypeHolder&) = default;
        virtual ~TypeHolder();
        virtual std::wstring Name() const { return name; }
        virtual bool IsImplementedBy(Pointer<Interface, 1> object) const = 0;
        virtual bool IsBaseOf(Pointer<Interface, 1> object) const = 0;
        virtual bool IsReferenceType() const = 0;

    private:
        friend class Type;
        std::wstring name;
        std::vector<Type> bases;
    };

    // An interface: an object is of this type when the interface cast to T
    // succeeds.
    template <class T>
    class ReferenceType : public TypeHolder {
    public:
        explicit ReferenceType(std::wstring name) : TypeHolder(std::move(name)) {}
        bool IsImplementedBy(Pointer<Interface, 1> object) const override { return Casts(object); }
        bool IsBaseOf(Pointer<Interface, 1> object) const override { return Casts(object); }
        bool IsReferenceType() const override { return true; }

    private:
        static bool Casts(const Pointer<Interface, 1>& object)
        {
            Pointer<T, 0> cast(object);
            return static_cast<bool>(cast);
        }
    };

    // A type that is not an interface.
    class QUILON_API ValueType : public TypeHolder {
    public:
        explicit ValueType(std::wstring name) : TypeHolder(std::move(name)) {}
        bool IsImplementedBy(Pointer<Interface, 1>) const override { return false; }
        bool IsBaseOf(Pointer<Interface, 1>) const override { return false; }
        bool IsReferenceType() const override { return false; }
    };

    Type() = default;
    Type(const ValueType& holder) : Type(boost::shared_ptr<TypeHolder>(new ValueType(holder))) {}
    // Copies the holder into a new shared description and registers it.
    template <class Holder>
        requires std::is_base_of_v<TypeHolder, Holder>
    Type(const Holder& holder) : Type(boost::shared_ptr<TypeHolder>(new Holder(holder)))
    {
    }

    bool operator==(const Type& other) const;

    std::wstring Name() const;
    const std::vector<Type>& BaseTypes() const;
    // Refuses a base that would make the inheritance circular.
    void AddBase(const Type& base);
    // Whether `other` is among the bases, directly or further up. A type is
    // not a subclass of itself.
    bool IsSubclassOf(const Type& other) const;
    bool IsReferenceType() const;
    bool IsBaseOf(Pointer<Interface, 1> object) const;
    bool IsImplementedBy(Pointer<Interface, 1> object) const;
    bool IsEmpty() const { return !m_holder; }

    // The process-wide dictionary of the registered types, by name.
    static Pointer<ITypeDictionary, 1> Types();

private:
    explicit Type(boost::shared_ptr<TypeHolder> holder);
    // IsSubclassOf, skipping the descriptions already walked.
    bool IsSubclassOf(const Type& other, std::vector<const TypeHolder*>& walked) const;
    // Adds the type to Types() unless its name is there already.
    static void Register(const Type& type);

    boost::shared_ptr<TypeHolder> m_holder;
};

// Does nothing; kept for tools that call it.
QUILON_API void DumpTypesMap();

namespace Detail {
// Builds the Type of interface I with its declared bases, in order.
template <class I, class... Bases>
Type MakeInterfaceType(const wchar_t* name)
{
    Type type{Type::ReferenceType<I>(name)};
    (type.AddBase(Bases::GetType()), ...);
    return type;
}
} // namespace Detail

} // namespace Quilon_::System
