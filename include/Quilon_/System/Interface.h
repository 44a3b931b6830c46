// The root of every interface of the toolkit.
//
// Every abstract type derives virtually from Interface, so that one concrete
// object has exactly one Interface subobject, however many interfaces it
// implements. Each interface carries a run-time Type record, declared with
// QUILON_INTERFACE in the class and defined once in a source file:
//
//   class QUILON_API IThing : public virtual System::Interface {
//       QUILON_INTERFACE(IThing)
//   public:
//       virtual void Do() = 0;
//   };
//   // Thing.cpp
//   QUILON_DEFINE_INTERFACE_TYPE(IThing, L"Quilon_::IThing", System::Interface)
#pragma once

#include "Quilon_/Config.h"

#include <cstdint>

namespace Quilon_::System {

class Type;

class QUILON_API Interface {
public:
    // Takes one reference; returns the new count.
    virtual std::int64_t AddReference() = 0;
    // Drops one reference; returns the new count. May destroy the object.
    virtual std::int64_t ReleaseReference() = 0;
    // Lets the object answer an interface cast on behalf of another object.
    // When it returns true, `target` is where the cast continues: with
    // `exact` false it is an Interface* to cast further, with `exact` true it
    // already is a pointer to the requested interface.
    virtual bool FindDelegate(const Type& type, void*& target, bool& exact) = 0;

    static const Type& GetType();

protected:
    Interface() = default;
    Interface(const Interface&) = default;
    Interface& operator=(const Interface&) { return *this; }
    // Objects are destroyed through Object's virtual destructor, never
    // through an interface. Not noexcept, like Object's, so that a concrete
    // class may let its destructor throw (see UnsafeDeallocator).
    ~Interface() noexcept(false) = default;
};

namespace Detail {
// The shared answer of every class that delegates nothing: false, with the
// out-parameters left alone.
QUILON_API bool FindNoDelegate(const Type& type, void*& target, bool& exact);
} // namespace Detail

} // namespace Quilon_::System

// Declares the run-time type of an interface: the public GetType() and the
// private static member that registers the type during static construction.
#define QUILON_INTERFACE(Class)                                                                    \
public:                                                                                            \
    static const ::Quilon_::System::Type& GetType();                                              \
                                                                                                   \
private:                                                                                           \
    static const ::Quilon_::System::Type& _m_type;                                                \
                                                                                                   \
public:

// Defines the run-time type of an interface, with its fully qualified name as
// a literal and its declared bases in order of declaration. The record is
// built on first use, so that bases defined in other files are complete
// whatever the order of static construction; _m_type forces that first use
// during static construction, which registers the name in Type::Types().
#define QUILON_DEFINE_INTERFACE_TYPE(Class, Name, ...)                                             \
    const ::Quilon_::System::Type& Class::GetType()                                               \
    {                                                                                              \
        static const ::Quilon_::System::Type type =                                               \
            ::Quilon_::System::Detail::MakeInterfaceType<Class __VA_OPT__(, ) __VA_ARGS__>(Name); \
        return type;                                                                               \
    }                                                                                              \
    const ::Quilon_::System::Type& Class::_m_type = Class::GetType();
