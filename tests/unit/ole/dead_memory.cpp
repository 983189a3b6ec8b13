// Overwrites freed memory and never reuses it, so that the use of a dead object crashes.
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

constexpr std::size_t headerSize = 16;
constexpr int spoilt = 0xDD;

}  // namespace

void* operator new(std::size_t size) {
    auto* const block = static_cast<std::byte*>(std::malloc(headerSize + size));
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    std::memcpy(block, &size, sizeof size);
    return block + headerSize;
}

void operator delete(void* memory) noexcept {
    if (memory != nullptr) {
        std::size_t size = 0;
        std::memcpy(&size, static_cast<std::byte*>(memory) - headerSize, sizeof size);
        std::memset(memory, spoilt, size);
    }
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    operator delete(memory);
}
