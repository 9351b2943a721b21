// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the desktop's scaling reaches the windows.
#include "scaling.h"

#include <QGuiApplication>
#include <QLibrary>

namespace
{

/// Whether the desktop tells a scaling. An X server whose desktop does not derives it from the millimetres of
/// its screen: 1.001 or 1.04, which nobody chose and which makes lines vanish.
bool desktopTellsScaling()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    QLibrary x11{QStringLiteral("X11"), 6};
    const auto open = reinterpret_cast<void *(*)(const char *)>(x11.resolve("XOpenDisplay"));
    const auto resource =
        reinterpret_cast<char *(*)(void *, const char *, const char *)>(x11.resolve("XGetDefault"));
    const auto close = reinterpret_cast<int (*)(void *)>(x11.resolve("XCloseDisplay"));
    void *const display{open != nullptr && resource != nullptr && close != nullptr ? open(nullptr) : nullptr};
    if (display == nullptr) {
        return false;
    }
    const bool told{resource(display, "Xft", "dpi") != nullptr};
    close(display);
    return told;
#else
    return true;
#endif
}

} // namespace

void followDesktopScaling()
{
    QGuiApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling, desktopTellsScaling());
    // Rounded, 1.25 would leave the window as it is while its texts grow: they would be cut.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}
