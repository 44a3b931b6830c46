// Ranked initialisers and finalisers: how a piece of code asks to be run
// when the toolkit starts and when it stops.
//
// A static object of Template::Initializer<L> at namespace scope adds one
// entry to the queues of L, a class with static Initializers() and
// Finalizers(). Initialisers run from the lowest rank up, finalisers from
// the highest down; ranks lie between 0 and 1, and ties fall as the heap
// orders them.
//
//   void StartShapes();
//   void StopShapes();
//   const Template::Initializer<::Library> shapes(&StartShapes, &StopShapes, 0.4f);
//
// Code that needs other initialisers first takes a rank just above theirs,
// computed once:
//
//   float ShapesRank()
//   {
//       static const float rank = Initializer::RankAfter({GeometryRank(), AxesRank()});
//       return rank;
//   }
#pragma once

#include "Quilon_/Config.h"

#include <algorithm>
#include <deque>
#include <initializer_list>
#include <queue>

namespace Quilon_::System::Initializer {

// One queue entry. Either function may be null.
struct FunctionPair {
    void (*initialize)();
    void (*finalize)();
    float rank;
};

// The entry of the lowest rank comes out of a queue ordered by Greater first.
struct Greater {
    bool operator()(const FunctionPair& a, const FunctionPair& b) const { return a.rank > b.rank; }
};

// The entry of the highest rank comes out of a queue ordered by Less first.
struct Less {
    bool operator()(const FunctionPair& a, const FunctionPair& b) const { return a.rank < b.rank; }
};

using InitializerQueue = std::priority_queue<FunctionPair, std::deque<FunctionPair>, Greater>;
using FinalizerQueue = std::priority_queue<FunctionPair, std::deque<FunctionPair>, Less>;

// Raises "Initializer rank is out of range" for a rank above 1. A negative
// rank is accepted: code registered with one relies on running first.
QUILON_API void CheckRank(float rank);

// The rank of code that must run after all of `ranks`.
inline float RankAfter(std::initializer_list<float> ranks)
{
    return std::max(ranks) + 0.01f;
}

// Runs the initialisers of L, lowest rank first, moving each entry to the
// finalisers. Entries added while it runs, by the static objects of a library
// that an initialiser loads, are run as well. A failure propagates with the
// failing entry in both queues: still to be initialised, and registered to be
// finalised.
template <class L>
void RunInitializers()
{
    InitializerQueue& initializers = L::Initializers();
    while (!initializers.empty()) {
        const FunctionPair entry = initializers.top();
        // Off the queue while it runs, so that a nested run does not take it
        // again.
        initializers.pop();
        L::Finalizers().push(entry);
        if (!entry.initialize)
            continue;
        try {
            entry.initialize();
        } catch (...) {
            initializers.push(entry);
            throw;
        }
    }
}

// Runs the finalisers of L, highest rank first, moving each entry back to
// the initialisers so that a later start runs it again. `progress`, when not
// null, is told the rank just left behind at each change of rank, and 0 at
// the end.
template <class L>
void RunFinalizers(void (*progress)(float))
{
    FinalizerQueue& finalizers = L::Finalizers();
    float last = -1.0f;
    while (!finalizers.empty()) {
        const FunctionPair entry = finalizers.top();
        if (progress && last >= 0.0f && entry.rank != last)
            progress(last);
        last = entry.rank;
        finalizers.pop();
        if (entry.finalize) {
            try {
                entry.finalize();
            } catch (...) {
                finalizers.push(entry);
                throw;
            }
        }
        L::Initializers().push(entry);
    }
    if (progress)
        progress(0.0f);
}

} // namespace Quilon_::System::Initializer

namespace Quilon_::System::Template {

// Adds (initialize, finalize, rank) to L::Initializers() when constructed;
// it has no other behaviour.
template <class L>
class Initializer {
public:
    Initializer(void (*initialize)(), void (*finalize)(), float rank)
    {
        System::Initializer::CheckRank(rank);
        L::Initializers().push(System::Initializer::FunctionPair{initialize, finalize, rank});
    }
};

} // namespace Quilon_::System::Template
