// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/BackupReadme.h"

#include <chrono>

#include "model/ByteText.h"
#include "platform/files/Locations.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

constexpr std::string_view kOpening = "Backup di Claude creato da Selvane il ";
constexpr std::string_view kListOpening = ".\n\nContiene (percorsi relativi alla cartella home):\n";
constexpr std::string_view kListEnd = "\n\n";

std::string indented(const std::string& path) {
    return (path.starts_with('/') ? "  " : "  ~/") + path;
}

} // namespace

std::string backupReadme(const std::vector<std::string>& paths, const std::vector<std::string>& missing) {
    std::string text =
        std::string(kOpening) + text::longDate(std::chrono::system_clock::now()) + std::string(kListOpening);
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

std::optional<std::vector<std::string>> pathsInReadme(std::string_view readme) {
    const std::size_t opening = readme.find(kListOpening);
    if (!readme.starts_with(kOpening) || opening == readme.npos)
        return std::nullopt;
    std::string_view list = readme.substr(opening + kListOpening.size());
    list = list.substr(0, list.find(kListEnd));
    std::vector<std::string> paths;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find('\n'), list.size());
        std::string_view line = list.substr(0, end);
        list.remove_prefix(std::min(end + 1, list.size()));
        if (line.starts_with("  ~/"))
            line.remove_prefix(4);
        else if (line.starts_with("  /"))
            line.remove_prefix(2);
        else
            return std::nullopt;
        if (line.ends_with('/')) // a link that was followed
            line.remove_suffix(1);
        paths.emplace_back(line);
    }
    return paths;
}

} // namespace selvane
