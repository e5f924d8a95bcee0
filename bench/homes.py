# SPDX-FileCopyrightText: 2026 The Selvane developers
# SPDX-License-Identifier: MIT
"""Large home folders for bench/compare.py. Each function fills an empty folder that then serves as $HOME."""

import json
import os
import random

COLLECTIONS = ["skills", "agents", "commands", "output-styles", "rules"]
COLORS = ["Muschio", "Betulla", "Argilla", "Erica", "Glicine", "Genziana", "Lago", "Ardesia"]
PROJECT_FOLDERS = 200
UNSAID = "kwyxj"  # no transcript has it: its letters aren't in any word


def write(path, content):
    descriptor = os.open(path, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o644)
    try:
        os.write(descriptor, content)
    finally:
        os.close(descriptor)


def words(count, seed=1):
    source = random.Random(seed)
    stems = ["".join(source.choices("abcdefghilmnopqrstuvz", k=source.randint(2, 11))) for _ in range(1500)]
    return " ".join(source.choices(stems, k=count))


# zip is fast with this (repetitions are within its window), which leaves Selvane's own share large.
TEXT = (words(3000).encode() + b"\n") * 80


def text(size, number):
    start = number * 37 % 20_000
    return TEXT[start:start + size]


def bare(home):
    for folder in [".claude", ".claude-profiles", ".config/Claude"]:
        os.makedirs(f"{home}/{folder}")
    write(f"{home}/.claude.json", b'{\n  "hasCompletedOnboarding": true,\n  "mcpServers": {}\n}\n')


def profile_record(name, modes, source=None, color=None):
    record = {
        "created": "2026-03-01T09:30:00Z", "excluded": {}, "lastLaunched": "2026-11-15T17:05:12Z",
        "modes": modes, "name": name, "summary": "Lavoro per " + name, "symbol": "briefcase",
    }
    if source:
        record["source"] = source
    if color:
        record["color"] = color
    return json.dumps(record, indent=2, sort_keys=True).encode()


def add_profile(home, ident, modes, source=None, number=0, color=None):
    folder = f"{home}/.claude-profiles/{ident}"
    os.makedirs(folder)
    write(f"{folder}/.launcher.json", profile_record(f"Cliente {number:05} & figli", modes, source, color))


def profiles(home, count):
    """`count` profiles of all colours that share everything with the built-in one."""
    bare(home)
    modes = dict.fromkeys(COLLECTIONS, "shared") | {"CLAUDE.md": "extend", "settings": "separate"}
    for number in range(count):
        add_profile(home, f"cliente-{number:05}", modes, "default", number, COLORS[number % len(COLORS)])


def items(home, count):
    """`count` items in the built-in profile, half of them files and half folders, and a profile, "copia", to share
    them."""
    bare(home)
    for collection in COLLECTIONS:
        folder = f"{home}/.claude/{collection}"
        os.mkdir(folder)
        for number in range(count // len(COLLECTIONS) // 2):
            os.mkdir(f"{folder}/c-{number:06}")
            write(f"{folder}/r-{number:06}", b"# Regola\n")
    add_profile(home, "copia", dict.fromkeys(COLLECTIONS, "shared"), "default")
    for collection in COLLECTIONS:
        os.mkdir(f"{home}/.claude-profiles/copia/{collection}")


def files(home, count, size):
    """`count` files with `size` bytes in total: half in the folders of skills, a quarter in plugins, the rest as
    single items."""
    bare(home)
    claude = f"{home}/.claude"
    each = size // count
    number = 0

    def fill(folder, many, suffix):
        nonlocal number
        for _ in range(many):
            write(f"{folder}/{number:06}{suffix}", text(each, number))
            number += 1

    for index in range(count // 20):
        os.makedirs(folder := f"{claude}/skills/abilita-{index:05}")
        fill(folder, 10, ".md")
    for index in range(count // 80):
        os.makedirs(folder := f"{claude}/plugins/cache/plugin-{index:05}")
        fill(folder, 20, ".js")
    for collection in COLLECTIONS[1:]:
        os.mkdir(folder := f"{claude}/{collection}")
        fill(folder, count // 16, ".md")
    write(f"{claude}/CLAUDE.md", b"# Regole\n")
    write(f"{claude}/settings.json", b'{\n  "model": "opus"\n}\n')


def linked_files(home, count, size):
    """`count` skills that are files with `size` bytes in total, and a profile, "copia", to share them."""
    bare(home)
    os.mkdir(skills := f"{home}/.claude/skills")
    for number in range(count):
        write(f"{skills}/{number:06}.md", text(size // count, number))
    add_profile(home, "copia", {"skills": "shared"}, "default")


def set_mode(home, ident, part, mode):
    """Changes a mode in a profile's record without applying it."""
    path = f"{home}/.claude-profiles/{ident}/.launcher.json"
    with open(path, encoding="utf-8") as file:
        record = json.load(file)
    record["modes"][part] = mode
    with open(path, "w", encoding="utf-8") as file:
        json.dump(record, file)


def tool(number):
    properties = {name: {"type": "string", "description": words(9, number + index)}
                  for index, name in enumerate(["query", "folder", "since"])}
    return {"name": f"tool_{number}", "description": words(25, number), "isEnabled": True, "limit": 40.5,
            "inputSchema": {"type": "object", "properties": properties, "required": ["query"]}}


def session_record(size):
    """A record of about this size with three fields to fill in. About half of it consists of keys that an import
    leaves out."""
    record = {
        "sessionId": "local_@ID@", "cliSessionId": "@ID@", "cwd": "/srv/lavori/progetto-@N@",
        "originCwd": "/srv/lavori/progetto-@N@", "createdAt": 1762000000123, "lastActivityAt": "@TIME@",
        "model": "claude-opus", "effort": "high", "isArchived": False, "title": "Sessione @N@: rivedere i testi",
        "permissionMode": "acceptEdits", "priorCliSessionIds": [], "chromePermissionMode": "ask",
        "sessionSettings": [], "remoteMcpServersConfig": [], "enabledMcpTools": {}, "remoteControlAutoEligible": True,
    }
    number = 0
    while (left := size - len(json.dumps(record))) > 2500:
        record["sessionSettings"].append(tool(number))
        record["remoteMcpServersConfig"].append(tool(number + 1))
        record["enabledMcpTools"][f"server:tool_{number}"] = True
        number += 2
    record["note"] = words(1000)[:max(left - 12, 0)]
    return json.dumps(record).replace('"@TIME@"', "@TIME@")


def sessions(home, count, record_bytes, transcript_bytes):
    """`count` sessions with their transcripts in the built-in profile, and a profile with its own account, "altro",
    to import them."""
    bare(home)
    records = f"{home}/.config/Claude/claude-code-sessions/account/organizzazione"
    os.makedirs(records)
    projects = [f"{home}/.claude/projects/-srv-lavori-progetto-{number}" for number in range(PROJECT_FOLDERS)]
    for project in projects:
        os.makedirs(project)
    template = session_record(record_bytes)
    for number in range(count):
        ident = f"00000000-0000-4000-8000-{number:012}"
        record = template.replace("@ID@", ident).replace("@N@", str(number % PROJECT_FOLDERS))
        time = 1762000000000 + number * 7919 % count * 1000
        write(f"{records}/local_{ident}.json", record.replace("@TIME@", str(time)).encode())
        write(f"{projects[number % PROJECT_FOLDERS]}/{ident}.jsonl", text(transcript_bytes, number))
    add_profile(home, "altro", {})
    os.makedirs(f"{home}/.claude-profiles/.desktop-data/altro/claude-code-sessions/account/organizzazione")


def transcript_line(number):
    """A line of a transcript: of the user, of the agent, or what a tool has answered."""
    said = words(20 + number * 37 % 150, number)
    line = {"parentUuid": f"{number:08x}", "isSidechain": False, "cwd": "/srv/lavori/progetto", "version": "2.1.0",
            "gitBranch": "main", "uuid": f"{number + 1:08x}", "timestamp": "2026-11-15T17:05:12.000Z"}
    if number % 3 == 0:
        line |= {"type": "user", "message": {"role": "user", "content": said}}
    elif number % 3 == 1:
        line |= {"type": "assistant", "message": {"role": "assistant", "content": [{"type": "text", "text": said}]}}
    else:
        answer = {"type": "tool_result", "content": said * 4}
        line |= {"type": "user", "message": {"role": "user", "content": [answer]}}
    return json.dumps(line, ensure_ascii=False, separators=(",", ":")).encode() + b"\n"


def conversations(home, count, transcript_bytes=53_687):
    """`count` conversations, half of them begun in terminals, in 50 profiles, each with an account of its
    own."""
    bare(home)
    lines = [transcript_line(number) for number in range(300)]
    idents = [f"cliente-{number:02}" for number in range(49)]
    for number, ident in enumerate(idents):
        add_profile(home, ident, {}, number=number)
        os.makedirs(f"{home}/.claude-profiles/.desktop-data/{ident}/claude-code-sessions/account/organizzazione")
    template = session_record(6000)
    for number in range(count):
        ident = f"00000000-0000-4000-8000-{number:012}"
        owner = idents[number % 50] if number % 50 < 49 else None
        config = f"{home}/.claude-profiles/{owner}" if owner else f"{home}/.claude"
        os.makedirs(project := f"{config}/projects/-srv-lavori-progetto-{number % 8}", exist_ok=True)
        body = []
        size = index = 0
        while size < transcript_bytes:
            body.append(lines[(number + index) % len(lines)])
            size += len(body[-1])
            index += 1
        write(f"{project}/{ident}.jsonl", b"".join(body))
        if number % 2 == 0 and owner:
            data = f"{home}/.claude-profiles/.desktop-data/{owner}/claude-code-sessions/account/organizzazione"
            record = template.replace("@ID@", ident).replace("@N@", str(number % 8))
            write(f"{data}/local_{ident}.json", record.replace("@TIME@", str(1762000000000 + number * 1000)).encode())
