// Prefetch: asks the memory for what will be read soon, so that reading does not wait for it. In a project that is
// larger than the caches a search waits longer than it compares.
#pragma once

#include <cstddef>
#include <cstdint>

namespace corvane::environment {

constexpr size_t kCacheLine = 64;               // bytes
constexpr size_t kReadAhead = 24 * kCacheLine;  // further than a search comes while one line is fetched

// What lies [offset] bytes behind [at]. Nothing is read or changed: it may be any address.
inline void PrefetchLine(const void* at, size_t offset = 0) {
  __builtin_prefetch(reinterpret_cast<const void*>(reinterpret_cast<uintptr_t>(at) + offset));
}

inline void Prefetch(const void* at, size_t bytes) {
  for (size_t offset = 0; offset < bytes; offset += kCacheLine) PrefetchLine(at, offset);
}

}  // namespace corvane::environment
