// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "store/OwnFolder.h"

#include "model/LauncherError.h"
#include "platform/files/FileManager.h"
#include "platform/text/Text.h"

namespace selvane {

void requireNoLink(const std::filesystem::path& top, const std::filesystem::path& folder) {
    if (const auto link = FileManager().linkBelow(top, folder))
        throw LauncherError(text::singleLine(link->string()) +
                            " è un collegamento: Selvane non scrive nella cartella a cui porta");
}

void createOwnFolder(const std::filesystem::path& top, const std::filesystem::path& folder) {
    requireNoLink(top, folder);
    FileManager().createFoldersBelow(top, folder);
}

void createOwnFolder(const Profile& profile, const std::filesystem::path& folder) {
    if (profile.isDefault())
        FileManager().createFolders(profile.configDir);
    createOwnFolder(profile.configDir, folder);
}

void OwnFolders::create(const std::filesystem::path& folder) {
    if (m_created.contains(folder.native()))
        return;
    createOwnFolder(m_profile, folder);
    m_created.insert(folder.native());
}

} // namespace selvane
