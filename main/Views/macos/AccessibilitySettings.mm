// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/shell/SystemAppearance.h"

#import "Views/macos/Observation.h"

namespace selvane {
namespace {

/// Reduced motion, from the system's accessibility settings. macOS has no setting for larger text in all
/// applications.
class AccessibilitySettings final : public QObject {
public:
    explicit AccessibilitySettings(SystemAppearance& appearance)
        : m_appearance(appearance), m_observation(NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification,
                                                  [this](NSNotification*) { handOver(); }) {
        handOver();
    }

private:
    void handOver() {
        m_appearance.setReducedMotion(NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion);
    }

    SystemAppearance& m_appearance;
    macos::Observation m_observation;
};

} // namespace

std::unique_ptr<QObject> followDesktop(SystemAppearance& appearance) {
    return std::make_unique<AccessibilitySettings>(appearance);
}

} // namespace selvane
