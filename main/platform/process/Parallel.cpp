// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/process/Parallel.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace selvane {
namespace {

constexpr std::size_t kMostThreads = 4;

} // namespace

void inParallel(std::size_t count, const std::function<Worker()>& makeWorker) {
    std::atomic<std::size_t> next = 0;
    std::mutex mutex;
    std::exception_ptr failure;
    const auto work = [&]() noexcept {
        try {
            const Worker worker = makeWorker();
            for (std::size_t position = next++; position < count; position = next++)
                worker(position);
        } catch (...) {
            next = count; // the others end as well
            const std::lock_guard guard(mutex);
            if (!failure)
                failure = std::current_exception();
        }
    };
    std::vector<std::thread> threads;
    const std::size_t wanted =
        std::min<std::size_t>({count, kMostThreads, std::thread::hardware_concurrency()});
    try {
        while (threads.size() + 1 < wanted)
            threads.emplace_back(work);
    } catch (const std::system_error&) { // the system has no more threads; those that there are do
    }
    if (count > 0)
        work();
    for (std::thread& thread : threads)
        thread.join();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace selvane
