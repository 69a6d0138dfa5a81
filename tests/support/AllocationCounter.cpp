#include "tests/support/AllocationCounter.h"

#include <cstdlib>
#include <new>

namespace {

thread_local long count = 0;

} // namespace

void* operator new(std::size_t size) {
    ++count;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++count;
    return std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

AllocationCounter::AllocationCounter() : m_before(count) {}

long AllocationCounter::allocations() const {
    return count - m_before;
}
