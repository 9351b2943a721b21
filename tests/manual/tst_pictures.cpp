// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The pictures of the user guide show the window as it is.
#include "appearance.h"
#include "picture.h"
#include "testclass.h"
#include "testwindow.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFont>
#include <QFontInfo>
#include <QTest>

#include <functional>
#include <iterator>

namespace
{

/// How far a stored picture may look from the window of today. Letters that are hinted in another way come to
/// 7 at most; a button that is pressed or not to 14 or more, icons that are gone to 12.
constexpr int allowedDistance{8};

/// A picture: its file, what the operator does before it is taken, and what it shows.
struct Scene
{
    const char *file;
    std::function<void(TestWindow &)> act;
    std::function<Picture(TestWindow &)> take;
};

std::function<void(TestWindow &)> turnTo(const char *page)
{
    return [page](TestWindow &test) {
        test.showPage(QString::fromLatin1(page));
    };
}

Picture wholeWindow(TestWindow &test)
{
    return Picture::of(test.window(), test.window().rect());
}

Picture rowsAboveThePages(TestWindow &test)
{
    const auto &pages = test.child<QWidget>(QStringLiteral("paramSection"));
    const int height{pages.mapTo(&test.window(), QPoint{}).y()};
    return Picture::of(test.window(), QRect{0, 0, test.window().width(), height});
}

Picture pages(TestWindow &test)
{
    auto &tabs = test.child<QWidget>(QStringLiteral("Principal_tab"));
    return Picture::of(tabs, tabs.rect());
}

/// One session, in this order.
const Scene scenes[]{
    {"connecting",
     [](TestWindow &test) {
         test.click(QStringLiteral("scanDeviceButton"));
         test.child<QComboBox>(QStringLiteral("selectDeviceComboBox")).setCurrentText(QStringLiteral("SIM1"));
     },
     rowsAboveThePages},
    {"fusion", [](TestWindow &test) { test.click(QStringLiteral("connectDeviceButton")); }, pages},
    {"image-processing", turnTo("Veltrix_KR_tab"), pages},
    {"lut", turnTo("LutSection"), pages},
    {"window", [](TestWindow &) {}, wholeWindow},
    {"edge", turnTo("EdgeSection"), pages},
    {"expert", turnTo("ExpertMode"), pages},
    {"visible", turnTo("Visible_tab"), pages},
};

QString fileOf(const Scene &scene)
{
    return QStringLiteral(PICTURES "/%1.png").arg(QString::fromLatin1(scene.file));
}

} // namespace

class PicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void showTheWindowAsItIs();
    void noneIsLeftOver();
    void anotherTextIsTold();
    void anotherLookIsTold();
    void aMissingPictureIsTold();
};

void PicturesTest::initTestCase()
{
    const QFont font{QStringLiteral("DejaVu Sans"), 9};
    QVERIFY2(QFontInfo{font}.family() == font.family(), "install the package fonts-dejavu-core");
    setAppearance();
    QApplication::setFont(font);
    QApplication::setCursorFlashTime(0);
}

void PicturesTest::showTheWindowAsItIs()
{
    TestWindow test;
    test.window().resize(965, 1000);
    QStringList outOfDate;
    for (const Scene &scene : scenes) {
        scene.act(test);
        QTest::qWait(0);
        const Picture now{scene.take(test)};
        if (qEnvironmentVariableIsSet("PILOTEL_STORE_PICTURES")) {
            QVERIFY2(now.store(fileOf(scene)), qPrintable(fileOf(scene)));
        }
        const Picture stored{Picture::stored(fileOf(scene))};
        const int apart{distance(stored, now)};
        const QStringList words{otherWords(stored, now)};
        if (apart > allowedDistance || !words.isEmpty()) {
            outOfDate.append(QStringLiteral("%1.png looks %2 of 255 apart\n%3")
                                 .arg(QString::fromLatin1(scene.file))
                                 .arg(apart)
                                 .arg(words.join(QLatin1Char{'\n'})));
        }
    }
    QVERIFY2(outOfDate.isEmpty(),
             qPrintable(QStringLiteral("run scripts/pictures and look at what it made:\n") +
                        outOfDate.join(QLatin1Char{'\n'})));
}

void PicturesTest::noneIsLeftOver()
{
    QStringList expected;
    for (const Scene &scene : scenes) {
        expected.append(QString::fromLatin1(scene.file) + QStringLiteral(".png"));
    }
    expected.sort();
    QCOMPARE(QDir{QStringLiteral(PICTURES)}.entryList(QDir::Files, QDir::Name), expected);
}

void PicturesTest::anotherTextIsTold()
{
    TestWindow test;
    test.scanAndConnect();
    const Picture before{pages(test)};
    test.click(QStringLiteral("BU_IR_MODE_PB"));
    test.child<QAbstractButton>(QStringLiteral("FusionConfigureZoomPB")).setText(QStringLiteral("Zoom"));
    QCOMPARE(otherWords(before, pages(test)),
             (QStringList{"- BU_IR_MODE_PB: IR mode", "- BU_FUSION_MODE_PB: Fusion mode (pressed)",
                          "- FusionConfigureZoomPB: Configure Zoom", "+ BU_IR_MODE_PB: IR mode (pressed)",
                          "+ BU_FUSION_MODE_PB: Fusion mode", "+ FusionConfigureZoomPB: Zoom"}));
}

void PicturesTest::anotherLookIsTold()
{
    TestWindow test;
    const Picture before{wholeWindow(test)};
    for (const char *const name : {"scanDeviceButton", "connectDeviceButton"}) {
        test.child<QAbstractButton>(QString::fromLatin1(name)).setIcon({});
    }
    const Picture after{wholeWindow(test)};
    QCOMPARE(otherWords(before, after), QStringList{});
    QVERIFY2(distance(before, after) > allowedDistance, qPrintable(QString::number(distance(before, after))));

    test.window().resize(test.window().width(), test.window().height() - 60);
    QCOMPARE(distance(before, wholeWindow(test)), 255);
}

void PicturesTest::aMissingPictureIsTold()
{
    TestWindow test;
    QCOMPARE(distance(Picture::stored(QStringLiteral("missing.png")), wholeWindow(test)), 255);
}

PILOTEL_TEST_CLASS(PicturesTest)
#include "tst_pictures.moc"
