// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/ArchiveListing.h"

#include <sys/stat.h>

#include "model/LauncherError.h"
#include "platform/files/Descriptor.h"
#include "platform/files/FileCopy.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

using EntryKind = ArchivedEntry::Kind;

[[noreturn]] void refuse(const std::string& name, const char* reason) {
    throw LauncherError("L'archivio non è sicuro e non verrà aperto: «" + text::singleLine(name) + "» " +
                        reason);
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
    for (const auto& [name, entry] : m_entries) {
        for (std::size_t end = name.rfind('/'); end != name.npos && end > 0; end = name.rfind('/', end - 1)) {
            const auto above = m_entries.find(std::string_view(name).substr(0, end));
            if (above != m_entries.end() && above->second.kind != EntryKind::folder)
                refuse(name, "passa per qualcosa che non è una cartella");
        }
    }
}

void ArchiveListing::add(ArchiveEntry entry) {
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
        throw LauncherError("L'archivio non è sicuro e non verrà aperto: estratto occuperebbe più di " +
                            std::to_string(kMostTimes) + " volte la sua dimensione");
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
