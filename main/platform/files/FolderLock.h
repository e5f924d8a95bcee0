// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>

#include "platform/files/Descriptor.h"

namespace selvane {

/// Has a folder to itself among all Selvanes for as long as it lives; until then the others wait. A second
/// one on the same folder waits for ever, also in the same thread. It leaves nothing behind, not even after a
/// crash. Where there is no such folder (any more, when it has waited), or its file system knows no locks, it
/// does nothing.
class FolderLock {
public:
    explicit FolderLock(const std::filesystem::path& folder);

private:
    files::Descriptor m_folder;
};

} // namespace selvane
