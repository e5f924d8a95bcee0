// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "desktop/OpenCopies.h"

#include <algorithm>
#include <map>
#include <set>

#include "desktop/ClaudeArguments.h"
#include "desktop/CopyEnvironment.h"
#include "platform/process/MainProcess.h"
#include "platform/process/ProcessFamily.h"

namespace selvane {
namespace {

/// Weighs the evidence from one look at the machine.
class Weighing {
public:
    explicit Weighing(const CopyEvidence& evidence)
        : m_evidence(evidence), m_folders(evidence.folders), m_family(evidence.processes) {}

    std::vector<OpenCopy> copies() {
        addLocked();
        addNoted();
        addRecognised();
        addRelatives();
        for (auto& [pid, copy] : m_copies)
            copy.dataDir = dataDirOf(copy);
        dropOvertaken();
        std::vector<OpenCopy> result;
        for (const ProcInfo& process : m_evidence.processes) {
            if (const auto copy = m_copies.find(process.pid); copy != m_copies.end())
                result.push_back(finished(copy->second));
        }
        return result;
    }

    bool isHolder(const DataFolderLock& lock, const ProcInfo& process) const {
        if (lock.host != m_evidence.host || lock.pid != process.pid || !canBeMainProcess(process))
            return false;
        const bool wasThere = process.startTime != 0 && process.startTime <= lock.madeBefore;
        return wasThere || heldBy(process.pid).contains(lock.folder);
    }

    /// The known data folders in which the process has files open for writing. Anybody may read there.
    std::set<std::string> heldBy(std::int32_t pid) const {
        std::set<std::string> folders;
        for (const std::string& file : m_evidence.openFiles(pid, FileUse::writing)) {
            if (std::string folder = m_folders.holding(file); !folder.empty())
                folders.insert(std::move(folder));
        }
        return folders;
    }

private:
    struct Copy {
        const ProcInfo& process;
        std::set<std::string> locked; ///< folders whose lock it holds
        const LaunchNote* note = nullptr;
        std::string dataDir;
    };

    Copy& add(const ProcInfo& process) {
        return m_copies.try_emplace(process.pid, Copy{process, {}, nullptr, {}}).first->second;
    }
    bool isCopy(const ProcInfo& process) const { return m_copies.contains(process.pid); }
    bool isBelowCopy(const ProcInfo& process) const {
        return m_family.ancestor(process, [this](const ProcInfo& each) { return isCopy(each); }) != nullptr;
    }

    void addLocked() {
        for (const DataFolderLock& lock : m_evidence.locks) {
            const ProcInfo* holder = m_family.find(lock.pid);
            if (holder != nullptr && isHolder(lock, *holder))
                add(*holder).locked.insert(lock.folder);
        }
    }

    void addNoted() {
        for (const LaunchNote& note : m_evidence.notes) {
            if (const ProcInfo* main = mainOf(note))
                add(*main).note = &note;
        }
    }

    /// There may be wrappers between the process we opened and the main process, and they may have ended.
    const ProcInfo* mainOf(const LaunchNote& note) const {
        const auto isMember = [&](const ProcInfo& each) {
            return belongsTo(note.opened, each, m_family) && canBeMainProcess(each);
        };
        const auto topmost = [&](const auto& test) -> const ProcInfo* {
            const auto isWanted = [&](const ProcInfo& each) { return isMember(each) && test(each); };
            for (const ProcInfo& process : m_evidence.processes) {
                if (isWanted(process) && m_family.ancestor(process, isWanted) == nullptr)
                    return &process;
            }
            return nullptr;
        };
        if (const ProcInfo* locked = topmost([this](const ProcInfo& each) { return isCopy(each); }))
            return locked;
        if (const ProcInfo* known = topmost([this](const ProcInfo& each) { return isRecognised(each); }))
            return known;
        // A copy's child processes may outlive it in the same session.
        return topmost([&](const ProcInfo& each) {
            return RunningApplication{each.pid, each.startTime} == note.opened.app ||
                   heldWithDescendants(each.pid).contains(note.dataDir);
        });
    }
    bool isRecognised(const ProcInfo& process) const {
        return std::ranges::count(m_evidence.recognised, process.pid, &RunningApplication::pid) > 0;
    }

    void addRecognised() {
        for (const RunningApplication& app : m_evidence.recognised) {
            const ProcInfo* process = m_family.find(app.pid);
            if (process != nullptr && !isBelowCopy(*process))
                add(*process);
        }
    }

    /// Other processes that run a copy's executable. Unrelated applications may run it too, so each needs
    /// evidence of its own.
    void addRelatives() {
        std::set<std::string_view> executables;
        for (const auto& [pid, copy] : m_copies)
            executables.insert(copy.process.path);
        for (const ProcInfo& process : m_evidence.processes) {
            if (executables.contains(process.path) && canBeMainProcess(process) && !isBelowCopy(process) &&
                !isCopy(process) && usesKnownFolder(process))
                add(process);
        }
    }
    bool usesKnownFolder(const ProcInfo& process) const {
        const std::optional<std::string> named = dataDirArgument(process, m_folders);
        return named ? std::ranges::count(m_folders.all(), *named) > 0 : !heldBy(process.pid).empty();
    }

    /// The folder used without a data folder argument: the normal one in the copy's home folder.
    std::string normalFolderOf(const Copy& copy) const {
        return CopyEnvironment(m_evidence, m_family, copy.process, copy.dataDir)
            .normalDataDir(m_folders.normal());
    }

    std::string dataDirOf(const Copy& copy) const {
        std::set<std::string> claims = copy.locked;
        if (copy.note != nullptr)
            claims.insert(copy.note->dataDir);
        const bool isReadable = !copy.process.args.empty();
        const std::optional<std::string> argument = dataDirArgument(copy.process, m_folders);
        if (argument)
            claims.insert(*argument);
        else if (isReadable && !claims.empty())
            claims.insert(normalFolderOf(copy));
        if (claims.size() == 1 && !claims.begin()->empty())
            return *claims.begin();

        const std::set<std::string> held = heldWithDescendants(copy.process.pid);
        if (held.size() == 1)
            return *held.begin();
        if (!copy.locked.empty())
            return *copy.locked.begin();
        if (copy.note != nullptr)
            return copy.note->dataDir;
        if (argument || !isReadable)
            return argument.value_or("");
        const std::string normal = normalFolderOf(copy);
        const bool isElsewhere =
            isLocked(normal) || (normal == m_folders.normal() && showsFiles(copy.process.pid));
        return isElsewhere ? "" : normal;
    }

    /// A copy whose open files we can see would also show some in its data folder. Devices tell nothing.
    bool showsFiles(std::int32_t pid) const {
        const auto isFile = [](const std::string& path) {
            return !path.starts_with("/dev/") || path.starts_with("/dev/shm/");
        };
        return std::ranges::any_of(m_evidence.openFiles(pid, FileUse::any), isFile);
    }

    /// Files held by descendants count only if the process itself holds none.
    std::set<std::string> heldWithDescendants(std::int32_t pid) const {
        std::set<std::string> held = heldBy(pid);
        if (held.empty()) {
            for (const ProcInfo* process : m_family.descendants(pid))
                held.merge(heldBy(process->pid));
        }
        return held;
    }
    bool isLocked(const std::string& folder) const {
        return std::any_of(m_copies.begin(), m_copies.end(),
                           [&](const auto& entry) { return entry.second.locked.contains(folder); });
    }

    /// The copy that holds the lock uses the folder. Any other is about to end or only started it.
    void dropOvertaken() {
        std::set<std::string> locked;
        for (const auto& [pid, copy] : m_copies)
            locked.insert(copy.locked.begin(), copy.locked.end());
        std::erase_if(m_copies, [&](const auto& entry) {
            const Copy& copy = entry.second;
            const bool isOvertaken = locked.contains(copy.dataDir) && !copy.locked.contains(copy.dataDir);
            return isOvertaken || (copy.dataDir.empty() && leadsToCopy(copy));
        });
    }

    bool leadsToCopy(const Copy& copy) const {
        const auto below = m_family.descendants(copy.process.pid);
        return std::any_of(below.begin(), below.end(),
                           [this](const ProcInfo* process) { return isCopy(*process); });
    }

    OpenCopy finished(const Copy& copy) const {
        OpenCopy result = {{copy.process.pid, copy.process.startTime}, copy.dataDir, {}, true};
        CopyEnvironment(m_evidence, m_family, copy.process, copy.dataDir).tellConfig(result, copy.note);
        return result;
    }

    const CopyEvidence& m_evidence;
    const DataFolders& m_folders;
    const ProcessFamily m_family;
    std::map<std::int32_t, Copy> m_copies; ///< by pid
};

} // namespace

std::vector<OpenCopy> openCopies(const CopyEvidence& evidence) {
    return Weighing(evidence).copies();
}

bool usesDataFolder(const CopyEvidence& evidence, std::int32_t pid, const std::string& folder) {
    const Weighing weighing(evidence);
    const auto isProof = [&](const DataFolderLock& lock) {
        const auto process = std::ranges::find(evidence.processes, pid, &ProcInfo::pid);
        return lock.folder == folder && process != evidence.processes.end() &&
               weighing.isHolder(lock, *process);
    };
    return std::ranges::any_of(evidence.locks, isProof) || weighing.heldBy(pid).contains(folder);
}

bool belongsTo(const OpenedApplication& opened, const ProcInfo& process, const ProcessFamily& family) {
    if (opened.session == 0)
        return RunningApplication{process.pid, process.startTime} == opened.app;
    if (process.session != opened.session || process.startTime < opened.app.startTime)
        return false;
    // The pid can't be reused while its session lasts. A leader with another start time belongs to a later
    // session.
    const ProcInfo* leader = family.find(opened.session);
    return leader == nullptr || leader->startTime == opened.app.startTime;
}

} // namespace selvane
