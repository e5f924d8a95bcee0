// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "model/Restore.h"

namespace selvane {

class ProfileStore;

// The way back from an archive. All of these tell the store's progress how far they are and stop when it is
// cancelled; then, as after any failure, nothing has changed. They may be called on any thread.

/// Reads an archive from its first byte to its last and tells what is in it. Throws `LauncherError` if it is
/// damaged, unsafe (see `ArchiveListing`), or none that a backup has made.
CheckedArchive checkArchive(const ProfileStore& store, const std::filesystem::path& archive);

/// Those of the parts that Claude Desktop, or Claude Code in a terminal, is using now.
std::vector<RestorePart> partsInUse(const ProfileStore& store, const std::vector<RestorePart>& parts);

/// Unpacks the parts into a temporary folder of the profiles root, compares them with what is there, and
/// removes them again. Throws if that folder's disk has no space for them.
RestoreReport tryRestore(const ProfileStore& store, const CheckedArchive& archive,
                         const std::vector<RestorePart>& parts);

/// Puts the parts in place, one after the other, each whole: all are unpacked beside what they replace and on
/// the disk before the first of these goes to the Trash, with ".precedente" after its name. The terminal
/// helper is written anew.
///
/// Throws `LauncherError` if a part is in use or there is no space, and changes nothing then. If the Trash
/// doesn't take what a part replaces, that part and those after it stay as they were. After a kill,
/// `interruptedRestore` tells which part is how.
RestoreReport restore(ProfileStore& store, const CheckedArchive& archive,
                      const std::vector<RestorePart>& parts);

/// How far a restore had come that was killed; nothing if none was.
std::optional<InterruptedRestore> interruptedRestore(const ProfileStore& store);
/// Completes the part that a killed restore had begun, and removes what it, or a killed trial, had unpacked
/// for others. Does nothing if there was none. `restore` begins with this.
void completeRestore(const ProfileStore& store);

} // namespace selvane
