// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <sys/stat.h>

namespace selvane::files {

/// Copies what files hold, by the quickest way there is. It remembers what the file systems can't do: use
/// one for a whole tree.
class ContentCopier {
public:
    /// Copies all of `from`, whose status is given, to the empty `to`. Returns 0 or an error.
    int copy(int from, int to, const struct stat& status);

private:
    bool clone(int from, int to);
    int copyDataOfSparse(int from, int to, off_t size);
    int copyRange(int from, int to, off_t offset, off_t end);
    int copyThroughMemory(int from, int to, off_t offset, off_t end);

    bool m_canClone = true;
    bool m_canCopyRanges = true;
    std::unique_ptr<char[]> m_buffer;
};

} // namespace selvane::files
