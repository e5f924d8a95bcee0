// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <string_view>
#include <unistd.h>

namespace selvane::fuzz {

/// Unless it holds, ends the run and reports the current input as the one that shows the fault.
inline void require(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Removes and returns the part of an input before the next NUL; all of it if there is none.
inline std::string_view takePart(std::string_view& rest) {
    const std::string_view part = rest.substr(0, rest.find('\0'));
    rest.remove_prefix(std::min(part.size() + 1, rest.size()));
    return part;
}

/// A folder in memory if possible. script/fuzz sets TMPDIR and removes it with everything left there.
inline std::filesystem::path newFolder() {
    std::string name = std::filesystem::temp_directory_path() / "selvane-fuzz-XXXXXX";
    require(mkdtemp(name.data()) != nullptr, "a folder can be made");
    return name;
}

/// A file whose content changes with every input.
class ChangingFile {
public:
    explicit ChangingFile(const std::filesystem::path& path)
        : m_file(open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600)) {
        require(m_file >= 0, "the file can be made");
    }

    void set(std::string_view content) const {
        const auto size = static_cast<off_t>(content.size());
        require(ftruncate(m_file, size) == 0 && pwrite(m_file, content.data(), content.size(), 0) == size,
                "the file can be written");
    }

private:
    int m_file;
};

} // namespace selvane::fuzz
