// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How the oracle follows the journal, and what has to happen when the window connects and disconnects.
#include "oracle.h"

#include <QLatin1Char>
#include <QLatin1String>
#include <QRegularExpression>
#include <QString>

#include <cstdint>
#include <string>
#include <utility>

using veltrix_simulator::Call;
using veltrix_simulator::Interface;
using veltrix_simulator::Simulator;
using veltrix_simulator::Value;

namespace
{

/// Splits `name(arguments) -> result {field=1}`.
Answer answerOf(const QString &text)
{
    Answer answer;
    const int arrow{text.indexOf(QStringLiteral(") -> "))};
    if (arrow < 0) {
        return answer;
    }
    QString rest{text.mid(arrow + 5)};
    const int brace{rest.indexOf(QLatin1Char{'{'})};
    if (brace >= 0) {
        const QString fields{rest.mid(brace + 1).chopped(1)};
        for (const QString &field : fields.split(QStringLiteral(", "))) {
            answer.fields[field.section(QLatin1Char{'='}, 0, 0)] =
                field.section(QLatin1Char{'='}, 1).toDouble();
        }
        rest.truncate(brace);
    }
    answer.text = rest.trimmed();
    return answer;
}

QString textOf(const Call &call)
{
    return QString::fromStdString(call.text);
}

QString recordOf(QString line)
{
    line.replace(QLatin1Char{'\\'}, QStringLiteral("\\\\"))
        .replace(QLatin1Char{'"'}, QStringLiteral("\\\""))
        .replace(QLatin1Char{'\n'}, QStringLiteral("\\n"));
    return QStringLiteral("log(2, \"") + line + QStringLiteral("\")");
}

double configurationWord(const QString &setting, const char *what)
{
    const std::string key{"configuration." + setting.toStdString() + what};
    return static_cast<double>(std::get<std::int64_t>(Simulator::instance().get(key)));
}

} // namespace

Oracle::Oracle(std::vector<Call> journal, Panel shown, Session session)
    : controls{std::move(shown)}, current{session}
{
    for (Call &call : journal) {
        if (call.operation == "get_instance") {
            continue;
        }
        const bool isDefault{call.interface == Interface::Configuration &&
                             call.operation.compare(0, 10, "getDefault") == 0};
        if (isDefault) {
            defaults[QString::fromStdString(call.operation)].append(textOf(call));
        } else {
            steps.push_back(std::move(call));
        }
    }
}

QString Oracle::divergence()
{
    if (broken.isEmpty() && position < steps.size()) {
        broken = QStringLiteral("nothing was to follow, but there came ") + textOf(steps[position]);
    }
    if (broken.isEmpty() && !defaults.isEmpty()) {
        broken = QStringLiteral("nobody was to ask ") + defaults.keys().join(QStringLiteral(", "));
    }
    return broken;
}

const Call *Oracle::next(const QString &wanted)
{
    if (!broken.isEmpty()) {
        return nullptr;
    }
    const QString came{position < steps.size() ? textOf(steps[position]) : QStringLiteral("nothing")};
    const QString rest{came.mid(wanted.size())};
    if (!came.startsWith(wanted) || !(rest.isEmpty() || rest.startsWith(QStringLiteral(" -> ")))) {
        broken = QStringLiteral("step %1: %2 was promised, there came %3").arg(position).arg(wanted, came);
        return nullptr;
    }
    return &steps[position++];
}

Answer Oracle::call(const QString &text)
{
    const Call *const made{next(text)};
    return made != nullptr ? answerOf(textOf(*made)) : Answer{};
}

void Oracle::line(const QString &text)
{
    next(recordOf(text));
    logLines.append(text.split(QLatin1Char{'\n'}));
}

void Oracle::box(const QString &title, const QString &text)
{
    shownBoxes.append(QStringLiteral("window icon \"%1\" \"%2\" [OK]").arg(title, text));
}

void Oracle::warningBox(const QString &text)
{
    shownBoxes.append(QStringLiteral("warning \"\" \"%1\" [OK]").arg(text));
}

Answer Oracle::byDefault(const QString &operation)
{
    const QStringList calls{defaults.take(operation)};
    if (calls.size() != 1 && broken.isEmpty()) {
        broken = QStringLiteral("%1 was asked %2 times").arg(operation).arg(calls.size());
    }
    return answerOf(calls.value(0));
}

// Connection

void Oracle::connectDevice()
{
    if (!openCommunication()) {
        box(QStringLiteral("Invalid communication"), QStringLiteral("Select an other serial port"));
        return;
    }
    targetChanged(0);
    const Answer identity{call(QStringLiteral("connect()"))};
    if (identity.number() != 1 || identity["identity"] != 21) {
        line(QStringLiteral("No camera connected"));
        disconnectDevice();
        return;
    }
    if (readAllParameters()) {
        setConnected(true);
    }
    takeRanges();
    fetchConfiguration();
    if (call(QStringLiteral("isExpertMode()")).isOk()) {
        readParamsExpert();
    }
}

bool Oracle::openCommunication()
{
    if (current.deviceOpen) {
        disconnectDevice();
    }
    returnDevice();
    fetchConfiguration();
    if (call(QStringLiteral("getCommunicationType()")).text != QStringLiteral("\"UART\"")) {
        return false;
    }
    line(QStringLiteral("ALTERNATIVE SERIAL PORT : SIM1"));
    current.managerHeld = call(QStringLiteral("getDeviceManager()")).text == QStringLiteral("manager");
    current.deviceOpen =
        current.managerHeld && call(QStringLiteral("openDevice(\"SIM1\")")).text == QStringLiteral("device");
    return current.deviceOpen;
}

void Oracle::returnDevice()
{
    if (current.deviceOpen) {
        call(QStringLiteral("closeDevice(device)"));
    }
    if (current.managerHeld) {
        call(QStringLiteral("releaseDeviceManager(manager)"));
    }
    current.deviceOpen = false;
    current.managerHeld = false;
}

void Oracle::disconnectDevice()
{
    returnDevice();
    setConnected(false);
}

void Oracle::setConnected(bool connected)
{
    for (const char *const name : {"scanDeviceButton", "selectDeviceComboBox", "connectDeviceButton"}) {
        controls.enable(QLatin1String{name}, !connected);
    }
    for (const char *const name : {"paramSection", "disconnectDeviceButton", "resetParamButtonUser",
                                   "readParamButtonUser", "saveParamButtonUser"}) {
        controls.enable(QLatin1String{name}, connected);
    }
}

void Oracle::takeRanges()
{
    fetchConfiguration();
    for (const char *const name : {"gsk", "gfid", "gms", "tint"}) {
        const QString setting{QLatin1String{name}};
        const QString slider{setting + QStringLiteral("Slider")};
        const QString spinBox{setting + QStringLiteral("Edit")};
        const double minimum{configurationWord(setting, "Minimum")};
        const double maximum{configurationWord(setting, "Maximum")};
        const double standard{configurationWord(setting, "Default")};
        controls.setRange(slider, minimum, maximum);
        controls.setSingleStep(slider, 1);
        controls.enable(slider, true);
        controls.set(slider, standard);
        if (setting != QStringLiteral("gms")) {
            controls.setRange(spinBox, minimum, maximum);
        }
        controls.set(spinBox, standard);
        controls.setSingleStep(spinBox, 1);
    }
}

bool Oracle::readAllParameters()
{
    const int page{controls.index(QStringLiteral("Principal_tab"))};
    targetChanged(0);
    if (!readBlendUnit()) {
        return false;
    }
    targetChanged(1);
    const bool complete{readCamera()};
    targetChanged(page);
    return complete;
}

void Oracle::readParamsExpert()
{
    const int page{controls.index(QStringLiteral("Principal_tab"))};
    targetChanged(0);
    readWarp();
    targetChanged(1);
    readExpert();
    targetChanged(page);
}

void Oracle::showPage(int page)
{
    controls.turnTo(QStringLiteral("Principal_tab"), page);
    targetChanged(page);
}

void Oracle::targetChanged(int target)
{
    current.lastCommandOk = call(QStringLiteral("setTarget(%1)").arg(target)).isOk();
    if (current.lastCommandOk) {
        readTemperatures(target);
    }
    line(current.lastCommandOk ? QStringLiteral("target correctly changed")
                               : QStringLiteral("Could not changed target"));
}

void Oracle::readTemperatures(int unit)
{
    const Answer answer{call(QStringLiteral("getTemperatures()"))};
    const auto celsius = [&](const char *field) {
        const float millikelvin{static_cast<float>(answer[field])};
        const float degrees{(millikelvin - 273000.F) / 1000.F};
        return QString::number(static_cast<double>(degrees), 'g', 6) + QLatin1Char{'C'};
    };
    if (unit == 0) {
        controls.show(QStringLiteral("FusionFpgaTempTextEdit"), celsius("fpgaMillikelvin"));
    } else if (unit == 1) {
        controls.show(QStringLiteral("FpgaTempTextEdit"), celsius("fpgaMillikelvin"));
        controls.show(QStringLiteral("SensorTempTextEdit"), celsius("sensorMillikelvin"));
    }
}

void Oracle::comError()
{
    box(QStringLiteral("Camera not connected"), QStringLiteral("Unable to connect to SIM1"));
    line(QStringLiteral("End Read camera parameters : COM Error"));
}
