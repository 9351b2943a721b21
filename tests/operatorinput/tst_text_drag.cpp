// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Tests of a selection that is dragged out of a text: that is over when the mouse is let go.
#include "operatorwindow.h"
#include "testclass.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDrag>
#include <QObject>
#include <QPlainTextEdit>
#include <QPoint>
#include <QScrollBar>
#include <QTest>

namespace
{

/// Counts the drags that have ended.
class DragCounter : public QObject
{
public:
    DragCounter() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::DeferredDelete && qobject_cast<const QDrag *>(watched) != nullptr) {
            ++count;
        }
        return false;
    }

    int count{0};
};

} // namespace

class TextDragTest : public QObject
{
    Q_OBJECT

private slots:
    void aSelectionIsDraggedOnce();
    void aSelectionStillGoesOnOutsideTheText();
};

void TextDragTest::aSelectionIsDraggedOnce()
{
    OperatorWindow test;
    test.beConnected();
    auto &text = test.child<QPlainTextEdit>("logView");
    text.setPlainText("some words that are dragged\nand more of them");
    text.setFocus();
    text.selectAll();
    const QPoint onText{test.placeOf("logView", {20, 12})};
    const QPoint outside{test.middleOf("connectDeviceButton")};

    DragCounter drags;
    test.press(onText);
    QTest::mouseMove(&test.native(), outside);
    test.release(outside);
    QCursor::setPos(test.window().mapToGlobal(outside));
    // Qt's timer takes 100 ms.
    QTest::qWait(350);
    QCOMPARE(drags.count, 1);
    QCOMPARE(test.takeCalls(), QStringList{});
}

void TextDragTest::aSelectionStillGoesOnOutsideTheText()
{
    OperatorWindow test;
    test.beConnected();
    auto &text = test.child<QPlainTextEdit>("logView");
    for (int line{0}; line < 200; ++line) {
        text.appendPlainText(QStringLiteral("line %1").arg(line));
    }
    const QScrollBar &bar{*text.verticalScrollBar()};
    QCOMPARE(bar.value(), bar.maximum());
    const QPoint onText{test.placeOf("logView", {20, text.height() / 2})};
    const QPoint above{test.middleOf("connectDeviceButton")};
    QVERIFY(above.y() < test.placeOf("logView", {0, 0}).y());

    test.press(onText);
    QCursor::setPos(test.window().mapToGlobal(above));
    QTest::mouseMove(&test.native(), above);
    const int scrolled{bar.value()};
    QTest::qWait(350);
    QVERIFY(bar.value() < scrolled);
    test.release(above);
}

PILOTEL_TEST_CLASS(TextDragTest)
#include "tst_text_drag.moc"
