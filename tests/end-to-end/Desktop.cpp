// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "end-to-end/Desktop.h"

#include <atspi/atspi.h>
#include <xcb/xtest.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "support/Home.h"

namespace selvane::test {
namespace {

namespace fs = std::filesystem;

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

/// No service of this machine may answer on the bus except the one that screen readers use.
std::string busConfiguration(const fs::path& services) {
    const fs::path accessibility = "/usr/share/dbus-1/services/org.a11y.Bus.service";
    fs::create_directory(services);
    fs::copy_file(accessibility, services / accessibility.filename());
    return "<busconfig><include>" SELVANE_SESSION_BUS "</include><servicedir>" + services.string() +
           "</servicedir></busconfig>\n";
}

} // namespace

Desktop::Desktop() {
    const Environment here = {{"PATH", "/usr/bin:/bin"},
                              {"HOME", m_folder.path().string()},
                              {"XDG_RUNTIME_DIR", m_folder.path().string()}};
    // -r: on a busy machine, the display would repeat a key before its release arrives.
    m_screen = std::make_unique<Program>(
        std::vector<std::string>{"Xvfb", "-displayfd", "1", "-screen", "0", "1600x1200x24", "-noreset", "-r"},
        here, m_folder.path());
    const std::string display = ":" + m_screen->firstLine();

    writeFile(m_folder / "bus.conf", busConfiguration(m_folder / "services"));
    Environment withDisplay = here;
    withDisplay["DISPLAY"] = display;
    m_bus = std::make_unique<Program>(
        std::vector<std::string>{"dbus-daemon", "--nofork", "--print-address=1",
                                 "--config-file=" + (m_folder / "bus.conf").string()},
        withDisplay, m_folder.path());
    setenv("DISPLAY", display.c_str(), 1);
    setenv("DBUS_SESSION_BUS_ADDRESS", m_bus->firstLine().c_str(), 1);

    m_connection = xcb_connect(display.c_str(), nullptr);
    if (xcb_connection_has_error(m_connection) != 0)
        throw std::runtime_error("no connection to the display " + display);
    send(XCB_MOTION_NOTIFY, 0); // a pointer over a window would interfere
    atspi_init();
    constexpr int kMilliseconds = 20'000;
    atspi_set_timeout(kMilliseconds, kMilliseconds);
    AtspiAccessible* const root = atspi_get_desktop(0);
    atspi_accessible_set_cache_mask(root, ATSPI_CACHE_NONE);
    g_object_unref(root);
}

Desktop::~Desktop() {
    atspi_exit();
    xcb_disconnect(m_connection);
}

Environment Desktop::environment() const {
    // Qt 6.8 warns of every question about an object that is gone by then. Asking again is how tests wait.
    return {{"QT_LOGGING_RULES", "qt.accessibility.atspi.warning=false"},
            {"DISPLAY", std::getenv("DISPLAY")},
            {"DBUS_SESSION_BUS_ADDRESS", std::getenv("DBUS_SESSION_BUS_ADDRESS")},
            {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"},
            {"QT_QUICK_BACKEND", "software"}};
}

void Desktop::press(const std::vector<xcb_keysym_t>& keys) const {
    std::vector<xcb_keycode_t> codes;
    for (const xcb_keysym_t symbol : keys) {
        const Key key = find(symbol);
        if (key.withShift)
            codes.push_back(find(XK_Shift_L).code);
        codes.push_back(key.code);
    }
    for (const xcb_keycode_t code : codes)
        send(XCB_KEY_PRESS, code);
    for (auto code = codes.rbegin(); code != codes.rend(); ++code)
        send(XCB_KEY_RELEASE, *code);
}

void Desktop::type(const std::string& text) const {
    for (const char letter : text)
        press({static_cast<xcb_keysym_t>(letter)});
}

void Desktop::focus(const std::string& title) const {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    const Reply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, root), nullptr), &std::free);
    xcb_window_t wanted = XCB_NONE;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
        const Reply<xcb_get_property_reply_t> name(
            xcb_get_property_reply(m_connection,
                                   xcb_get_property(m_connection, 0, window, XCB_ATOM_WM_NAME,
                                                    XCB_GET_PROPERTY_TYPE_ANY, 0, 100),
                                   nullptr),
            &std::free);
        const std::string_view text(static_cast<const char*>(xcb_get_property_value(name.get())),
                                    static_cast<std::size_t>(xcb_get_property_value_length(name.get())));
        if (!title.empty() && text == title)
            wanted = window;
    }
    xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_NONE, wanted, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

Desktop::Key Desktop::find(xcb_keysym_t symbol) const {
    const xcb_setup_t* const setup = xcb_get_setup(m_connection);
    const int first = setup->min_keycode;
    const int count = setup->max_keycode - first + 1;
    const auto request =
        xcb_get_keyboard_mapping(m_connection, setup->min_keycode, static_cast<std::uint8_t>(count));
    const std::unique_ptr<xcb_get_keyboard_mapping_reply_t, decltype(&std::free)> reply(
        xcb_get_keyboard_mapping_reply(m_connection, request, nullptr), &std::free);
    const xcb_keysym_t* const symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (const int column : {0, 1}) {
        for (int i = 0; i < count; ++i) {
            if (symbols[i * reply->keysyms_per_keycode + column] == symbol)
                return {static_cast<xcb_keycode_t>(first + i), column == 1};
        }
    }
    throw std::runtime_error("no key for " + std::to_string(symbol));
}

void Desktop::send(int event, int detail) const {
    const xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    const auto x = static_cast<std::int16_t>(screen->width_in_pixels - 1);
    const auto y = static_cast<std::int16_t>(screen->height_in_pixels - 1);
    xcb_test_fake_input(m_connection, static_cast<std::uint8_t>(event), static_cast<std::uint8_t>(detail),
                        XCB_CURRENT_TIME, screen->root, x, y, 0);
    xcb_flush(m_connection);
}

} // namespace selvane::test
