// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include <array>

#include "model/ByteText.h"
#include "model/LauncherError.h"
#include "platform/files/NormalizedPath.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kLiveMarkerName = ".live";
constexpr std::string_view kNoteName = "LEGGIMI.txt";
constexpr std::string_view kNote =
    "Cartelle dati di Claude Desktop degli account dei profili (login, preferenze, sessioni del tab Code).\n"
    "Il profilo Principale usa la normale ~/Library/Application Support/Claude.\n"
    "NON cancellare: qui ci sono gli account dei profili.\n";
constexpr std::array<std::string_view, 3> kSeededItems = {"claude_desktop_config.json",
                                                          "extensions-blocklist.json", "claude-code"};

} // namespace

fs::path ProfileStore::desktopStore() const {
    return root() / ".desktop-data";
}

/// An account's own folder in the store. Records can be edited by hand, so anything but a plain name, which
/// could lead out of the store, throws.
fs::path ProfileStore::desktopFolder(const std::string& owner) const {
    if (!Profile::isPossibleId(owner))
        throw LauncherError("Account non valido: " + text::singleLine(owner));
    return desktopStore() / owner;
}

std::string ProfileStore::desktopLiveOwner() const {
    const auto content = m_files.readIfPresent(desktopStore() / kLiveMarkerName, FileManager::kLongestRecord);
    const std::string owner(text::trimmed(content.value_or("")));
    return owner.empty() || !isUtf8(owner) ? std::string(Profile::kDefaultId) : owner;
}

fs::path ProfileStore::desktopDataDir(const Profile& profile) const {
    const std::string owner = profile.accountOwner();
    const fs::path folder = desktopFolder(owner);
    return owner == desktopLiveOwner() ? liveDesktopDir() : folder;
}

bool ProfileStore::hasDesktopData(const Profile& profile) const {
    return m_files.exists(desktopDataDir(profile));
}

DataFolders ProfileStore::dataFolders(Unreadable unreadable) const {
    std::vector<std::string> accounts = m_files.entriesIfPresent(desktopStore(), unreadable);
    std::erase_if(accounts, [](const std::string& name) { return !Profile::isPossibleId(name); });
    return {liveDesktopDir(), desktopStore(), accounts};
}

bool ProfileStore::desktopDataInUse(const fs::path& folder) const {
    return !testMode() && !claude().processes(folder, dataFolders()).empty();
}

std::vector<ClaudeApp::Instance> ProfileStore::claudeInstances() const {
    if (testMode())
        return {};
    std::vector<ClaudeApp::Instance> copies = claude().instances(dataFolders(Unreadable::leftOut));
    for (ClaudeApp::Instance& copy : copies) {
        if (!copy.isConfigKnown)
            assumeConfig(copy);
    }
    return copies;
}

/// If a copy's configuration is unknown but only one profile uses its account, assumes that profile's.
void ProfileStore::assumeConfig(ClaudeApp::Instance& copy) const {
    std::vector<Profile> users;
    for (Profile& profile : loadAll()) {
        if (usesDataFolder(profile, copy.dataDir))
            users.push_back(std::move(profile));
    }
    if (users.size() != 1)
        return;
    copy.isConfigKnown = true;
    if (!users.front().isDefault())
        copy.config = normalizedPath(users.front().configDir);
}

/// `folder` is normalized. A profile whose account isn't a valid id uses none, or none that is known if it
/// can't be read who uses the normal one.
bool ProfileStore::usesDataFolder(const Profile& profile, const std::string& folder) const {
    try {
        return Profile::isPossibleId(profile.accountOwner()) &&
               normalizedPath(desktopDataDir(profile)) == folder;
    } catch (const fs::filesystem_error&) {
        return false;
    }
}

std::optional<ClaudeApp::Instance> ProfileStore::instance(const Profile& usingAccountOf) const {
    const std::string folder = normalizedPath(desktopDataDir(usingAccountOf));
    for (const ClaudeApp::Instance& candidate : claudeInstances()) {
        if (candidate.dataDir == folder)
            return candidate;
    }
    return std::nullopt;
}

bool ProfileStore::runs(const ClaudeApp::Instance& instance, const Profile& profile) const {
    if (!instance.isConfigKnown)
        return false;
    // A copy without a configuration folder, such as one started by hand, uses the built-in profile's.
    const std::string config = instance.config.value_or(normalizedPath(defaultDir()));
    return config == normalizedPath(profile.configDir);
}

bool ProfileStore::hasLeft(const ClaudeApp::Instance& copy, const Profile& profile) const {
    if (!desktopDataInUse(desktopDataDir(profile)))
        return true;
    const std::optional<ClaudeApp::Instance> now = instance(profile);
    return now && now->app != copy.app;
}

std::set<std::string> ProfileStore::runningProfileIDs() const {
    std::set<std::string> ids;
    const std::vector<ClaudeApp::Instance> instances = claudeInstances();
    if (instances.empty())
        return ids;
    for (const Profile& profile : loadAll()) {
        for (const ClaudeApp::Instance& candidate : instances) {
            if (runs(candidate, profile) && usesDataFolder(profile, candidate.dataDir))
                ids.insert(profile.id);
        }
    }
    return ids;
}

bool ProfileStore::needsDesktopRestore() const {
    if (desktopLiveOwner() != Profile::kDefaultId)
        return true;
    return !m_files.exists(liveDesktopDir()) &&
           m_files.exists(desktopStore() / std::string(Profile::kDefaultId));
}

void ProfileStore::makeDesktopStore() {
    const fs::path store = desktopStore();
    m_files.createFolders(store, Privacy::ownerOnly); // it will hold logins
    if (m_files.linkTarget(store))
        return; // somebody else's folder may have a file of the note's name
    if (m_files.readIfPossible(store / kNoteName) != kNote)
        m_files.write(store / kNoteName, kNote);
}

void ProfileStore::restoreDesktopData() {
    const FolderLock lock(root(), m_progress);
    const std::string owner = desktopLiveOwner();
    desktopFolder(owner); // throws on an invalid marker before anything is touched
    makeDesktopStore();
    const fs::path builtIn = desktopFolder(std::string(Profile::kDefaultId));
    if (owner == Profile::kDefaultId && m_files.exists(liveDesktopDir()) && m_files.exists(builtIn))
        m_files.completeMove(builtIn, liveDesktopDir());
    if (!needsDesktopRestore())
        return;
    if (!testMode() && !claude().allProcesses(dataFolders()).empty())
        throw LauncherError(
            "Per passare alle istanze separate Claude va chiuso una volta: chiudilo e riprova.");
    swapLiveData(owner);
    if (m_files.exists(desktopStore() / kLiveMarkerName))
        m_files.removeFile(desktopStore() / kLiveMarkerName);
    m_files.waitForNames(desktopStore());
}

/// Parks the account that is in the normal folder and brings the built-in profile's data back there.
void ProfileStore::swapLiveData(const std::string& owner) {
    const fs::path& normal = liveDesktopDir();
    const fs::path parked = desktopFolder(owner);
    if (!m_files.exists(normal) && m_files.exists(parked)) {
        m_files.createFolders(normal.parent_path());
        m_files.move(parked, normal);
    }
    if (owner == Profile::kDefaultId)
        return;
    // An earlier run may have been interrupted before the original was gone.
    if (m_files.exists(parked) && !(m_files.exists(normal) && m_files.completeMove(normal, parked)))
        throw LauncherError("Esiste già " + parked.string() +
                            ": i dati Desktop sono in uno stato inatteso, controlla a mano");
    if (m_files.exists(normal))
        m_files.move(normal, parked);
    returnBuiltInData(owner);
}

/// The last steps, once the account of `owner` is parked. If they fail, it goes back.
void ProfileStore::returnBuiltInData(const std::string& owner) {
    const fs::path& normal = liveDesktopDir();
    const fs::path parked = desktopFolder(owner);
    const fs::path builtIn = desktopFolder(std::string(Profile::kDefaultId));
    const fs::path marker = desktopStore() / kLiveMarkerName;
    try {
        // Remove the marker before the move: if interrupted in between, the run can be repeated. After the
        // move, the marker would name an account that is no longer in the normal folder.
        if (m_files.exists(marker))
            m_files.removeFile(marker);
        m_files.waitForNames(desktopStore());
        if (!m_files.exists(builtIn))
            return;
        m_files.createFolders(normal.parent_path());
        m_files.move(builtIn, normal);
    } catch (const fs::filesystem_error&) {
        // The data may be back, and only waiting for the disk has failed: then the next run has nothing to
        // do.
        if (m_files.exists(normal) && !m_files.exists(builtIn))
            throw;
        try {
            if (!m_files.exists(marker))
                m_files.write(marker, owner);
            if (m_files.exists(parked))
                m_files.move(parked, normal);
        } catch (const fs::filesystem_error&) { // report the first error
        }
        throw;
    }
}

void ProfileStore::seedDesktopData(const Profile& profile, const Profile& source) {
    const fs::path folder = desktopFolder(profile.id);
    const fs::path origin = desktopDataDir(source);
    if (m_files.exists(folder) || !m_files.exists(origin))
        return;
    makeDesktopStore();
    m_files.replaceTrashing(folder, [&](const fs::path& temporary) {
        m_files.createFolders(temporary, Privacy::ownerOnly);
        for (const std::string_view name : kSeededItems) {
            try {
                if (m_files.exists(origin / name))
                    m_files.copy(origin / name, temporary / name);
            } catch (const fs::filesystem_error&) { // optional: Claude Desktop creates these itself
            }
        }
    });
}

} // namespace selvane
