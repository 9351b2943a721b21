// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// One device as the check uses it: opened, asked, written to, closed in any case.
#include "openeddevice.h"

#include "escaped.h"
#include "values.h"

#include <algorithm>
#include <cstddef>

using namespace device_settings;

namespace sdk_check
{

namespace
{

std::string named(const Setting &row, const Field &field, const std::string &text)
{
    const std::string name{nameOf(row, field)};
    return name.empty() ? text : name + ' ' + text;
}

void append(std::string &list, const std::string &text)
{
    list += (list.empty() ? "" : ", ") + text;
}

} // namespace

std::string faultOf(const Setting &row, const Answer &answer)
{
    if (row.resultCounts && answer.result == 0) {
        return "answers false";
    }
    if (row.resultCounts && answer.result != 1) {
        return "answers " + std::to_string(answer.result) + "; only 1 is success";
    }
    std::string faults;
    for (std::size_t place{0}; place < row.fields.size(); ++place) {
        const Field &field = row.fields[place];
        const Allowed allowed{allowedAnswer(row, field)};
        if (!allows(allowed, answer.values[place])) {
            append(faults, named(row, field,
                                 "answers " + numberText(answer.values[place]) + "; " + describe(allowed)));
        }
    }
    return faults.empty() ? objectionTo(row, answer.values) : faults;
}

std::string answerText(const Setting &row, const Answer &answer)
{
    const bool refused{answer.result == 0};
    std::string result{numberText(answer.result, Kind::Boolean) +
                       (refused && !row.resultCounts ? notExamined : "")};
    if (row.fields.empty() || (refused && row.resultCounts)) {
        return result;
    }
    std::string text;
    for (std::size_t place{0}; place < row.fields.size(); ++place) {
        const Field &field = row.fields[place];
        append(text, named(row, field, numberText(answer.values[place], field.kind)));
    }
    return refused ? result + "; " + text : text;
}

bool same(const Setting &row, const Answer &left, const Answer &right)
{
    const auto sameNumber = [](double one, double other) {
        return same(one, other);
    };
    const bool sameNumbers{std::equal(left.values.begin(), left.values.end(), right.values.begin(),
                                      right.values.end(), sameNumber)};
    return row.resultCounts ? left.result == right.result && (left.result == 0 || sameNumbers) : sameNumbers;
}

OpenedDevice::~OpenedDevice()
{
    if (device != nullptr) {
        report.timed("closeDevice", noUnit, [&] { manager->closeDevice(device); });
        report.add({Outcome::Holds, "closeDevice", noUnit, "called"});
    }
    if (manager != nullptr) {
        report.timed("releaseDeviceManager", noUnit, [&] { sdk.releaseDeviceManager(&manager); });
        report.add({Outcome::Holds, "releaseDeviceManager", noUnit, "called"});
    }
}

bool OpenedDevice::open(const std::string &port, const Setting &identity)
{
    manager = report.timed("getDeviceManager", noUnit, [&] { return sdk.getDeviceManager(); });
    if (manager == nullptr) {
        report.add({Outcome::Fails, "getDeviceManager", noUnit, "answers null"});
        return false;
    }
    report.add({Outcome::Holds, "getDeviceManager", noUnit, "a manager"});

    device = report.timed("openDevice", noUnit, [&] { return manager->openDevice(port.c_str()); });
    if (device == nullptr) {
        report.add({Outcome::Fails, "openDevice", noUnit, "answers null for the port " + escaped(port)});
        return false;
    }
    report.add({Outcome::Holds, "openDevice", noUnit, "a device on the port " + escaped(port)});
    // As in the program: the Blend Unit is addressed first, and asked who is there even if that failed.
    select(Unit::BlendUnit);
    return identify(identity);
}

bool OpenedDevice::identify(const Setting &identity)
{
    Answer answer{0, Values(1)};
    answer.result = report.timed(identity.get, noUnit, [&] { return identity.read(*device, answer.values); });
    const std::string fault{faultOf(identity, answer)};
    const bool known{fault.empty()};
    report.add({known ? Outcome::Holds : Outcome::Fails, identity.get, noUnit,
                known ? answerText(identity, answer) : fault});
    return known;
}

bool OpenedDevice::select(Unit unit)
{
    const auto target = static_cast<std::int32_t>(unit);
    const std::string name{nameOf(unit)};
    const bool selected{report.timed("setTarget", name, [&] { return device->setTarget(target); })};
    bool &before{everSelected[static_cast<std::size_t>(unit)]};
    if (!selected) {
        report.add({Outcome::Fails, "setTarget", name, "answers false, so the unit is not reached"});
    } else if (!before) {
        report.add({Outcome::Holds, "setTarget", name, "true"});
    }
    before = before || selected;
    return selected;
}

Answer OpenedDevice::read(const Setting &row, Unit unit)
{
    Answer answer{0, Values(row.fields.size())};
    answer.result = report.timed(row.get, nameOf(unit), [&] { return row.read(*device, answer.values); });
    return answer;
}

bool OpenedDevice::write(const Setting &row, Unit unit, const Values &values)
{
    return report.timed(row.set, nameOf(unit), [&] { return row.write(*device, values, regionFlags); });
}

} // namespace sdk_check
