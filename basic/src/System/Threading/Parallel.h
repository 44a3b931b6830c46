// Banding work over the processing pool: the one way the reference library's
// operators use more than one thread.
//
//   // Threshold every row of a 4096 x 4096 image, rows in bands.
//   Threading::ParallelBands(height, width, [&](std::int64_t firstRow, std::int64_t lastRow) {
//       for (std::int64_t y = firstRow; y < lastRow; ++y)
//           ThresholdRow(input + y * stride, output + y * stride, width);
//   });
//
// `count` items (rows, planes, ...) each cost about `costPerItem` units
// (pixels). Work below MinimumParallelWork units, about a 256 x 256 image,
// runs inline on the calling thread: handing work to another thread costs
// tens of microseconds, more than such an image takes. Larger work is cut
// into bands that the calling thread and the threads of
// System::Threading::Globals::ProcessingThreadPool() take in turn, so a slow
// or busy thread never holds the others up; a pool of n threads makes the
// work n-way parallel, the caller being one of the n.
//
// The body is called with disjoint ranges [first, last) that together cover
// [0, count) exactly once, possibly several ranges on one thread and ranges
// on several threads at once: it must only write what its range owns (or
// merge under its own lock, as a reduction does). ParallelBands returns when
// every range is done. The first exception a range raises is raised again on
// the calling thread, after the other ranges have ended (ranges not begun by
// then are skipped). A call from a thread of a pool, or without a processing
// pool, runs inline, so an operator inside a pool task never waits for the
// pool it runs on.
#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

namespace Quilon_::Basic::Threading {

// Units of work below which a call never leaves the calling thread.
inline constexpr std::int64_t MinimumParallelWork = 256 * 256;

namespace Detail {

// The body, without its type: a call through one function pointer per band.
struct BandBody {
    void (*run)(void* body, std::int64_t first, std::int64_t last);
    void* body;
};

// The large path: bands over the processing pool (or inline, when no pool
// or only one thread is available, or the caller is a pool thread).
void RunBands(std::int64_t count, std::int64_t costPerItem, BandBody body);

} // namespace Detail

template <class Body>
void ParallelBands(std::int64_t count, std::int64_t costPerItem, Body&& body)
{
    if (count <= 0)
        return;
    // Compared by division so that no product of two large sizes overflows.
    if (count < 2 || costPerItem <= 0 || count < MinimumParallelWork / costPerItem + 1) {
        body(std::int64_t{0}, count);
        return;
    }
    using Plain = std::remove_reference_t<Body>;
    Detail::RunBands(count, costPerItem,
                     Detail::BandBody{[](void* callable, std::int64_t first, std::int64_t last) {
                                          (*static_cast<Plain*>(callable))(first, last);
                                      },
                                      const_cast<void*>(static_cast<const void*>(&body))});
}

} // namespace Quilon_::Basic::Threading
