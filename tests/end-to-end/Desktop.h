// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#pragma once

#include <X11/keysym.h>
#include <xcb/xcb.h>

#include <memory>
#include <string>
#include <vector>

#include "end-to-end/Program.h"
#include "support/TemporaryFolder.h"

namespace selvane::test {

/// A screen with a keyboard, and a session bus through which screen readers reach applications. There is no
/// window manager, so each window gets the keyboard when it asks for it. Make only one in a process.
class Desktop {
public:
    Desktop();
    ~Desktop();

    /// The variables that a program needs to appear here.
    Environment environment() const;

    /// Presses these keys (XK_…) one after the other, then releases them.
    void press(const std::vector<xcb_keysym_t>& keys) const;
    /// Types plain letters, digits and punctuation.
    void type(const std::string& text) const;
    /// Gives the keyboard to the window with this title, or to none if it is empty.
    void focus(const std::string& title) const;

private:
    struct Key {
        xcb_keycode_t code;
        bool withShift;
    };
    Key find(xcb_keysym_t symbol) const;
    void send(int event, int detail) const;

    TemporaryFolder m_folder;
    std::unique_ptr<Program> m_screen;
    std::unique_ptr<Program> m_bus;
    xcb_connection_t* m_connection = nullptr;
};

} // namespace selvane::test
