#pragma once

/// Asks the processor to have the memory at `address` at hand soon. A hint that changes no result; compilers
/// without one do nothing. Histories are larger than the caches, and each pixel column reads a place of its
/// own.
inline void prefetch(const void* address)
{
#if defined(__GNUC__)
    __builtin_prefetch(address);
#else
    static_cast<void>(address);
#endif
}
