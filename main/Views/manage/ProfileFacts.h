// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "AppModel/AppModel.h"
#include "AppModel/Reading.h"
#include "model/ProfileSize.h"

namespace selvane {

/// What is told of the selected profile in one line: who is signed in, how big it is, how old. Read on other
/// threads; what isn't known yet is empty.
class ProfileFacts : public QObject {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(selvane::AppModel* app READ app WRITE setApp NOTIFY appChanged REQUIRED)
    Q_PROPERTY(QString signIn READ signIn NOTIFY factsChanged)
    /// Which other profiles Claude Code has signed in with the same address; empty if there are none.
    Q_PROPERTY(QString sameAddress READ sameAddress NOTIFY factsChanged)
    Q_PROPERTY(QString size READ size NOTIFY factsChanged) ///< counted once for each profile
    Q_PROPERTY(QString created READ created NOTIFY factsChanged)

public:
    explicit ProfileFacts(QObject* parent = nullptr) : QObject(parent) {}
    ~ProfileFacts() override;

    AppModel* app() const { return m_app; }
    void setApp(AppModel* app);
    QString signIn() const;
    QString sameAddress() const;
    QString size() const;
    QString created() const;

signals:
    void appChanged();
    void factsChanged();

private:
    struct SignIns {
        std::string profile; ///< id
        std::optional<std::string> address;
        bool hasDesktop = false;
        std::vector<std::string> others; ///< names of those with the same address
    };
    struct Size {
        std::string profile; ///< id
        std::optional<ProfileSize> bytes;
    };

    void update();
    void readSignIns();
    void countSize();
    void takeSize(const Size& size);
    bool knowsSignIns() const { return m_profile && m_signIns.profile == m_profile->id; }

    AppModel* m_app = nullptr;
    std::optional<Profile> m_profile;
    SignIns m_signIns;
    std::map<std::string, ProfileSize> m_sizes; ///< by profile
    std::shared_ptr<Progress> m_counting;       ///< null if nothing is being counted
    std::string m_countedProfile;               ///< id
    Reading<SignIns> m_signInReading;
    Reading<Size> m_sizeReading;
};

} // namespace selvane
