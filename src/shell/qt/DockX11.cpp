#include "shell/qt/DockX11.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace verdane::qt {

namespace {

xcb_connection_t* Connexion() {
    auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

xcb_atom_t Atome(xcb_connection_t* c, const char* nom) {
    const auto cookie = xcb_intern_atom(c, 0, static_cast<std::uint16_t>(std::strlen(nom)), nom);
    xcb_intern_atom_reply_t* r = xcb_intern_atom_reply(c, cookie, nullptr);
    if (!r) return XCB_ATOM_NONE;
    const xcb_atom_t a = r->atom;
    std::free(r);
    return a;
}

template <std::size_t N>
void PoserPropriete(xcb_connection_t* c, xcb_window_t w, const char* nom, xcb_atom_t type,
                    const std::array<std::uint32_t, N>& valeurs) {
    xcb_change_property(c, XCB_PROP_MODE_REPLACE, w, Atome(c, nom), type, 32,
                        static_cast<std::uint32_t>(N), valeurs.data());
}

// Qt writes the window type itself when it maps a window: it is told to write DOCK.
constexpr int kTypeDockQt = 0x4;

} // namespace

bool SurX11() {
    return QGuiApplication::platformName() == QLatin1String("xcb") && Connexion();
}

void MarquerDock(QWidget& fenetre) {
    if (!SurX11()) return;
    fenetre.winId();
    if (QWindow* w = fenetre.windowHandle()) w->setProperty("_q_xcb_wm_window_type", kTypeDockQt);
    xcb_connection_t* c = Connexion();
    const auto id = static_cast<xcb_window_t>(fenetre.winId());
    PoserPropriete(c, id, "_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM,
                   std::array<std::uint32_t, 1>{Atome(c, "_NET_WM_WINDOW_TYPE_DOCK")});
    xcb_flush(c);
}

void ReserverHaut(QWidget& fenetre, int hauteur) {
    if (!SurX11()) return;
    xcb_connection_t* c = Connexion();
    const auto id = static_cast<xcb_window_t>(fenetre.winId());
    const QRect ecran = fenetre.screen() ? fenetre.screen()->geometry() : QRect(0, 0, 1024, 768);
    const auto h = static_cast<std::uint32_t>(hauteur > 0 ? ecran.top() + hauteur : 0);
    const auto debut = static_cast<std::uint32_t>(ecran.left());
    const auto fin = static_cast<std::uint32_t>(hauteur > 0 ? ecran.right() : 0);
    // left, right, top, bottom; then the start and end of each along its edge.
    PoserPropriete(c, id, "_NET_WM_STRUT", XCB_ATOM_CARDINAL,
                   std::array<std::uint32_t, 4>{0, 0, h, 0});
    PoserPropriete(c, id, "_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL,
                   std::array<std::uint32_t, 12>{0, 0, h, 0, 0, 0, 0, 0, debut, fin, 0, 0});
    // The dock stays on every desktop and above the windows.
    PoserPropriete(c, id, "_NET_WM_DESKTOP", XCB_ATOM_CARDINAL,
                   std::array<std::uint32_t, 1>{0xFFFFFFFFu});
    xcb_flush(c);
}

} // namespace verdane::qt
