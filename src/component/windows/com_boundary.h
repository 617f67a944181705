#pragma once

// Windows
#include <windows.h>

// Std
#include <new>

namespace tnw {

// Runs call, which returns an HRESULT, at a point where COM calls into the server (an exported
// entry point or an interface method): no C++ exception gets past it. Running out of memory
// answers E_OUTOFMEMORY, any other exception E_UNEXPECTED.
template <class Call>
HRESULT comBoundary(Call&& call) noexcept {
  try {
    return call();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_UNEXPECTED;
  }
}

}  // namespace tnw
