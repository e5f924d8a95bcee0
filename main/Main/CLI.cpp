// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Main/CLI.h"

#include <algorithm>
#include <array>
#include <ostream>

#include "Main/Arguments.h"
#include "Main/Commands.h"
#include "platform/text/ErrorText.h"

namespace selvane::CLI {
namespace {

constexpr std::array<Command, 16> kCommands = {{
    {"list", "", list},
    {"create", "<nome> [--from <id>] [--mode comp=modo]", create, "--from --account --mode --isolated"},
    {"sync", "<id>", sync},
    {"launch", "<id>", launch, "--windows"},
    {"path", "<id>", path},
    {"items", "<id>", items},
    {"set-mode", "<id> componente=modalità", setMode},
    {"install-helper", "", installHelper},
    {"sessions", "<id>", sessions},
    {"import-sessions", "<da> <a> [id-sessione ...]", importSessions},
    {"restore-desktop", "", restoreDesktop},
    {"desktop-status", "", desktopStatus},
    {"backup", "<archivio.zip> [--solo-principale | --solo-profili]", backup,
     "--solo-principale --solo-profili"},
    {"processes", "", processes},
    {"render-icon", "<cartella.iconset>", renderIcon},
    {"render-dmg-background", "<cartella>", renderDMGBackground},
}};

const Command* commandNamed(std::string_view word) {
    const auto* found = std::find_if(kCommands.begin(), kCommands.end(),
                                     [word](const Command& command) { return command.word == word; });
    return found == kCommands.end() ? nullptr : found;
}

bool asksForHelp(std::string_view argument) {
    return argument == "--help" || argument == "-h";
}

/// A name or path that merely begins with dashes isn't an option.
bool isOption(const Command& command, std::string_view argument) {
    const std::string options = " " + std::string(command.options) + " ";
    return asksForHelp(argument) ||
           (!argument.empty() && options.find(" " + std::string(argument) + " ") != std::string::npos);
}

std::string help() {
    std::string text = "Uso: selvane                     apre le finestre\n"
                       "     selvane --new-profile       le apre su un nuovo profilo\n"
                       "     selvane --manage            apre la gestione dei profili\n"
                       "     selvane --help | --version  mostra questo aiuto o la versione\n"
                       "     selvane <comando> ...       esegue un comando e termina\n"
                       "\nComandi:\n";
    for (const Command& command : kCommands)
        text.append("  ").append(usage(command)).append("\n");
    return text + "\nPer saperne di più: man selvane\n";
}

} // namespace

std::span<const Command> commands() {
    return kCommands;
}

bool isCommand(std::string_view word) {
    return commandNamed(word) != nullptr;
}

std::optional<std::string> answer(std::string_view option) {
    if (asksForHelp(option))
        return help();
    return option == "--version" ? std::optional<std::string>("selvane " SELVANE_VERSION "\n") : std::nullopt;
}

int run(const Call& call, std::ostream& err) {
    try {
        const Command& command = *commandNamed(call.arguments.at(0));
        if (call.arguments.size() > 1 && isOption(command, call.arguments[1]))
            throwUsage(usage(command));
        command.run(call);
        return 0;
    } catch (const std::exception& error) {
        err << "Errore: " << describe(error) << '\n';
        return 1;
    }
}

} // namespace selvane::CLI
