// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Boxes in the style of QMessageBox::about, beside one of Qt's own.
#include "messageboxes.h"
#include "testclass.h"
#include "testwindow.h"

#include <QMessageBox>
#include <QTest>

class AboutBoxesTest : public QObject
{
    Q_OBJECT

private slots:
    void lookAsQtsOwn();
};

void AboutBoxesTest::lookAsQtsOwn()
{
    TestWindow test;
    QList<QImage> icons;
    const auto takeIcon = [&icons](QDialog &box) {
        icons.append(dynamic_cast<QMessageBox &>(box).iconPixmap().toImage());
        BoxWatcher::pressOk(box);
    };
    test.boxes.expect(takeIcon);
    showAboutBox(&test.window(), "title", "text");
    test.boxes.expect(takeIcon);
    QMessageBox::about(&test.window(), "title", "text");

    QCOMPARE(icons.size(), 2);
    QCOMPARE(icons.first().size(), QSize(64, 64));
    QCOMPARE(icons.first(), icons.last());
    // Qt's own box adds its button after it is shown.
    const QStringList shown{R"(window icon "title" "text" [OK])", R"(window icon "title" "text" [])"};
    QCOMPARE(test.boxes.takeShown(), shown);
}

PILOTEL_TEST_CLASS(AboutBoxesTest)
#include "tst_about_boxes.moc"
