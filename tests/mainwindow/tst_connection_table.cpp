// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The connections of the window, held against the table of them.
#include "boxpresser.h"
#include "form_fixture.h"
#include "panel.h"
#include "testclass.h"
#include "testwindow.h"

#include <QMetaMethod>
#include <QPlainTextEdit>
#include <QTest>

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

/// A row for senders that share a signal; the slots stand in the senders' order.
void add(std::vector<Connection> &table, const char *senders, const char *signal, const char *handlers,
         const QVariant &fired = {})
{
    const QStringList senderNames{QString::fromLatin1(senders).split(QLatin1Char{' '})};
    const QStringList slotNames{QString::fromLatin1(handlers).split(QLatin1Char{' '})};
    for (int place{0}; place < senderNames.size(); ++place) {
        table.push_back({senderNames[place], signal, slotNames[qMin(place, slotNames.size() - 1)], fired});
    }
}

std::vector<Connection> connectionTable()
{
    std::vector<Connection> table;
    const auto row = [&](const char *senders, const char *signal, const char *handlers,
                         const QVariant &fired = {}) {
        add(table, senders, signal, handlers, fired);
    };
    row("Principal_tab", "currentChanged(int)", "targetChanged", 1);

    row("gammaSlider clheSlider sharpeningGainSlider SharpeningTHSlider AhcBlackGainLimSlider "
        "AhcWhiteGainLimSlider TempoFilterSlider gskSlider gfidSlider gmsSlider tintSlider",
        "valueChanged(int)",
        "GammaUserSliderChanged ClheUserSliderChanged SharpeningUserSliderChanged SharpeningTHSliderChanged "
        "AhcBlackGainlimSliderChanged AhcWhiteGainlimSliderChanged TempoFilterSliderChanged "
        "GSKExpertSliderChanged GFIDExpertSliderChanged GMSExpertSliderChanged TINTExpertSliderChanged",
        3);
    const char *const sends{
        "gammaUserSendCommand clheSendCommand sharpeningSendCommand sharpeningSendCommand ahcGainSendCommand "
        "ahcGainSendCommand tempoFilterSendCommand gskSendCommand gfiSendCommand gmsSendCommand "
        "tintSendCommand"};
    row("gammaSlider clheSlider sharpeningGainSlider SharpeningTHSlider AhcBlackGainLimSlider "
        "AhcWhiteGainLimSlider TempoFilterSlider gskSlider gfidSlider gmsSlider tintSlider",
        "sliderReleased()", sends);
    row("gammaEdit clheEdit sharpeningGainEdit SharpeningTHEdit", "valueChanged(double)",
        "GammaUserValueChanged ClheUserValueChanged SharpeningUserValueChanged SharpeningTHValueChanged",
        1.5);
    row("AhcBlackGainLimSpin AhcWhiteGainLimSpin TempoFilterSpin", "valueChanged(int)",
        "AhcBlackGainLimSpinValueChanged AhcWhiteGainLimSpinValueChanged TempoFiltSpinValueChanged", 4);
    row("gskEdit gfidEdit gmsEdit tintEdit", "valueChanged(double)",
        "GSKExpertValueChanged GFIDExpertValueChanged GMSExpertValueChanged TINTExpertValueChanged", 1.0);

    // The number of the region is the connection's own.
    const char *const corners{"x1RoiUserValueChanged(%1) x2RoiUserValueChanged(%1) "
                              "y1RoiUserValueChanged(%1) y2RoiUserValueChanged(%1)"};
    int region{0};
    for (const char *const boxes : {"Roi0Inc", "Roi1Inc", "Roi0Exc", "Roi1Exc"}) {
        const QString senders{QStringLiteral("%1X1 %1X2 %1Y1 %1Y2").arg(QString::fromLatin1(boxes))};
        const QString handlers{QString::fromLatin1(corners).arg(region++)};
        row(qPrintable(senders), "editingFinished()", qPrintable(handlers));
    }

    // factorZoomEdit, valueChanged(int), zoomChanged(): neither of the two exists, nothing is connected.

    row("gammaEdit clheEdit sharpeningGainEdit SharpeningTHEdit AhcBlackGainLimSpin AhcWhiteGainLimSpin "
        "TempoFilterSpin gskEdit gfidEdit gmsEdit tintEdit",
        "editingFinished()", sends);

    row("resetParamButtonUser", "clicked(bool)", "ResetParamsUser", false);
    row("readParamButtonUser", "clicked(bool)", "readAllParameters", false);
    row("readParamButtonExpert", "clicked(bool)", "readParamsExpert", false);
    row("scanDeviceButton connectDeviceButton disconnectDeviceButton", "clicked(bool)",
        "scanDevice connectDevice disconnectDevice", false);
    row("PermanentButton", "clicked(bool)", "changePermanentButtonText", false);
    row("AboutButton", "clicked(bool)", "createAboutWindow", false);
    row("clearLogButton", "clicked(bool)", "logView.clear", false);
    row("saveParamButtonUser", "clicked(bool)", "saveBlendUnitUserClicked", false);
    row("ColumnCorrectionButton VignettingCorrectionButton sdiOutputButton parallelOutputButton "
        "mipiOutputButton polarityButton horizontalFlipButton",
        "clicked(bool)",
        "columnCorrectionClicked vignettingCorrectionClicked sdiOutputClicked parallelOutputClicked "
        "mipiOutputClicked polarityClicked horizontalFlipClicked",
        false);
    row("configureZoomButton FusionConfigureZoomPB", "clicked(bool)", "configureZoomClicked", false);
    row("readBPRTableButton writeBPRTableButton", "clicked(bool)", "readBprTableClicked writeBprTableClicked",
        false);
    row("addBadPixelButton addBadPixelLineButton addBadPixelColumnButton removeBadPixelButton "
        "removeBadPixelLineButton removeBadPixelColumnButton",
        "clicked(bool)",
        "addBadPixelClicked addBadPixelLineClicked addBadPixelColumnClicked removeBadPixelClicked "
        "removeBadPixelLineClicked removeBadPixelColumnClicked",
        false);
    row("BU_IR_MODE_PB BU_VISIBLE_MODE_PB BU_FUSION_MODE_PB", "clicked(bool)",
        "irModeClicked visibleModeClicked fusionModeClicked", false);
    row("FusionWarpPB", "clicked(bool)", "fusionWarpClicked", false);
    row("saveParamFactoryPB", "clicked(bool)", "saveBlendUnitExpertClicked", false);

    row("roi1IncEnable roi0ExcEnable roi1ExcEnable", "stateChanged(int)",
        "roi1IncCheck roi0ExcCheck roi1ExcCheck", 0);
    // The state and not the click: a read that changes the box sends the value back.
    row("gainCheckBox BPRCheckBox offsetCheckBox", "stateChanged(int)",
        "gainControlChanged bprControlChanged offsetControlChanged", 0);

    row("BaudRateConnectCB", "currentIndexChanged(int)", "ChangeBaudRate", 0);
    row("VideoOutputCB frameRateCB contrastTypeEdit lutColorEdit EdgeCorrectionCB",
        "currentIndexChanged(int)",
        "videoOutputChanged frameRateChanged contrastTypeChanged colorLutChanged edgeCorrectionChanged", 0);
    row("methodZoomEdit", "currentIndexChanged(int)", "configureZoomClicked", 0);
    row("FusionWarpCB", "currentIndexChanged(int)", "readFusionParamsExpert", 0);
    row("startingModeCB", "currentIndexChanged(int)", "startingModeChanged", 0);
    row("BaudRateCB", "currentIndexChanged(int)", "krBaudRateChanged", 0);

    row("VisAgcTargetSB VisAgcTHSB VisAgcCoeffSB", "editingFinished()", "visibleAgcChanged");
    row("VisClheTHSB VisClheCoeffSB", "editingFinished()", "visibleClheChanged");
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
    TestWindow test;
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
