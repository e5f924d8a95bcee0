// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Main/TerminalProgress.h"

#include <unistd.h>

#include "platform/files/ProgressText.h"

namespace selvane {

TerminalProgress::TerminalProgress(const Progress& progress, int descriptor, std::chrono::milliseconds quiet)
    : m_progress(progress), m_descriptor(descriptor), m_thread(&TerminalProgress::run, this, quiet) {}

TerminalProgress::~TerminalProgress() {
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_one();
    m_thread.join();
    if (!m_shown.empty())
        show({});
}

void TerminalProgress::run(std::chrono::milliseconds quiet) {
    constexpr std::chrono::milliseconds kEvery(200);
    const auto isEnding = [this] { return m_isEnding; };
    std::unique_lock lock(m_mutex);
    for (auto pause = quiet; !m_changed.wait_for(lock, pause, isEnding); pause = kEvery) {
        if (const std::string text = progressText(m_progress); text != m_shown)
            show(text);
    }
}

/// In the place of what is shown. Somebody else's problem if the terminal is gone.
void TerminalProgress::show(const std::string& text) {
    constexpr const char* kEraseLine = "\r\x1b[K";
    const std::string line = kEraseLine + text;
    if (::write(m_descriptor, line.data(), line.size()) >= 0)
        m_shown = text;
}

} // namespace selvane
