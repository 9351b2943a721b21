// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A picture of a part of the window, together with what it shows in words.
#include "picture.h"

#include "shown.h"

#include <QColor>
#include <QPixmap>
#include <QSize>
#include <QVector>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <utility>
#include <vector>

namespace
{

constexpr int squareSize{32};

const QString &wordsKey()
{
    static const QString key{QStringLiteral("Description")};
    return key;
}

/// In its 256 commonest colours, which makes a file of a third of the size and looks the same.
QImage withAPalette(const QImage &image)
{
    const QImage rgb{image.convertToFormat(QImage::Format_RGB32)};
    std::map<QRgb, int> pixelsOf;
    for (int y{0}; y < rgb.height(); ++y) {
        const auto *const row = reinterpret_cast<const QRgb *>(rgb.constScanLine(y));
        for (int x{0}; x < rgb.width(); ++x) {
            ++pixelsOf[row[x]];
        }
    }
    std::vector<std::pair<int, QRgb>> commonest;
    commonest.reserve(pixelsOf.size());
    for (const auto &[colour, pixels] : pixelsOf) {
        commonest.emplace_back(pixels, colour);
    }
    std::sort(commonest.rbegin(), commonest.rend());
    QVector<QRgb> palette;
    for (const auto &[pixels, colour] : commonest) {
        if (palette.size() < 256) {
            palette.append(colour);
        }
    }
    return rgb.convertToFormat(QImage::Format_Indexed8, palette);
}

/// The mean colours of its squares.
QImage fromADistance(const QImage &image, const QSize &squares)
{
    return image.convertToFormat(QImage::Format_RGB32)
        .scaled(squares, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

bool alike(int first, int second)
{
    return std::abs(first - second) * 50 <= first;
}

} // namespace

Picture Picture::of(QWidget &widget, const QRect &part)
{
    Picture picture;
    picture.pixels = withAPalette(widget.grab(part).toImage());
    picture.lines = shownIn(widget, part);
    return picture;
}

Picture Picture::stored(const QString &fileName)
{
    Picture picture;
    if (picture.pixels.load(fileName, "PNG")) {
        picture.lines = picture.pixels.text(wordsKey()).split(QLatin1Char{'\n'});
    }
    return picture;
}

bool Picture::store(const QString &fileName) const
{
    QImage image{pixels};
    image.setText(QStringLiteral("Copyright"), QStringLiteral("2026 The Pilotel Developers; MIT licence"));
    image.setText(wordsKey(), lines.join(QLatin1Char{'\n'}));
    // Nothing is lost; of PNG the number says how hard the packer works.
    constexpr int packedHard{0};
    return image.save(fileName, "PNG", packedHard);
}

QStringList otherWords(const Picture &before, const Picture &now)
{
    QStringList gone{before.words()};
    QStringList added;
    for (const QString &line : now.words()) {
        if (!gone.removeOne(line)) {
            added.append(QStringLiteral("+ ") + line);
        }
    }
    for (QString &line : gone) {
        line.prepend(QStringLiteral("- "));
    }
    return gone + added;
}

int distance(const Picture &before, const Picture &now)
{
    const QImage &first{before.image()};
    const QImage &second{now.image()};
    if (!alike(first.width(), second.width()) || !alike(first.height(), second.height())) {
        return 255;
    }
    const QSize squares{first.width() / squareSize, first.height() / squareSize};
    const QImage from{fromADistance(first, squares)};
    const QImage to{fromADistance(second, squares)};
    int greatest{0};
    for (int y{0}; y < squares.height(); ++y) {
        for (int x{0}; x < squares.width(); ++x) {
            const QColor a{from.pixelColor(x, y)};
            const QColor b{to.pixelColor(x, y)};
            greatest = std::max({greatest, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                 std::abs(a.blue() - b.blue())});
        }
    }
    return greatest;
}
