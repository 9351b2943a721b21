// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A picture of a part of the window, together with what it shows in words.
#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QWidget>

/// A picture and its words are one file: the words are a text in the PNG, so neither can be renewed without
/// the other.
///
/// Two pictures are the same when their words are, and when they look alike from some distance. Single pixels
/// do not count, because the same letter is smoothed in another way by another release of the font's
/// renderer.
class Picture
{
public:
    /// Of that part of a widget, as it is now.
    static Picture of(QWidget &widget, const QRect &part);
    /// Of that file; empty, with a null image, when it cannot be read.
    static Picture stored(const QString &fileName);

    bool store(const QString &fileName) const;

    const QImage &image() const { return pixels; }
    const QStringList &words() const { return lines; }

private:
    QImage pixels;
    QStringList lines;
};

/// What the second has in other words than the first: lines that are gone behind a minus, new ones behind a
/// plus.
QStringList otherWords(const Picture &before, const Picture &now);

/// How far apart two pictures look: of squares of 32 pixels, the greatest difference between the mean
/// colours, from 0 to 255; 255 when their widths or heights differ by more than one part in fifty.
int distance(const Picture &before, const Picture &now);
