// Works on several things at once and hands the results over in their order.
#pragma once

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>
#include <utility>
#include <vector>

namespace lumenkit::cli {

/// Calls `work(index)` for each index below `count`, at most `jobs` at once, from other threads;
/// 0 jobs stand for one a processor. Calls `take(index, result)` for each result in the order of
/// the indices, from the caller's thread. An exception of `work` or `take` propagates to the
/// caller, after the work that has begun is done.
template <typename Work, typename Take>
void InOrder(std::size_t count, int jobs, const Work& work, const Take& take) {
    using Result = decltype(work(std::size_t{}));
    struct Slot {
        std::optional<Result> result;
        std::exception_ptr error;
    };
    std::vector<Slot> slots(count);
    std::atomic<std::size_t> next = 0;
    std::mutex mutex;
    std::condition_variable isReady;

    const auto run = [&](const std::stop_token& stop) {
        for (std::size_t index = next++; index < count && !stop.stop_requested(); index = next++) {
            Slot slot;
            try {
                slot.result.emplace(work(index));
            } catch (...) {
                slot.error = std::current_exception();
            }
            const std::scoped_lock lock(mutex);
            slots[index] = std::move(slot);
            isReady.notify_one();
        }
    };
    const std::size_t wanted =
        jobs > 0 ? static_cast<std::size_t>(jobs) : std::thread::hardware_concurrency();
    std::vector<std::jthread> threads;
    for (std::size_t i = 0; i < std::max<std::size_t>(1, std::min(wanted, count)); ++i) {
        threads.emplace_back(run);
    }
    for (std::size_t index = 0; index < count; ++index) {
        std::unique_lock lock(mutex);
        Slot& slot = slots[index];
        isReady.wait(lock, [&] { return slot.result || slot.error; });
        lock.unlock();
        if (slot.error) {
            std::rethrow_exception(slot.error);
        }
        take(index, *std::exchange(slot.result, std::nullopt));
    }
}

}  // namespace lumenkit::cli
