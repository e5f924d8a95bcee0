// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include <xcb/xcb.h>

#include "platform/linux/services/DesktopFunctions.h"

namespace selvane::module {

namespace {

/// In units of four bytes; no desktop has that many windows.
constexpr std::uint32_t kLongestProperty = 0x10000;
/// Marks a request to activate a window as coming from the user, not from the application.
constexpr std::uint32_t kFromPager = 2;

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using OwnedReply = std::unique_ptr<Reply, FreeReply>;

struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

struct Atoms {
    xcb_atom_t clientList;
    xcb_atom_t pid;
    xcb_atom_t activeWindow;
};

/// Nothing if no window manager has ever registered them.
std::optional<Atoms> findAtoms(xcb_connection_t* connection) {
    constexpr std::array<const char*, 3> kNames{"_NET_CLIENT_LIST", "_NET_WM_PID", "_NET_ACTIVE_WINDOW"};
    std::array<xcb_intern_atom_cookie_t, kNames.size()> cookies{};
    for (std::size_t i = 0; i < kNames.size(); ++i)
        cookies[i] =
            xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(std::strlen(kNames[i])), kNames[i]);
    std::array<xcb_atom_t, kNames.size()> atoms{};
    for (std::size_t i = 0; i < kNames.size(); ++i) {
        const OwnedReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection, cookies[i], nullptr));
        atoms[i] = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
    for (const xcb_atom_t atom : atoms) {
        if (atom == XCB_ATOM_NONE)
            return std::nullopt;
    }
    return Atoms{atoms[0], atoms[1], atoms[2]};
}

/// The 32-bit values of a property; empty if it is missing or has another format.
std::vector<std::uint32_t> values(xcb_connection_t* connection, xcb_get_property_cookie_t cookie) {
    const OwnedReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    std::vector<std::uint32_t> result(static_cast<std::size_t>(xcb_get_property_value_length(reply.get())) /
                                      sizeof(std::uint32_t));
    if (!result.empty())
        std::memcpy(result.data(), xcb_get_property_value(reply.get()),
                    result.size() * sizeof(std::uint32_t));
    return result;
}

std::optional<xcb_window_t> windowOf(xcb_connection_t* connection, const Atoms& atoms, xcb_window_t root,
                                     std::int32_t pid) {
    const std::vector<xcb_window_t> windows =
        values(connection,
               xcb_get_property(connection, 0, root, atoms.clientList, XCB_ATOM_WINDOW, 0, kLongestProperty));
    std::vector<xcb_get_property_cookie_t> cookies;
    cookies.reserve(windows.size());
    for (const xcb_window_t window : windows)
        cookies.push_back(xcb_get_property(connection, 0, window, atoms.pid, XCB_ATOM_CARDINAL, 0, 1));
    std::optional<xcb_window_t> found;
    for (std::size_t i = 0; i < windows.size(); ++i) { // take every reply, so that none is left behind
        const auto owner = values(connection, cookies[i]);
        if (!found && owner.size() == 1 && owner.front() == static_cast<std::uint32_t>(pid))
            found = windows[i];
    }
    return found;
}

void askToActivate(xcb_connection_t* connection, const Atoms& atoms, xcb_window_t root, xcb_window_t window) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atoms.activeWindow;
    event.data.data32[0] = kFromPager;
    event.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(connection, 0, root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    // Wait for an answer, which shows that the server has read the request. When a client leaves, it drops
    // the requests that it hasn't read.
    const OwnedReply<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

/// Null without a display that answers.
Connection connect() {
    const char* const display = std::getenv("DISPLAY");
    if (display == nullptr || *display == '\0')
        return nullptr;
    Connection connection(xcb_connect(display, nullptr));
    return xcb_connection_has_error(connection.get()) == 0 ? std::move(connection) : nullptr;
}

/// Whether a program owns the selection of that name.
bool hasOwner(xcb_connection_t* connection, std::string_view selection) {
    const OwnedReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(selection.size()), selection.data()),
        nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const OwnedReply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

bool raise(std::int32_t pid) {
    const Connection connection = connect();
    if (!connection)
        return false;
    const auto atoms = findAtoms(connection.get());
    if (!atoms)
        return false;
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection.get()));
    for (; screens.rem > 0; xcb_screen_next(&screens)) {
        const xcb_window_t root = screens.data->root;
        if (const auto window = windowOf(connection.get(), *atoms, root, pid)) {
            askToActivate(connection.get(), *atoms, root, *window);
            return xcb_connection_has_error(connection.get()) == 0;
        }
    }
    return false;
}

} // namespace

bool raiseWindow(std::int32_t pid) noexcept {
    try {
        return raise(pid);
    } catch (...) {
        return false;
    }
}

bool hasClipboardManager() noexcept {
    try {
        const Connection connection = connect();
        return connection && hasOwner(connection.get(), "CLIPBOARD_MANAGER");
    } catch (...) {
        return false;
    }
}

} // namespace selvane::module
