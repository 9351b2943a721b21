// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The simulator as most of its tests want it: in power-on state, with the device open.
#include "simulatedcamera.h"

#include <string>
#include <variant>

using namespace veltrix_sdk;

namespace
{

IVeltrixSdk &powerOn(IVeltrixSdk *(*root)())
{
    veltrix_simulator::Simulator::instance().reset();
    return *root();
}

} // namespace

SimulatedCamera::SimulatedCamera(std::int32_t target, IVeltrixSdk *(*root)())
    : sdk{powerOn(root)}, configuration{*sdk.getConfiguration()}, manager{sdk.getDeviceManager()},
      device{manager->openDevice("SIM1")}
{
    device->setTarget(target);
    simulator.clearJournal();
}

QString SimulatedCamera::lastCall() const
{
    return simulator.journal().empty() ? QString{} : QString::fromStdString(simulator.journal().back().text);
}

QString unitPrefix(int target)
{
    return target == blendUnitTarget ? QStringLiteral("blendUnit.") : QStringLiteral("camera.");
}

QString toText(const veltrix_simulator::Value &value)
{
    struct
    {
        QString operator()(bool boolean) const { return boolean ? "true" : "false"; }
        QString operator()(std::int64_t integer) const { return QString::number(integer); }
        QString operator()(double number) const { return QString::number(number, 'g', 17); }
        QString operator()(const std::string &text) const { return QString::fromStdString(text); }
    } const format;
    return std::visit(format, value);
}
