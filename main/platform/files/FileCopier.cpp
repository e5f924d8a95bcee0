// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "platform/files/FileCopier.h"

#include "platform/files/CopyCrew.h"

namespace selvane {

class FileCopier::Crew : public files::CopyCrew {
public:
    using CopyCrew::CopyCrew;
};

FileCopier::FileCopier(files::DiskSync& written, Progress* progress)
    : m_crew(std::make_unique<Crew>(written, progress)) {}

FileCopier::FileCopier(const FileManager& files)
    : m_crew(
          std::make_unique<Crew>(files.m_written != nullptr ? *files.m_written : m_own, files.m_progress)) {}

FileCopier::~FileCopier() = default;

void FileCopier::copy(const std::filesystem::path& from, const std::filesystem::path& to,
                      const std::filesystem::path& named, Privacy privacy) {
    if (m_first.empty())
        m_first = named;
    files::copyTree(from, to, named, privacy, *m_crew);
}

void FileCopier::copyFile(const std::filesystem::path& from, const std::filesystem::path& to,
                          const std::filesystem::path& named, Privacy privacy) {
    if (m_first.empty())
        m_first = named;
    files::copyFile(from, to, named, privacy, *m_crew);
}

void FileCopier::run(std::function<void()> task) {
    if (m_crew->takesFiles())
        m_crew->add(std::move(task));
    else
        task();
}

void FileCopier::keepWhileCopying(std::shared_ptr<void> kept) {
    m_crew->keepWhileCopying(std::move(kept));
}

bool FileCopier::hasFailed() const {
    return m_crew->hasFailed();
}

void FileCopier::finish() {
    m_crew->finish();
    m_own.waitFor(m_first);
}

void FileCopier::stop() {
    m_crew->stop();
}

} // namespace selvane
