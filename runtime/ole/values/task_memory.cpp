#include "runtime/ole/values/task_memory.h"

#include <algorithm>
#include <new>

namespace lumenkit::ole {

void* NewTaskMemory(std::size_t size) {
    void* const memory = CoTaskMemAlloc(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

LPOLESTR NewTaskText(TextView text) {
    auto* const made = static_cast<LPOLESTR>(NewTaskMemory((text.size() + 1) * sizeof(OLECHAR)));
    std::ranges::copy(text, made);
    made[text.size()] = 0;
    return made;
}

}  // namespace lumenkit::ole
