// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "model/Profile.h"
#include "platform/json/SessionRecord.h"

namespace selvane {

class ProfileStore;

/// A data folder of Claude Desktop with the profiles that use it.
struct Account {
    std::filesystem::path folder;
    std::vector<std::size_t> profiles; ///< positions; its owner first, if that is one of them
};

/// A session record of an account.
struct RecordFile {
    std::string path;
    std::size_t account = 0;                  ///< position
    bool isInOtherOrganisation = false;       ///< not in the folder used last
    std::optional<SessionRecord> record = {}; ///< nothing if it can't be read
};

/// The accounts of these profiles. One that can't be found out is left out.
std::vector<Account> accountsOf(const ProfileStore& store, const std::vector<Profile>& profiles);
/// The session records of all organisation folders of these accounts, those of the folder used last first.
/// They are read on several threads. Throws only if the store's progress is cancelled.
std::vector<RecordFile> recordsOf(const ProfileStore& store, const std::vector<Account>& accounts);

} // namespace selvane
