// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/DataFolders.h"

#include <algorithm>

#include "platform/files/NormalizedPath.h"

namespace selvane {

namespace fs = std::filesystem;

DataFolders::DataFolders(const fs::path& normal, const fs::path& accountsFolder,
                         const std::vector<std::string>& accounts)
    : m_normal(normalizedPath(normal)), m_accountsFolder(normalizedPath(accountsFolder)), m_all({m_normal}) {
    for (const std::string& account : accounts)
        m_all.push_back(m_accountsFolder + "/" + account);
    std::sort(m_all.begin(), m_all.end(),
              [](const std::string& a, const std::string& b) { return a.size() > b.size(); });
    for (const std::string& folder : m_all) {
        std::error_code error;
        const fs::path resolved = fs::weakly_canonical(folder, error);
        m_resolved.push_back(error ? folder : resolved.string());
    }
}

std::string DataFolders::holding(std::string_view file) const {
    const auto holds = [&](const std::string& folder) {
        return file.starts_with(folder) && file.substr(folder.size()).starts_with('/');
    };
    for (std::size_t i = 0; i < m_all.size(); ++i) {
        if (holds(m_all[i]) || holds(m_resolved[i]))
            return m_all[i];
    }
    return {};
}

std::string DataFolders::named(std::string_view text) const {
    for (const std::string& folder : m_all) {
        if (!text.starts_with(folder))
            continue;
        const std::string_view rest = text.substr(folder.size());
        const std::size_t end = rest.find_first_not_of('/');
        if (end == std::string_view::npos || rest[end] == ' ')
            return folder;
    }
    return {};
}

} // namespace selvane
