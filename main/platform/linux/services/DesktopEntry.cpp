// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <glib.h>

#include "platform/linux/services/DesktopFunctions.h"
#include "platform/linux/services/FieldCodes.h"

namespace selvane::module {

namespace {

using OwnedText = std::unique_ptr<char, decltype(&g_free)>;
using OwnedWords = std::unique_ptr<char*, decltype(&g_strfreev)>;
using OwnedKeys = std::unique_ptr<GKeyFile, decltype(&g_key_file_unref)>;

std::string variable(const char* name, const std::string& otherwise) {
    const char* const value = g_getenv(name);
    return value != nullptr && *value != '\0' ? value : otherwise;
}

/// The folders with desktop entries, the user's own first. GIO's own search isn't used: it keeps the first
/// environment it sees and starts a thread that watches the folders for good.
std::vector<std::filesystem::path> entryFolders() {
    const std::string user =
        variable("XDG_DATA_HOME", (std::filesystem::path(g_get_home_dir()) / ".local/share").string());
    std::string all = user + ':' + variable("XDG_DATA_DIRS", "/usr/local/share:/usr/share") + ':';
    std::vector<std::filesystem::path> folders;
    for (std::size_t end = all.find(':'); end != std::string::npos; end = all.find(':')) {
        const std::filesystem::path folder = all.substr(0, end);
        if (folder.is_absolute())
            folders.push_back(folder / "applications");
        all.erase(0, end + 1);
    }
    return folders;
}

OwnedText valueOf(GKeyFile& entry, const char* key) {
    return {g_key_file_get_string(&entry, G_KEY_FILE_DESKTOP_GROUP, key, nullptr), g_free};
}

bool isProgram(const char* name) {
    const OwnedText path(g_find_program_in_path(name), g_free);
    return path != nullptr;
}

/// The words of the entry's command, each ended by a NUL; empty if it can't be read.
std::string arguments(GKeyFile& entry) {
    const OwnedText line = valueOf(entry, G_KEY_FILE_DESKTOP_KEY_EXEC);
    char** split = nullptr;
    if (!line || g_shell_parse_argv(line.get(), nullptr, &split, nullptr) == FALSE)
        return {};
    const OwnedWords words(split, g_strfreev);
    std::string result;
    for (char** word = words.get(); *word != nullptr; ++word) {
        if (const auto argument = withoutFieldCodes(*word))
            result.append(*argument).push_back('\0');
    }
    return result;
}

/// Whether the search ends with this file.
enum class Found { nothing, hidden, application };

Found deliver(const std::filesystem::path& file, EntryReceiver found, void* context) {
    std::error_code error;
    const OwnedKeys entry(g_key_file_new(), g_key_file_unref);
    if (!std::filesystem::is_regular_file(file, error) ||
        g_key_file_load_from_file(entry.get(), file.c_str(), G_KEY_FILE_NONE, nullptr) == FALSE)
        return Found::nothing;
    // A file that hides the packaged entry need not be complete.
    if (g_key_file_get_boolean(entry.get(), G_KEY_FILE_DESKTOP_GROUP, G_KEY_FILE_DESKTOP_KEY_HIDDEN,
                               nullptr) != FALSE)
        return Found::hidden;
    const OwnedText type = valueOf(*entry, G_KEY_FILE_DESKTOP_KEY_TYPE);
    const OwnedText required = valueOf(*entry, G_KEY_FILE_DESKTOP_KEY_TRY_EXEC);
    const std::string words = arguments(*entry);
    if (g_strcmp0(type.get(), G_KEY_FILE_DESKTOP_TYPE_APPLICATION) != 0 ||
        (required && *required != '\0' && !isProgram(required.get())) || !isProgram(words.c_str()))
        return Found::nothing;
    const OwnedText folder = valueOf(*entry, G_KEY_FILE_DESKTOP_KEY_PATH);
    const bool namesFolder = folder && *folder != '\0';
    found(context, {file.c_str(), words.data(), words.size(), namesFolder ? folder.get() : nullptr});
    return Found::application;
}

} // namespace

bool desktopEntry(const char* id, EntryReceiver found, void* context) noexcept {
    try {
        for (const std::filesystem::path& folder : entryFolders()) {
            const Found result = deliver(folder / (std::string(id) + ".desktop"), found, context);
            if (result != Found::nothing)
                return result == Found::application;
        }
    } catch (...) {
        return false;
    }
    return false;
}

} // namespace selvane::module
