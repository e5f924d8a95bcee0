// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "PictureHome.h"

namespace selvane::test {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t kSessions = 12;
constexpr int kPendingSessions = 2;

std::string sessionRecord(std::size_t number, const std::string& title, const std::string& folder) {
    using namespace std::chrono;
    const std::string text = std::to_string(number);
    const auto before = minutes(20) + number * number * hours(3);
    const auto active = duration_cast<milliseconds>((system_clock::now() - before).time_since_epoch());
    return R"({"sessionId": "local_)" + text + R"(", "cliSessionId": "cli-)" + text + R"(", "title": ")" +
           title + R"(", "cwd": ")" + folder + R"(", "lastActivityAt": )" + std::to_string(active.count()) +
           "}";
}

} // namespace

PictureHome::PictureHome(const std::string& place) : Home(Processes::seen, place) {
    fillBuiltIn();
    makeWork();
    makeOthers();
    launched("cliente-aurora", 75h);
    launched("cliente-borea", 15 * 24h);
    launched("scrittura", 5 * 24h);
    launched("universita", 16 * 24h);
    launched("default", 2h);
    launched("lavoro", 26h); // last
    openInClaude(builtIn());
}

PictureHome::~PictureHome() {
    std::filesystem::remove_all(path);
}

void PictureHome::fillBuiltIn() const {
    const std::string skill = "---\nname: skill\n---\n";
    for (const char* name :
         {"code-review", "esporta-grafici", "note-di-rilascio", "tabelle-pdf", "traduzioni"})
        writeFile(path / ".claude/skills" / name / "SKILL.md", skill);
    writeTree(path / ".claude", {{"commands/rilascio.md", "Prepara le note di rilascio."},
                                 {"rules/stile-commit.md", "Frasi brevi, all'imperativo."},
                                 {"CLAUDE.md", "# Regole personali\n"},
                                 {"settings.json", "{}"},
                                 {"agents/collaudo.md", "Prove che trovano guasti."},
                                 {"agents/revisore.md", "Legge il diff."},
                                 {"agents/archivista.md", "Tiene in ordine."},
                                 {"output-styles/conciso.md", "Poche righe."},
                                 {"output-styles/didattico.md", "Passo per passo."}});
    writeFile(
        path / ".claude.json",
        R"({"mcpServers": {"archivio": {}, "meteo": {}}, "oauthAccount": {"emailAddress": "anna@esempio.it"}})");
    const auto sessions = path / ".config/Claude/claude-code-sessions/conto/org";
    const char* const titles[] = {"Carrello: prezzi e sconti",    "Perché la ricerca è lenta",
                                  "Note di rilascio 2.4",         "Migrazione a PostgreSQL 17",
                                  "Test che falliscono di notte", "Traduzioni della guida"};
    const char* const folders[] = {"~/progetti/negozio", "~/progetti/ricerca", "~/progetti/guida"};
    for (std::size_t i = 0; i < kSessions; ++i)
        writeFile(sessions / ("local_" + std::to_string(i) + ".json"),
                  sessionRecord(i, titles[i % std::size(titles)], folders[i % std::size(folders)]));
    for (std::size_t i = 0; i < kSessions - 1; ++i) // the text of the last is missing
        writeFile(path / ".claude/projects/-progetti" / ("cli-" + std::to_string(i) + ".jsonl"),
                  std::string(40'000 * (i + 3), '\n'));
}

void PictureHome::makeWork() {
    NewProfile work = request("Lavoro", builtIn(), "default");
    work.summary = "Progetti del team, regole e revisioni di codice";
    work.look = {"briefcase", "Genziana"};
    work.modes = {{Component::agents, ShareMode::none},
                  {Component::outputStyles, ShareMode::none},
                  {Component::plugins, ShareMode::none}};
    work.selection = {{Component::skills, {"code-review", "esporta-grafici"}}};
    const Profile made = store.create(work);
    writeTree(made.configDir, {{"skills/commit-in-italiano/SKILL.md", "---\nname: commit\n---\n"},
                               {"skills/tabelle-pdf", "-> " + (path / "dotfiles/tabelle-pdf").string()},
                               {"rules/tono-di-voce.md", "Cortese e diretto."}});
    writeFile(path / "dotfiles/tabelle-pdf/SKILL.md", "---\nname: tabelle\n---\n");
    std::filesystem::remove_all(path / ".claude/skills/esporta-grafici");
    changeHere(made);
    for (int i = 0; i < kPendingSessions; ++i)
        writeFile(made.configDir / ".pending-sessions" / ("local_" + std::to_string(i) + ".json"), "{}");
}

/// What an editor leaves in the place of links.
void PictureHome::changeHere(const Profile& work) const {
    std::filesystem::remove(work.configDir / "skills/code-review");
    writeFile(work.configDir / "skills/code-review/SKILL.md", "---\nname: skill\n---\nSenza fretta.\n");
    writeFile(work.configDir / ".claude.json", R"({"oauthAccount": {"emailAddress": "anna@esempio.it"}})");
}

void PictureHome::addSkills() {
    const char* const names[] = {"analisi-log",
                                 "bozza-contratti",
                                 "changelog-rilascio",
                                 "controllo-accessibilita",
                                 "fatture-elettroniche",
                                 "grafici-vendite",
                                 "importa-csv",
                                 "indice-documenti",
                                 "lettere-clienti",
                                 "lista-controlli",
                                 "mappa-moduli",
                                 "migrazione-dati",
                                 "minute-riunioni",
                                 "modelli-email",
                                 "nomi-coerenti",
                                 "offerte-commerciali",
                                 "ordina-importazioni",
                                 "piano-di-prova",
                                 "preventivi",
                                 "profilo-prestazioni",
                                 "quaderno-di-bordo",
                                 "regole-di-stile",
                                 "revisione-testi",
                                 "riassunto-ticket",
                                 "ricerca-duplicati",
                                 "scadenze",
                                 "schema-database",
                                 "stima-tempi",
                                 "tabelle-riassuntive",
                                 "test-di-carico",
                                 "verbali",
                                 "verifica-link",
                                 "versioni-semantiche"};
    for (const char* name : names)
        writeFile(path / ".claude/skills" / name / "SKILL.md", "---\nname: skill\n---\n");
    const Profile work = *store.profile("lavoro");
    writeFile(work.configDir / "skills/appunti-riunione/SKILL.md", "---\nname: appunti\n---\n");
    store.sync(work);
    writeTree(work.configDir, {{"skills/esporta-grafici", "-> /tolta"}}); // sync has removed the broken link
}

void PictureHome::changeRules() {
    using namespace std::chrono;
    const Profile work = *store.profile("lavoro");
    const auto rules = work.url(Component::claudeMd);
    std::filesystem::remove(rules); // there may be no Trash to move it to
    store.setMode(ShareMode::shared, Component::claudeMd, work);
    std::filesystem::remove(rules);
    writeFile(rules, "# Regole del lavoro\n");
    const system_clock::time_point changed = sys_days(2026y / 3 / 9) + 12h;
    std::filesystem::last_write_time(rules, file_clock::from_sys(changed));
}

void PictureHome::makeOthers() {
    NewProfile client = request("Cliente Aurora", builtIn());
    client.summary = "Account del cliente, solo le sue skill";
    client.look = {"building.2", "Argilla"};
    store.create(client);
    NewProfile laboratory = request("Laboratorio", builtIn(), "default");
    laboratory.summary = "Prove con agenti e server MCP";
    laboratory.look = {"flask", "Muschio"};
    store.create(laboratory);
    NewProfile shop = request("Cliente Borea", builtIn());
    shop.summary = "Sito e negozio, consegne a fine mese";
    shop.look = {"globe", "Lago"};
    store.create(shop);
    NewProfile writing = request("Scrittura", {}, "default");
    writing.summary = "Articoli, newsletter e traduzioni";
    writing.look = {"pencil.and.ruler", "Erica"};
    store.create(writing);
    NewProfile studies = request("Università", builtIn(), "default");
    studies.summary = "Appunti, esercizi e tesi";
    studies.look = {"graduationcap", "Betulla"};
    store.create(studies);
}

void PictureHome::launched(const std::string& id, std::chrono::hours ago) {
    Profile profile = *store.profile(id);
    store.markLaunched(profile);
    profile = *store.profile(id);
    *profile.meta.lastLaunched -= ago;
    profile.meta.created = std::chrono::sys_days(2026y / 1 / 12) + 12h;
    store.saveMeta(profile);
}

/// With three sessions of Claude Code below it.
void PictureHome::openInClaude(const Profile& profile) {
    const auto data = store.desktopDataDir(profile);
    const auto agent = path / "bin/claude";
    writeTree(path, {{"bin/claude", "-> /bin/sh"}});
    const std::string start =
        "'" + agent.string() + "' -c 'read line' <&3 & "; // what runs behind has an input of its own
    m_copy = std::make_unique<RunningProcess>(std::vector<std::string>{"--user-data-dir=" + data.string()},
                                              Environment{{"PATH", "/bin"}, {"HOME", path}}, "sh",
                                              "exec 3<&0; " + start + start + start + "read line");
    workspace.apps = {m_copy->app()};
}

} // namespace selvane::test
