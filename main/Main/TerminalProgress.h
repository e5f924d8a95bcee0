// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace selvane {

class Progress;

/// Shows on a terminal how far a command is, in one line that is gone when this is destroyed. A command that
/// takes less than `quiet` shows nothing.
class TerminalProgress {
public:
    TerminalProgress(const Progress& progress, int descriptor,
                     std::chrono::milliseconds quiet = std::chrono::seconds(1));
    TerminalProgress(const TerminalProgress&) = delete;
    TerminalProgress& operator=(const TerminalProgress&) = delete;
    ~TerminalProgress();

private:
    void run(std::chrono::milliseconds quiet);
    void show(const std::string& text);

    const Progress& m_progress;
    const int m_descriptor;
    std::string m_shown;
    std::mutex m_mutex; ///< of `m_isEnding`
    std::condition_variable m_changed;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace selvane
