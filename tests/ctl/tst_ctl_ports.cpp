// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Which port is meant where none is named, by the ports of the host and those of the library.
#include "ctlrun.h"
#include "testclass.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTest>

class CtlPortsTest : public QObject
{
    Q_OBJECT

private slots:
    void listsThem_data();
    void listsThem();
    void choosesOne_data();
    void choosesOne();
    void opensTheOneThatIsNamed();
};

namespace
{

const QString noPort{"pilotel-ctl: No port found. Plug the camera in, or name a port with --port.\n"};

/// A host with these ports, and a camera behind the ports of the scenario.
class Host : public CtlFolder
{
public:
    Host(const QString &ports, const QString &scenario)
    {
        environment.insert("LD_PRELOAD", HOST_PORTS);
        environment.insert("PILOTEL_TEST_HOST_PORTS", ports);
        play(scenario);
    }
};

const QString noPorts{"port = []\n"};
const QString with{"[[port]]\nname = \"COM7\"\n[[port]]\nname = \"COM8\"\n"};

} // namespace

void CtlPortsTest::listsThem_data()
{
    QTest::addColumn<QString>("ofHost");
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<QStringList>("ports");
    QTest::newRow("none") << "" << noPorts << QStringList{};
    QTest::newRow("the library's") << "" << with << QStringList{"COM7", "COM8"};
    QTest::newRow("the host's") << "ttyS0 ttyUSB0" << noPorts << QStringList{"ttyS0", "ttyUSB0"};
    QTest::newRow("both") << "ttyS0" << with << QStringList{"ttyS0", "COM7", "COM8"};
}

void CtlPortsTest::listsThem()
{
    QFETCH(const QString, ofHost);
    QFETCH(const QString, scenario);
    QFETCH(const QStringList, ports);
    const Outcome outcome{Host{ofHost, scenario}.run({"ports"})};
    QCOMPARE(outcome.output, lines(ports));
    QCOMPARE(outcome.errors, ports.isEmpty() ? noPort : QString{});
    QCOMPARE(outcome.status, ports.isEmpty() ? 3 : 0);
}

void CtlPortsTest::choosesOne_data()
{
    QTest::addColumn<QString>("ofHost");
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<QStringList>("opened");
    QTest::addColumn<QString>("errors");
    QTest::addColumn<int>("status");
    const auto row = [](const char *name, const char *ofHost, const QString &scenario,
                        const QStringList &opened, const QString &errors, int status) {
        QTest::newRow(name) << QString{ofHost} << scenario << opened << errors << status;
    };
    row("there is none", "", noPorts, {}, noPort, 3);
    row("there are several", "ttyS0 ttyUSB0", noPorts, {},
        "pilotel-ctl: There are several ports; name one with --port: ttyS0 ttyUSB0\n", 2);
    row("the only one of the host", "ttyS0", noPorts, {R"(openDevice("ttyS0"))"},
        "pilotel-ctl: No device opens on the port ttyS0. Is it the right one, and does no other program hold it?\n",
        3);
    row("the first one of the library", "", with, {R"(openDevice("COM7"))"}, {}, 0);
    row("that goes before the host's", "ttyS0 ttyUSB0", with, {R"(openDevice("COM7"))"}, {}, 0);
}

void CtlPortsTest::choosesOne()
{
    QFETCH(const QString, ofHost);
    QFETCH(const QString, scenario);
    QFETCH(const QStringList, opened);
    QFETCH(const QString, errors);
    QFETCH(const int, status);
    Host host{ofHost, scenario};
    const Outcome outcome{host.run({"get", "camera.clhe"})};
    QCOMPARE(outcome.errors, errors);
    QCOMPARE(outcome.output, status == 0 ? "camera.clhe = 2000\n" : QString{});
    QCOMPARE(outcome.status, status);
    QCOMPARE(host.calls().filter("openDevice"), opened);
}

void CtlPortsTest::opensTheOneThatIsNamed()
{
    Host host{"ttyS0 ttyUSB0", with};
    const Outcome outcome{host.run({"--port", "COM8", "get", "camera.clhe"})};
    QCOMPARE(outcome.errors, QString{});
    QCOMPARE(outcome.output, QString{"camera.clhe = 2000\n"});
    QCOMPARE(host.calls().filter("openDevice"), QStringList{R"(openDevice("COM8"))"});
}

PILOTEL_TEST_CLASS(CtlPortsTest)
#include "tst_ctl_ports.moc"
