// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/manage/TextSearchRun.h"

#include <QtConcurrent>

#include <mutex>
#include <utility>

#include "platform/files/Progress.h"

namespace selvane {

struct TextSearchRun::Shared {
    Progress progress;
    std::mutex mutex;
    std::vector<TextHit> hits;
};

void TextSearchRun::begin(std::shared_ptr<const ConversationList> list, std::vector<std::uint32_t> among,
                          std::string phrase) {
    stop();
    m_shared = std::make_shared<Shared>();
    m_future = QtConcurrent::run(
        [shared = m_shared, list = std::move(list), among = std::move(among), phrase = std::move(phrase)] {
            searchTexts(*list, among, phrase, shared->progress, [&](const TextHit& hit) {
                const std::lock_guard guard(shared->mutex);
                shared->hits.push_back(hit);
            });
        });
}

void TextSearchRun::stop() {
    if (m_shared)
        m_shared->progress.cancel();
    m_future.waitForFinished();
}

std::vector<TextHit> TextSearchRun::takeHits() {
    if (!m_shared)
        return {};
    const std::lock_guard guard(m_shared->mutex);
    return std::exchange(m_shared->hits, {});
}

} // namespace selvane
