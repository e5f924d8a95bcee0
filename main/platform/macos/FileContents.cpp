// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileContents.h"

#include <cerrno>
#include <copyfile.h>
#include <sys/clonefile.h>

namespace selvane::files {
namespace {

/// A clone inherits these flags, and could then be neither finished nor removed.
constexpr unsigned int kLocks = UF_IMMUTABLE | UF_APPEND | SF_IMMUTABLE | SF_APPEND;

} // namespace

class ContentCopier::System {
public:
    /// Clones by descriptor, so that it clones the file that was checked. Returns 0 or an error.
    int clone(int from, int folder, const char* name, Descriptor& to);
    int copyData(int from, int folder, const char* name, Descriptor& to) const;

    explicit System(Progress* progress) : m_progress(progress) {}
    int advance(off_t bytes) const {
        if (m_progress == nullptr)
            return 0;
        m_progress->advance(0, bytes);
        return m_progress->isCancelled() ? ECANCELED : 0;
    }
    bool canClone(const struct stat& status) const { return m_canClone && (status.st_flags & kLocks) == 0; }

private:
    Progress* m_progress;
    bool m_canClone = true;
};

int ContentCopier::System::clone(int from, int folder, const char* name, Descriptor& to) {
    if (::fclonefileat(from, folder, name, CLONE_NOOWNERCOPY) != 0) {
        // Other errors may affect only this file; copying it will tell.
        m_canClone = errno != ENOTSUP && errno != EXDEV;
        return errno;
    }
    to = Descriptor(::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (to)
        return 0;
    const int error = errno;
    ::unlinkat(folder, name, 0);
    return error;
}

int ContentCopier::System::copyData(int from, int folder, const char* name, Descriptor& to) const {
    constexpr int kFlags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    to = Descriptor(::openat(folder, name, kFlags, S_IRUSR | S_IWUSR));
    if (!to)
        return errno;
    // Keep holes where possible.
    constexpr copyfile_flags_t kWhat = COPYFILE_DATA | COPYFILE_DATA_SPARSE;
    return ::fcopyfile(from, to.get(), nullptr, kWhat) == 0 ? 0 : errno;
}

ContentCopier::ContentCopier(Progress* progress) : m_system(std::make_unique<System>(progress)) {}
ContentCopier::~ContentCopier() = default;

int ContentCopier::copy(int from, const struct stat& status, int folder, const char* name, Privacy privacy,
                        Descriptor& to) {
    // From its first moment, a clone can be read by anyone who can read the original.
    const bool maybe = privacy == Privacy::inherited && m_system->canClone(status);
    const bool isCloned = maybe && m_system->clone(from, folder, name, to) == 0;
    const int error = isCloned ? 0 : m_system->copyData(from, folder, name, to);
    return error != 0 ? error : m_system->advance(status.st_size);
}

} // namespace selvane::files
