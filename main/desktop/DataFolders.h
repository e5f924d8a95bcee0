// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

/// The known data folders of Claude Desktop: the normal one and one per account.
class DataFolders {
public:
    /// `accounts` are folder names in `accountsFolder`.
    DataFolders(const std::filesystem::path& normal, const std::filesystem::path& accountsFolder,
                const std::vector<std::string>& accounts);

    const std::string& normal() const { return m_normal; }
    const std::string& accountsFolder() const { return m_accountsFolder; }
    /// All of them, normalized, the longest path first.
    const std::vector<std::string>& all() const { return m_all; }

    /// The data folder that contains `file`, whether or not its path goes through links; empty if none does.
    std::string holding(std::string_view file) const;
    /// The data folder that `text` begins with, followed by a space or nothing; trailing slashes are ignored.
    /// Folder names may contain spaces, so the longest match wins. Empty if none matches.
    std::string named(std::string_view text) const;

private:
    std::string m_normal;
    std::string m_accountsFolder;
    std::vector<std::string> m_all;
    std::vector<std::string> m_resolved; ///< the same, with all links resolved
};

} // namespace selvane
