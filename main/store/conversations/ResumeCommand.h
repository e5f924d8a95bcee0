// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

#include "model/Conversation.h"

namespace selvane {

/// What somebody types in a terminal to go on with a conversation in a profile, quoted for any shell: to its
/// folder, if that is known, and then `helper`, the path that `ProfileStore::installTerminalHelper` returns.
std::string resumeCommand(const std::filesystem::path& helper, const Conversation& conversation,
                          const Profile& profile);

} // namespace selvane
