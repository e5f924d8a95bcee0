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

/// For the tests of views: a home folder with a real store and model, and a desktop that records what it is
/// asked to do. Paths are relative to the home.
class TestHome : public QObject {
    Q_OBJECT

    Q_PROPERTY(selvane::AppModel* app READ app NOTIFY begun)
    /// For an application that updates itself and can check for updates.
    Q_PROPERTY(selvane::Updates* updates READ updates CONSTANT)

public:
    TestHome();
    ~TestHome() override;

    AppModel* app() const;
    Updates* updates() { return &m_updates; }

    /// Makes a new, empty home. Call it before each test; views of the previous test may still show its
    /// model.
    Q_INVOKABLE void begin();

    Q_INVOKABLE void write(const QString& path, const QString& content = {});
    Q_INVOKABLE void replace(const QString& path, const QString& content); ///< even a link
    /// The text of a file, "-> ~/target" for a link, "/" for a folder, "" for nothing.
    Q_INVOKABLE QString what(const QString& path) const;
    Q_INVOKABLE void remove(const QString& path); ///< with its contents
    Q_INVOKABLE QString absolute(const QString& path) const;

    /// Creates a profile and returns its id. Options: "source" and "account" (ids; by default the built-in
    /// profile and none), "modes" (raw values).
    Q_INVOKABLE QString makeProfile(const QString& name, const QVariantMap& options = {});
    /// Adds it to the built-in profile's account. The newest is listed first.
    Q_INVOKABLE void addSession(const QString& title, const QString& folder);

    /// A copy of Claude Desktop that runs for a profile until it is asked to end.
    Q_INVOKABLE void openClaude(const QString& profileId);
    Q_INVOKABLE void closeClaude();
    Q_INVOKABLE void loseClaude(); ///< the same, without a word about it
    /// How many polite requests to end are ignored.
    Q_INVOKABLE void ignoreTerminations(int count);
    /// The path that the user chooses for an archive; by default the dialog is cancelled.
    Q_INVOKABLE void answerArchive(const QString& path);
    /// What the desktop was asked for: "ends", "clipboard", "revealed", "opened", "proposedName", and the
    /// number of "launches", "terminated", "forced" and "activated" copies of Claude Desktop.
    Q_INVOKABLE QVariantMap asked() const;

    /// Does with a control what assistive technology can do with it, such as "Toggle".
    Q_INVOKABLE static void act(QObject* control, const QString& action);
    /// What a key that is held down sends again and again.
    Q_INVOKABLE static void repeatKey(QObject* window, int key);

signals:
    void begun();

private:
    struct Place;

    Place& place() const { return *m_places.back(); }

    std::deque<std::unique_ptr<Place>> m_places; ///< of this test and the previous one
    Updates m_updates;
};

} // namespace selvane::test
