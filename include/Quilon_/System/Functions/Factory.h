// Factory aggregates: the `New` object of a class that is made in several
// ways holds one operator per overload, all named "New", and a call picks
// the overload by its arguments like any overloaded function.
//
//   namespace Math::RangeD {
//   using Factory = Functions::Template::Factory<Pointer<IRangeD, 1>(), Pointer<IRangeD, 1>(double, double)>;
//   extern QUILON_API Factory New;
//   }
//   Math::RangeD::Factory Math::RangeD::New;            // in one .cpp
//
//   Math::RangeD::New.Register(L"Plain range", &NewRange);   // the library that makes them
//   Pointer<IRangeD, 1> range = Math::RangeD::New(0.0, 1.0);
#pragma once

#include "Quilon_/System/Functions/Function.h"

#include <utility>

namespace Quilon_::System::Functions::Template {

// One overload of a factory: the operator and the call that reaches it.
template <class Signature>
class FactoryOverload;

template <class R, class... A>
class FactoryOverload<R(A...)> {
public:
    R operator()(A... arguments) const { return New(std::forward<A>(arguments)...); }

    Function<R (*)(A...)> New{L"New"};
};

template <class... Signatures>
class QUILON_API Factory : public FactoryOverload<Signatures>... {
public:
    using FactoryOverload<Signatures>::operator()...;

    // The operator of one overload, for registration, rules and listings.
    template <class Signature>
    Function<Signature*>& Overload()
    {
        return static_cast<FactoryOverload<Signature>&>(*this).New;
    }
    template <class Signature>
    const Function<Signature*>& Overload() const
    {
        return static_cast<const FactoryOverload<Signature>&>(*this).New;
    }

    // Registers `function` on the overload of its own signature.
    template <class R, class... A>
    void Register(const LIString& name, R (*function)(A...), bool ignoreFunctionRules = false)
    {
        Overload<R(A...)>().Register(name, function, ignoreFunctionRules);
    }
    template <class R, class... A>
    void Unregister(R (*function)(A...))
    {
        Overload<R(A...)>().Unregister(function);
    }
};

} // namespace Quilon_::System::Functions::Template
