// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <sys/stat.h>

#include "platform/files/Descriptor.h"
#include "platform/files/FileManager.h"

namespace selvane::files {

/// Makes files that hold what others hold, by the quickest way there is. It remembers what the file systems
/// can't do: use one for a whole tree.
class ContentCopier {
public:
    ContentCopier();
    ~ContentCopier();
    ContentCopier(const ContentCopier&) = delete;
    ContentCopier& operator=(const ContentCopier&) = delete;

    /// Makes the file `name` in `folder`, where nothing may be, with all that the regular file `from` holds,
    /// whose status is given, and hands it out as `to`. Who may read it is still to be set; until then those
    /// can at most who could read `from`, and of an `ownerOnly` one its owner alone. Returns 0 or an error,
    /// and then `to` is empty when nothing was made.
    int copy(int from, const struct stat& status, int folder, const char* name, Privacy privacy,
             Descriptor& to);

private:
    class System; ///< what this system's way takes
    std::unique_ptr<System> m_system;
};

} // namespace selvane::files
