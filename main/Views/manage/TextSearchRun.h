// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFuture>
#include <QString>

#include <memory>
#include <vector>

#include "store/conversations/TextSearch.h"

namespace selvane {

/// A search through the texts of conversations on other threads. Its destructor stops it.
class TextSearchRun {
public:
    TextSearchRun() = default;
    TextSearchRun(const TextSearchRun&) = delete;
    TextSearchRun& operator=(const TextSearchRun&) = delete;
    ~TextSearchRun() { stop(); }

    /// Stops the search before, whose hits are forgotten.
    void begin(std::shared_ptr<const ConversationList> list, std::vector<std::uint32_t> among,
               std::string phrase);
    void stop(); ///< waits until no file is read any more
    bool isRunning() const { return m_future.isRunning(); }
    /// What has been found since the last call.
    std::vector<TextHit> takeHits();

private:
    struct Shared;

    std::shared_ptr<Shared> m_shared;
    QFuture<void> m_future;
};

} // namespace selvane
