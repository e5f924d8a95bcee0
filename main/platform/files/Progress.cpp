// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/Progress.h"

namespace selvane {

namespace fs = std::filesystem;

Progress::~Progress() {
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_announced.notify_one();
    if (m_counter.joinable())
        m_counter.join();
}

void Progress::expect(const fs::path& tree) {
    const std::lock_guard lock(m_mutex);
    m_trees.push_back(tree);
    if (!m_counter.joinable())
        m_counter = std::thread(&Progress::count, this);
    m_announced.notify_one();
}

void Progress::expect(Amount amount) {
    const std::lock_guard lock(m_mutex);
    m_expected.entries += amount.entries;
    m_expected.bytes += amount.bytes;
}

void Progress::requireWanted() const {
    if (m_isCancelled)
        throw fs::filesystem_error("stop", std::make_error_code(std::errc::operation_canceled));
}

std::optional<Progress::Amount> Progress::expected() const {
    const std::lock_guard lock(m_mutex);
    const bool isCounted = m_trees.empty() && (m_expected.entries > 0 || m_expected.bytes > 0);
    return isCounted ? std::optional(m_expected) : std::nullopt;
}

void Progress::add(const fs::directory_entry& entry) {
    std::error_code error;
    const fs::file_status status = entry.symlink_status(error);
    if (error || !fs::exists(status))
        return;
    const auto bytes = fs::is_regular_file(status) ? entry.file_size(error) : 0;
    const std::lock_guard lock(m_mutex);
    ++m_expected.entries;
    if (!error)
        m_expected.bytes += static_cast<std::int64_t>(bytes);
}

void Progress::count() {
    std::unique_lock lock(m_mutex);
    while (!m_isEnding) {
        if (m_trees.empty()) {
            m_announced.wait(lock);
            continue;
        }
        const fs::path tree = m_trees.front();
        lock.unlock();
        std::error_code error;
        const fs::directory_entry top(tree, error);
        add(top);
        if (top.symlink_status(error).type() == fs::file_type::directory) {
            fs::recursive_directory_iterator entry(tree, fs::directory_options::skip_permission_denied,
                                                   error);
            for (; !error && entry != fs::end(entry) && mayGoOn(); entry.increment(error))
                add(*entry);
        }
        lock.lock();
        m_trees.pop_front();
    }
}

} // namespace selvane
