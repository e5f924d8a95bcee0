// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <exception>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <vector>

#include "platform/files/Descriptor.h"
#include "platform/files/DiskSync.h"
#include "platform/files/FileContents.h"
#include "platform/files/FileCopy.h"

namespace selvane::files {

/// One file to copy: its name on each side, and the open folder that the name is in.
struct FileToCopy {
    int source = AT_FDCWD;
    int target = AT_FDCWD;
    const char* from = nullptr;
    const char* to = nullptr;
    Privacy privacy = Privacy::inherited;
    bool isAlone = false; ///< not part of a folder that is copied
};

/// What went wrong, and on which side.
struct CopyFailure {
    enum class Side { from, to, both };
    int error = 0; ///< 0: nothing
    Side side = Side::from;
};

/// Gives a complete copy the mode, attributes and times of its original, and hands it over to `written`.
/// Returns 0 or the error.
int finishCopy(int from, Descriptor to, const struct stat& status, Privacy privacy, DiskSync& written);
mode_t copiedMode(const struct stat& status);

/// A folder and its copy, open while files in them are being copied.
struct FolderPair {
    Descriptor source;
    Descriptor target;
    struct stat status = {};
    std::filesystem::path from; ///< for messages, like the next
    std::filesystem::path named;
    std::atomic<int> users = 1; ///< the files still to be copied, and whoever adds more of them
};

/// Threads that copy files, in any order. The first few files are copied by the caller, so that copying a
/// little starts no thread. At most a fixed number of files waits, so memory and open files don't grow.
class CopyCrew {
public:
    CopyCrew(DiskSync& written, Progress* progress)
        : m_written(written), m_progress(progress), m_contents(progress) {}
    ~CopyCrew();
    CopyCrew(const CopyCrew&) = delete;
    CopyCrew& operator=(const CopyCrew&) = delete;

    /// Whether the next file goes to a thread. Otherwise the caller copies it by `copyNow`.
    bool takesFiles();
    CopyFailure copyNow(const FileToCopy& file);
    /// Adds a file in a folder, or alone if there is no folder; `named` is what the user calls its copy.
    /// Throws the first failure of any file so far.
    void add(std::shared_ptr<FolderPair> folder, std::string from, std::string to, std::string named,
             Privacy privacy);
    /// Adds something else to do. Its failure counts as that of a file.
    void add(std::function<void()> task);
    /// Whatever is added from now on keeps this until it is done or given up.
    void keepWhileCopying(std::shared_ptr<void> kept) { m_kept = std::move(kept); }
    bool hasFailed();
    /// The folder gets no more files: once those it has are copied, it gets its own mode and times.
    void release(FolderPair& folder);
    /// Waits until everything is copied. Throws the first failure.
    void finish();
    /// Ends the threads. What is still waiting is not copied.
    void stop();
    DiskSync& written() const { return m_written; }
    /// Throws if the operation is to stop.
    void requireWanted(const std::filesystem::path& path) const;
    /// Counts something that is complete.
    void advance() const;

private:
    struct Job {
        std::shared_ptr<FolderPair> folder;
        std::string from, to, named;
        Privacy privacy = Privacy::inherited;
        std::function<void()> task{}; ///< what to do instead of copying
        std::shared_ptr<void> kept{};
    };

    void add(Job job);
    void work();
    void run(const Job& job, ContentCopier& contents);
    void attempt(const Job& job, ContentCopier& contents);
    CopyFailure copyFile(const FileToCopy& file, ContentCopier& contents) const;

    DiskSync& m_written;
    Progress* m_progress;
    ContentCopier m_contents; ///< the caller's
    int m_files = 0;
    std::shared_ptr<void> m_kept;

    std::mutex m_mutex;
    std::condition_variable m_added; ///< there is a job, or there will be no more
    std::condition_variable m_idle;  ///< no thread is copying
    std::deque<Job> m_jobs;
    int m_busy = 0; ///< threads that are copying
    bool m_isEnding = false;
    std::exception_ptr m_failure; ///< the first
    std::vector<std::thread> m_threads;
};

/// Copies whatever is at `from` to `to`, or has `crew` copy it. Errors name `named` for `to`.
void copyTree(const std::filesystem::path& from, const std::filesystem::path& to,
              const std::filesystem::path& named, Privacy privacy, CopyCrew& crew);
/// The same for what is certainly a file; fails if it isn't one by then.
void copyFile(const std::filesystem::path& from, const std::filesystem::path& to,
              const std::filesystem::path& named, Privacy privacy, CopyCrew& crew);

} // namespace selvane::files
