// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/TreeListing.h"

#include <vector>

#include "platform/files/FolderTrail.h"

namespace selvane::files {
namespace {

/// Lists without recursion and with few open files, whatever the depth.
class Listing {
public:
    explicit Listing(const TreeVisitor& visitor) : m_visitor(visitor) {}

    void run(const std::filesystem::path& top) {
        const bool follows = !top.has_filename();
        struct stat status = {};
        if (::fstatat(AT_FDCWD, top.c_str(), &status, follows ? 0 : AT_SYMLINK_NOFOLLOW) != 0)
            return failed(errno);
        if (m_visitor.visit(m_path, status) && S_ISDIR(status.st_mode))
            enter(top.c_str(), follows ? 0 : O_NOFOLLOW);
        while (!m_levels.empty()) {
            std::vector<std::string>& folders = m_levels.back().folders;
            if (folders.empty()) {
                leave();
                continue;
            }
            const std::string name = std::move(folders.back());
            folders.pop_back();
            enterBelow(name);
        }
    }

private:
    struct Level {
        std::size_t pathSize;             ///< of the path without this folder
        std::vector<std::string> folders; ///< subfolders still to be listed
    };

    void failed(int error) const {
        if (error != ENOENT && error != ENOTDIR)
            m_visitor.failed(m_path, error);
    }

    void append(std::string_view name) {
        if (!m_path.empty())
            m_path += '/';
        m_path += name;
    }

    void enterBelow(const std::string& name) {
        const std::size_t before = m_path.size();
        append(name);
        if (enter(name.c_str(), O_NOFOLLOW))
            m_levels.back().pathSize = before;
        else
            m_path.resize(before);
    }

    bool enter(const char* name, int flags) {
        Descriptor folder(::openat(m_trail.current(), name, O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags));
        int error = folder ? 0 : errno;
        if (error == 0)
            error = m_trail.enter(std::move(folder));
        if (error != 0) {
            failed(error);
            return false;
        }
        m_levels.push_back({0, {}});
        if (const int stopped =
                forEachEntry(m_trail.current(), [this](const char* entry, unsigned char) { visit(entry); });
            stopped != 0)
            m_visitor.failed(m_path, stopped);
        return true;
    }

    void visit(const char* name) {
        const std::size_t before = m_path.size();
        append(name);
        struct stat status = {};
        if (::fstatat(m_trail.current(), name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            failed(errno);
        else if (m_visitor.visit(m_path, status) && S_ISDIR(status.st_mode))
            m_levels.back().folders.emplace_back(name);
        m_path.resize(before);
    }

    void leave() {
        Descriptor left;
        const int error = m_trail.leave(left);
        m_path.resize(m_levels.back().pathSize);
        m_levels.pop_back();
        if (error != 0) { // the rest of the folders above can't be reached any more
            m_path.clear();
            m_visitor.failed(m_path, error);
            m_levels.clear();
        }
    }

    const TreeVisitor& m_visitor;
    FolderTrail m_trail;
    std::vector<Level> m_levels;
    std::string m_path;
};

} // namespace

void listTree(const std::filesystem::path& top, const TreeVisitor& visitor) {
    Listing(visitor).run(top);
}

} // namespace selvane::files
