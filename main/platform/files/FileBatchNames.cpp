// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT
//
// How what a batch has made gets its names.

#include <algorithm>
#include <utility>

#include "platform/files/FileBatchRound.h"
#include "platform/files/FileChanges.h"
#include "platform/files/FileRemoval.h"
#include "platform/files/Placement.h"

namespace selvane {

using files::fail;

namespace {

/// So many rounds wait for their names before nobody goes on copying.
constexpr std::size_t kMostRounds = 4;

} // namespace

/// The next rounds in order, as far as they are copied; none if copying has failed.
std::vector<std::shared_ptr<FileBatch::Round>> FileBatch::takeCopied() {
    const std::lock_guard guard(m_mutex);
    std::vector<std::shared_ptr<Round>> copied;
    while (!m_closed.empty() && m_closed.front()->isCopied && !m_copier.hasFailed()) {
        copied.push_back(std::move(m_closed.front()));
        m_closed.pop_front();
    }
    return copied;
}

/// Other threads go on copying meanwhile. If one of them is already at it, this one leaves it to them unless
/// too many rounds are waiting.
void FileBatch::settleCopied() {
    std::unique_lock settling(m_settling, std::defer_lock);
    if (!settling.try_lock()) {
        {
            const std::lock_guard guard(m_mutex);
            if (m_closed.size() < kMostRounds)
                return;
        }
        settling.lock();
    }
    settleAllCopied();
}

/// With `m_settling` held.
void FileBatch::settleAllCopied() {
    for (auto rounds = takeCopied(); !rounds.empty(); rounds = takeCopied()) {
        m_written.waitFor(m_folder); // one wait for all of them
        removeUsed();
        for (const auto& round : rounds)
            settle(*round);
    }
}

void FileBatch::settle(const Round& round) {
    const std::size_t end = std::min(round.failed, round.entries.size());
    for (std::size_t position = 0; position < end; ++position)
        place(round.entries[position]);
    if (round.failure)
        std::rethrow_exception(round.failure);
    if (!round.temporary.empty())
        m_used.push_back(round.temporary);
}

/// Removes what is left of earlier rounds: at most the links that were replaced.
void FileBatch::removeUsed() {
    for (const std::filesystem::path& temporary : std::exchange(m_used, {})) {
        try {
            files::removeTree(temporary, temporary.parent_path());
        } catch (const std::filesystem::filesystem_error&) {
            continue; // `finish` tries again
        }
        const std::lock_guard guard(m_mutex);
        m_temporaries.erase(temporary);
    }
}

void FileBatch::place(const Entry& entry) {
    const std::filesystem::path target = entry.folder->path / entry.name;
    FileChanges::Former former = files::Nothing{};
    files::FileState present = files::Nothing{};
    if (m_changes != nullptr) {
        present = m_changes->stateOfNew(entry.temporary);
        if (const auto link = FileManager().linkTarget(target))
            former = files::LinkText{*link};
    }
    if (const int error = files::place(entry.temporary, target, entry.kind); error != 0)
        fail("create", target, error);
    if (m_changes != nullptr)
        m_changes->add(target, std::move(former), std::move(present));
}

void FileBatch::finish() {
    if (m_count == 0)
        return;
    if (m_open)
        close();
    try {
        m_copier.finish();
        const std::lock_guard settling(m_settling);
        settleAllCopied();
    } catch (const std::exception&) {
        waitForNames(); // those before the failure
        throw;
    }
    waitForNames();
    removeOriginals();
    removeTemporaries();
}

void FileBatch::waitForNames() {
    for (const Folder& folder : m_folders) {
        if (const int error = m_written.addFolder(folder.path); error != 0)
            fail("write", folder.path, error);
    }
    m_written.waitFor(m_folder);
}

/// What was copied to another file system counts as moved now that its copy is on the disk.
void FileBatch::removeOriginals() {
    while (!m_originals.empty()) {
        const std::filesystem::path original = std::move(m_originals.back());
        m_originals.pop_back();
        files::removeTree(original, original);
    }
}

void FileBatch::removeTemporaries() {
    m_places.clear();
    m_folders.clear();
    while (!m_temporaries.empty()) {
        const std::filesystem::path temporary =
            std::move(m_temporaries.extract(m_temporaries.begin()).value());
        files::removeTree(temporary, temporary.parent_path());
    }
}

} // namespace selvane
