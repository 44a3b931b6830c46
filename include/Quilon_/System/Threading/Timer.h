// A timer, as an interface: timers are made by the library that registers
// an implementation on Timer::New. A running timer executes its task each
// time the interval has passed.
//
//   Pointer<Threading::ITimer> timer = Threading::Timer::New();
//   timer->SetInterval(500);
//   timer->SetTask(refresh);
//   timer->Start();
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Threading/ThreadPool.h"

#include <cstdint>

namespace Quilon_::System::Threading {

class QUILON_API ITimer : public virtual Interface {
    QUILON_INTERFACE(ITimer)
public:
    // In milliseconds.
    virtual std::int64_t Interval() = 0;
    virtual void SetInterval(std::int64_t milliseconds) = 0;
    // What runs at each expiry; null runs nothing.
    virtual void SetTask(Pointer<IThreadPoolTask, 0> task) = 0;
    virtual void Start() = 0;
    // Returns once a running task has ended.
    virtual void Stop() = 0;
    virtual bool IsRunning() = 0;
};

namespace Timer {
extern QUILON_API Functions::Template::Function<Pointer<ITimer> (*)()> New;
} // namespace Timer

} // namespace Quilon_::System::Threading
