// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/CopyCrew.h"

#include <algorithm>
#include <system_error>
#include <unistd.h>

namespace selvane::files {
namespace {

/// So many files are copied before the first thread is started.
constexpr int kFilesWithoutThreads = 64;
/// So many files wait at most if each can keep two folders open, and if it can't.
constexpr std::size_t kMostInFolders = 32;
constexpr std::size_t kMostWaiting = 1024;
/// The caller included. More don't pay: they only wait for each other.
constexpr unsigned kMostThreads = 4;
/// So many of them wait for the disk when it is busy: one for what is written, one to begin to write more.
constexpr unsigned kWaiting = 2;

} // namespace

/// The mode bits that a copy keeps. Set-user-ID and set-group-ID bits are kept only on the user's own files.
mode_t copiedMode(const struct stat& status) {
    const mode_t mode = status.st_mode & ALLPERMS;
    constexpr mode_t kActsAsOwner = S_ISUID | S_ISGID;
    const bool isForeign =
        S_ISREG(status.st_mode) && (mode & kActsAsOwner) != 0 && status.st_uid != ::geteuid();
    return isForeign ? mode & ~kActsAsOwner : mode;
}

int finishCopy(int from, Descriptor to, const struct stat& status, Privacy privacy, DiskSync& written) {
    const std::optional<mode_t> known = copyAttributes(from, to.get(), copiedMode(status), privacy);
    const std::array<timespec, 2> times = timesOf(status);
    if (!known || ::fchmod(to.get(), *known) != 0 || ::futimens(to.get(), times.data()) != 0)
        return errno;
    return written.add(std::move(to));
}

CopyCrew::~CopyCrew() {
    stop();
}

void CopyCrew::requireWanted(const std::filesystem::path& path) const {
    if (m_progress != nullptr && m_progress->isCancelled())
        fail("copy", path, ECANCELED);
}

void CopyCrew::advance() const {
    if (m_progress != nullptr)
        m_progress->advance(1, 0);
}

bool CopyCrew::takesFiles() {
    if (!m_threads.empty())
        return true;
    if (++m_files <= kFilesWithoutThreads)
        return false;
    const unsigned threads = std::clamp(std::thread::hardware_concurrency() + kWaiting, 2U, kMostThreads);
    try {
        while (m_threads.size() + 1 < threads)
            m_threads.emplace_back([this] { work(); });
    } catch (const std::system_error&) { // the system has no more threads; those that there are do
    }
    return !m_threads.empty();
}

CopyFailure CopyCrew::copyNow(const FileToCopy& file) {
    return copyFile(file, m_contents);
}

void CopyCrew::add(std::shared_ptr<FolderPair> folder, std::string from, std::string to, std::string named,
                   Privacy privacy) {
    if (folder)
        ++folder->users;
    add(Job{std::move(folder), std::move(from), std::move(to), std::move(named), privacy});
}

void CopyCrew::add(std::function<void()> task) {
    Job job;
    job.task = std::move(task);
    add(std::move(job));
}

bool CopyCrew::hasFailed() {
    const std::lock_guard guard(m_mutex);
    return m_failure != nullptr;
}

void CopyCrew::add(Job job) {
    job.kept = m_kept;
    {
        const std::lock_guard guard(m_mutex);
        if (m_failure)
            std::rethrow_exception(m_failure);
        if (m_jobs.size() < (job.folder ? kMostInFolders : kMostWaiting)) {
            m_jobs.push_back(std::move(job));
            m_added.notify_one();
            return;
        }
    }
    run(job, m_contents);
}

void CopyCrew::finish() {
    ContentCopier& contents = m_contents;
    std::unique_lock lock(m_mutex);
    while (!m_jobs.empty() && !m_failure) {
        const Job job = std::move(m_jobs.front());
        m_jobs.pop_front();
        lock.unlock();
        attempt(job, contents);
        lock.lock();
    }
    m_idle.wait(lock, [this] { return m_busy == 0; });
    if (m_failure)
        std::rethrow_exception(m_failure);
}

void CopyCrew::stop() {
    {
        const std::lock_guard guard(m_mutex);
        m_jobs.clear();
        m_isEnding = true;
    }
    m_added.notify_all();
    for (std::thread& thread : m_threads)
        thread.join();
    m_threads.clear();
}

/// What each thread does.
void CopyCrew::work() {
    ContentCopier contents(m_progress);
    std::unique_lock lock(m_mutex);
    while (true) {
        m_added.wait(lock, [this] { return m_isEnding || !m_jobs.empty(); });
        if (m_jobs.empty())
            return;
        const Job job = std::move(m_jobs.front());
        m_jobs.pop_front();
        ++m_busy;
        lock.unlock();
        attempt(job, contents);
        lock.lock();
        if (--m_busy == 0)
            m_idle.notify_all();
    }
}

void CopyCrew::attempt(const Job& job, ContentCopier& contents) {
    try {
        run(job, contents);
    } catch (...) {
        const std::lock_guard guard(m_mutex);
        if (!m_failure)
            m_failure = std::current_exception();
        m_jobs.clear(); // nobody needs the rest any more
    }
}

void CopyCrew::run(const Job& job, ContentCopier& contents) {
    if (job.task)
        return job.task();
    FileToCopy file;
    if (job.folder)
        file = {job.folder->source.get(), job.folder->target.get()};
    file.from = job.from.c_str();
    file.to = job.to.c_str();
    file.privacy = job.privacy;
    file.isAlone = !job.folder;
    const CopyFailure failure = copyFile(file, contents);
    if (failure.error != 0) {
        const auto path = [&](const std::filesystem::path& folder, const std::string& name) {
            return job.folder ? folder / name : std::filesystem::path(name);
        };
        const FolderPair none;
        const FolderPair& folder = job.folder ? *job.folder : none;
        const std::filesystem::path from = path(folder.from, job.from);
        const std::filesystem::path to = path(folder.named, job.named);
        if (failure.side == CopyFailure::Side::both)
            fail("copy", from, to, failure.error);
        fail("copy", failure.side == CopyFailure::Side::from ? from : to, failure.error);
    }
    if (job.folder)
        release(*job.folder);
}

CopyFailure CopyCrew::copyFile(const FileToCopy& file, ContentCopier& contents) const {
    using Side = CopyFailure::Side;
    if (m_progress != nullptr && m_progress->isCancelled())
        return {ECANCELED, Side::from};
    const Descriptor from = openOriginal(file.source, file.from);
    struct stat status = {};
    if (!from || ::fstat(from.get(), &status) != 0)
        return {errno, Side::from};
    if (!S_ISREG(status.st_mode))
        return {S_ISDIR(status.st_mode) ? EISDIR : EINVAL, Side::from};
    Descriptor to;
    if (const int error = contents.copy(from.get(), status, file.target, file.to, file.privacy, to);
        error != 0)
        return {error, to ? Side::both : Side::to};
    if (file.isAlone)
        dropInheritedAccess(to.get());
    if (const int error = finishCopy(from.get(), std::move(to), status, file.privacy, m_written); error != 0)
        return {error, Side::to};
    advance();
    return {};
}

void CopyCrew::release(FolderPair& folder) {
    if (--folder.users > 0)
        return;
    const int error = finishCopy(folder.source.get(), std::move(folder.target), folder.status,
                                 Privacy::inherited, m_written);
    if (error != 0)
        fail("copy", folder.named, error);
    advance();
}

} // namespace selvane::files
