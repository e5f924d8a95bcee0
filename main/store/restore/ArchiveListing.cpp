// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/ArchiveListing.h"

#include <algorithm>
#include <sys/stat.h>
#include <utility>

#include "model/LauncherError.h"
#include "platform/files/Descriptor.h"
#include "platform/files/FileCopy.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using EntryKind = ArchivedEntry::Kind;

constexpr std::size_t kLongestName = 4096; ///< bytes; no file system has longer paths
constexpr std::uint64_t kBlock = 4096;     ///< what an entry takes up beside its content, at most
constexpr std::uint64_t kHarmless = std::uint64_t{1} << 20; ///< bytes of entries that are no bomb

[[noreturn]] void refuse(const std::string& name, const char* reason) {
    throw LauncherError("L'archivio non è sicuro e non verrà aperto: «" + text::singleLine(name) + "» " +
                        reason);
}

[[noreturn]] void refuseBomb() {
    throw LauncherError("L'archivio non è sicuro e non verrà aperto: estratto occuperebbe più di " +
                        std::to_string(ArchiveListing::kMostTimes) + " volte la sua dimensione");
}

/// How many folders the name has above it that the one before it, in the order of their bytes, has not.
std::uint64_t freshFolders(std::string_view name, std::string_view before) {
    const auto [end, endBefore] = std::ranges::mismatch(name, before);
    const auto fresh = std::count(end, name.end(), '/');
    const bool isInIt = endBefore == before.end() && end != name.end() && *end == '/';
    return static_cast<std::uint64_t>(fresh - (isInIt ? 1 : 0));
}

} // namespace

std::string archiveState(const fs::path& archive) {
    struct stat status = {};
    if (::stat(archive.c_str(), &status) != 0)
        files::fail("read", archive, errno);
    const timespec changed = files::timesOf(status)[1];
    std::string state;
    for (const auto number :
         {static_cast<std::int64_t>(status.st_ino), static_cast<std::int64_t>(status.st_size),
          static_cast<std::int64_t>(changed.tv_sec), static_cast<std::int64_t>(changed.tv_nsec)})
        state += std::to_string(number) + " ";
    return state;
}

bool isSafeName(std::string_view name) {
    if (name.empty() || name.find('\0') != name.npos)
        return false;
    while (true) {
        const std::size_t end = std::min(name.find('/'), name.size());
        const std::string_view part = name.substr(0, end);
        if (part.empty() || part == "." || part == "..")
            return false;
        if (end == name.size())
            return true;
        name.remove_prefix(end + 1);
    }
}

ArchiveListing::ArchiveListing(const fs::path& archive) : m_archiveSize(fs::file_size(archive)) {
    ArchiveReader reader(archive);
    while (auto entry = reader.next())
        add(std::move(*entry));
    std::uint64_t blocks = 0;
    std::string_view before;
    for (const auto& [name, entry] : m_entries) {
        blocks += 1 + freshFolders(name, std::exchange(before, name));
        for (std::size_t end = name.rfind('/'); end != name.npos && end > 0; end = name.rfind('/', end - 1)) {
            const auto above = m_entries.find(std::string_view(name).substr(0, end));
            if (above != m_entries.end() && above->second.kind != EntryKind::folder)
                refuse(name, "passa per qualcosa che non è una cartella");
        }
    }
    if (const std::uint64_t most = m_archiveSize * kMostTimes;
        blocks * kBlock > std::max(kHarmless, most - m_total))
        refuseBomb();
}

std::uint64_t ArchiveListing::spaceFor(std::string_view name) const {
    std::uint64_t space = 0;
    const auto add = [&](const ArchiveEntry& entry, std::uint64_t blocks) {
        space += entry.size + blocks * kBlock;
    };
    if (const auto top = m_entries.find(name); top != m_entries.end())
        add(top->second, 1);
    const auto [begin, end] = below(name);
    std::string_view before = name;
    for (auto entry = begin; entry != end; ++entry)
        add(entry->second, 1 + freshFolders(entry->first, std::exchange(before, entry->first)));
    return space;
}

void ArchiveListing::add(ArchiveEntry entry) {
    if (entry.name.size() > kLongestName)
        refuse(entry.name.substr(0, 80), "ha un nome troppo lungo");
    if (!isSafeName(entry.name))
        refuse(entry.name, "porta fuori dalla cartella");
    if (entry.kind == EntryKind::other)
        refuse(entry.name, "non è un file, una cartella o un collegamento");
    if (entry.kind == EntryKind::link && (entry.target.empty() || entry.size != entry.target.size()))
        refuse(entry.name, "è un collegamento che non porta da nessuna parte");
    if (entry.kind == EntryKind::folder)
        entry.size = 0;
    const std::uint64_t most = m_archiveSize * kMostTimes;
    if (entry.size > most || m_total > most - entry.size)
        refuseBomb();
    m_total += entry.size;
    std::string name = entry.name;
    if (!m_entries.emplace(std::move(name), entry).second)
        refuse(entry.name, "compare due volte");
}

std::pair<ArchiveListing::Entries::const_iterator, ArchiveListing::Entries::const_iterator>
ArchiveListing::below(std::string_view folder) const {
    // "0" is the character after "/".
    return {m_entries.lower_bound(std::string(folder) + "/"),
            m_entries.lower_bound(std::string(folder) + "0")};
}

void readGuarded(ArchiveReader& reader, const ArchiveEntry& entry,
                 const std::function<void(std::string_view bytes)>& use) {
    std::uint64_t left = entry.kind == EntryKind::file ? entry.size : 0;
    reader.read([&](std::string_view bytes) {
        if (entry.kind == EntryKind::file && bytes.size() > left)
            refuse(entry.name, "contiene più di quanto dichiara");
        left -= entry.kind == EntryKind::file ? bytes.size() : 0;
        use(bytes);
    });
    if (left != 0)
        refuse(entry.name, "contiene meno di quanto dichiara");
}

} // namespace selvane
