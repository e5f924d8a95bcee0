// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/LaunchNotes.h"

#include <filesystem>
#include <string_view>

#include "model/ByteText.h"
#include "platform/files/FileManager.h"
#include "platform/files/RuntimeFolder.h"
#include "platform/json/Json.h"
#include "platform/process/Machine.h"

namespace selvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = "launch-";

std::string nameOf(const LaunchNote& note) {
    return std::string(kPrefix) + std::to_string(note.opened.app.pid) + ".json";
}

std::string serialized(const LaunchNote& note) {
    const Json config = note.config ? Json(textFromBytes(*note.config)) : Json(nullptr);
    return json::serialized({{"pid", note.opened.app.pid},
                             {"startTime", note.opened.app.startTime},
                             {"session", note.opened.session},
                             {"boot", bootId()},
                             {"profile", textFromBytes(note.profile)},
                             {"dataDir", textFromBytes(note.dataDir)},
                             {"configDir", config}});
}

/// Throws if the record isn't ours; returns nothing if it was written before the last boot.
std::optional<LaunchNote> parsed(const std::string& record, const fs::path& file) {
    const Json object = json::parse(record, file);
    if (object.at("boot").get<std::string>() != bootId())
        return std::nullopt;
    LaunchNote note;
    note.opened.app = {object.at("pid").get<std::int32_t>(), object.at("startTime").get<std::uint64_t>()};
    note.opened.session = object.at("session").get<std::int32_t>();
    note.profile = bytesFromText(object.at("profile").get<std::string>());
    note.dataDir = bytesFromText(object.at("dataDir").get<std::string>());
    if (const Json& config = object.at("configDir"); !config.is_null())
        note.config = bytesFromText(config.get<std::string>());
    return note;
}

void removeIfPossible(const fs::path& file) {
    std::error_code ignored;
    fs::remove(file, ignored);
}

/// Nothing if the file isn't a note written since the last boot. Removes older notes.
std::optional<LaunchNote> current(const fs::path& file) {
    try {
        std::optional<LaunchNote> note = parsed(FileManager().read(file, FileManager::kLongestRecord), file);
        if (!note)
            removeIfPossible(file);
        return note;
    } catch (const std::exception&) { // not ours, or already gone
        return std::nullopt;
    }
}

} // namespace

void LaunchNotes::add(const LaunchNote& note) const {
    try {
        if (const auto folder = runtimeFolder(m_environment))
            FileManager().write(*folder / nameOf(note), serialized(note), Privacy::ownerOnly);
    } catch (const fs::filesystem_error&) { // the copy runs anyway
    }
}

void LaunchNotes::remove(const LaunchNote& note) const {
    for (const fs::path& folder : runtimeFolders(m_environment))
        removeIfPossible(folder / nameOf(note));
}

std::vector<LaunchNote> LaunchNotes::all() const {
    std::vector<LaunchNote> notes;
    for (const fs::path& folder : runtimeFolders(m_environment)) {
        for (const std::string& name : FileManager().entriesIfReadable(folder)) {
            if (!name.starts_with(kPrefix))
                continue;
            if (std::optional<LaunchNote> note = current(folder / name))
                notes.push_back(std::move(*note));
        }
    }
    return notes;
}

} // namespace selvane
