// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <thread>

namespace selvane {

/// Time and waiting, behind an interface so that tests needn't wait.
class Clock {
public:
    virtual ~Clock() = default;
    virtual std::chrono::steady_clock::time_point now() = 0;
    virtual void sleep(std::chrono::milliseconds duration) = 0;
};

class SystemClock final : public Clock {
public:
    std::chrono::steady_clock::time_point now() override { return std::chrono::steady_clock::now(); }
    void sleep(std::chrono::milliseconds duration) override { std::this_thread::sleep_for(duration); }
};

} // namespace selvane
