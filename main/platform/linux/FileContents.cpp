// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileContents.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace selvane::files {
namespace {

constexpr std::size_t kBufferSize = 131072;
constexpr off_t kRangeSize = 1 << 24; // a part of a second even on a slow disk
constexpr off_t kBlockSize = 512;     // the unit of st_blocks
constexpr off_t kToTheEnd = std::numeric_limits<off_t>::max();

int writeAt(int to, const char* bytes, std::size_t count, off_t offset) {
    while (count > 0) {
        const ssize_t written = ::pwrite(to, bytes, count, offset);
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        bytes += written;
        count -= static_cast<std::size_t>(written);
        offset += written;
    }
    return 0;
}

} // namespace

class ContentCopier::System {
public:
    explicit System(Progress* progress) : m_progress(progress) {}

    /// Copies all of `from`, described by `status`, into the empty file `to`. Returns 0 or an error.
    int copy(int from, int to, const struct stat& status);

private:
    bool clone(int from, int to);
    int copyDataOfSparse(int from, int to, off_t size);
    int copyRange(int from, int to, off_t offset, off_t end);
    int copyThroughMemory(int from, int to, off_t offset, off_t end);
    /// Returns 0, or ECANCELED if the copying is to stop.
    int advance(off_t bytes) const;

    Progress* m_progress;
    bool m_canClone = true;
    bool m_canCopyRanges = true;
    std::unique_ptr<char[]> m_buffer;
};

ContentCopier::ContentCopier(Progress* progress) : m_system(std::make_unique<System>(progress)) {}
ContentCopier::~ContentCopier() = default;

int ContentCopier::copy(int from, const struct stat& status, int folder, const char* name,
                        Privacy /*privacy*/, Descriptor& to) {
    constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    to = Descriptor(::openat(folder, name, kFlags, S_IRUSR | S_IWUSR));
    return to ? m_system->copy(from, to.get(), status) : errno;
}

int ContentCopier::System::copy(int from, int to, const struct stat& status) {
    // Files in /proc report size 0; only reading shows what is in them.
    if (status.st_size == 0)
        return copyThroughMemory(from, to, 0, kToTheEnd);
    if (clone(from, to))
        return advance(status.st_size);
    if (status.st_blocks < status.st_size / kBlockSize)
        return copyDataOfSparse(from, to, status.st_size);
    return copyRange(from, to, 0, status.st_size);
}

int ContentCopier::System::advance(off_t bytes) const {
    if (m_progress == nullptr)
        return 0;
    m_progress->advance(0, bytes);
    return m_progress->isCancelled() ? ECANCELED : 0;
}

bool ContentCopier::System::clone(int from, int to) {
    if (!m_canClone)
        return false;
    if (::ioctl(to, FICLONE, from) == 0)
        return true;
    // Other errors may affect only this file; copying it will tell.
    m_canClone = errno != EOPNOTSUPP && errno != ENOTTY && errno != EXDEV && errno != ENOSYS;
    return false;
}

/// Disk images are mostly holes; their copy must not grow to their nominal size.
int ContentCopier::System::copyDataOfSparse(int from, int to, off_t size) {
    off_t end = 0;
    while (end < size) {
        const off_t data = ::lseek(from, end, SEEK_DATA);
        if (data < 0 && errno == ENXIO)
            break; // only a hole is left
        const off_t hole = data < 0 ? -1 : ::lseek(from, data, SEEK_HOLE);
        if (hole < 0)
            return copyRange(from, to, end, size);
        if (const int error = copyRange(from, to, data, std::min(hole, size)); error != 0)
            return error;
        end = hole;
    }
    return ::ftruncate(to, size) == 0 ? 0 : errno;
}

int ContentCopier::System::copyRange(int from, int to, off_t offset, off_t end) {
    while (m_canCopyRanges && offset < end) {
        off_t in = offset;
        off_t out = offset;
        const auto count = static_cast<std::size_t>(std::min(end - offset, kRangeSize));
        const ssize_t copied = ::copy_file_range(from, &in, to, &out, count, 0);
        if (copied > 0) {
            offset += copied;
            if (const int error = advance(copied); error != 0)
                return error;
        } else if (copied == 0) {
            break; // the file is shorter than it claimed, unless reading shows otherwise
        } else if (errno != EINTR) {
            m_canCopyRanges = errno != EXDEV && errno != ENOSYS && errno != EOPNOTSUPP;
            break; // whatever the error was, reading and writing works or reports it
        }
    }
    return offset < end ? copyThroughMemory(from, to, offset, end) : 0;
}

int ContentCopier::System::copyThroughMemory(int from, int to, off_t offset, off_t end) {
    if (m_buffer == nullptr)
        m_buffer = std::make_unique_for_overwrite<char[]>(kBufferSize);
    while (offset < end) {
        const auto wanted = std::min(static_cast<std::size_t>(end - offset), kBufferSize);
        const ssize_t count = ::pread(from, m_buffer.get(), wanted, offset);
        if (count == 0)
            break;
        if (count < 0) {
            if (errno == EINTR)
                continue;
            return errno;
        }
        if (const int error = writeAt(to, m_buffer.get(), static_cast<std::size_t>(count), offset);
            error != 0)
            return error;
        offset += count;
        if (const int error = advance(count); error != 0)
            return error;
    }
    return 0;
}

} // namespace selvane::files
