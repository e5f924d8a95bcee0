// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "CLI.h"

#include <algorithm>
#include <array>
#include <ostream>

#include "cli/Commands.h"
#include "platform/ErrorText.h"

namespace selvane::CLI {
namespace {

constexpr std::array<Command, 16> kCommands = {{
    {"list", "", list},
    {"create", "<nome> [--from <id>] [--mode comp=modo]", create},
    {"sync", "<id>", sync},
    {"launch", "<id>", launch},
    {"path", "<id>", path},
    {"items", "<id>", items},
    {"set-mode", "<id> componente=modalità", setMode},
    {"install-helper", "", installHelper},
    {"sessions", "<id>", sessions},
    {"import-sessions", "<da> <a> [id-sessione ...]", importSessions},
    {"restore-desktop", "", restoreDesktop},
    {"desktop-status", "", desktopStatus},
    {"backup", "<archivio.zip> [--solo-principale | --solo-profili]", backup},
    {"processes", "", processes},
    {"render-icon", "<cartella.iconset>", renderIcon},
    {"render-dmg-background", "<cartella>", renderDMGBackground},
}};

const Command* commandNamed(std::string_view word) {
    const auto* found = std::find_if(kCommands.begin(), kCommands.end(),
                                     [word](const Command& command) { return command.word == word; });
    return found == kCommands.end() ? nullptr : found;
}

} // namespace

std::span<const Command> commands() {
    return kCommands;
}

bool isCommand(std::string_view word) {
    return commandNamed(word) != nullptr;
}

int run(const Call& call, std::ostream& err) {
    try {
        commandNamed(call.arguments.at(0))->run(call);
        return 0;
    } catch (const std::exception& error) {
        err << "Errore: " << describe(error) << '\n';
        return 1;
    }
}

} // namespace selvane::CLI
