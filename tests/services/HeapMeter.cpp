#include "services/HeapMeter.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

#include <malloc.h>

namespace {

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

std::atomic<bool> counting = false;
std::atomic<long long> heldBytes = 0;
std::atomic<long long> mostBytes = 0;
std::atomic<std::size_t> untilRefusal = none;

bool isRefused() {
    if (!counting || untilRefusal == none) return false;
    return untilRefusal-- == 0;
}

void* counted(void* block) {
    if (counting && block != nullptr) {
        heldBytes += static_cast<long long>(malloc_usable_size(block));
        mostBytes = std::max<long long>(mostBytes, heldBytes);
    }
    return block;
}

void* allocate(std::size_t size) noexcept { return isRefused() ? nullptr : counted(std::malloc(size)); }

void* required(void* block) {
    if (block == nullptr) throw std::bad_alloc();
    return block;
}

void* allocate(std::size_t size, std::align_val_t alignment) {
    const auto step = static_cast<std::size_t>(alignment);
    return isRefused() ? nullptr : counted(std::aligned_alloc(step, (size + step - 1) / step * step));
}

void release(void* block) noexcept {
    if (counting) heldBytes -= static_cast<long long>(malloc_usable_size(block));
    std::free(block);
}

} // namespace

void* operator new(std::size_t size) { return required(allocate(size)); }
void* operator new[](std::size_t size) { return required(allocate(size)); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return allocate(size); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    return required(allocate(size, alignment));
}
void operator delete(void* block) noexcept { release(block); }
void operator delete[](void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { release(block); }
void operator delete[](void* block, std::size_t /*size*/) noexcept { release(block); }
void operator delete(void* block, const std::nothrow_t& /*tag*/) noexcept { release(block); }
void operator delete[](void* block, const std::nothrow_t& /*tag*/) noexcept { release(block); }
void operator delete(void* block, std::align_val_t /*alignment*/) noexcept { release(block); }
void operator delete(void* block, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
    release(block);
}

namespace ombrivane {

HeapMeter::HeapMeter(std::optional<std::size_t> refused) {
    heldBytes = 0;
    mostBytes = 0;
    untilRefusal = refused.value_or(none);
    counting = true;
}

HeapMeter::~HeapMeter() { counting = false; }

std::size_t HeapMeter::peak() const { return static_cast<std::size_t>(mostBytes.load()); }

// The counter has run past none.
bool HeapMeter::hasRefused() const { return untilRefusal == none; }

} // namespace ombrivane
