// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A window around another: what is shown, hidden, closed and called alike.
#include "fittedwindow.h"
#include "testclass.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>

namespace
{

/// A window that counts how often it is asked to close, and may refuse.
class Content : public QWidget
{
public:
    int timesAsked{0};
    bool refuses{false};

protected:
    void closeEvent(QCloseEvent *event) override
    {
        ++timesAsked;
        event->setAccepted(!refuses);
    }
};

/// Larger than the screen.
void makeLarge(QWidget &widget)
{
    widget.resize(QGuiApplication::primaryScreen()->availableSize() + QSize{0, 1});
    widget.setMinimumHeight(widget.height());
}

} // namespace

class FittedWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void leavesAWindowAloneThatFits();
    void isShownAndClosedWithItsContent();
    void closingItClosesTheContent();
    void staysWhileTheContentRefuses();
    void hasTheTitleAndTheIconOfTheContent();
    void givesTheContentBack();
};

void FittedWindowTest::leavesAWindowAloneThatFits()
{
    QWidget window;
    window.resize(QGuiApplication::primaryScreen()->availableSize());
    QVERIFY(fitToScreen(window) == nullptr);
    QVERIFY(window.isWindow());
}

void FittedWindowTest::isShownAndClosedWithItsContent()
{
    Content content;
    makeLarge(content);
    const auto fitted = fitToScreen(content);
    QVERIFY(fitted != nullptr);
    QVERIFY(!fitted->isVisible());

    content.show();
    QVERIFY(fitted->isVisible());
    QVERIFY(content.isVisible());
    QVERIFY(fitted->screen()->availableGeometry().contains(fitted->frameGeometry()));

    content.close();
    QVERIFY(!fitted->isVisible());
    QCOMPARE(content.timesAsked, 1);
}

void FittedWindowTest::closingItClosesTheContent()
{
    Content content;
    makeLarge(content);
    const auto fitted = fitToScreen(content);
    content.show();

    QVERIFY(fitted->close());
    QVERIFY(content.isHidden());
    QCOMPARE(content.timesAsked, 1);
}

void FittedWindowTest::staysWhileTheContentRefuses()
{
    Content content;
    makeLarge(content);
    const auto fitted = fitToScreen(content);
    content.show();

    content.refuses = true;
    QVERIFY(!fitted->close());
    QVERIFY(fitted->isVisible());
    QVERIFY(content.isVisible());
}

void FittedWindowTest::hasTheTitleAndTheIconOfTheContent()
{
    QWidget content;
    makeLarge(content);
    content.setWindowTitle("before");
    const auto fitted = fitToScreen(content);
    QCOMPARE(fitted->windowTitle(), QString{"before"});

    QPixmap picture{8, 8};
    picture.fill(Qt::red);
    content.setWindowTitle("after");
    content.setWindowIcon(picture);
    QCOMPARE(fitted->windowTitle(), QString{"after"});
    QCOMPARE(fitted->windowIcon().cacheKey(), content.windowIcon().cacheKey());
}

void FittedWindowTest::givesTheContentBack()
{
    QWidget content;
    makeLarge(content);
    auto fitted = fitToScreen(content);
    QVERIFY(!content.isWindow());
    content.show();

    fitted.reset();
    QVERIFY(content.isWindow());
    QVERIFY(content.parentWidget() == nullptr);
    QVERIFY(content.isHidden());
}

PILOTEL_TEST_CLASS(FittedWindowTest)
#include "tst_fitted_window.moc"
