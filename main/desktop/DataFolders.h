// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace selvane {

/// A path in the form in which paths are compared: absolute, without "." and ".." parts, doubled or trailing
/// slashes. Links are not resolved.
std::string normalizedPath(const std::string& path);

/// The data folders of Claude Desktop that are known: the normal one and those of the accounts.
class DataFolders {
public:
    /// `accounts` are the names of folders in `accountsFolder`.
    DataFolders(const std::filesystem::path& normal, const std::filesystem::path& accountsFolder,
                const std::vector<std::string>& accounts);

    const std::string& normal() const { return m_normal; }
    const std::string& accountsFolder() const { return m_accountsFolder; }
    /// All of them, normalized; of two that begin alike the longer one first.
    const std::vector<std::string>& all() const { return m_all; }

    /// The one in which `file` lies, spelled with links or without; empty when none does.
    std::string holding(std::string_view file) const;
    /// The one that `text` begins with, as a whole word: a blank or nothing follows. Folders may hold blanks
    /// themselves, so the longest counts. Empty when there is none.
    std::string named(std::string_view text) const;

private:
    std::string m_normal;
    std::string m_accountsFolder;
    std::vector<std::string> m_all;
    std::vector<std::string> m_resolved; ///< the same with all links resolved
};

} // namespace selvane
