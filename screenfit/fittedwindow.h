// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A window around a window that is larger than the screen.
#pragma once

#include <QRect>
#include <QScrollArea>

#include <memory>

/// Shows a window's content within the free part of the screen and scrolls it where that is smaller than the
/// content's smallest size. The content itself stays as it is, with all that is below it; it only stops being
/// a window of its own. Title and icon are the content's. Showing, hiding and closing either does so to both.
class FittedWindow : public QScrollArea
{
    Q_OBJECT

public:
    /// The content must outlive this window, which gives it back as a hidden window.
    explicit FittedWindow(QWidget &shown);
    ~FittedWindow() override;
    FittedWindow(const FittedWindow &) = delete;
    FittedWindow &operator=(const FittedWindow &) = delete;
    FittedWindow(FittedWindow &&) = delete;
    FittedWindow &operator=(FittedWindow &&) = delete;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void keepContentWideEnough();
    void placeWithin(const QMargins &frame);
    void placeWithRealFrame();

    QWidget &content;
    QSize firstSize;
    bool followsContent{false};
    bool frameKnown{false}; ///< Once the real frame was seen; from then on the operator places the window.
};

/// Makes a window that is not shown yet fit the screen: nothing when the free part of its screen holds the
/// size that it has, else a window around it that lives as long as the result. The window is shown as ever.
std::unique_ptr<FittedWindow> fitToScreen(QWidget &window);
