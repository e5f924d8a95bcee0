// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <ostream>

#include "Main/Arguments.h"
#include "Main/Commands.h"
#include "model/LauncherError.h"
#include "platform/text/Text.h"

namespace selvane::CLI {

void backup(const Call& call) {
    requireArguments(call, call.arguments.size() > 1 && call.arguments[1].empty() ? 3 : 2);
    BackupScope scope = BackupScope::all();
    for (std::size_t i = 2; i < call.arguments.size(); ++i) {
        const std::string& option = call.arguments[i];
        if (option == "--solo-principale")
            scope = BackupScope::principal();
        else if (option == "--solo-profili")
            scope = BackupScope::profiles();
        else
            throw LauncherError("Opzione sconosciuta: " + field(option));
    }
    const BackupResult result = call.store.backup(scope, call.arguments[1]);
    call.out << result.archive.string() << '\t' << text::byteCount(result.size)
             << (result.skippedFiles ? "\talcuni file non leggibili sono stati saltati" : "") << '\n';
}

} // namespace selvane::CLI
