// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A window around a window that is larger than the screen.
#include "fittedwindow.h"

#include <QCloseEvent>
#include <QScreen>
#include <QStyle>
#include <QWindow>

namespace
{

/// What the window system probably draws around a window; it tells only once the window is shown.
QMargins probableFrame(const QWidget &window)
{
    const int title{window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window)};
    const int border{window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window)};
    return {border, title + border, border, border};
}

} // namespace

FittedWindow::FittedWindow(QWidget &shown) : content{shown}, firstSize{shown.size()}
{
    setWindowTitle(content.windowTitle());
    setWindowIcon(content.windowIcon());
    connect(&content, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
    connect(&content, &QWidget::windowIconChanged, this, &QWidget::setWindowIcon);

    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    // It scrolls, but is no place for the keyboard.
    setFocusPolicy(Qt::NoFocus);
    setWidget(&content); // Shows it and watches its events.
    content.hide();
    followsContent = true;
    keepContentWideEnough();
    placeWithin(probableFrame(*this));
}

FittedWindow::~FittedWindow()
{
    followsContent = false;
    content.setMinimumWidth(0);
    takeWidget();
}

bool FittedWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (followsContent && watched == &content) {
        switch (event->type()) {
        case QEvent::ShowToParent:
            show();
            break;
        case QEvent::HideToParent:
            close();
            break;
        case QEvent::LayoutRequest:
            keepContentWideEnough();
            break;
        default:
            break;
        }
    }
    return QScrollArea::eventFilter(watched, event);
}

bool FittedWindow::focusNextPrevChild(bool next)
{
    if (!QScrollArea::focusNextPrevChild(next)) {
        return false;
    }
    // The base class brings the text cursor of a box into view, and not the box.
    if (const QWidget *const focused = content.focusWidget()) {
        constexpr int space{6};
        const QPoint middle{focused->mapTo(&content, focused->rect().center())};
        ensureVisible(middle.x(), middle.y(), focused->width() / 2 + space, focused->height() / 2 + space);
    }
    return true;
}

void FittedWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(content.close());
}

void FittedWindow::changeEvent(QEvent *event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        placeWithRealFrame();
    }
}

void FittedWindow::moveEvent(QMoveEvent *event)
{
    QScrollArea::moveEvent(event);
    placeWithRealFrame();
}

void FittedWindow::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    placeWithRealFrame();
}

void FittedWindow::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    placeWithRealFrame();
}

void FittedWindow::keepContentWideEnough()
{
    // Where a widget has a minimum width, the smallest size of a layout may cut its text.
    content.setMinimumWidth(content.sizeHint().width());
}

void FittedWindow::placeWithin(const QMargins &frame)
{
    const QRect available{screen()->availableGeometry().marginsRemoved(frame)};
    // The scroll bar stands beside the content and takes nothing of its width.
    const int scrollBar{style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this)};
    QRect place{QPoint{}, (firstSize + QSize{scrollBar, 0}).boundedTo(available.size())};
    place.moveCenter(available.center());
    place.moveTop(available.top());
    setGeometry(place);
}

void FittedWindow::placeWithRealFrame()
{
    const QMargins frame{windowHandle() != nullptr ? windowHandle()->frameMargins() : QMargins{}};
    if (frameKnown || frame.isNull()) {
        return;
    }
    frameKnown = true;
    placeWithin(frame);
}

std::unique_ptr<FittedWindow> fitToScreen(QWidget &window)
{
    const QSize available{window.screen()->availableSize()};
    if (window.width() <= available.width() && window.height() <= available.height()) {
        return nullptr;
    }
    return std::make_unique<FittedWindow>(window);
}
