// Working arrays sized by caller data. A failed allocation gives warning 53 and a null
// result, which the caller answers by returning. Tests can inject failures.
#pragma once
#include <cstddef>
#include <memory>
#include <new>

namespace zb {

void warnin(int icode);

namespace detail {
inline long alloc_fail_after = -1;   // tests: number of allocations to allow before failing
}

// Owning buffer of n elements, value-initialised; empty on failure (warning 53 given).
template <class T>
std::unique_ptr<T[]> alloc(long n) {
  if (n < 0 || std::size_t(n) > std::size_t(1) << 31) { warnin(53); return nullptr; }
  if (detail::alloc_fail_after == 0) { warnin(53); return nullptr; }
  if (detail::alloc_fail_after > 0) --detail::alloc_fail_after;
  std::unique_ptr<T[]> p(new (std::nothrow) T[std::size_t(n == 0 ? 1 : n)]());
  if (!p) warnin(53);
  return p;
}

}  // namespace zb
