// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Pressed buttons that can be told, frames with all their lines, light colours: from the pixels.
#include "appearance.h"
#include "markingstyle.h"
#include "testclass.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOptionFrame>
#include <QTest>
#include <QToolTip>

#include <cmath>
#include <memory>

namespace
{

/// How light a colour is to the eye, 0..1, as the guidelines for accessible contents of the web compute it.
double luminance(QRgb colour)
{
    const auto linear = [](int channel) {
        const double part{channel / 255.0};
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const double first{luminance(one) + 0.05};
    const double second{luminance(other) + 0.05};
    return first > second ? first / second : second / first;
}

QImage pictureOf(QPushButton &button, bool checked)
{
    button.setChecked(checked);
    return button.grab().toImage();
}

/// How many pixels differ by a contrast of 3 and more.
int clearlyDifferentPixels(const QImage &one, const QImage &other)
{
    int count{0};
    for (int y{0}; y < one.height(); ++y) {
        for (int x{0}; x < one.width(); ++x) {
            count += contrast(one.pixel(x, y), other.pixel(x, y)) >= 3.0 ? 1 : 0;
        }
    }
    return count;
}

/// A style whose own colours are dark.
class DarkStyle : public QProxyStyle
{
public:
    DarkStyle() : QProxyStyle{QStyleFactory::create("windows")} {}
    QPalette standardPalette() const override { return {Qt::white, Qt::black}; }
};

} // namespace

class AppearanceTest : public QObject
{
    Q_OBJECT

private slots:
    void aPressedButtonCanBeTold_data();
    void aPressedButtonCanBeTold();
    void framesHaveAllTheirLines_data();
    void framesHaveAllTheirLines();
    void darkColoursOfTheThemeAreDropped();
    void aStyleThatIsDarkItselfGetsTheColoursOfFusion();
};

void AppearanceTest::aPressedButtonCanBeTold_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("Fusion") << "fusion";
    QTest::newRow("Windows") << "windows";
}

void AppearanceTest::aPressedButtonCanBeTold()
{
    QFETCH(QString, style);
    MarkingStyle marking{QStyleFactory::create(style)};
    QPushButton button;
    button.setStyle(&marking);
    button.setPalette(marking.standardPalette());
    button.setCheckable(true);
    button.resize(200, 26);

    const QImage released{pictureOf(button, false)};
    const QImage pressed{pictureOf(button, true)};
    // A bar of 6 x 20, beside other pressed buttons as beside itself when it is not pressed.
    QVERIFY(clearlyDifferentPixels(released, pressed) >= 6 * 20);
    QVERIFY(contrast(pressed.pixel(5, 13), pressed.pixel(100, 13)) >= 3.0);
    QCOMPARE(pictureOf(button, false), released);
}

void AppearanceTest::framesHaveAllTheirLines_data()
{
    QTest::addColumn<double>("scaling");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.25") << 1.25;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
}

void AppearanceTest::framesHaveAllTheirLines()
{
    QFETCH(double, scaling);
    const MarkingStyle marking{QStyleFactory::create("fusion")};
    for (int offset{0}; offset < 8; ++offset) {
        QImage picture{60, 60, QImage::Format_RGB32};
        picture.fill(Qt::white);
        picture.setDevicePixelRatio(scaling);
        QStyleOptionFrame option;
        option.palette = marking.standardPalette();
        option.rect = QRect{offset, offset, 20, 20};
        option.lineWidth = 1;
        option.state = QStyle::State_Enabled | QStyle::State_Sunken;
        QPainter painter{&picture};
        painter.setClipRect(option.rect);
        marking.drawPrimitive(QStyle::PE_Frame, &option, &painter, nullptr);
        painter.end();

        // Across the middle, there and there alone are the two sides.
        const int middle{static_cast<int>((offset + 10) * scaling)};
        int across{0};
        int down{0};
        for (int pixel{0}; pixel < 60; ++pixel) {
            const bool before{pixel > 0};
            const auto isLine = [&](int x, int y) {
                return picture.pixel(x, y) != qRgb(255, 255, 255);
            };
            across += isLine(pixel, middle) && !(before && isLine(pixel - 1, middle)) ? 1 : 0;
            down += isLine(middle, pixel) && !(before && isLine(middle, pixel - 1)) ? 1 : 0;
        }
        QCOMPARE(across, 2);
        QCOMPARE(down, 2);
    }
}

void AppearanceTest::darkColoursOfTheThemeAreDropped()
{
    const QPalette dark{Qt::white, Qt::black};
    QApplication::setPalette(dark);
    QApplication::setPalette(dark, "QLineEdit");
    setAppearance();
    const QPalette light{QApplication::style()->standardPalette()};
    QCOMPARE(QApplication::palette(), light);
    QCOMPARE(QApplication::palette("QLineEdit"), light);
    QVERIFY(light.color(QPalette::Window).lightness() > light.color(QPalette::WindowText).lightness());
}

void AppearanceTest::aStyleThatIsDarkItselfGetsTheColoursOfFusion()
{
    QApplication::setStyle(new DarkStyle);
    setAppearance();
    const std::unique_ptr<QStyle> fusion{QStyleFactory::create("fusion")};
    QCOMPARE(QApplication::palette(), fusion->standardPalette());
    QCOMPARE(QToolTip::palette(), fusion->standardPalette());
    QApplication::setStyle("fusion");
}

PILOTEL_TEST_CLASS(AppearanceTest)
#include "tst_appearance.moc"
