// Thread identities as the toolkit keys per-thread stores by them: 32-bit
// ids, hashed by FNV-1a over their four bytes.
//
//   std::unordered_map<std::uint32_t, Value, Threading::ThreadIdHash> perThread;
//   perThread[Threading::CurrentThreadId()] = value;
//   bool onMain = Threading::CurrentThreadId() == Threading::MainThreadId();
#pragma once

#include "Quilon_/Config.h"

#include <cstddef>
#include <cstdint>

namespace Quilon_::System::Threading {

QUILON_API std::uint32_t CurrentThreadId();

// The thread that loaded the library: the first to ask, and the library
// asks while it is being loaded.
QUILON_API std::uint32_t MainThreadId();

struct ThreadIdHash {
    std::size_t operator()(std::uint32_t id) const noexcept
    {
        std::uint32_t hash = 2166136261u;
        for (int shift = 0; shift < 32; shift += 8) {
            hash ^= (id >> shift) & 0xFFu;
            hash *= 16777619u;
        }
        return hash;
    }
};

} // namespace Quilon_::System::Threading
