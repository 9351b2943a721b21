// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A sequence of commands that belong together, such as a read.
#pragma once

#include "mainwindow.h"

/// Lives while a sequence runs. The observer is told the first moment and the last one; a sequence that is
/// part of another one is not told.
class MainWindow::Sequence
{
public:
    explicit Sequence(MainWindow &itsWindow) : window{itsWindow}
    {
        if (window.sequenceDepth++ == 0) {
            window.sinceLogPainted.start();
            // A slow painting of an earlier one, of a large log, keeps no first line waiting.
            window.logPaintingTime = supposedLogPaintingTime;
            tell(true);
        }
    }
    ~Sequence()
    {
        if (--window.sequenceDepth == 0) {
            tell(false);
        }
    }
    Sequence(const Sequence &) = delete;
    Sequence &operator=(const Sequence &) = delete;

private:
    void tell(bool running) const
    {
        if (window.sequenceObserver) {
            window.sequenceObserver(running);
        }
    }

    MainWindow &window;
};
