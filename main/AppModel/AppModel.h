// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFuture>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "AppModel/DesktopBridge.h"
#include "AppModel/EntryKeeper.h"
#include "AppModel/LookValue.h"
#include "AppModel/Preferences.h"
#include "AppModel/ToldChanges.h"
#include "AppModel/WorkProgress.h"
#include "desktop/ClaudeApp.h"
#include "desktop/SignInLink.h"
#include "model/Restore.h"
#include "store/ProfileStore.h"

namespace selvane {

/// What the sheet asks for when it creates a profile.
struct ProfileRequest {
    NewProfile profile;
    bool copySessions = false;      ///< only with a source
    std::optional<bool> isolated{}; ///< nothing: where it makes a difference
};

/// The one object behind every window: the loaded profiles, what the interface shows about actions in
/// progress, and the actions. It lives on the main thread; slow work runs on another one, on copies, and
/// returns its result. Slow work is done one piece at a time: what is asked for meanwhile is refused. No
/// action throws: a failure or refusal ends up in `errorMessage`.
class AppModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the application")

    /// Id of the profile selected in the windows; empty for none.
    Q_PROPERTY(QString selection READ selection WRITE select NOTIFY selectionChanged)
    Q_PROPERTY(QString errorMessage READ errorMessage NOTIFY errorMessageChanged)
    Q_PROPERTY(QString busyMessage READ busyMessage NOTIFY busyMessageChanged)
    Q_PROPERTY(selvane::WorkProgress* work READ work CONSTANT)      ///< how far what `busyMessage` names is
    Q_PROPERTY(selvane::EntryKeeper* entries READ entries CONSTANT) ///< among the desktop's applications
    Q_PROPERTY(QString notice READ notice NOTIFY noticeChanged)
    /// Whether what the notice tells can be taken back.
    Q_PROPERTY(bool canTakeBack READ canTakeBack NOTIFY noticeChanged)
    /// The ids of the profiles whose record is damaged, as they are shown.
    Q_PROPERTY(QStringList damaged READ damaged NOTIFY damagedChanged)
    /// Counts the reloads, so that whatever depends on files is read again when it changes.
    Q_PROPERTY(qint64 revision READ revision NOTIFY reloaded)
    /// Ids of the profiles waiting for a confirmation and for a forced quit; empty for none.
    Q_PROPERTY(QString pendingLaunch READ pendingLaunch NOTIFY pendingLaunchChanged)
    Q_PROPERTY(QString offerForceQuit READ offerForceQuit NOTIFY offerForceQuitChanged)
    /// The question for `pendingLaunch`, what closing would cut off, and the id of the profile that is open;
    /// empty where there is nothing to say or it isn't known.
    Q_PROPERTY(QString closeMessage READ closeMessage NOTIFY pendingLaunchChanged)
    Q_PROPERTY(QString closeWarning READ closeWarning NOTIFY pendingLaunchChanged)
    Q_PROPERTY(QString openToClose READ openToClose NOTIFY pendingLaunchChanged)
    /// A sign-in that waits for the user's choice: the profiles that it may be for, what is known of each,
    /// the likely one, and what may be shown of the link. Without one they are empty, and the preset is -1.
    Q_PROPERTY(QList<QString> signInNames READ signInNames NOTIFY signInChanged)
    Q_PROPERTY(QList<QString> signInDetails READ signInDetails NOTIFY signInChanged)
    Q_PROPERTY(int signInPreset READ signInPreset NOTIFY signInChanged)
    Q_PROPERTY(QString signInLink READ signInLink NOTIFY signInChanged)
    /// Whether sign-ins come to Selvane; and the profile before whose launch that is offered, empty for none.
    Q_PROPERTY(bool canReceiveSignIns READ canReceiveSignIns CONSTANT)
    Q_PROPERTY(
        bool receivesSignIns READ receivesSignIns WRITE setReceivesSignIns NOTIFY receivesSignInsChanged)
    Q_PROPERTY(QString signInOffer READ signInOffer NOTIFY signInOfferChanged)
    Q_PROPERTY(
        bool closeAfterLaunch READ closeAfterLaunch WRITE setCloseAfterLaunch NOTIFY closeAfterLaunchChanged)
    /// Whether the picker begins with the profiles launched last.
    Q_PROPERTY(bool recentFirst READ recentFirst WRITE setRecentFirst NOTIFY recentFirstChanged)

public:
    AppModel(ProfileStore& store, const ClaudeApp& claude, DesktopBridge& desktop, Preferences& preferences,
             QObject* parent = nullptr);
    ~AppModel() override;

    const std::vector<Profile>& profiles() const { return m_profiles; }
    const std::set<std::string>& running() const { return m_running; }
    ProfileStore& store() const { return m_store; }
    Preferences& preferences() const { return m_preferences; }
    std::optional<std::string> activeID() const { return m_store.activeID(); }
    const Profile* profile(const QString& id) const; ///< null if no loaded profile has that id
    const Profile* selected() const { return profile(m_selection); }
    QString builtInName() const; ///< the built-in profile's name
    /// Id of the first profile other than this one, the first choice of where to take things from. Empty if
    /// there is no other.
    QString firstOther(const QString& id) const;

    QString selection() const { return m_selection; }
    QString errorMessage() const { return m_errorMessage; }
    QString busyMessage() const { return m_busyMessage; }
    QString notice() const { return m_notice; }
    bool canTakeBack() const { return m_offer.reversal != nullptr; }
    QStringList damaged() const;
    qint64 revision() const { return m_revision; }
    QString pendingLaunch() const { return m_pendingLaunch; }
    QString offerForceQuit() const { return m_offerForceQuit; }
    bool closeAfterLaunch() const { return m_preferences.closeAfterLaunch(); }
    bool recentFirst() const { return m_preferences.recentFirst(); }
    void setCloseAfterLaunch(bool value);
    void setRecentFirst(bool value);

    QStringList signInNames() const;
    QStringList signInDetails() const;
    int signInPreset() const;
    QString signInLink() const;
    bool canReceiveSignIns() const { return m_desktop.canReceiveSignIns(); }
    bool receivesSignIns() const;
    void setReceivesSignIns(bool value);
    QString signInOffer() const { return m_signInOffer; }
    /// Hands a sign-in over to the copy that it is for, or asks. Ignores what isn't a link for that.
    void receiveSignIn(const QByteArray& request);

    WorkProgress* work() { return &m_workProgress; }
    EntryKeeper* entries() { return &m_entries; }

    bool restoresFirst() const;
    QString closeMessage() const { return m_closeQuestion.message; }
    QString closeWarning() const { return m_closeQuestion.warning; }
    QString openToClose() const { return m_closeQuestion.open; }
    Q_INVOKABLE QString nameOf(const QString& id) const; ///< empty if no loaded profile has that id
    Q_INVOKABLE selvane::LookValue lookOf(const QString& id) const;
    void setNotice(const QString& text);
    void setError(const QString& text);

    /// Work on another thread: changes files through the store that it is given, and returns what to tell the
    /// user, if anything. Only values may be taken along.
    using Work = std::function<QString(ProfileStore&)>;
    using Done = std::function<void()>;

    /// Runs a quick action, reports its failure, and always reloads.
    void perform(const std::function<void()>& action);
    /// Does work that is quick, at once, unless it would have to wait for a lock; then as `performLong`.
    void performSoon(const QString& message, const Work& work, const QString& takenBack = {});
    /// Does work that may take long, while the windows show `message` and how far it is and let the user
    /// cancel it. Reports its failure, always reloads, and calls `succeeded` only after success. If there is
    /// other work in progress, says so and does nothing.
    ///
    /// Work that is one operation which a store can take back names in `takenBack` what to tell when it is:
    /// then its notice offers that, as long as it is shown.
    void performLong(
        const QString& message, Work work, Done succeeded = [] {}, const QString& takenBack = {});
    void importSessions(
        const std::vector<CodeSession>& sessions, const Profile& source, const Profile& target,
        Done succeeded = [] {});
    void create(
        const ProfileRequest& request, Done succeeded = [] {});
    void exportBackup(BackupScope scope);
    /// Asks for an archive and checks it; `checked` gets it unless the user cancels or it is none of
    /// Selvane's.
    void chooseBackup(std::function<void(CheckedArchive)> checked);
    /// Restores parts of an archive; the notice tells what was done.
    void restoreParts(const CheckedArchive& archive, const std::vector<RestorePart>& parts, Done succeeded);
    /// Changes nothing; the notice tells what `restoreParts` would do.
    void tryRestoring(const CheckedArchive& archive, const std::vector<RestorePart>& parts);
    /// If a restore was interrupted, completes what it had begun and says how far it has come.
    void completeRestoring();
    /// Copies what `make` returns for the path of the terminal helper, which is written first.
    void copyCommand(const std::function<std::string(const std::filesystem::path& helper)>& make);

public slots:
    void reload();
    void refreshRunning();
    void select(const QString& id);
    void launch(const QString& id) { startLaunch(id, LaunchStep::asked); }
    void clearNotice();
    /// Undoes what the notice tells; says so, or why that isn't possible any more.
    void takeBack();
    void clearError();
    // The answers to the two launch dialogs.
    void confirmLaunch();
    void cancelLaunch();
    void forceLaunch();
    void cancelForceQuit();
    void answerSignIn(int index);          ///< in `signInNames`; -1 gives the link to nobody
    void answerSignInOffer(bool accepted); ///< the launch goes on

    void setAccount(const QString& account, const QString& id); ///< an empty account means the profile's own
    void sync(const QString& id);
    void copyTerminalCommand(const QString& id);
    void revealProfile(const QString& id);
    void revealDamaged(int index); ///< in `damaged`
    void repairDamaged(int index);
    void reveal(const std::filesystem::path& item);
    /// Shows the differences in the desktop's program for that. False if it has none.
    bool compare(const std::filesystem::path& first, const std::filesystem::path& second);
    /// If there is none, creates it first: empty, or, for JSON, with an empty object.
    void open(const std::filesystem::path& file);

signals:
    void selectionChanged();
    void errorMessageChanged();
    void busyMessageChanged();
    void noticeChanged();
    void noticeShown(); ///< emitted even if the same text is shown again
    void reloaded();
    void damagedChanged();
    void runningChanged();
    void claudeCopiesChanged(); ///< emitted even if the copy runs no known profile
    void pendingLaunchChanged();
    void offerForceQuitChanged();
    void closeAfterLaunchChanged();
    void recentFirstChanged();
    void signInChanged();
    void receivesSignInsChanged();
    void signInOfferChanged();

private:
    enum class LaunchStep { asked, confirmed, forced };
    struct LaunchPlan;
    struct LaunchResult;
    /// How to take back what the notice tells.
    struct Offer {
        std::shared_ptr<const Reversal> reversal; ///< null for none
        QString takenBack;
    };
    struct CloseQuestion {
        QString message;
        QString warning;
        QString open;
    };
    struct SignIn {
        SignInLink link;
        SignInTargets to;
    };

    void startLaunch(const QString& id, LaunchStep step);
    LaunchPlan planFor(const Profile& profile) const;
    void runLaunch(LaunchPlan plan, LaunchStep step);
    bool quitAll(const LaunchPlan& plan, bool force) const;
    void finishLaunch(const Profile& profile, const LaunchResult& result);
    void endIfWanted();
    void handOver(const SignInLink& link, const SignInTarget& target);
    bool offersSignIns(const Profile& profile) const;
    bool isFree();
    void tell(const QString& text, Offer offer);
    static Offer offerOf(const std::shared_ptr<Reversal>& reversal, const QString& takenBack);
    void runBackup(BackupScope scope, const std::filesystem::path& archive);
    void report(const std::exception& error);
    std::function<void()> sayUnreached(const QString& problem, const std::filesystem::path& item);
    void setText(QString& member, const QString& value, void (AppModel::*changed)());
    CloseQuestion closeQuestion(const Profile& target) const;
    void saveSelection();

    ProfileStore& m_store;
    const ClaudeApp& m_claude;
    DesktopBridge& m_desktop;
    Preferences& m_preferences;

    std::vector<Profile> m_profiles;
    std::vector<DamagedProfile> m_damaged;
    std::set<std::string> m_running;
    QString m_selection;
    QString m_unsavedSelection; ///< while `m_selectionSaving` runs
    QTimer m_selectionSaving;
    QString m_errorMessage;
    QString m_busyMessage;
    QString m_notice;
    Offer m_offer;
    QString m_pendingLaunch;
    CloseQuestion m_closeQuestion;
    QString m_offerForceQuit;
    std::optional<SignIn> m_signIn;
    QString m_signInOffer;
    mutable std::optional<bool> m_receivesSignIns;
    qint64 m_revision = 0;
    ToldChanges m_toldChanges;
    WorkProgress m_workProgress;
    EntryKeeper m_entries;
    QString m_launching;        ///< id of the profile that is being launched; empty for none
    int m_archiveQuestions = 0; ///< how many save dialogs haven't been answered
    QFuture<void> m_work;
};

} // namespace selvane
