#include "HeapMeter.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

namespace {

bool counting = false;
std::size_t heldBytes = 0;

void* counted(void* block) {
    if (block == nullptr) throw std::bad_alloc();
    if (counting) heldBytes += malloc_usable_size(block);
    return block;
}

void release(void* block) {
    if (counting) heldBytes -= malloc_usable_size(block);
    std::free(block);
}

std::size_t plain(std::align_val_t alignment) { return static_cast<std::size_t>(alignment); }

} // namespace

void* operator new(std::size_t size) { return counted(std::malloc(size)); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    const std::size_t step = plain(alignment);
    return counted(std::aligned_alloc(step, (size + step - 1) / step * step));
}
void operator delete(void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { release(block); }
void operator delete(void* block, std::align_val_t /*alignment*/) noexcept { release(block); }
void operator delete(void* block, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
    release(block);
}

namespace ombrivane::bench {

HeapMeter::HeapMeter() {
    heldBytes = 0;
    counting = true;
}

HeapMeter::~HeapMeter() { counting = false; }

std::size_t HeapMeter::held() const { return heldBytes; }

} // namespace ombrivane::bench
