// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/SignInHandler.h"

#include "model/LauncherError.h"
#include "platform/files/FileManager.h"
#include "platform/files/Locations.h"
#include "platform/process/SchemeHandler.h"
#include "platform/text/EntryText.h"
#include "platform/text/Text.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr const char* kScheme = "claude";
constexpr std::string_view kFormerKey = "\nX-Selvane-Former=";

std::string entryText(const fs::path& program, const std::string& former) {
    std::string entry = "[Desktop Entry]\nType=Application\nName=Selvane\nNoDisplay=true\nTerminal=false\n";
    entry += "Exec=" + text::entryWord(program.string()) + " %u\n";
    entry += "MimeType=x-scheme-handler/" + std::string(kScheme) + ";";
    return entry.append(kFormerKey).append(former).append("\n");
}

} // namespace

SignInHandler::SignInHandler(const Environment& environment)
    : m_entry(userDataFolder(environment) / "applications/org.selvane.Selvane.sign-in.desktop") {}

/// Who had the links before, as the entry says; empty if nobody, or if there is no entry.
std::string SignInHandler::former() const {
    const std::string text = FileManager().readIfPossible(m_entry, FileManager::kLongestRecord).value_or("");
    const std::size_t begin = text.find(kFormerKey);
    if (begin == text.npos)
        return {};
    const std::size_t name = begin + kFormerKey.size();
    return text.substr(name, text.find('\n', name) - name);
}

bool SignInHandler::isOn() const {
    try {
        return FileManager().exists(m_entry) && schemeHandler(kScheme) == m_entry.filename();
    } catch (const std::exception&) {
        return false;
    }
}

void SignInHandler::turnOn(const fs::path& program) const {
    const FileManager files;
    if (!program.is_absolute() || text::singleLine(program.string()) != program.string() ||
        !files.isPresent(program))
        throw LauncherError(text::singleLine(program.string()) +
                            ": non è un programma che riceve collegamenti");
    const auto before = files.readIfPresent(m_entry, FileManager::kLongestRecord);
    const std::string handler = schemeHandler(kScheme);
    files.createFolders(m_entry.parent_path());
    files.write(m_entry, entryText(program, handler == m_entry.filename() ? former() : handler));
    try {
        setSchemeHandler(kScheme, m_entry.string());
    } catch (...) {
        if (before)
            files.write(m_entry, *before);
        else
            files.removeFile(m_entry);
        throw;
    }
}

void SignInHandler::turnOff() const {
    const FileManager files;
    if (!files.exists(m_entry))
        return;
    const std::string before = former();
    if (schemeHandler(kScheme) == m_entry.filename()) {
        resetSchemeHandler(kScheme);
        if (!before.empty() && schemeHandler(kScheme) != before) {
            try {
                setSchemeHandler(kScheme, before);
            } catch (const LauncherError&) { // it is no longer installed
            }
        }
    }
    files.removeFile(m_entry);
}

} // namespace selvane
