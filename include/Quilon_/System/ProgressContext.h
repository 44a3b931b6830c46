// Progress and cancellation: a tree of progress contexts.
//
// The application makes one root context and installs it as the current
// one; code deep inside an operator creates a child for its share of the
// work and reports to it, without knowing who listens. A null child means
// that nobody listens. Cancellation travels the other way: a report to a
// context whose tree has been cancelled raises an ICancelException.
//
//   Pointer<IProgressContext> root = ProgressContext::New(1);           // the application's
//   ProgressContext::SetCurrentProgressContext(root);                   // held weakly
//   ...
//   // inside an operator, for its half of the work:
//   Pointer<IProgressContext, 0> child = ProgressContext::CreateChild(boost::rational<std::int64_t>(1, 2));
//   for (std::int64_t line = 0; line < lines; ++line) {
//       ...
//       if (child)
//           child->SetValue(double(line + 1) / lines);   // may raise ICancelException
//   }
//
// The concrete context comes from an implementation library through the
// NewInstance slot; the three New overloads make their context with it.
// The current context is a weak reference: the application keeps
// ownership, and CurrentProgressContext() reads null once the root is gone.
#pragma once

#include "Quilon_/System/Event.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Functions/FunctionSlot.h"
#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/System/PropertyChangeEventArgs.h"

#include <boost/rational.hpp>

#include <cstdint>
#include <string>

namespace Quilon_::System {

// One node of the tree. Values run from 0 (nothing done) to 1 (all done),
// in the context's own range; a child passes its progress on to its parent
// scaled by its share of the parent's range. Implementations are safe to
// report to from several threads at once.
class QUILON_API IProgressContext : public virtual Interface {
    QUILON_INTERFACE(IProgressContext)
public:
    // The context this one reports to; null for a root.
    virtual Pointer<IProgressContext, 0> Parent() = 0;
    // Attaches this context to `parent` (null detaches it). Progress made
    // before is not passed on.
    virtual void SetParent(Pointer<IProgressContext, 0> parent) = 0;
    // The fraction of the parent's range that this context covers.
    virtual boost::rational<std::int64_t> Share() = 0;
    // How far this context has got, from 0 to 1.
    virtual double Value() = 0;
    // Moves to `value`, clamped to [0, 1]; the same as Add(value - Value()).
    virtual void SetValue(double value) = 0;
    // Adds `amount` to the value and passes it on to the parent, at most
    // once per interval (milliseconds, taken from DefaultInterval() of the
    // thread that made the context) and always on reaching 1. Raises an
    // ICancelException, "The operation was cancelled", when this context or
    // one above it has been cancelled: a report is where work stops.
    virtual void Add(double amount) = 0;
    // What the work is doing now, for a display; empty by default.
    virtual std::wstring Text() = 0;
    virtual void SetText(const std::wstring& text) = 0;
    // Asks the work below this context to stop at its next report.
    virtual void Cancel() = 0;
    // Whether this context or one above it has been cancelled.
    virtual bool IsCancelled() = 0;
};

namespace ProgressContext {

using Share = boost::rational<std::int64_t>;

// New(share): a root. New(parent, share): New(parent, share, false).
// New(parent, share, completeWhenReleased): a child of `parent`; with the
// flag set, whatever of its share the child has not reported is passed on
// when it is released, so that work that ends early or reports coarsely
// still moves the parent to its end. Each is made by NewInstance.
using Factory =
    Functions::Template::Factory<Pointer<IProgressContext, 1>(Share),
                                 Pointer<IProgressContext, 1>(Pointer<IProgressContext, 1>, Share),
                                 Pointer<IProgressContext, 1>(Pointer<IProgressContext, 1>, Share, bool)>;
extern QUILON_API Factory New;

// Fires, without a sender, when the current context changes; the args carry
// "CurrentProgressContext" and the previous context as an Any.
extern QUILON_API Event<Pointer<IPropertyChangedEventArgs, 1>> PropertyChanged;

// The current context, null if none is set or if it has died.
QUILON_API Pointer<IProgressContext, 0> CurrentProgressContext();
// Holds `context` weakly as the current one; raises when it lacks
// IDestructionEvents. Setting the context held already changes nothing and
// fires nothing.
QUILON_API void SetCurrentProgressContext(Pointer<IProgressContext, 0> context);

// A child of the current context for `share` of its range, or null when
// there is no current context.
QUILON_API Pointer<IProgressContext, 0> CreateChild(Share share);
QUILON_API Pointer<IProgressContext, 0> CreateChild(Share share, bool completeWhenReleased);

// A new context without a parent; the implementation library's class.
QUILON_API Pointer<IProgressContext, 1> NewInstance(Share share, bool completeWhenReleased);
QUILON_DECLARE_FUNCTION_SLOT(NewInstance, 1, Pointer<IProgressContext, 1> (*)(Share, bool));

// The time between two reports of a context to its parent, in
// milliseconds; one value per thread, 500 until set.
QUILON_DECLARE_SETTING(DefaultInterval, SetDefaultInterval, ClearDefaultInterval, unsigned int);

// Raises the ICancelException of a cancelled report, located at the caller.
[[noreturn]] QUILON_API void RaiseCancelled(const char* function, const char* file, int line);

} // namespace ProgressContext

} // namespace Quilon_::System

// Raises "The operation was cancelled" as an ICancelException from here.
#define QUILON_RAISE_CANCELLED()                                                                             \
    ::Quilon_::System::ProgressContext::RaiseCancelled(QUILON_FUNCTION, __FILE__, __LINE__)
