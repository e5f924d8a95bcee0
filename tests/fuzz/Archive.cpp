// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/ArchiveReader.h"

#include <vector>

#include "Fuzzing.h"
#include "model/LauncherError.h"

namespace selvane::fuzz {
namespace {

struct Reading {
    std::vector<ArchiveEntry> entries;
    std::string content;
    bool isWhole = false;

    bool operator==(const Reading&) const = default;
};

void readContent(ArchiveReader& reader, const ArchiveEntry& entry, std::string& content) {
    const std::size_t before = content.size();
    reader.read([&](std::string_view bytes) { content += bytes; });
    require(entry.kind != ArchivedEntry::Kind::file || content.size() - before == entry.size,
            "a file has the size that is told");
}

class Archive {
public:
    void check(std::string_view bytes) {
        m_file.set(bytes);
        const Reading reading = read();
        require(read() == reading, "the same archive reads the same again");
        for (const ArchiveEntry& entry : reading.entries) {
            require(entry.name.find('\0') == std::string::npos, "a name can be a path");
            require(entry.name.size() <= bytes.size(), "names come from the archive");
        }
    }

private:
    /// As far as it can be read.
    Reading read() const {
        Reading reading;
        try {
            ArchiveReader reader(m_path);
            while (const auto entry = reader.next()) {
                reading.entries.push_back(*entry);
                readContent(reader, *entry, reading.content);
            }
            reading.isWhole = true;
        } catch (const LauncherError&) { // damaged
        }
        return reading;
    }

    const std::filesystem::path m_path = newFolder() / "a.zip";
    ChangingFile m_file{m_path};
};

} // namespace
} // namespace selvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static selvane::fuzz::Archive archive;
    archive.check(selvane::fuzz::textOf(data, size));
    return 0;
}
