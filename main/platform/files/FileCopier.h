// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "platform/files/DiskSync.h"
#include "platform/files/FileManager.h"
#include "platform/files/Progress.h"

namespace selvane {

/// Copies many files, links and folders, several at a time, each as `FileManager::copy` does but without a
/// temporary name: for use inside a folder that is itself still temporary. Memory and open files don't grow
/// with what is copied.
class FileCopier {
public:
    /// What is copied is handed over to `written`; nothing waits for the disk.
    explicit FileCopier(files::DiskSync& written, Progress* progress = nullptr);
    /// Waits for the disk, and tells the progress, as `files` does.
    explicit FileCopier(const FileManager& files);
    ~FileCopier(); ///< stops
    FileCopier(const FileCopier&) = delete;
    FileCopier& operator=(const FileCopier&) = delete;

    /// Copies `from` to `to`, which must not exist; a file perhaps only later. Errors name paths at or below
    /// `from` or `named`, what the user calls `to`. Throws the first failure of anything copied so far.
    void copy(const std::filesystem::path& from, const std::filesystem::path& to,
              const std::filesystem::path& named, Privacy privacy = Privacy::inherited);
    /// The same for what is certainly a file; fails if it isn't one by then.
    void copyFile(const std::filesystem::path& from, const std::filesystem::path& to,
                  const std::filesystem::path& named, Privacy privacy = Privacy::inherited);
    /// Does something else, perhaps only later in another thread.
    void run(std::function<void()> task);
    /// Whatever is copied or done from now on keeps this until it is complete or given up.
    void keepWhileCopying(std::shared_ptr<void> kept);
    bool hasFailed() const;
    /// Waits until everything is copied, and on the disk unless somebody else waits for that. Throws the
    /// first failure.
    void finish();
    /// Ends copying for good. Whatever was copied stays.
    void stop();

private:
    class Crew;
    files::DiskSync m_own; ///< used if there is no other
    std::unique_ptr<Crew> m_crew;
    std::filesystem::path m_first; ///< for messages
};

} // namespace selvane
