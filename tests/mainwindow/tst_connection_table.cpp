// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The connections of the window, held against the table of them.
#include "boxpresser.h"
#include "controls.h"
#include "form_fixture.h"
#include "panel.h"
#include "testclass.h"
#include "testwindow.h"

#include <QAbstractButton>
#include <QByteArray>
#include <QLatin1Char>
#include <QMap>
#include <QMetaMethod>
#include <QMetaType>
#include <QObject>
#include <QPlainTextEdit>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVariant>
#include <QWidget>

#include <cstddef>
#include <functional>
#include <vector>

using veltrix_simulator::Simulator;

namespace
{

/// One connection: whose signal, which, and what runs then. The slot stands with the arguments that the
/// signal is fired with, or that the connection itself puts in.
struct Connection
{
    QString sender;
    const char *signal;
    QString slot;
    QVariant fired; ///< What the signal carries when it is fired; invalid when it carries nothing.
};

std::vector<Connection> connectionTable()
{
    std::vector<Connection> table;
    const auto row = [&](const QString &sender, const char *signal, const QString &slot,
                         const QVariant &fired = {}) {
        table.push_back({sender, signal, slot, fired});
    };
    row("Principal_tab", "currentChanged(int)", "targetChanged", 1);

    for (const Pair &pair : pairs) {
        row(pair.slider, "valueChanged(int)", pair.sliderSlot, 3);
        row(pair.slider, "sliderReleased()", pair.sendSlot);
        if (pair.decimalBox) {
            row(pair.box, "valueChanged(double)", pair.boxSlot, pair.lowest + 1.0);
        } else {
            row(pair.box, "valueChanged(int)", pair.boxSlot, 4);
        }
        row(pair.box, "editingFinished()", pair.sendSlot);
    }

    // The number of the region is the connection's own.
    for (const RegionRow &region : regionRows) {
        for (const char *const coordinate : {"X1", "X2", "Y1", "Y2"}) {
            const QString handler{QString::fromLatin1(coordinate).toLower() +
                                  QStringLiteral("RoiUserValueChanged(%1)").arg(region.number)};
            row(QString::fromLatin1(region.boxes) + QString::fromLatin1(coordinate), "editingFinished()",
                handler);
        }
        if (region.enable != nullptr) {
            row(region.enable, "stateChanged(int)", region.enableSlot, 0);
        }
    }

    // factorZoomEdit, valueChanged(int), zoomChanged(): neither of the two exists, nothing is connected.

    row("resetParamButtonUser", "clicked(bool)", "ResetParamsUser", false);
    row("readParamButtonUser", "clicked(bool)", "readAllParameters", false);
    row("readParamButtonExpert", "clicked(bool)", "readParamsExpert", false);
    row("scanDeviceButton", "clicked(bool)", "scanDevice", false);
    row("connectDeviceButton", "clicked(bool)", "connectDevice", false);
    row("disconnectDeviceButton", "clicked(bool)", "disconnectDevice", false);
    row("PermanentButton", "clicked(bool)", "changePermanentButtonText", false);
    row("AboutButton", "clicked(bool)", "createAboutWindow", false);
    row("clearLogButton", "clicked(bool)", "logView.clear", false);
    row("saveParamButtonUser", "clicked(bool)", "saveBlendUnitUserClicked", false);
    for (const ToggleRow &toggle : toggleRows) {
        row(toggle.button, "clicked(bool)", toggle.slot, false);
    }
    row("configureZoomButton", "clicked(bool)", "configureZoomClicked", false);
    row("FusionConfigureZoomPB", "clicked(bool)", "configureZoomClicked", false);
    row("readBPRTableButton", "clicked(bool)", "readBprTableClicked", false);
    row("writeBPRTableButton", "clicked(bool)", "writeBprTableClicked", false);
    row("addBadPixelButton", "clicked(bool)", "addBadPixelClicked", false);
    row("addBadPixelLineButton", "clicked(bool)", "addBadPixelLineClicked", false);
    row("addBadPixelColumnButton", "clicked(bool)", "addBadPixelColumnClicked", false);
    row("removeBadPixelButton", "clicked(bool)", "removeBadPixelClicked", false);
    row("removeBadPixelLineButton", "clicked(bool)", "removeBadPixelLineClicked", false);
    row("removeBadPixelColumnButton", "clicked(bool)", "removeBadPixelColumnClicked", false);
    for (const VideoModeRow &mode : videoModeRows) {
        row(mode.button, "clicked(bool)", mode.slot, false);
    }
    row("FusionWarpPB", "clicked(bool)", "fusionWarpClicked", false);
    row("saveParamFactoryPB", "clicked(bool)", "saveBlendUnitExpertClicked", false);

    for (const CorrectionRow &correction : correctionRows) {
        // The state and not the click: a read that changes the box sends the value back.
        if (correction.slot != nullptr) {
            row(correction.checkBox, "stateChanged(int)", correction.slot, 0);
        }
    }

    row("BaudRateConnectCB", "currentIndexChanged(int)", "ChangeBaudRate", 0);
    for (const ChoiceRow &choice : choiceRows) {
        row(choice.comboBox, "currentIndexChanged(int)", choice.slot, 0);
    }
    row("methodZoomEdit", "currentIndexChanged(int)", "configureZoomClicked", 0);
    row("FusionWarpCB", "currentIndexChanged(int)", "readFusionParamsExpert", 0);
    row("startingModeCB", "currentIndexChanged(int)", "startingModeChanged", 0);
    row("BaudRateCB", "currentIndexChanged(int)", "krBaudRateChanged", 0);

    for (const BoxRow &single : boxRows) {
        row(single.box, "editingFinished()", single.sendSlot);
    }
    return table;
}

/// Handlers that do the same to the device and to the window, so that no effect tells them apart: the edge
/// correction is sent whole, whichever of its controls was changed.
const QStringList alike{QStringLiteral("sharpeningSendCommand()"), QStringLiteral("edgeCorrectionChanged()")};

/// How many slots listen to a signal: QObject's own count, which only derived classes may ask for.
int receivers(const QObject &object, const QByteArray &signal)
{
    struct Access : QObject
    {
        using QObject::receivers;
    };
    int (QObject::*const count)(const char *) const {&Access::receivers};
    // The code that the macro SIGNAL puts in front.
    return (object.*count)('2' + signal);
}

/// For every signal of every named object: how many slots listen to it.
QMap<QString, int> receiverCounts(const QObject &window)
{
    QMap<QString, int> counts;
    for (const QObject *const object : window.findChildren<QObject *>()) {
        const QString name{object->objectName()};
        if (name.isEmpty() || name.startsWith(QStringLiteral("qt_"))) {
            continue;
        }
        const QMetaObject &type{*object->metaObject()};
        for (int index{0}; index < type.methodCount(); ++index) {
            const QMetaMethod method{type.method(index)};
            const bool isCounted{method.methodType() == QMetaMethod::Signal &&
                                 (method.attributes() & QMetaMethod::Cloned) == 0};
            if (isCounted) {
                const QByteArray signature{method.methodSignature()};
                counts[name + QLatin1Char{' '} + QString::fromLatin1(signature)] =
                    receivers(*object, signature);
            }
        }
    }
    return counts;
}

/// Invokes a method by its name, with the argument if it is valid.
bool invoke(QObject &object, const QByteArray &name, const QVariant &argument = {})
{
    switch (argument.userType()) {
    case QMetaType::UnknownType:
        return QMetaObject::invokeMethod(&object, name.constData());
    case QMetaType::Bool:
        return QMetaObject::invokeMethod(&object, name.constData(), Q_ARG(bool, argument.toBool()));
    case QMetaType::Int:
        return QMetaObject::invokeMethod(&object, name.constData(), Q_ARG(int, argument.toInt()));
    default:
        return QMetaObject::invokeMethod(&object, name.constData(), Q_ARG(double, argument.toDouble()));
    }
}

/// The effect of something on a connected window in which every handler has something to do: the calls and
/// records of the SDK, the boxes and the changes of the window. While it happens only the given sender emits.
QStringList effectOf(const QString &sender, const std::function<void(TestWindow &)> &act)
{
    TestWindow test{{}, TestWindow::Drawing::Off};
    const BoxPresser presser{test.boxes};
    test.beConnected();
    // A different list of ports to scan, a button whose text is out of date, corners in the wrong order.
    test.simulator.setPorts({"SIM1", "SIM2"});
    test.child<QAbstractButton>(QStringLiteral("PermanentButton")).setChecked(true);
    for (const char *const name : {"Roi0IncX1", "Roi0IncY1", "Roi1IncX1", "Roi1IncY1", "Roi0ExcX1",
                                   "Roi0ExcY1", "Roi1ExcX1", "Roi1ExcY1"}) {
        test.child<QWidget>(QString::fromLatin1(name)).setProperty("value", 600);
    }
    for (QWidget *const widget : test.window().findChildren<QWidget *>()) {
        const bool emitsValues{widget->inherits("QAbstractSlider") || widget->inherits("QAbstractSpinBox") ||
                               widget->inherits("QComboBox") || widget->inherits("QCheckBox") ||
                               widget->inherits("QTabWidget")};
        if (emitsValues && !widget->objectName().isEmpty() && widget->objectName() != sender) {
            widget->blockSignals(true);
        }
    }
    const Panel before{panelOf(test.window())};

    act(test);

    const QString log{test.child<QPlainTextEdit>(QStringLiteral("logView")).toPlainText()};
    return test.takeCallsAndRecords() + test.boxes.takeShown() + differences(before, panelOf(test.window())) +
           QStringList{QString::number(log.count(QLatin1Char{'\n'}))};
}

QStringList effectOfFiring(const Connection &connection)
{
    return effectOf(connection.sender, [&](TestWindow &test) {
        const QByteArray signal{connection.signal};
        QVERIFY(invoke(test.child<QObject>(connection.sender), signal.left(signal.indexOf('(')),
                       connection.fired));
    });
}

/// The handler with its arguments, as it is compared: `targetChanged(1)`.
QString calledSlot(const Connection &connection)
{
    if (connection.slot.endsWith(QLatin1Char{')'})) {
        return connection.slot;
    }
    const bool takesValue{connection.fired.isValid() &&
                          (connection.slot == QStringLiteral("targetChanged") ||
                           QByteArray{connection.signal}.startsWith("valueChanged"))};
    return connection.slot + QLatin1Char{'('} + (takesValue ? connection.fired.toString() : QString{}) +
           QLatin1Char{')'};
}

QStringList effectOfCalling(const Connection &connection)
{
    return effectOf(connection.sender, [&](TestWindow &test) {
        const QString slot{calledSlot(connection)};
        const QByteArray name{slot.section(QLatin1Char{'('}, 0, 0).toLatin1()};
        const QString argument{slot.section(QLatin1Char{'('}, 1).chopped(1)};
        if (name == "logView.clear") {
            QVERIFY(invoke(test.child<QObject>(QStringLiteral("logView")), "clear"));
        } else if (argument.isEmpty()) {
            QVERIFY(invoke(test.window(), name));
        } else {
            const bool isRegion{!connection.fired.isValid()};
            QVERIFY(invoke(test.window(), name, isRegion ? QVariant{argument.toInt()} : connection.fired));
        }
    });
}

} // namespace

class ConnectionTableTest : public QObject
{
    Q_OBJECT

private slots:
    void connectionsAreThoseOfTheTable();
    void signalsReachTheirHandlers_data();
    void signalsReachTheirHandlers();
    void handlersAreToldApart();
};

void ConnectionTableTest::connectionsAreThoseOfTheTable()
{
    // The same form without the program's wiring: what Qt connects among a widget's own parts.
    const MainForm bare;
    QMap<QString, int> expected{receiverCounts(bare.window)};
    for (const Connection &connection : connectionTable()) {
        const QString key{connection.sender + QLatin1Char{' '} + QString::fromLatin1(connection.signal)};
        QVERIFY2(expected.contains(key), qPrintable(key));
        ++expected[key];
    }

    WarningWatcher warnings;
    Simulator::instance().reset();
    const MainWindow window;
    const QMap<QString, int> found{receiverCounts(window)};
    QCOMPARE(warnings.take().size(), 3); // The zoom factor's.

    QStringList unlike;
    for (const QString &key : expected.keys() + found.keys()) {
        if (expected.value(key, -1) != found.value(key, -1) && !unlike.contains(key)) {
            unlike.append(key);
        }
    }
    QCOMPARE(unlike, QStringList{});
    qInfo("%d connections, %d signals of named objects", static_cast<int>(connectionTable().size()),
          found.size());
}

void ConnectionTableTest::signalsReachTheirHandlers_data()
{
    QTest::addColumn<int>("place");
    int place{0};
    for (const Connection &connection : connectionTable()) {
        QTest::addRow("%s, %s: %s", qPrintable(connection.sender), connection.signal,
                      qPrintable(calledSlot(connection)))
            << place++;
    }
}

void ConnectionTableTest::signalsReachTheirHandlers()
{
    QFETCH(int, place);
    const Connection connection{connectionTable()[static_cast<std::size_t>(place)]};

    const QStringList fired{effectOfFiring(connection)};
    QCOMPARE(fired, effectOfCalling(connection));
    QVERIFY2(fired != effectOf(connection.sender, [](TestWindow & /*test*/) {}), "it had no effect");
}

void ConnectionTableTest::handlersAreToldApart()
{
    QMap<QStringList, QString> handlers;
    for (const Connection &connection : connectionTable()) {
        const QString slot{calledSlot(connection)};
        const QStringList effect{effectOfCalling(connection)};
        const QString other{handlers.value(effect, slot)};
        const bool isApart{other == slot || (alike.contains(slot) && alike.contains(other))};
        QVERIFY2(isApart, qPrintable(slot + QStringLiteral(" does what does ") + other));
        handlers[effect] = slot;
    }
}

PILOTEL_TEST_CLASS(ConnectionTableTest)
#include "tst_connection_table.moc"
