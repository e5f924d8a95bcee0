// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>
#include <unistd.h>
#include <utility>

/// Shared by everything that works with open files and folders.
namespace selvane::files {

/// An open file, closed with this object.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor() { close(); }

    int get() const { return m_number; }
    explicit operator bool() const { return m_number >= 0; }
    int release() { return std::exchange(m_number, -1); }
    void close() {
        if (m_number >= 0)
            ::close(release());
    }
    /// Returns 0 or the error: some file systems, such as those on a network, refuse what was written only
    /// when it is closed.
    int closeReporting() {
        // After an interruption the file is closed all the same.
        return m_number < 0 || ::close(release()) == 0 || errno == EINTR ? 0 : errno;
    }

private:
    int m_number = -1;
};

/// Whether an error says that there is nothing at a path, as opposed to nobody knowing what is there.
inline bool meansMissing(int error) {
    return error == ENOENT || error == ENOTDIR || error == ELOOP || error == ENAMETOOLONG;
}

[[noreturn]] inline void fail(const char* operation, const std::filesystem::path& path, int error) {
    throw std::filesystem::filesystem_error(operation, path, std::error_code(error, std::generic_category()));
}

[[noreturn]] inline void fail(const char* operation, const std::filesystem::path& first,
                              const std::filesystem::path& second, int error) {
    throw std::filesystem::filesystem_error(operation, first, second,
                                            std::error_code(error, std::generic_category()));
}

/// Calls `use` with the name and `d_type` of each entry except "." and "..". `folder` stays open, but its
/// read position moves. Returns 0 or the error.
template <typename Use>
int forEachEntry(int folder, Use use) {
    struct Closing {
        void operator()(DIR* listing) const { ::closedir(listing); }
    };
    Descriptor own(::fcntl(folder, F_DUPFD_CLOEXEC, 0));
    const std::unique_ptr<DIR, Closing> listing(own ? ::fdopendir(own.get()) : nullptr);
    if (listing == nullptr)
        return errno;
    own.release();
    while (true) {
        errno = 0;
        const dirent* entry = ::readdir(listing.get());
        if (entry == nullptr)
            return errno;
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            use(entry->d_name, entry->d_type);
    }
}

} // namespace selvane::files
