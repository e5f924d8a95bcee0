// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/RuntimeFolder.h"

#include <unistd.h>

#include <string>

namespace selvane {

/// Without session variables, the session's folder may still exist; otherwise there is shared memory.
std::vector<std::filesystem::path> runtimeFolderPlaces(const Environment& environment) {
    const std::string user = std::to_string(::geteuid());
    std::vector<std::filesystem::path> places = {"/run/user/" + user + "/selvane",
                                                 "/dev/shm/selvane-" + user};
    const auto session = environment.find("XDG_RUNTIME_DIR");
    if (session != environment.end() && session->second.starts_with('/'))
        places.insert(places.begin(), std::filesystem::path(session->second) / "selvane");
    return places;
}

} // namespace selvane
