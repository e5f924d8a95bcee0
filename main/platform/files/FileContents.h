// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <sys/stat.h>

#include "platform/files/Descriptor.h"
#include "platform/files/FileManager.h"
#include "platform/files/Progress.h"

namespace selvane::files {

/// Creates files with the contents of others, as fast as the system can. It remembers what the file systems
/// don't support, so use one for a whole tree.
class ContentCopier {
public:
    /// Counts the bytes in `progress`, if there is one, and stops with ECANCELED when it says so.
    explicit ContentCopier(Progress* progress);
    ~ContentCopier();
    ContentCopier(const ContentCopier&) = delete;
    ContentCopier& operator=(const ContentCopier&) = delete;

    /// Creates the file `name`, which must not exist, in `folder` and copies the contents of the regular file
    /// `from` into it. `status` is that of `from`; the new file is returned in `to`. The caller still has to
    /// set its permissions: until then at most those who can read `from` can read it, and only its owner if
    /// it is `ownerOnly`. Returns 0 or an error; after an error, `to` is empty if nothing was created.
    int copy(int from, const struct stat& status, int folder, const char* name, Privacy privacy,
             Descriptor& to);

private:
    class System; ///< the system's own way of copying
    std::unique_ptr<System> m_system;
};

} // namespace selvane::files
