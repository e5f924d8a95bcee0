// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/services/ModuleFolder.h"

#include <array>
#include <climits>
#include <mach-o/dyld.h>

namespace selvane {

namespace fs = std::filesystem;

namespace {

/// The executable with links resolved: PATH may contain a link to it.
fs::path executable() {
    std::array<char, PATH_MAX> buffer = {};
    auto size = static_cast<std::uint32_t>(buffer.size());
    std::string path;
    if (::_NSGetExecutablePath(buffer.data(), &size) == 0) {
        path = buffer.data();
    } else {
        path.resize(size); // the size it needs
        ::_NSGetExecutablePath(path.data(), &size);
        path.resize(path.find('\0'));
    }
    std::error_code error;
    fs::path resolved = fs::canonical(path, error);
    return error ? fs::path(path) : resolved;
}

} // namespace

InstallationLayout installationLayout() {
    return {.executable = executable(), .modules = "Frameworks", .resources = "Resources"};
}

} // namespace selvane
