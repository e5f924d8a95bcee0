// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/ProfileStore.h"

#include "platform/text/Text.h"
#include "store/OwnFolder.h"

namespace selvane {
namespace {

constexpr std::string_view kScriptBegin = R"(#!/bin/sh
# Avvia il CLI di Claude Code con un profilo di Selvane.
# Uso: claude-profile <id-profilo> [argomenti di claude...]
ROOT=)";

constexpr std::string_view kScriptEnd = R"(
if [ -z "$1" ] || [ "$1" = "--list" ]; then
  echo "default"; for d in "$ROOT"/*/; do [ -f "$d.launcher.json" ] && basename "$d"; done; exit 0
fi
id="$1"; shift
if [ "$id" = "default" ]; then unset CLAUDE_CONFIG_DIR
elif [ -f "$ROOT/$id/.launcher.json" ]; then export CLAUDE_CONFIG_DIR="$ROOT/$id"
else echo "Profilo sconosciuto: $id" >&2; exit 1; fi
exec claude "$@"
)";

} // namespace

std::filesystem::path ProfileStore::installTerminalHelper() {
    const std::filesystem::path folder = root() / "bin";
    m_files.createFolders(root(), Privacy::ownerOnly);
    createOwnFolder(root(), folder);
    const std::filesystem::path script = folder / "claude-profile";
    m_files.write(script, std::string(kScriptBegin) + text::quotedForShell(root().string()) +
                              std::string(kScriptEnd));
    m_files.setMode(script, 0755);
    m_files.waitForContent(script);
    return script;
}

} // namespace selvane
