// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/BackupReadme.h"

#include <chrono>

#include "model/ByteText.h"
#include "platform/files/Locations.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

std::string indented(const std::string& path) {
    return (path.starts_with('/') ? "  " : "  ~/") + path;
}

} // namespace

std::string backupReadme(const std::vector<std::string>& paths, const std::vector<std::string>& missing) {
    std::string text = "Backup di Claude creato da Selvane il " +
                       text::longDate(std::chrono::system_clock::now()) +
                       ".\n\nContiene (percorsi relativi alla cartella home):\n";
    for (std::size_t i = 0; i < paths.size(); ++i)
        text += (i == 0 ? "" : "\n") + indented(paths[i]);
    text +=
        "\n\nNon contiene cache, macchine virtuali e binari di Claude Code: Claude li riscarica da solo.\n"
        "I login restano nel Portachiavi di questo Mac: su un altro Mac servirà rifare l'accesso.\n"
        "\nPer ripristinare:\n"
        "1. chiudi Claude (e Selvane);\n"
        "2. sposta nel Cestino le cartelle elencate sopra, se esistono;\n"
        "3. nel Terminale: ditto -x -k \"<questo archivio>.zip\" ~\n";
    // The steps above are those of a Mac, where logins aren't in the archive.
    if (!keepsLoginsWithTheSystem())
        text +=
            "\nSu Linux:\n"
            "- i login di Claude Code (.credentials.json) sono nell'archivio: conservalo al sicuro;\n"
            "- al passo 3, nel terminale: unzip \"<questo archivio>.zip\" -d ~\n"
            "- i percorsi che iniziano con \"/\" stavano fuori dalla cartella home: unzip li estrae sotto "
            "~.\n";
    if (!missing.empty()) {
        text += "\nNon è stato possibile salvare (di una cartella, anche solo una parte):\n";
        for (const std::string& path : missing)
            text += indented(text::singleLine(repaired(path))) + "\n";
    }
    return text;
}

} // namespace selvane
