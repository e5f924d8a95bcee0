// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>
#include <memory>

#include "AppModel/AppModel.h"
#include "AppModel/FakeBridge.h"
#include "AppModel/Mirror.h"
#include "support/HandleUntil.h"
#include "support/Home.h"

namespace selvane::test {

namespace fs = std::filesystem;

class AppModelTest : public testing::Test {
protected:
    explicit AppModelTest(Home::Processes processes = Home::Processes::ignored) : home(processes) {}

    AppModel& model() {
        if (!m_model) {
            m_model = std::make_unique<AppModel>(home.store, home.claude, bridge, preferences);
            m_mirror = std::make_unique<Mirror>(*m_model);
        }
        return *m_model;
    }
    void TearDown() override {
        if (m_mirror)
            m_mirror->expectUpToDate();
    }
    /// Whether every property's change has been told so far.
    void expectUpToDate() const { m_mirror->expectUpToDate(); }
    void waitUntilIdle() {
        handleUntil([this] { return model().busyMessage().isEmpty(); });
        QCoreApplication::processEvents();
        ASSERT_EQ(model().busyMessage(), "");
        m_mirror->expectUpToDate();
    }

    Home home;
    FakeBridge bridge;
    Preferences preferences{QString::fromStdString((home / "preferences.conf").string())};

private:
    std::unique_ptr<AppModel> m_model;
    std::unique_ptr<Mirror> m_mirror;
};

} // namespace selvane::test
