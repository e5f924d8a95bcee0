// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <iosfwd>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/ClaudeApp.h"
#include "store/ProfileStore.h"

namespace selvane {

/// What commands need the windows' module for.
class Windows {
public:
    virtual ~Windows() = default;
    virtual void renderIcon(const std::filesystem::path& iconset) = 0;
    virtual void renderDMGBackground(const std::filesystem::path& folder) = 0;
    // These show the picker until it is closed, or hand over to the one that is open.
    virtual void launch(const Profile& profile) = 0; ///< as if the user had chosen it there
    virtual void showError(const std::string& message) = 0;
};

namespace CLI {

/// What a command receives. `arguments[0]` is the command word.
struct Call {
    const std::vector<std::string>& arguments;
    ProfileStore& store;
    const ClaudeApp& claude;
    Windows& windows;
    std::ostream& out;
};

struct Command {
    std::string_view word;
    std::string_view syntax; ///< what follows the word
    void (*run)(const Call& call);
    std::string_view options = {}; ///< options allowed after its first argument, separated by spaces
};

/// All command words. They must match exactly.
std::span<const Command> commands();
bool isCommand(std::string_view word);

/// The answer to one of the program's own options ("--help", "-h", "--version"); nothing for anything else.
std::optional<std::string> answer(std::string_view option);

/// Runs a command. Returns 0, or 1 after writing "Errore: " and the reason to `err`.
int run(const Call& call, std::ostream& err);

} // namespace CLI
} // namespace selvane
