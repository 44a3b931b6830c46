// Progress of an operator's long loop, reported to a child of the current
// progress context about sixty-four times over the loop, whatever its length:
//
//   ProgressReport progress(lines);           // one per loop, on the loop's thread
//   for (std::int64_t y = 0; y < lines; ++y) {
//       ...                                   // the line's work
//       progress.Step();                      // may raise ICancelException
//   }
//
// When nobody listens (no current context), a step costs one counter
// increment and a compare: the child is looked for only at the first report
// point, and never again once none was found. The child takes `share` of
// the current context's range and completes it when the report ends, so
// that the bar reaches the end of the step also when the loop is left
// early. Work split over threads gives each thread a report of its own with
// its part of the share.
#pragma once

#include "Quilon_/System/ProgressContext.h"

#include <algorithm>
#include <cstdint>

namespace Quilon_::Basic {

class ProgressReport {
public:
    explicit ProgressReport(std::int64_t steps, System::ProgressContext::Share share = 1)
        : m_steps(std::max<std::int64_t>(steps, 1)), m_every(std::max<std::int64_t>(m_steps / 64, 1)),
          m_share(share)
    {
    }
    ProgressReport(const ProgressReport&) = delete;
    ProgressReport& operator=(const ProgressReport&) = delete;

    void Step()
    {
        if (++m_done == m_nextReport) [[unlikely]]
            Report();
    }

private:
    void Report()
    {
        if (!m_looked) {
            m_looked = true;
            m_context = System::ProgressContext::CreateChild(m_share, true);
        }
        if (!m_context) {
            m_nextReport = -1;
            return;
        }
        m_nextReport += m_every;
        m_context->SetValue(static_cast<double>(m_done) / static_cast<double>(m_steps));
    }

    const std::int64_t m_steps;
    const std::int64_t m_every;
    const System::ProgressContext::Share m_share;
    std::int64_t m_done = 0;
    std::int64_t m_nextReport = m_every;
    bool m_looked = false;
    System::Pointer<System::IProgressContext, 0> m_context;
};

} // namespace Quilon_::Basic
