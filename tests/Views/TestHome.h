// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QVariantMap>

#include <deque>
#include <memory>

#include "AppModel/AppModel.h"
#include "Views/shell/Updates.h"

namespace selvane::test {

/// For the tests of views: a home folder with the real store and model on it, and a desktop that records
/// what it is asked to do. Paths are relative to the home.
class TestHome : public QObject {
    Q_OBJECT

    Q_PROPERTY(selvane::AppModel* app READ app NOTIFY begun)
    /// Of an application that brings new versions itself, and can look for them.
    Q_PROPERTY(selvane::Updates* updates READ updates CONSTANT)

public:
    TestHome();
    ~TestHome() override;

    AppModel* app() const;
    Updates* updates() { return &m_updates; }

    /// A new home with nothing in it. To be called before each test; views of the test before may still show
    /// its model.
    Q_INVOKABLE void begin();

    Q_INVOKABLE void write(const QString& path, const QString& content = {});
    /// The text of a file, "-> ~/target" of a link, "/" of a folder, "" of what isn't there.
    Q_INVOKABLE QString what(const QString& path) const;
    Q_INVOKABLE void remove(const QString& path); ///< with everything in it
    Q_INVOKABLE QString absolute(const QString& path) const;

    /// The id of a new profile. Options: "source" and "account" (ids; at first the built-in profile and
    /// none), "modes" (raw values).
    Q_INVOKABLE QString makeProfile(const QString& name, const QVariantMap& options = {});
    /// Into the account of the built-in profile. The newest is listed first.
    Q_INVOKABLE void addSession(const QString& title, const QString& folder);

    /// A copy of Claude Desktop that runs for a profile, until it is asked to end.
    Q_INVOKABLE void openClaude(const QString& profileId);
    Q_INVOKABLE void closeClaude();
    /// How many times a copy doesn't end when asked politely.
    Q_INVOKABLE void ignoreTerminations(int count);
    /// The place for an archive that the user names; at first the question is cancelled.
    Q_INVOKABLE void answerArchive(const QString& path);
    /// What was asked of the desktop: "ends", "clipboard", "revealed", "opened", "proposedName", and of
    /// Claude Desktop's copies "launches", "terminated", "forced", "activated" (how many).
    Q_INVOKABLE QVariantMap asked() const;

signals:
    void begun();

private:
    struct Place;

    Place& place() const { return *m_places.back(); }

    std::deque<std::unique_ptr<Place>> m_places; ///< of this test and the one before
    Updates m_updates;
};

} // namespace selvane::test
