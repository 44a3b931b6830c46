// Rule chains as start-up code writes them: the four collections of an
// operator, one moment per call, built once and assigned to every operator
// of a family:
//
//   using namespace Images::Functions::Rules;
//   RuleChain erode;
//   erode.Make({MakeImageCompatible::New(1, 0, 0x2F, 0x1F)}).PreExecute({CheckImageCompatible::New(1, 0,
//   0xF)}); RuleChain basic = erode.Clone().Check({CheckImageScalar::New(0, false, false, false)});
//   basic.AssignTo(Erode, Dilate);              // every overload of each operator
//   other.AssignTo(Add.Overload<1>(), Blend);   // one overload, or an operator of one signature
//
// A chain fills its operators from a start-up initialiser, and the chains go
// again at stop, both through one object per source file:
//
//   #include "Quilon_/PrivateLibrary.h"
//   void FillChains() { ... AssignTo(...) ... }
//   const System::Functions::Template::ChainsInitializer<::Library> chains(&FillChains);
//
// Setting a moment puts a new collection in its slot, so that a chain
// derived by Clone() never changes the one it came from. AssignTo gives each
// operator a copy of the vector of four collections: the operators of a
// family share the collections themselves, which is what the collections
// allow once the initialiser that filled them has run (they are not changed
// afterwards), and it keeps the whole catalogue at one set of rule objects
// per chain rather than one per overload.
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Initializer.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Quilon_ {
class Library;
}

namespace Quilon_::System::Functions {

class QUILON_API RuleChain {
public:
    using Rule = Pointer<Rules::IRule, 1>;
    using RuleList = std::initializer_list<Rule>;

    // A chain with no rules at any moment.
    RuleChain();

    // The collection of one moment becomes a new one holding `rules` in
    // order; an empty list leaves the slot null (no rules at that moment).
    RuleChain& Set(RuleTypeEnum type, RuleList rules);
    RuleChain& Check(RuleList rules) { return Set(rtCheck, rules); }
    RuleChain& Make(RuleList rules) { return Set(rtMake, rules); }
    RuleChain& PreExecute(RuleList rules) { return Set(rtPreExecute, rules); }
    RuleChain& PostExecute(RuleList rules) { return Set(rtPostExecute, rules); }

    // A deep copy: each collection cloned (the rules themselves, immutable,
    // are shared).
    RuleChain Clone() const;

    const RuleCollections& Collections() const { return collections; }

    // Sets the chain on each target: an overload set (every overload), one
    // `Function<Signature>`, or `set.Overload<N>()`.
    template <class... Targets>
    const RuleChain& AssignTo(Targets&... targets) const
    {
        (AssignToTarget(targets), ...);
        return *this;
    }

    // Sets the chain on one operator and remembers the operator, so that
    // ReleaseAssigned clears it again.
    void Assign(Detail::Function& function) const;

    // Clears the rules of every operator given a chain by Assign that is
    // still alive, and forgets them. Called at stop, while released objects
    // are still destroyed.
    static void ReleaseAssigned();

    // "Check: CCheckImageScalar(0, 0, 0, 0); Make: ...; PreExecute: ...",
    // moments without rules left out; empty for an operator without rules.
    static std::wstring Present(const RuleCollections& collections);

private:
    template <class Target>
    void AssignToTarget(Target& target) const
    {
        if constexpr (std::is_base_of_v<Detail::Function, Target>)
            Assign(target);
        else
            AssignToOverloads(target, std::make_index_sequence<Target::Count()>());
    }
    template <class Set, std::size_t... N>
    void AssignToOverloads(Set& set, std::index_sequence<N...>) const
    {
        (Assign(set.template Overload<N>()), ...);
    }

    RuleCollections collections;
};

namespace Template {

// Runs `fill` from the library's own queue L (write ::Library) at `rank`,
// and clears every assigned chain at stop from the global queue at 0.95:
// each library's own queue of finalisers ends in the shut-down state, in
// which a released object is no longer destroyed, so chains let go from
// there would be lost; the global entry runs before the libraries' own
// (0.7). A later start fills the chains again.
template <class L>
class ChainsInitializer {
public:
    explicit ChainsInitializer(void (*fill)(), float rank = 0.5f)
        : start(fill, nullptr, rank), stop(nullptr, &RuleChain::ReleaseAssigned, 0.95f)
    {
    }

private:
    System::Template::Initializer<L> start;
    System::Template::Initializer<Quilon_::Library> stop;
};

} // namespace Template

} // namespace Quilon_::System::Functions
