// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

#include "model/LauncherError.h"
#include "platform/files/Descriptor.h"

namespace selvane {

class Progress;

/// Locks a folder against other Selvanes for the lifetime of this object. It leaves nothing behind, not even
/// after a crash. It does nothing if there is no such folder, even if that only turns out after waiting, or
/// if the file system has no locks.
class FolderLock {
public:
    /// How long an operation waits for others. Only tests change it.
    static inline std::chrono::milliseconds usualPatience = std::chrono::seconds(10);

    /// Somebody else has locked the folder for too long. The message names them.
    class Occupied : public LauncherError {
    public:
        using LauncherError::LauncherError;
    };

    /// While one lives, this thread waits for nobody.
    class Haste {
    public:
        Haste();
        ~Haste();
        Haste(const Haste&) = delete;
        Haste& operator=(const Haste&) = delete;
    };

    /// Waits while somebody else has locked the folder, at most for `patience`; then throws `Occupied`. If
    /// this thread has already locked it, perhaps under another name, throws at once. Throws, too, when
    /// `progress` is cancelled while it waits.
    explicit FolderLock(const std::filesystem::path& folder, const Progress* progress = nullptr,
                        std::chrono::milliseconds patience = usualPatience);
    FolderLock(FolderLock&& other) noexcept = default;
    FolderLock& operator=(FolderLock&& other) = delete;
    ~FolderLock();

    /// Locks a folder unless somebody has locked it already, or it isn't there.
    static std::optional<FolderLock> ifFree(const std::filesystem::path& folder);

private:
    FolderLock() = default;

    files::Descriptor m_folder;
};

} // namespace selvane
