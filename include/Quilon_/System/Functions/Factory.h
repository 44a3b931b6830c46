// Factory aggregates: the `New` object of a class that is made in several
// ways holds one operator per overload, all named "New", and a call picks
// the overload by its arguments like any overloaded function.
//
//   namespace Math::RangeD {
//   using Factory = Functions::Template::Factory<Pointer<IRangeD, 1>(), Pointer<IRangeD, 1>(double, double)>;
//   extern QUILON_API Factory New;
//   }
//   Math::RangeD::Factory Math::RangeD::New;            // in one .cpp
//   // or, with a default implementation per overload:
//   Math::RangeD::Factory Math::RangeD::New(&NewEmptyRange, &NewRange);
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

    Factory() = default;
    // A factory that makes its objects itself unless a library registers
    // better: each overload gets its default implementation, unnamed, with
    // rules honoured, as an operator made from a function pointer does.
    explicit Factory(Signatures*... defaults) { (Overload<Signatures>().Register(defaults), ...); }

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
