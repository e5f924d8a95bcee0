// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "desktop/ClaudeApp.h"
#include "model/Backup.h"
#include "model/ChangedItem.h"
#include "model/CodeSession.h"
#include "model/ComponentItem.h"
#include "model/Continuation.h"
#include "model/DamagedProfile.h"
#include "model/Profile.h"
#include "model/SyncReport.h"
#include "platform/files/FileManager.h"
#include "platform/files/FolderLock.h"
#include "store/NewProfile.h"
#include "store/ProfileLocations.h"
#include "store/Reversal.h"
#include "store/SignInTargets.h"
#include "store/TranscriptIndex.h"

namespace selvane {

class FileBatch;
class OwnFolders;
class Progress;
struct Conversation;
struct ConversationList;
struct InstructionExcludes;

/// The profiles on disk. It keeps no cache: every query reads the file system again.
///
/// Operations throw `LauncherError` for Selvane's own errors and let file-system and JSON errors pass;
/// whatever a failed operation had already finished stays. Listings never fail: they leave out what can't be
/// read. If several Selvanes change one profile at once, each waits its turn.
class ProfileStore : public ProfileLocations {
public:
    static constexpr std::string_view kMetaFileName = ".launcher.json";
    static constexpr std::string_view kProfileNoteName = "selvane-profile.md";

    /// Creates the profiles root if it is missing, ignoring failures.
    ProfileStore(const Environment& environment, const ClaudeApp& claude);
    /// The same profiles, for one long operation: what is copied is told to `progress`, which can cancel it.
    ProfileStore(const ProfileStore& other, Progress& progress) : ProfileStore(other, &progress, nullptr) {}
    /// The same for one operation that can be taken back: `reversal` says how once it has succeeded. Either
    /// may be null.
    ProfileStore(const ProfileStore& other, Progress* progress, Reversal* reversal);
    Progress* progress() const { return m_progress; } ///< null if it tells nobody

    // Loading and saving (ProfileStore.cpp)
    std::vector<Profile> loadAll() const;                ///< the built-in profile, then the others by name
    std::vector<DamagedProfile> damagedProfiles() const; ///< by id; the built-in profile is never among them
    /// Without a valid record, the built-in profile has the standard one, and any other isn't found.
    std::optional<Profile> profile(std::string_view id) const;
    /// Keys that Selvane doesn't know stay in the record. Throws if the record on disk is damaged or can't be
    /// read, and leaves it as it is.
    void saveMeta(const Profile& profile);
    /// Gives a damaged profile a standard record with its id as the name; the damaged record goes to the
    /// Trash. Does nothing if the record is valid.
    void repair(const std::string& id);
    /// Changes the record on disk, which may differ from `profile` as loaded.
    Profile changeMeta(const Profile& profile, const std::function<void(ProfileMeta&)>& change);
    void markLaunched(const Profile& profile);   ///< never fails
    std::optional<std::string> activeID() const; ///< may name a profile that no longer exists
    bool exists(const std::filesystem::path& path) const { return m_files.exists(path); }
    std::filesystem::path globalJSON(const Profile& profile) const;
    /// What `loadAll` and `activeID` read, to be watched; not all of it has to exist.
    std::vector<std::filesystem::path> recordPlaces() const;
    /// Those that the listings of a profile's items, files and sessions read.
    std::vector<std::filesystem::path> listedPlaces(const Profile& profile) const;

    // Creation and deletion (Creation.cpp, Imports.cpp, Deletion.cpp)
    /// On failure, and when it is cancelled, removes what it created, unless only seeding the
    /// account's data failed. What a killed run has left makes way for the next profile of that name.
    Profile create(const NewProfile& request);
    /// Copies a component that is copied as a whole again; what the profile had of it goes to the Trash.
    void reimport(Component component, const Profile& to, const Profile& from);
    /// Moves it to the Trash with its own desktop data. Refuses if other profiles depend on it, or may
    /// because their record can't be read, or if its account is open.
    void deleteProfile(const Profile& profile);

    // Items, links and share modes (Items.cpp, Links.cpp, ClaudeMd.cpp)
    std::vector<ComponentItem> items(Component component, const Profile& profile) const;
    bool isLinked(const ComponentItem& item, const Profile& to, Component component) const;
    /// The dangling links among the source's items that a `separate` collection has no copy of, because there
    /// is nothing to copy; each as "title: item".
    std::vector<std::string> uncopiedItems(const Profile& profile) const;
    /// Never overwrites: fails if the name is taken.
    void addItem(const ComponentItem& item, const Profile& to, Component component, bool link);
    SyncReport sync(const Profile& profile);
    Profile setMode(ShareMode mode, Component component, const Profile& profile);
    void makeOwn(const ComponentItem& item, const Profile& profile);
    Profile remove(const ComponentItem& item, const Profile& from, Component component);
    Profile importItems(const std::set<std::string>& names, const Profile& source, const Profile& into,
                        Component component, bool link);

    // Items that no longer follow their source (Drift.cpp)
    /// Those that are the profile's own although their component is shared and the source has one of that
    /// name, unless they were left out or are kept own deliberately. By component, then by name. Never fails:
    /// what can't be read is left out.
    std::vector<ChangedItem> changedItems(const Profile& profile) const;
    std::vector<ChangedItem> changedItems(Component component, const Profile& profile,
                                          Unreadable unreadable = Unreadable::leftOut) const;
    // The following return the profile as it is recorded now. They throw `LauncherError` if the item has been
    // linked, removed or changed by somebody else since it was listed; nothing of the user's is lost then.
    /// Links the item to the source's again; what the profile had goes to the Trash.
    Profile relink(const ChangedItem& item, const Profile& profile);
    Profile relinkAll(Component component, const Profile& profile); ///< those that `changedItems` lists now
    /// Puts the profile's item in the place of the source's, which goes to the Trash, and links to it. If the
    /// item changes meanwhile, the profile keeps the newer one as its own. The source's may be missing, as an
    /// interrupted run leaves it: then the same call completes that.
    Profile bringToSource(const ChangedItem& item, const Profile& profile);
    /// Records that the item is to stay the profile's own: it's no longer among `changedItems`, until it is
    /// linked, removed or taken from the record.
    Profile keepOwn(const ChangedItem& item, const Profile& profile);

    // Taking back (Reversal.cpp)
    /// Undoes a deletion, the removal of an item, the change of a mode, `relink`, `bringToSource` or
    /// `reimport` of a store with a `Reversal`: what went to the Trash has its place again, what was made
    /// instead is gone, and the record says what it said. Other changes of the record stay, such as a new
    /// name.
    ///
    /// If any of it has changed meanwhile, in the folders, the record or the Trash, or if the deleted
    /// profile's account is open, throws `LauncherError` and changes nothing. If it fails or is killed on the
    /// way, each item is as before or as after, or in the Trash.
    void takeBack(const Reversal& reversal);

    // Isolation (Isolation.cpp)
    /// Whether it makes a difference now if a new profile is isolated: whether the built-in profile has
    /// instructions (CLAUDE.md, rules) that it wouldn't take. Never fails; true if that can't be determined.
    bool isolationMatters(const NewProfile& request) const;
    /// Claude Code, working below the home folder, reads the built-in profile's CLAUDE.md and rules whatever
    /// profile it runs in. The settings of an isolated profile (`claudeMdExcludes`) keep out what the profile
    /// doesn't take from them. From then on every operation here that changes a profile's instructions, and
    /// `sync`, keep these entries right. The settings' other entries and keys stay as they are; without a
    /// settings file, one for the owner alone is made. Switching it off removes the entries that are exactly
    /// of Selvane's form. Throws for the built-in profile, and if the settings have to change but are a link
    /// or no JSON object; then the profile stays as it was. `sync`, and so a launch, throws likewise.
    Profile setIsolated(bool isolated, const Profile& profile);

    // Generated files (ProfileNote.cpp, TerminalHelper.cpp)
    void writeProfileNote(const Profile& profile); ///< doesn't touch a note that is up to date
    std::filesystem::path installTerminalHelper();

    // Desktop data folders (DesktopData.cpp). An account that isn't a plain name throws.
    std::filesystem::path desktopStore() const;
    // Whose data is where decides what is moved, so these throw if it can't be read.
    std::string desktopLiveOwner() const; ///< as recorded; it may not be a valid account
    std::filesystem::path desktopDataDir(const Profile& profile) const;
    bool hasDesktopData(const Profile& profile) const;
    /// The normal one and every account's, used or not.
    DataFolders dataFolders(Unreadable unreadable = Unreadable::fails) const;
    bool desktopDataInUse(const std::filesystem::path& folder) const;
    std::vector<ClaudeApp::Instance> claudeInstances() const;
    std::optional<ClaudeApp::Instance> instance(const Profile& usingAccountOf) const;
    /// False for every profile if the copy's configuration is unknown.
    bool runs(const ClaudeApp::Instance& instance, const Profile& profile) const;
    /// Whether `copy` and its helper processes have left the profile's account. They certainly have if
    /// another Selvane has already opened the next copy with it.
    bool hasLeft(const ClaudeApp::Instance& copy, const Profile& profile) const;
    std::set<std::string> runningProfileIDs() const;
    /// Where a sign-in that the browser has just ended could go: to the copies that are open, or to a profile
    /// that is launched for it. Never fails; copies of which no profile is known aren't among them.
    SignInTargets signInTargets() const;
    bool needsDesktopRestore() const;
    void restoreDesktopData();
    void seedDesktopData(const Profile& profile, const Profile& source);

    // Code sessions (Sessions.cpp, QueuedSessions.cpp)
    /// The folders that hold the session records of a data folder, one for each account and organisation, the
    /// most recently changed first.
    std::vector<std::filesystem::path> sessionFolders(const std::filesystem::path& dataDir,
                                                      Unreadable unreadable) const;
    /// Newest activity first.
    std::vector<CodeSession> codeSessions(const Profile& profile,
                                          Unreadable unreadable = Unreadable::leftOut) const;
    TranscriptIndex transcripts(const Profile& profile, Unreadable unreadable = Unreadable::leftOut) const;
    int pendingSessionCount(const Profile& profile) const; ///< throws if the queue can't be read
    ImportCount importSessions(const std::vector<CodeSession>& sessions, const Profile& source,
                               const Profile& target, Existing existing = Existing::kept);
    /// Copies the transcripts of these agent's sessions with their companion folders. Returns how many of
    /// them the source has.
    int importTranscripts(const std::vector<std::string>& cliSessionIDs, const Profile& source,
                          const Profile& target, Existing existing);
    int flushPendingSessions(const Profile& profile); ///< returns how many were placed

    // Conversations that go on in another profile (conversations/Continuation.cpp)
    /// The folders for session records in the account of a profile, the one used last first.
    std::vector<OrganisationFolder> organisationFolders(const Profile& profile) const;
    /// What `continueIn` would do, for `organisation` or the one used last. Throws if that can't be found
    /// out.
    Continuation planContinuation(const ConversationList& list, const Conversation& conversation,
                                  const Profile& target,
                                  const std::optional<std::filesystem::path>& organisation = {}) const;
    /// Takes a conversation of the list along to another profile: its transcripts from where it has gone
    /// furthest, as with `Existing::continued`, and its record, if the target's account doesn't have it. One
    /// that can't be placed yet is queued for that organisation.
    ImportCount continueIn(const ConversationList& list, const Conversation& conversation,
                           const Profile& target,
                           const std::optional<std::filesystem::path>& organisation = {});

    // Backup (Backup.cpp)
    std::vector<std::filesystem::path> backupSources(BackupScope scope) const;
    /// Replaces `archive` only once the new one is complete; the old one goes to the Trash.
    BackupResult backup(BackupScope scope, const std::filesystem::path& archive);

private:
    Profile loadDefault() const;
    std::filesystem::path recordOf(const Profile& profile) const;
    std::optional<ProfileMeta> readRecord(const std::filesystem::path& file) const;
    std::optional<Profile> loadProfile(const std::string& id) const;
    std::optional<Profile> validProfile(const std::string& id) const;
    std::optional<Profile> sourceOf(const Profile& profile) const;
    /// Locks the profile against other Selvanes. Throws if it has been deleted.
    FolderLock locked(const Profile& profile) const;
    Profile current(const Profile& profile) const;

    FileChanges* changes() const;
    void noteRecord(const Profile& profile, const ProfileMeta& before);
    std::vector<FolderLock> lockedFor(const Reversal& reversal);
    void takeBackDeletion(const Reversal& reversal);
    void takeBackServers(const Reversal::Servers& servers);

    /// Tells the progress, if there is one, that everything at `tree` will be copied. Said before the first
    /// copy of an operation, so that how far it is doesn't jump.
    void announce(const std::filesystem::path& tree) const;

    std::string freeSlug(const std::string& name);
    bool removeUnfinished(const std::string& id);
    void removeNewFolder(const std::filesystem::path& folder);
    std::pair<Profile, FolderLock> createFolder(const NewProfile& request, const std::string& name);
    void completeFolder(const Profile& profile);
    void fill(Profile& profile, const NewProfile& request, const FileManager& files);
    // These write through `files`, which may leave it to the caller to wait for the disk.
    void announceCopies(Component component, const Profile& to, const Profile& from) const;
    void apply(Component component, ShareMode mode, const Profile& to, const Profile& from,
               const FileManager& files);
    void fillCollection(Component component, ShareMode mode, const Profile& to, const Profile& from,
                        const FileManager& files);
    void importWhole(Component component, const Profile& to, const Profile& from, const FileManager& files);
    void importFile(Component component, const Profile& to, const Profile& from, const FileManager& files);
    void importFolder(Component component, const Profile& to, const Profile& from, const FileManager& files);
    void importServers(const Profile& to, const Profile& from, const FileManager& files);
    std::optional<TrashedItem> trashCopy(const std::filesystem::path& file, const std::string& text);
    void rewritePaths(const std::filesystem::path& file, const Profile& from, const Profile& to,
                      const FileManager& files);
    void applyClaudeMd(ShareMode mode, const Profile& to, const Profile& from, const FileManager& files);
    void changeClaudeMd(ShareMode mode, const Profile& profile, const Profile& source);

    SyncReport syncLinks(const Profile& profile);
    void syncCollection(Component component, const Profile& profile, const Profile& source,
                        SyncReport& report, FileChanges* changes = nullptr);
    void requireOwnFolder(Component component, const Profile& profile) const;
    std::filesystem::path freePlace(const std::string& name, const Profile& in, Component component);
    void addCopy(const std::filesystem::path& item, const Profile& to, Component component, FileBatch& batch);
    void setCollectionMode(ShareMode mode, Component component, Profile& profile, const Profile& source);
    void copyMissing(Component component, const Profile& to, const Profile& from, FileBatch& batch);
    static std::filesystem::path changedPath(const ChangedItem& item, const Profile& in);
    Profile sourceOfChanged(const ChangedItem& item, const Profile& profile) const;
    Profile relinkEach(const std::vector<ChangedItem>& items, Profile profile);
    void forgetKeptIn(Profile& profile, const ChangedItem& item);
    std::string profileNote(const Profile& profile) const;
    InstructionExcludes excludes(const Profile& profile) const;
    void updateExcludes(const Profile& profile);
    void removeExcludes(const std::filesystem::path& file);
    void exchangeExcludes(const std::filesystem::path& copy, const Profile& to, const FileManager& files);

    std::filesystem::path desktopFolder(const std::string& owner) const;
    void assumeConfig(ClaudeApp::Instance& copy) const;
    bool usesDataFolder(const Profile& profile, const std::string& folder) const;
    void makeDesktopStore();
    void swapLiveData(const std::string& owner);
    void returnBuiltInData(const std::string& owner);

    std::optional<std::filesystem::path> sessionPlace(const std::filesystem::path& dataDir) const;
    std::vector<std::string> queuedSessions(const Profile& profile) const;
    void copyTranscript(const std::string& cliSessionID, const std::filesystem::path& folder,
                        OwnFolders& target, Existing existing, FileBatch& batch);
    std::filesystem::path queuedPlace(const std::filesystem::path& queue, const std::string& name,
                                      const std::filesystem::path& data,
                                      const std::filesystem::path& usual) const;
    std::vector<std::filesystem::path> desktopFolders(const std::vector<std::filesystem::path>& in) const;

    Progress* m_progress = nullptr;
    Reversal* m_reversal = nullptr;
    FileManager m_files;
};

} // namespace selvane
