// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The about dialog, and what happens when the window goes away.
#include "halftyped.h"
#include "mouse.h"
#include "testclass.h"
#include "testwindow.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QObject>
#include <QPlainTextEdit>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QWidget>

namespace
{

QStringList textsOf(const QDialog &dialog)
{
    QStringList texts;
    for (const char *const label : {"label_4", "NomProduit", "label_2", "VersionProduit", "label_3"}) {
        texts.append(dialog.findChild<QLabel *>(label)->text());
    }
    return texts;
}

} // namespace

class WindowLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void opensAFreshAboutDialogEveryTime();
    void aboutDialogBlocksTheWindow();
    void aboutDialogLeavesTheDeviceAlone();
    void closesWithoutClosingTheDevice();
    void goesAwayWithoutClosingTheDevice();
    void goesAwayDuringAnEdit_data();
    void goesAwayDuringAnEdit();
    void canBeBuiltAgain();
};

void WindowLifetimeTest::opensAFreshAboutDialogEveryTime()
{
    TestWindow test;
    const QStringList texts{"Nom du produit : ", "Pilotel Blend Unit", "Version du produit :", "1.0.0",
                            "Produit par Norvane Technologies"};
    QPointer<QDialog> dialog;
    for (int time{0}; time < 2; ++time) {
        QStringList shown;
        test.boxes.expect([&](QDialog &box) {
            dialog = &box;
            shown = textsOf(box);
            // A dialog that is kept would show it the next time.
            box.findChild<QLabel *>("NomProduit")->setText("another product");
            box.reject();
        });

        test.click("AboutButton");

        QCOMPARE(shown, texts);
        QVERIFY(dialog.isNull());
        QCOMPARE(test.boxes.takeShown(), QStringList{"dialog \"About\""});
    }
}

void WindowLifetimeTest::aboutDialogBlocksTheWindow()
{
    TestWindow test;
    auto &logView = test.child<QPlainTextEdit>("logView");
    logView.setPlainText("a line\n");
    bool modal{false};
    const QObject *parent{&test.window()};
    test.boxes.expect([&](QDialog &box) {
        modal = box.isModal() && QApplication::activeModalWidget() == &box;
        parent = box.parent();
        pressMouseOn(test, "clearLogButton");
        box.accept();
    });

    test.click("AboutButton");

    QVERIFY(modal);
    QCOMPARE(parent, nullptr);
    QCOMPARE(logView.toPlainText(), QStringLiteral("a line\n"));

    // The same press of the mouse gets through once the dialog is closed.
    pressMouseOn(test, "clearLogButton");
    QCOMPARE(logView.toPlainText(), QString{});
    test.boxes.takeShown();
}

void WindowLifetimeTest::aboutDialogLeavesTheDeviceAlone()
{
    TestWindow test;
    test.beConnected();
    test.boxes.expect();

    test.click("AboutButton");

    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.takeLog(), QStringList{});
    test.boxes.takeShown();
}

void WindowLifetimeTest::closesWithoutClosingTheDevice()
{
    TestWindow test;
    test.beConnected();

    QVERIFY(test.window().close());

    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QVERIFY(test.simulator.isDeviceOpen());
    test.destroyWindow();
    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QVERIFY(test.simulator.isDeviceOpen());
}

void WindowLifetimeTest::goesAwayWithoutClosingTheDevice()
{
    TestWindow test;
    test.beConnected();

    test.destroyWindow();

    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QVERIFY(test.simulator.isDeviceOpen());
}

void WindowLifetimeTest::goesAwayDuringAnEdit_data()
{
    QTest::addColumn<QString>("spinBox");
    QTest::addColumn<bool>("connected");
    for (const char *const spinBox :
         {"VisAgcTargetSB", "VisAgcTHSB", "VisAgcCoeffSB", "VisClheTHSB", "VisClheCoeffSB"}) {
        QTest::addRow("%s, connected", spinBox) << spinBox << true;
        QTest::addRow("%s, not connected", spinBox) << spinBox << false;
    }
}

void WindowLifetimeTest::goesAwayDuringAnEdit()
{
    QFETCH(QString, spinBox);
    QFETCH(bool, connected);
    TestWindow test;
    if (connected) {
        test.beConnected();
    } else {
        test.child<QWidget>("paramSection").setEnabled(true);
    }
    typeWithoutFinishing(test, spinBox);

    test.destroyWindow();

    QCOMPARE(test.takeCallsAndRecords(), QStringList{});
    QCOMPARE(test.simulator.isDeviceOpen(), connected);
}

void WindowLifetimeTest::canBeBuiltAgain()
{
    // The SDK outlives the window; the next one finds it with the device still open.
    TestWindow first;
    first.beConnected();
    first.destroyWindow();
    first.warnings.take();

    const MainWindow second;

    QCOMPARE(first.warnings.take().size(), 3);
    QCOMPARE(first.takeCalls().filter("Device"), QStringList{});
    QVERIFY(!second.findChild<QWidget *>("paramSection")->isEnabled());
}

PILOTEL_TEST_CLASS(WindowLifetimeTest)
#include "tst_window_lifetime.moc"
