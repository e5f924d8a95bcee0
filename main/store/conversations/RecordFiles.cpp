// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/conversations/RecordFiles.h"

#include <memory>
#include <unordered_map>

#include "model/LauncherError.h"
#include "platform/files/Progress.h"
#include "platform/process/Parallel.h"
#include "store/ProfileStore.h"
#include "store/SessionHandover.h"

namespace selvane {

namespace fs = std::filesystem;

std::vector<Account> accountsOf(const ProfileStore& store, const std::vector<Profile>& profiles) {
    std::vector<Account> accounts;
    std::unordered_map<std::string, std::size_t> known;
    for (std::size_t number = 0; number < profiles.size(); ++number) {
        const Profile& profile = profiles[number];
        try {
            const fs::path folder = store.desktopDataDir(profile);
            const auto [account, isNew] = known.emplace(folder.native(), accounts.size());
            if (isNew)
                accounts.push_back({folder, {}});
            std::vector<std::size_t>& users = accounts[account->second].profiles;
            users.insert(profile.accountOwner() == profile.id ? users.begin() : users.end(), number);
        } catch (const LauncherError&) { // the profile's record names an account that can't be
        } catch (const fs::filesystem_error&) {
        }
    }
    return accounts;
}

std::vector<RecordFile> recordsOf(const ProfileStore& store, const std::vector<Account>& accounts) {
    const FileManager files;
    std::vector<RecordFile> records;
    for (std::size_t account = 0; account < accounts.size(); ++account) {
        bool isOther = false;
        for (const fs::path& folder : store.sessionFolders(accounts[account].folder, Unreadable::leftOut)) {
            for (const std::string& name : files.entriesIfReadable(folder)) {
                if (isSessionRecord(name))
                    records.push_back({folder.native() + "/" + name, account, isOther});
            }
            isOther = true;
        }
    }
    inParallel(records.size(), [&] {
        return [&, reader = std::make_shared<SessionRecordReader>()](std::size_t number) {
            if (store.progress() != nullptr)
                store.progress()->requireWanted();
            records[number].record = reader->read(records[number].path);
        };
    });
    return records;
}

} // namespace selvane
