// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What an X server shows of a program that starts.
#include "screenwatch.h"

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

namespace
{

/// What the server hands out is freed with std::free.
struct Free
{
    void operator()(void *reply) const { std::free(reply); }
};
template <typename Reply>
using Handed = std::unique_ptr<Reply, Free>;

constexpr int patienceMilliseconds{10'000};

} // namespace

ScreenWatch::ScreenWatch() : connection{xcb_connect(nullptr, nullptr)}
{
    if (xcb_connection_has_error(connection.get()) != 0) {
        return;
    }
    root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
    const quint32 events{XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
    xcb_change_window_attributes(connection.get(), root, XCB_CW_EVENT_MASK, &events);
}

void ScreenWatch::begin()
{
    Square square{};
    readMiddle(root, square);
    bareColour = square.front();
    // The answer that has just come was the last of what happened so far.
    while (const Handed<xcb_generic_event_t> past{xcb_poll_for_event(connection.get())}) {
    }
}

bool ScreenWatch::waitUntilDrawn(qint64 process)
{
    QElapsedTimer waiting;
    waiting.start();
    xcb_window_t window{XCB_NONE};
    while (!waiting.hasExpired(patienceMilliseconds)) {
        while (const Handed<xcb_generic_event_t> event{xcb_poll_for_event(connection.get())}) {
            constexpr int sentByAProgram{0x80};
            if ((event->response_type & ~sentByAProgram) == XCB_MAP_NOTIFY) {
                const auto *const mapped = reinterpret_cast<const xcb_map_notify_event_t *>(event.get());
                window = belongsTo(mapped->window, process) ? mapped->window : window;
            }
        }
        Square square{};
        const auto isDrawn = [this](quint32 colour) {
            return colour != bareColour;
        };
        if (window != XCB_NONE && readMiddle(window, square) &&
            std::any_of(square.begin(), square.end(), isDrawn)) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::microseconds{200});
    }
    return false;
}

bool ScreenWatch::readMiddle(xcb_window_t window, Square &square) const
{
    constexpr int side{8};
    const Handed<xcb_get_geometry_reply_t> place{
        xcb_get_geometry_reply(connection.get(), xcb_get_geometry(connection.get(), window), nullptr)};
    if (!place) {
        return false;
    }
    const Handed<xcb_get_image_reply_t> image{xcb_get_image_reply(
        connection.get(),
        xcb_get_image(connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window,
                      static_cast<qint16>((place->width - side) / 2),
                      static_cast<qint16>((place->height - side) / 2), side, side, ~quint32{0}),
        nullptr)};
    if (!image || xcb_get_image_data_length(image.get()) != sizeof(Square)) {
        return false;
    }
    std::memcpy(square.data(), xcb_get_image_data(image.get()), sizeof(Square));
    return true;
}

bool ScreenWatch::belongsTo(xcb_window_t window, qint64 process) const
{
    const std::string name{"_NET_WM_PID"};
    const Handed<xcb_intern_atom_reply_t> atom{xcb_intern_atom_reply(
        connection.get(),
        xcb_intern_atom(connection.get(), 0, static_cast<quint16>(name.size()), name.c_str()), nullptr)};
    if (!atom) {
        return false;
    }
    const Handed<xcb_get_property_reply_t> property{xcb_get_property_reply(
        connection.get(), xcb_get_property(connection.get(), 0, window, atom->atom, XCB_ATOM_CARDINAL, 0, 1),
        nullptr)};
    quint32 owner{0};
    if (!property || xcb_get_property_value_length(property.get()) != sizeof(owner)) {
        return false;
    }
    std::memcpy(&owner, xcb_get_property_value(property.get()), sizeof(owner));
    return owner == process;
}
