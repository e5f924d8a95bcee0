// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/linux/InstalledApplication.h"

#include "Fuzzing.h"
#include "platform/linux/services/FieldCodes.h"
#include "platform/text/EntryText.h"

namespace selvane::fuzz {
namespace {

void checkWord(std::string_view word) {
    const auto result = withoutFieldCodes(word);
    if (!result)
        return require(word.find('%') != word.npos, "only field codes make a word disappear");
    require(result->size() <= word.size(), "a word never grows");
    require(word.find('%') != word.npos || *result == word, "a word without codes stays as it is");
}

class Entries {
public:
    Entries() {
        const std::filesystem::path applications = m_home / "share/applications";
        std::filesystem::create_directories(applications);
        std::filesystem::create_directories(m_home / "bin");
        std::filesystem::create_symlink("/bin/true", m_home / "bin/claude");
        m_entry.emplace(applications / "a.desktop");
        m_environment = {{"HOME", m_home.string()}, {"PATH", (m_home / "bin").string()}};
        // The words of the entry are looked up in this process's own environment.
        setenv("PATH", (m_home / "bin").c_str(), 1);
        setenv("XDG_DATA_HOME", (m_home / "share").c_str(), 1);
        setenv("XDG_DATA_DIRS", (m_home / "none").c_str(), 1);
    }

    void check(std::string_view text) {
        m_entry->set(text);
        const auto application = findApplication({{"a"}, "none"}, m_environment);
        if (!application)
            return;
        require(application->entry == m_home / "share/applications/a.desktop",
                "the entry is the one there is");
        require(application->executable.is_absolute() && access(application->executable.c_str(), X_OK) == 0,
                "the program can be started");
        std::size_t size = 0;
        for (const std::string& argument : application->arguments) {
            size += argument.size();
            require(argument.find('\0') == argument.npos, "no argument holds a NUL");
        }
        require(size <= text.size(), "the arguments are the entry's");
    }

    /// An entry of our own says and starts just what it was made for.
    void checkWritten(std::string_view text) {
        if (!text::fitsEntry(text))
            return;
        require(text::fromEntryValue(text::entryValue(text)) == text, "a value reads back as it was written");
        m_entry->set("[Desktop Entry]\nType=Application\nName=" + text::entryValue(text) + "\nExec=claude " +
                     text::entryWord(text) + "\n");
        const auto application = findApplication({{"a"}, "none"}, m_environment);
        require(application && application->arguments == std::vector{std::string(text)},
                "a word is one argument, and the same");
    }

private:
    const std::filesystem::path m_home = newFolder();
    std::optional<ChangingFile> m_entry;
    Environment m_environment;
};

} // namespace
} // namespace selvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static selvane::fuzz::Entries entries;
    const std::string_view text = selvane::fuzz::textOf(data, size);
    selvane::fuzz::checkWord(text);
    entries.check(text);
    entries.checkWritten(text);
    return 0;
}
