// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "support/Command.h"
#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

TEST(CommandProfiles, TheProgramSaysWhatItIs) {
    const CommandHome home;
    const Outcome help = home.execute({"--help"});
    EXPECT_EQ(home.execute({"-h"}), help);
    for (const std::string usage :
         {"list", "set-mode <id> componente=modalità", "render-dmg-background <cartella>"})
        EXPECT_NE(help.out.find("\n  " + usage + "\n"), std::string::npos) << usage;
    EXPECT_TRUE(home.execute({"--version"}).out.starts_with("selvane 1."));
    EXPECT_TRUE(treeOf(home.path()).empty()) << "nothing was looked for or made";
    EXPECT_EQ(home.execute({"create", "--Nome"}), (Outcome{0, "nome\n", ""}));
}

TEST(CommandProfiles, WrongCallsSayWhatIsWrongAndChangeNothing) {
    const CommandHome home;
    home.output({"create", "Lavoro", "--from", "default"});
    const std::string endless(10'000, 'a');
    const std::string createUsage = "Uso: create <nome> [--from <id>] [--mode comp=modo]";
    const std::string backupUsage = "Uso: backup <archivio.zip> [--solo-principale | --solo-profili]";
    const struct {
        std::vector<std::string> arguments;
        std::string message;
    } cases[] = {
        {{"create"}, createUsage},
        {{"create", "--help"}, createUsage},
        {{"create", "--account"}, createUsage},
        {{"backup", "--solo-profili"}, backupUsage},
        {{"path", "-h"}, "Uso: path <id>"},
        {{"list", "--help"}, "Uso: list"},
        {{"create", "A", "--from"}, createUsage},
        {{"create", "A", "--from", "assente"}, "Profilo sconosciuto: assente"},
        {{"create", "A", "--colore", "blu"}, "Opzione sconosciuta: --colore"},
        {{"create", "A", "--isolated", "sì\n"}, "Opzione non valida: --isolated sì\uFFFD"},
        {{"create", "A", "--mode", "skills=extend"}, "Modalità non valida: skills=extend"},
        {{"create", "A", "--mode", "claude.md=extend"}, "Modalità non valida: claude.md=extend"},
        {{"create", endless}, (home / ".claude-profiles" / endless).string() + ": nome troppo lungo"},
        {{"path", endless}, "Profilo sconosciuto: " + endless},
        {{"create", " \n\t"}, "Il nome del profilo è obbligatorio"},
        {{"sync"}, "Specifica l'id del profilo"},
        {{"path"}, "Specifica l'id del profilo"},
        {{"launch"}, "Specifica l'id del profilo"},
        {{"path", "Lavoro"}, "Profilo sconosciuto: Lavoro"},
        {{"path", "../.claude"}, "Profilo sconosciuto: ../.claude"},
        {{"launch", "default"}, "Claude.app non trovata. Installala in /Applications."},
        {{"set-mode", "lavoro"}, "Uso: set-mode <id> componente=modalità"},
        {{"set-mode", "lavoro", "skills=none", "x"}, "Uso: set-mode <id> componente=modalità"},
        {{"set-mode", "assente", "skills"}, "Profilo sconosciuto: assente"},
        {{"set-mode", "lavoro", "skills"}, "Modalità non valida: skills"},
        {{"set-mode", "lavoro", "skills=extend"}, "Modalità non valida: skills=extend"},
        {{"set-mode", "default", "skills=none"}, "Questo profilo non ha una sorgente da cui ereditare"},
        {{"import-sessions", "default"}, "Uso: import-sessions <da> <a> [id-sessione ...]"},
        {{"import-sessions", "default", "assente"}, "Profilo sconosciuto: assente"},
        {{"import-sessions", "assente", "default"}, "Profilo sconosciuto: assente"},
        {{"backup"}, backupUsage},
        {{"backup", home / "b.zip", "--tutto"}, "Opzione sconosciuta: --tutto"},
        {{"backup", home / "b.zip", "--solo-principale"}, "Non c'è niente da salvare"},
        {{"render-icon"}, "Uso: render-icon <cartella.iconset>"},
        {{"render-icon", "a", "b"}, "Uso: render-icon <cartella.iconset>"},
        {{"render-dmg-background"}, "Uso: render-dmg-background <cartella>"},
    };
    const auto before = treeOf(home.path());
    for (const auto& [arguments, message] : cases)
        EXPECT_EQ(home.run(arguments), failure(message)) << testing::PrintToString(arguments);
    EXPECT_EQ(treeOf(home.path()), before);
}

TEST(CommandProfiles, ListShowsEachProfileWithItsModes) {
    CommandHome home;
    const std::string root = (home / ".claude-profiles").string();
    const std::string builtIn = "default\tPrincipale\t" + (home / ".claude").string() + "\tsource=-\t\n";
    EXPECT_EQ(home.output({"list"}), builtIn);
    EXPECT_EQ(home.output({"create", " Città Nuova ", "--from", "default", "--mode", "CLAUDE.md=none",
                           "--mode", "skills=none", "--mode", "=CLAUDE.md==extend="}),
              "citta-nuova\n");
    EXPECT_EQ(home.output({"create", "città nuova?"}), "citta-nuova-2\n");
    EXPECT_EQ(
        home.output({"list"}),
        builtIn + "citta-nuova\tCittà Nuova\t" + root +
            "/citta-nuova\tsource=default\tskills=none agents=shared commands=shared output-styles=shared "
            "rules=shared CLAUDE.md=extend settings=separate plugins=separate mcp=separate\n"
            "citta-nuova-2\tcittà nuova?\t" +
            root +
            "/citta-nuova-2\tsource=-\tskills=none agents=none commands=none output-styles=none rules=none "
            "CLAUDE.md=none settings=none plugins=none mcp=none\n");
    home.environment["CLAUDE_LAUNCHER_DEFAULT_DIR"] = (home / "altra").string();
    EXPECT_EQ(home.output({"path", "default"}), (home / "altra").string() + "\n");
    EXPECT_EQ(home.output({"install-helper"}), root + "/bin/claude-profile\n");
}

TEST(CommandProfiles, ItemsAreSortedAsInItalianWhateverTheLanguageOfTheSystem) {
    CommandHome home;
    const std::vector<std::string> sorted = {"alfa", "Beta", "citta", "Città", "eco", "época", "Zeta"};
    for (const std::string& name : sorted)
        writeFile(home / ".claude/skills" / name, "");
    writeFile(home / ".claude/skills/.nascosto", "");
    std::string expected;
    for (const std::string& name : sorted)
        expected += "skills\t" + name + "\town\n";
    for (const std::string language : {"C", "POSIX", "it_IT.UTF-8", "sv_SE.UTF-8"}) {
        home.environment["LANG"] = home.environment["LC_ALL"] = language;
        EXPECT_EQ(home.execute({"items", "default"}), (Outcome{0, expected, ""})) << language;
    }
}

TEST(CommandProfiles, SharedItemsFollowTheSource) {
    const CommandHome home;
    const std::string latin1 = "caff\xE8.md"; // not UTF-8
    const fs::path commands = home / ".claude/commands";
    const fs::path own = home / ".claude-profiles/lavoro/commands";
    writeFile(commands / latin1, "caffè");
    writeFile(commands / "due\nrighe", "");
    writeFile(home / ".claude/rules/regola.md", "");
    home.output({"create", "Lavoro", "--from", "default"});
    EXPECT_EQ(fs::read_symlink(own / latin1), commands / latin1);

    fs::rename(commands / latin1, commands / "nuovo.md");
    fs::remove(own / "due\nrighe");
    writeFile(own / "due\nrighe", "proprio");
    EXPECT_EQ(home.output({"sync", "lavoro"}), "+ Comandi: nuovo.md\n- Comandi: " + latin1 + "\n");
    EXPECT_EQ(home.output({"sync", "lavoro"}), "");
    EXPECT_EQ(readFile(own / "due\nrighe"), "proprio");

    EXPECT_EQ(home.output({"set-mode", "lavoro", "rules=separate"}), "");
    fs::remove(commands / "nuovo.md");
    EXPECT_EQ(home.output({"items", "lavoro"}), "commands\tdue\uFFFDrighe\town\n"
                                                "commands\tnuovo.md\tlink -> " +
                                                    (commands / "nuovo.md").string() + " (interrotto)\n" +
                                                    "rules\tregola.md\town\n");
}

} // namespace
} // namespace selvane::test
