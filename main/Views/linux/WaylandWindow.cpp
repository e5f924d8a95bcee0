// SPDX-FileCopyrightText: 2026 The Selvane developers
// SPDX-License-Identifier: MIT

#include "Views/linux/WaylandWindow.h"

#include <QGuiApplication>
#include <qpa/qplatformnativeinterface.h>

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include <wayland-client.h>
#include <xdg-activation-v1.h>
#include <xdg-foreign-unstable-v1.h>
#include <xdg-foreign-unstable-v2.h>

namespace selvane {
namespace {

template <auto destroy>
struct Destroy {
    template <typename T>
    void operator()(T* object) const {
        destroy(object);
    }
};
template <typename T, auto destroy>
using Owned = std::unique_ptr<T, Destroy<destroy>>;

/// A resource of Qt's own connection; null if it has none of this kind, as on another window system.
void* resource(const char* kind, QWindow* window = nullptr) {
    QPlatformNativeInterface* qt = QGuiApplication::platformNativeInterface();
    if (qt == nullptr || !QGuiApplication::platformName().startsWith("wayland"))
        return nullptr;
    return window == nullptr ? qt->nativeResourceForIntegration(kind)
                             : qt->nativeResourceForWindow(kind, window);
}

wl_surface* surfaceOf(QWindow* window) {
    return window == nullptr ? nullptr : static_cast<wl_surface*>(resource("surface", window));
}

/// The compositor's protocols, over Qt's connection but with a queue of its own, so that waiting for an
/// answer leaves Qt's events alone.
class Compositor {
public:
    Compositor() : m_display(static_cast<wl_display*>(resource("wl_display"))) {
        if (m_display == nullptr)
            return;
        m_queue.reset(wl_display_create_queue(m_display));
        void* wrapper = wl_proxy_create_wrapper(m_display);
        wl_proxy_set_queue(static_cast<wl_proxy*>(wrapper), m_queue.get());
        m_registry.reset(wl_display_get_registry(static_cast<wl_display*>(wrapper)));
        wl_proxy_wrapper_destroy(wrapper);
        wl_registry_add_listener(m_registry.get(), &kListener, this);
        await();
    }

    /// Null if the compositor doesn't have it.
    template <typename T>
    T* bind(const wl_interface& protocol) const {
        const auto found = m_protocols.find(protocol.name);
        return found == m_protocols.end()
                   ? nullptr
                   : static_cast<T*>(wl_registry_bind(m_registry.get(), found->second, &protocol, 1));
    }
    /// Waits until everything asked so far has been answered.
    void await() const { wl_display_roundtrip_queue(m_display, m_queue.get()); }

private:
    static void add(void* self, wl_registry*, std::uint32_t id, const char* protocol, std::uint32_t) {
        static_cast<Compositor*>(self)->m_protocols.emplace(protocol, id);
    }
    static void remove(void*, wl_registry*, std::uint32_t) {}
    static constexpr wl_registry_listener kListener = {&add, &remove};

    wl_display* m_display;
    Owned<wl_event_queue, wl_event_queue_destroy> m_queue;
    Owned<wl_registry, wl_registry_destroy> m_registry;
    std::map<std::string, std::uint32_t, std::less<>> m_protocols;
};

/// For both versions of the protocol and for tokens: the one event brings a text.
template <typename Sender>
void receive(void* text, Sender*, const char* received) {
    *static_cast<QString*>(text) = QString::fromUtf8(received);
}

struct Export {
    Compositor compositor;
    Owned<zxdg_exporter_v2, zxdg_exporter_v2_destroy> exporter;
    Owned<zxdg_exported_v2, zxdg_exported_v2_destroy> exported;
    Owned<zxdg_exporter_v1, zxdg_exporter_v1_destroy> olderExporter;
    Owned<zxdg_exported_v1, zxdg_exported_v1_destroy> olderExported;
};

} // namespace

ExportedWindow::ExportedWindow(QWindow* window) {
    wl_surface* surface = surfaceOf(window);
    if (surface == nullptr)
        return;
    const auto kept = std::make_shared<Export>();
    m_export = kept;
    Export& made = *kept;
    made.exporter.reset(made.compositor.bind<zxdg_exporter_v2>(zxdg_exporter_v2_interface));
    if (made.exporter) {
        static constexpr zxdg_exported_v2_listener kListener = {&receive<zxdg_exported_v2>};
        made.exported.reset(zxdg_exporter_v2_export_toplevel(made.exporter.get(), surface));
        zxdg_exported_v2_add_listener(made.exported.get(), &kListener, &m_name);
    } else {
        made.olderExporter.reset(made.compositor.bind<zxdg_exporter_v1>(zxdg_exporter_v1_interface));
        if (!made.olderExporter)
            return;
        static constexpr zxdg_exported_v1_listener kListener = {&receive<zxdg_exported_v1>};
        made.olderExported.reset(zxdg_exporter_v1_export(made.olderExporter.get(), surface));
        zxdg_exported_v1_add_listener(made.olderExported.get(), &kListener, &m_name);
    }
    made.compositor.await();
}

QString activationToken(QWindow* active) {
    if (resource("wl_display") == nullptr)
        return {};
    const Compositor compositor;
    const Owned<xdg_activation_v1, xdg_activation_v1_destroy> activation(
        compositor.bind<xdg_activation_v1>(xdg_activation_v1_interface));
    if (!activation)
        return {};
    static constexpr xdg_activation_token_v1_listener kListener = {&receive<xdg_activation_token_v1>};
    QString token;
    const Owned<xdg_activation_token_v1, xdg_activation_token_v1_destroy> request(
        xdg_activation_v1_get_activation_token(activation.get()));
    xdg_activation_token_v1_add_listener(request.get(), &kListener, &token);
    auto* seat = static_cast<wl_seat*>(resource("wl_seat"));
    const auto serial = static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(resource("serial")));
    if (seat != nullptr && serial != 0)
        xdg_activation_token_v1_set_serial(request.get(), serial, seat);
    if (wl_surface* surface = surfaceOf(active))
        xdg_activation_token_v1_set_surface(request.get(), surface);
    xdg_activation_token_v1_commit(request.get());
    compositor.await();
    return token;
}

} // namespace selvane
