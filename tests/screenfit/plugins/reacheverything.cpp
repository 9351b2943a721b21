// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A plugin that goes to every control of the program's window and tells what it could not reach.
#include "reacheverything.h"

#include "report.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTabWidget>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace
{

void tell(const QString &line)
{
    report("PILOTEL_TEST_REPORT", {line});
}

QString text(const QRect &place)
{
    return QStringLiteral("%1,%2 %3x%4").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height());
}

/// The name of a control; a tab bar has that of its pages.
QString nameOf(const QWidget &widget)
{
    return qobject_cast<const QTabBar *>(&widget) != nullptr ? widget.parentWidget()->objectName()
                                                             : widget.objectName();
}

/// Whether the Tab key is to come there. Parts of a control are left out: their control stands for them.
bool takesTheTabKey(const QWidget &widget)
{
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0 &&
           widget.focusProxy() == nullptr;
}

/// Whether a part of a widget's text has no room.
bool isCut(const QWidget &widget)
{
    if (const auto *const box = qobject_cast<const QAbstractSpinBox *>(&widget)) {
        const auto *const edit = box->findChild<QLineEdit *>();
        return edit->fontMetrics().horizontalAdvance(edit->text()) > edit->width() ||
               edit->fontMetrics().height() > edit->height();
    }
    if (const auto *const box = qobject_cast<const QPlainTextEdit *>(&widget)) {
        const QFontMetrics metrics{box->fontMetrics()};
        const bool oneLine{box->maximumHeight() == box->minimumHeight()};
        return metrics.height() > box->viewport()->height() ||
               (oneLine && metrics.horizontalAdvance(box->toPlainText()) > box->viewport()->width());
    }
    if (const auto *const label = qobject_cast<const QLabel *>(&widget)) {
        return label->width() < label->minimumSizeHint().width() ||
               label->height() < label->fontMetrics().height();
    }
    if (qobject_cast<const QAbstractButton *>(&widget) != nullptr ||
        qobject_cast<const QComboBox *>(&widget) != nullptr) {
        const QSize needed{widget.minimumSizeHint()};
        return widget.width() < needed.width() || widget.height() < needed.height();
    }
    return false;
}

} // namespace

ReachEverything::ReachEverything()
{
    qApp->installEventFilter(this);
}

bool ReachEverything::eventFilter(QObject *watched, QEvent *event)
{
    auto *const widget = event->type() == QEvent::Show ? qobject_cast<QWidget *>(watched) : nullptr;
    if (window == nullptr && widget != nullptr && widget->isWindow()) {
        window = widget;
        QMetaObject::invokeMethod(this, "goThroughTheWindow", Qt::QueuedConnection);
    }
    return false;
}

void ReachEverything::goThroughTheWindow()
{
    content = qobject_cast<QMainWindow *>(window);
    if (content == nullptr) {
        content = window->findChild<QMainWindow *>();
    }
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window)) {
        tell("the window did not become active");
    }
    tellPlaces();
    tellIcons();
    connectToTheCamera();
    goThroughThePages();
    turnTheWheel();
    content->close();
}

void ReachEverything::tellPlaces() const
{
    tell("title " + window->windowTitle());
    tell(QStringLiteral("scaling %1").arg(window->devicePixelRatioF()));
    tell("frame " + text(window->frameGeometry()));
    tell("content " + text(QRect{QPoint{}, content->size()}));
    const bool inside{window->screen()->availableGeometry().contains(window->frameGeometry())};
    tell(inside ? "the window is within the free part of the screen" : "the window sticks out");
}

void ReachEverything::tellIcons() const
{
    QString line{"icons"};
    for (const char *const name :
         {"scanDeviceButton", "connectDeviceButton", "disconnectDeviceButton", "resetParamButtonUser"}) {
        const auto &button = *content->findChild<QAbstractButton *>(name);
        const QPixmap icon{button.icon().pixmap(window->windowHandle(), button.iconSize())};
        line += QStringLiteral(" %1 %2x%3@%4")
                    .arg(name)
                    .arg(icon.width())
                    .arg(icon.height())
                    .arg(icon.devicePixelRatio());
    }
    tell(line);
}

void ReachEverything::connectToTheCamera() const
{
    const auto press = [this](const char *button) {
        QTest::mouseClick(content->findChild<QAbstractButton *>(button), Qt::LeftButton);
    };
    press("scanDeviceButton");
    content->findChild<QComboBox *>("selectDeviceComboBox")->setCurrentText("SIM1");
    press("connectDeviceButton");
    if (!content->findChild<QWidget *>("paramSection")->isEnabled()) {
        tell("the window did not connect");
    }
}

void ReachEverything::goThroughThePages()
{
    auto *const pages = content->findChild<QTabWidget *>("Principal_tab");
    auto *const cameraPages = content->findChild<QTabWidget *>("KR_tab");
    for (int page{0}; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        const bool isCamera{pages->currentWidget()->isAncestorOf(cameraPages)};
        for (int cameraPage{0}; cameraPage < (isCamera ? cameraPages->count() : 1); ++cameraPage) {
            cameraPages->setCurrentIndex(cameraPage);
            QCoreApplication::processEvents();
            goThroughOnePage();
            tellWhatIsCut();
        }
    }
    QStringList names{reached.values()};
    names.sort();
    tell("reached " + names.join(' '));
}

void ReachEverything::goThroughOnePage()
{
    QSet<QString> wanted;
    const auto widgets = content->findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        if (takesTheTabKey(*widget)) {
            wanted.insert(nameOf(*widget));
        }
    }
    const int steps{wanted.size() + 1};
    content->findChild<QWidget *>("scanDeviceButton")->setFocus();
    for (int step{0}; step < steps; ++step) {
        QTest::keyClick(window->windowHandle(), Qt::Key_Tab);
        const QWidget *const focused{QApplication::focusWidget()};
        if (focused == nullptr) {
            tell("the focus is lost");
            return;
        }
        const QString name{nameOf(*focused)};
        wanted.remove(name);
        reached.insert(name);
        if (!isWhollyShown(*focused)) {
            tell(name + " has the focus and is not wholly on the screen");
        }
    }
    for (const QString &name : wanted) {
        tell(name + " is not reached by Tab");
    }
}

void ReachEverything::tellWhatIsCut() const
{
    const auto widgets = content->findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        const bool isPart{widget->objectName().isEmpty() || widget->objectName().startsWith("qt_")};
        if (widget->isVisible() && !isPart && isCut(*widget)) {
            tell(widget->objectName() + " is cut");
        }
        if (!content->rect().contains(QRect{widget->mapTo(content, QPoint{}), widget->size()}) &&
            widget->isVisible() && !isPart) {
            tell(widget->objectName() + " sticks out of the content");
        }
    }
}

void ReachEverything::turnTheWheel() const
{
    // Over the margin of the window, which is no control.
    content->findChild<QTabWidget *>("Principal_tab")->setCurrentIndex(0);
    content->findChild<QWidget *>("scanDeviceButton")->setFocus();
    QCoreApplication::processEvents();
    const QWidget &log{*content->findChild<QWidget *>("clearLogButton")};
    const QPointF corner{3, 3};
    constexpr int downwards{-120};
    for (int turn{0}; turn < 40; ++turn) {
        QWheelEvent event{corner,
                          window->mapToGlobal(corner.toPoint()),
                          QPoint{},
                          QPoint{0, downwards},
                          Qt::NoButton,
                          Qt::NoModifier,
                          Qt::NoScrollPhase,
                          false};
        // As from the window system: only such events go on to the widgets behind.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(window->windowHandle(), &event);
    }
    // What is beside the screen at the right is the other wheel's.
    const QRect place{log.mapTo(window, QPoint{}), log.size()};
    tell(place.bottom() <= window->rect().bottom() ? "the wheel comes to Clear Log"
                                                   : "the wheel does not scroll");
}

bool ReachEverything::isWhollyShown(const QWidget &widget) const
{
    // A control that is larger than the window shows as much of itself as there is room.
    const QSize room{content->parentWidget() != nullptr ? content->parentWidget()->size() : content->size()};
    const QRect shown{widget.visibleRegion().boundingRect()};
    const bool wide{shown.width() == widget.width() || widget.width() > room.width()};
    const bool high{shown.height() == widget.height() || widget.height() > room.height()};
    const QRect place{widget.mapToGlobal(shown.topLeft()), shown.size()};
    return !shown.isEmpty() && wide && high && window->screen()->availableGeometry().contains(place);
}

QObject *ReachEverythingPlugin::create(const QString & /*name*/, const QString & /*arguments*/)
{
    return new ReachEverything;
}
