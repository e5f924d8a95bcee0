// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/restore/Unpacking.h"

#include <sys/stat.h>

#include "Fuzzing.h"
#include "model/LauncherError.h"
#include "platform/files/FileManager.h"
#include "platform/files/TreeListing.h"

namespace selvane::fuzz {
namespace {

namespace fs = std::filesystem;

const std::vector<std::string> kPaths = {".claude", ".claude.json", ".claude-profiles"};

/// Archives that anybody may have made, unpacked.
class Restoring {
public:
    void check(std::string_view bytes) {
        m_file.set(bytes);
        try {
            const ArchiveListing listing(m_archive);
            requireSafe(listing, bytes.size());
            unpack(listing);
        } catch (const LauncherError&) {        // damaged, unsafe, or none of ours
        } catch (const fs::filesystem_error&) { // a name is too long
        }
        requireNothingElse();
        FileManager().removeTree(m_temporary);
    }

private:
    static void requireSafe(const ArchiveListing& listing, std::size_t size) {
        std::uint64_t total = 0;
        for (const auto& [name, entry] : listing.entries()) {
            require(isSafeName(name), "no name leads out");
            require(entry.kind != ArchivedEntry::Kind::other, "there are no devices");
            total += entry.size;
        }
        require(total <= size * ArchiveListing::kMostTimes, "it is no bomb");
    }

    void unpack(const ArchiveListing& listing) {
        std::vector<std::string> others;
        const ArchivedPlaces archived = archivedPlaces(listing, kPaths);
        const auto noText = [](const std::string&) { return std::string(); };
        std::vector<TreeToRestore> trees;
        for (const RestorePart& part : archivedParts(listing, archived, m_places, noText, others)) {
            for (const RestorePart::Tree& tree : part.trees)
                trees.push_back({part.kind, tree, m_temporary / std::to_string(trees.size())});
        }
        const std::vector<PathMove> moves = pathMoves(kPaths, archived, m_places, "/home/a");
        Unpacking(listing, trees, m_places, moves, nullptr).run(m_archive);
    }

    /// Everything that was written is in the temporary folder, and harmless there.
    void requireNothingElse() const {
        const auto look = [&](const std::string& path, const struct stat& status) {
            const bool isUnpacked = path == "t" || path.starts_with("t/");
            require(isUnpacked || path.empty() || path == "a.zip" || path == "mine",
                    "nothing else is written");
            require((status.st_mode & (S_ISUID | S_ISGID | S_ISVTX)) == 0, "there are no set-id bits");
            require(S_ISREG(status.st_mode) || S_ISDIR(status.st_mode) || S_ISLNK(status.st_mode),
                    "no devices");
            return true;
        };
        files::listTree(m_folder, {look, [](const std::string&, int) {}});
        require(FileManager().read(m_folder / "mine") == "mine", "nothing is overwritten");
    }

    const fs::path m_folder = newFolder();
    const fs::path m_archive = m_folder / "a.zip";
    const fs::path m_temporary = m_folder / "t";
    const ChangingFile m_file{m_archive};
    const SavedPlaces m_places{"/h", "/h/.claude", "/h/.claude.json", "/h/Claude", "/h/.claude-profiles"};
    const bool m_isReady = [this] {
        FileManager().write(m_folder / "mine", "mine");
        return true;
    }();
};

} // namespace
} // namespace selvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static selvane::fuzz::Restoring restoring;
    restoring.check(selvane::fuzz::textOf(data, size));
    return 0;
}
