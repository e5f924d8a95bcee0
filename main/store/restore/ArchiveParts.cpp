// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/ArchiveParts.h"

#include <algorithm>
#include <map>
#include <set>

#include "model/LauncherError.h"
#include "model/Profile.h"
#include "platform/text/Text.h"
#include "store/BackupReadme.h"
#include "store/ProfileRecord.h"
#include "store/ProfileStore.h"
#include "store/ZipList.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using EntryKind = ArchivedEntry::Kind;
using PartKind = RestorePart::Kind;

const LauncherError kForeign("Non è un archivio di Selvane");

using EntryNames = std::set<std::string, std::less<>>;

/// Whether an entry is one of these or below one.
bool isAtOrBelow(std::string_view name, const EntryNames& tops) {
    for (std::size_t end = name.size(); end != name.npos && end > 0; end = name.rfind('/', end - 1)) {
        if (tops.contains(name.substr(0, end)))
            return true;
    }
    return false;
}

std::string lastName(std::string_view path) {
    return fs::path(path).filename();
}

bool isFile(const ArchiveListing& listing, std::string_view name) {
    const auto entry = listing.entries().find(name);
    return entry != listing.entries().end() && entry->second.kind == EntryKind::file;
}

/// The names directly below a folder that have something below them or are folders.
std::set<std::string> foldersIn(const ArchiveListing& listing, const std::string& folder) {
    std::set<std::string> folders;
    const auto [begin, end] = listing.below(folder);
    for (auto entry = begin; entry != end; ++entry) {
        const std::string_view rest = std::string_view(entry->first).substr(folder.size() + 1);
        const std::size_t slash = rest.find('/');
        if (slash != rest.npos || entry->second.kind == EntryKind::folder)
            folders.emplace(rest.substr(0, slash));
    }
    return folders;
}

bool isRoot(const ArchiveListing& listing, const std::string& path) {
    if (lastName(path) == ".claude-profiles" || listing.holdsBelow(path + "/.desktop-data") ||
        isFile(listing, path + "/bin/claude-profile"))
        return true;
    const std::set<std::string> folders = foldersIn(listing, path);
    return std::any_of(folders.begin(), folders.end(), [&](const std::string& name) {
        return isFile(listing, path + "/" + name + "/" + std::string(ProfileStore::kMetaFileName));
    });
}

bool isDesktopData(const ArchiveListing& listing, const std::string& path) {
    return lastName(path) == "Claude" || listing.holds(path + "/claude_desktop_config.json") ||
           listing.holdsBelow(path + "/claude-code-sessions");
}

/// Adds what the entries tell.
void count(const ArchiveListing& listing, RestorePart& part) {
    const auto add = [&](const ArchiveEntry& entry) {
        part.files += entry.kind == EntryKind::folder ? 0 : 1;
        part.bytes += static_cast<std::int64_t>(entry.size);
        part.modified = std::max(part.modified, entry.modified);
    };
    for (const RestorePart::Tree& tree : part.trees) {
        if (const auto top = listing.entries().find(tree.archived); top != listing.entries().end())
            add(top->second);
        const auto [begin, end] = listing.below(tree.archived);
        for (auto entry = begin; entry != end; ++entry)
            add(entry->second);
        std::error_code ignored;
        part.replaces = part.replaces || fs::exists(fs::symlink_status(tree.target, ignored));
    }
}

/// Lists the parts of one archive.
class Parts {
public:
    Parts(const ArchiveListing& listing, const ArchivedPlaces& archived, const SavedPlaces& places,
          const ArchivedText& text)
        : m_listing(listing), m_archived(archived), m_places(places), m_text(text) {}

    std::vector<RestorePart> make() {
        addPrincipal();
        if (!m_archived.root.empty())
            addProfiles();
        addAccounts();
        const std::string helper = m_archived.root + "/bin/claude-profile";
        if (!m_archived.root.empty() && isFile(m_listing, helper)) {
            RestorePart part = partOf(PartKind::terminalHelper, "claude-profile");
            part.files = 1;
            part.modified = m_listing.entries().find(helper)->second.modified;
            std::error_code ignored;
            part.replaces = fs::exists(m_places.root / "bin/claude-profile", ignored);
            m_parts.push_back(std::move(part));
        }
        return std::move(m_parts);
    }

private:
    static RestorePart partOf(PartKind kind, const std::string& id) {
        RestorePart part;
        part.kind = kind;
        part.id = id;
        part.name = text::singleLine(id);
        return part;
    }

    void addTree(RestorePart& part, const std::string& archived, const fs::path& target) const {
        if (!archived.empty() && (m_listing.holds(archived) || m_listing.holdsBelow(archived)))
            part.trees.push_back({archived, target});
    }

    void add(RestorePart part, const std::string& record) {
        if (part.trees.empty())
            return;
        if (const auto meta = decodedProfileMeta(m_text(record))) {
            part.name = text::singleLine(meta->name);
            part.look = meta->look;
        } else if (part.id == Profile::kDefaultId) {
            part.name = "Principale";
            part.look.symbol = "house";
        }
        count(m_listing, part);
        m_parts.push_back(std::move(part));
    }

    std::string defaultRecord() const {
        return m_archived.root.empty() ? "" : m_archived.root + "/default.json";
    }

    void addPrincipal() {
        RestorePart part = partOf(PartKind::principal, std::string(Profile::kDefaultId));
        addTree(part, m_archived.configuration, m_places.configuration);
        addTree(part, m_archived.globalState, m_places.globalState);
        addTree(part, defaultRecord(), m_places.root / "default.json");
        add(std::move(part), defaultRecord());
    }

    void addProfiles() {
        for (const std::string& id : foldersIn(m_listing, m_archived.root)) {
            const std::string folder = m_archived.root + "/" + id;
            const std::string record = folder + "/" + std::string(ProfileStore::kMetaFileName);
            // "bin" is the terminal helper's folder, and the built-in profile has none.
            if (!Profile::isPossibleId(id) || id == Profile::kDefaultId || id == "bin" ||
                !isFile(m_listing, record))
                continue;
            RestorePart part = partOf(PartKind::profile, id);
            addTree(part, folder, m_places.root / id);
            add(std::move(part), record);
        }
    }

    /// Once, the account opened last lay in the normal folder, and the built-in profile's among the others.
    void addAccounts() {
        const std::string store = m_archived.root + "/.desktop-data";
        std::string live(Profile::kDefaultId);
        if (!m_archived.root.empty()) {
            const std::string marker(text::trimmed(m_text(store + "/.live")));
            live = Profile::isPossibleId(marker) ? marker : live;
        }
        addAccount(live, m_archived.desktopData);
        if (m_archived.root.empty())
            return;
        for (const std::string& owner : foldersIn(m_listing, store)) {
            if (Profile::isPossibleId(owner) && (owner != live || m_archived.desktopData.empty()))
                addAccount(owner, store + "/" + owner);
        }
    }

    void addAccount(const std::string& owner, const std::string& archived) {
        const bool isNormal = owner == Profile::kDefaultId;
        RestorePart part = partOf(PartKind::account, owner);
        addTree(part, archived, isNormal ? m_places.desktopData : m_places.root / ".desktop-data" / owner);
        add(std::move(part),
            isNormal ? defaultRecord()
                     : m_archived.root + "/" + owner + "/" + std::string(ProfileStore::kMetaFileName));
    }

    const ArchiveListing& m_listing;
    const ArchivedPlaces& m_archived;
    const SavedPlaces& m_places;
    const ArchivedText& m_text;
    std::vector<RestorePart> m_parts;
};

} // namespace

SavedPlaces savedPlaces(const ProfileStore& store) {
    return {.home = store.home(),
            .configuration = store.defaultDir(),
            .globalState = store.defaultGlobalJSON(),
            .desktopData = store.liveDesktopDir(),
            .root = store.root()};
}

ArchivedPlaces archivedPlaces(const ArchiveListing& listing, const std::vector<std::string>& paths) {
    ArchivedPlaces places;
    for (const std::string& path : paths) {
        const std::string name(archivedName(path));
        if (!isSafeName(name))
            throw kForeign;
        std::string* place = nullptr;
        if (isFile(listing, name))
            place = &places.globalState;
        else if (!listing.holdsBelow(name))
            continue; // empty, or a link
        else if (isRoot(listing, name))
            place = &places.root;
        else
            place = isDesktopData(listing, name) ? &places.desktopData : &places.configuration;
        if (place->empty())
            *place = name;
    }
    EntryNames tops = {std::string(kReadmeName)};
    for (const std::string& path : paths)
        tops.emplace(archivedName(path));
    for (const auto& [name, entry] : listing.entries()) {
        const auto inside = tops.lower_bound(name + "/");
        if (!isAtOrBelow(name, tops) && (inside == tops.end() || !inside->starts_with(name + "/")))
            throw kForeign;
    }
    return places;
}

std::vector<RestorePart> archivedParts(const ArchiveListing& listing, const ArchivedPlaces& archived,
                                       const SavedPlaces& places, const ArchivedText& text,
                                       std::vector<std::string>& others) {
    std::vector<RestorePart> parts = Parts(listing, archived, places, text).make();
    EntryNames tops = {std::string(kReadmeName)};
    for (const RestorePart& part : parts) {
        for (const RestorePart::Tree& tree : part.trees)
            tops.insert(tree.archived);
    }
    for (const char* own :
         {"/.active", "/bin/claude-profile", "/.desktop-data/.live", "/.desktop-data/LEGGIMI.txt"})
        tops.insert(archived.root + own); // Selvane's, written anew when they are needed
    for (const auto& [name, entry] : listing.entries()) {
        if (entry.kind != EntryKind::folder && !isAtOrBelow(name, tops))
            others.push_back(name);
    }
    return parts;
}

std::vector<PathMove> pathMoves(const std::vector<std::string>& paths, const ArchivedPlaces& archived,
                                const SavedPlaces& places, const fs::path& formerHome) {
    std::vector<PathMove> moves;
    const auto add = [&](const std::string& name, const fs::path& target) {
        const bool wasOutside = std::find(paths.begin(), paths.end(), "/" + name) != paths.end();
        if (!name.empty() && (wasOutside || !formerHome.empty()))
            moves.push_back({(wasOutside ? "/" : formerHome) / fs::path(name), target});
    };
    add(archived.configuration, places.configuration);
    add(archived.globalState, places.globalState);
    add(archived.desktopData, places.desktopData);
    add(archived.root, places.root);
    if (!formerHome.empty())
        moves.push_back({formerHome, places.home});
    std::erase_if(moves, [](const PathMove& move) { return move.from == move.to; });
    std::stable_sort(moves.begin(), moves.end(), [](const PathMove& a, const PathMove& b) {
        return a.from.native().size() > b.from.native().size();
    });
    return moves;
}

} // namespace selvane
