// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/ModuleFolder.h"

#include <array>
#include <climits>
#include <mach-o/dyld.h>

namespace selvane {

namespace fs = std::filesystem;

namespace {

/// As it was started, links in it resolved: a link to the executable may lie on PATH.
fs::path executable() {
    std::array<char, PATH_MAX> buffer = {};
    auto size = static_cast<std::uint32_t>(buffer.size());
    std::string path;
    if (::_NSGetExecutablePath(buffer.data(), &size) == 0) {
        path = buffer.data();
    } else {
        path.resize(size); // the room it takes
        ::_NSGetExecutablePath(path.data(), &size);
        path.resize(path.find('\0'));
    }
    std::error_code error;
    fs::path resolved = fs::canonical(path, error);
    return error ? fs::path(path) : resolved;
}

fs::path bundledPath(const char* folder, const std::string& name) {
    const fs::path here = executable().parent_path();
    std::error_code error;
    fs::path beside = here / name;
    if (fs::exists(beside, error))
        return beside;
    return here.parent_path() / folder / name;
}

} // namespace

fs::path modulePath(const std::string& fileName) {
    return bundledPath("Frameworks", fileName);
}

fs::path resourcePath(const std::string& name) {
    return bundledPath("Resources", name);
}

} // namespace selvane
