// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reads a scenario file.
#include "scenarios/scenarioreader.h"

#include "faults/faultrule.h"
#include "output/wording.h"
#include "recordings/player.h"
#include "scenarios/entry.h"
#include "scenarios/faultreader.h"
#include "scenarios/limits.h"
#include "scenarios/statereader.h"
#include "scenarios/tomltext.h"
#include "time/life.h"
#include "time/link.h"
#include "units/port.h"
#include "units/unitnames.h"
#include "values/value.h"
#include "veltrix_sdk/numbers.h"
#include "veltrix_simulator/simulator.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

namespace veltrix_simulator
{
namespace
{

constexpr std::string_view fixedLink{"fixed"};
constexpr std::string_view serialLink{"serial"};
constexpr Choice<Link::Kind> linkKinds[]{
    {Link::Kind::None, "none"},
    {Link::Kind::Fixed, fixedLink},
    {Link::Kind::Serial, serialLink},
    {Link::Kind::Recorded, "recorded"},
};

const std::vector<Belonging> &linkBelongings()
{
    static const std::vector<Belonging> list{
        {"millisecondsPerCall", fixedLink}, {"bytesPerCommand", serialLink},
        {"baudRate", serialLink},           {"thinkTimeMilliseconds", serialLink},
        {"jitterMilliseconds", fixedLink},  {"jitterMilliseconds", serialLink}};
    return list;
}

constexpr Setting<Link> linkSettings[]{
    {"kind",
     [](const Entry &entry, Link &link) {
         link.kind = chosen(entry, linkKinds);
     }},
    {"millisecondsPerCall",
     [](const Entry &entry, Link &link) {
         link.perCall = entry.milliseconds(0, longestPart);
     }},
    {"bytesPerCommand",
     [](const Entry &entry, Link &link) {
         link.bytesPerCommand = static_cast<std::uint32_t>(entry.integer(1, 1024));
     }},
    {"baudRate",
     [](const Entry &entry, Link &link) {
         link.baudRate = static_cast<std::int32_t>(entry.integer(1200, 921600));
     }},
    {"thinkTimeMilliseconds",
     [](const Entry &entry, Link &link) {
         link.thinkTime = entry.milliseconds(0, longestPart);
     }},
    {"jitterMilliseconds",
     [](const Entry &entry, Link &link) {
         link.jitter = entry.milliseconds(0, longestPart);
     }},
};

Link readLink(const Entry &entry)
{
    Link link;
    readTable(entry, linkSettings, link);
    entry.demandOneOf({"kind"});
    entry.refuseStrangers("kind", linkBelongings());
    if (link.kind == Link::Kind::Fixed) {
        entry.demandOneOf({"millisecondsPerCall"});
    }
    return link;
}

constexpr Choice<Port::Opening> portOpenings[]{
    {Port::Opening::Opens, "opens"},
    {Port::Opening::Refused, "refused"},
    {Port::Opening::Silent, "silent"},
};

constexpr Setting<Port> portSettings[]{
    {"name",
     [](const Entry &entry, Port &port) {
         port.name = entry.text();
     }},
    {"opening",
     [](const Entry &entry, Port &port) {
         port.opening = chosen(entry, portOpenings);
     }},
    {"delayMilliseconds",
     [](const Entry &entry, Port &port) {
         port.delay = entry.milliseconds(0, longestOpening);
     }},
};

/// The tables of a list such as `[[port]]`.
std::vector<Entry> tablesOf(const Entry &list)
{
    if (!list.isList()) {
        list.fail("is a list of tables, so each is headed [[" + list.keyPath() + "]]");
    }
    std::vector<Entry> tables = list.elements();
    if (tables.size() > mostEntries) {
        tables[mostEntries].fail("stands here more than " + std::to_string(mostEntries) + " times");
    }
    return tables;
}

void readPorts(const Entry &list, std::vector<Port> &ports)
{
    ports.clear();
    for (const Entry &entry : tablesOf(list)) {
        Port port;
        readTable(entry, portSettings, port);
        entry.demandOneOf({"name"});
        if (std::any_of(ports.begin(), ports.end(),
                        [&](const Port &other) { return other.name == port.name; })) {
            entry.find("name")->fail("stands here twice: " + inQuotes(port.name));
        }
        ports.push_back(std::move(port));
    }
}

constexpr Setting<Drift> driftSettings[]{
    {"key",
     [](const Entry &entry, Drift &drift) {
         kindOfNumber(entry);
         drift.key = entry.text();
     }},
    {"end",
     [](const Entry &entry, Drift &drift) {
         drift.end = entry.number(-largestNumber, largestNumber);
     }},
    {"halfTimeSeconds",
     [](const Entry &entry, Drift &drift) {
         drift.halfTime = entry.seconds(0.001, tenYears);
     }},
};

/// A value has at most one drift or one counter; two would work against each other.
void refuseSecondLife(const Entry &key, const Life &life)
{
    const auto livesBy = [name = key.text()](const auto &each) {
        return each.key == name;
    };
    if (std::any_of(life.drifts.begin(), life.drifts.end(), livesBy) ||
        std::any_of(life.counters.begin(), life.counters.end(), livesBy)) {
        key.fail("drifts or counts already: " + inQuotes(key.text()));
    }
}

void readDrift(const Entry &entry, Life &life)
{
    Drift drift;
    readTable(entry, driftSettings, drift);
    for (const auto &setting : driftSettings) {
        entry.demandOneOf({std::string{setting.key}});
    }
    const Kind kind{kindOfNumber(*entry.find("key"))};
    refuseSecondLife(*entry.find("key"), life);
    const Entry end = *entry.find("end");
    const std::optional<Value> value = convert(*end.value(), kind);
    if (!value) {
        end.fail("takes " + std::string{describe(kind)});
    }
    drift.end = toNumber(*value);
    life.drifts.push_back(std::move(drift));
}

constexpr Setting<Counter> counterSettings[]{
    {"key",
     [](const Entry &entry, Counter &counter) {
         kindOfNumber(entry);
         counter.key = entry.text();
     }},
    {"intervalSeconds",
     [](const Entry &entry, Counter &counter) {
         counter.interval = entry.seconds(0.001, tenYears);
     }},
};

void readCounter(const Entry &entry, Life &life)
{
    Counter counter;
    readTable(entry, counterSettings, counter);
    for (const auto &setting : counterSettings) {
        entry.demandOneOf({std::string{setting.key}});
    }
    refuseSecondLife(*entry.find("key"), life);
    life.counters.push_back(std::move(counter));
}

constexpr Setting<Life> lifeSettings[]{
    {"millisecondsPerCall",
     [](const Entry &entry, Life &life) {
         life.timePerCall = entry.milliseconds(0, oneDay);
     }},
    {"drift",
     [](const Entry &entry, Life &life) {
         for (const Entry &each : tablesOf(entry)) {
             readDrift(each, life);
         }
     }},
    {"counter",
     [](const Entry &entry, Life &life) {
         for (const Entry &each : tablesOf(entry)) {
             readCounter(each, life);
         }
     }},
};

constexpr Setting<std::string> memorySettings[]{
    {"file",
     [](const Entry &entry, std::string &file) {
         file = entry.text();
     }},
};

constexpr std::string_view recordingKey{"recording"};

constexpr Choice<MissingCalls> missingCallsRules[]{
    {MissingCalls::Refuse, "refuse"},
    {MissingCalls::Simulate, "simulate"},
};

/// What only plays with a recording, and what a recording has of its own.
void checkPlay(const Entry &file, Scenario &scenario)
{
    const std::optional<Entry> recording = file.find(recordingKey);
    if (!recording) {
        if (const std::optional<Entry> rule = file.find("missingCalls")) {
            rule->fail("stands only where there is a recording");
        }
        if (scenario.link.kind == Link::Kind::Recorded) {
            file.find("link")->find("kind")->fail("is \"recorded\" only where there is a recording");
        }
        return;
    }
    for (const std::string_view key : {"port", "fault", "life", "memory"}) {
        if (const std::optional<Entry> other = file.find(key)) {
            other->fail("cannot stand beside a recording, which settles it");
        }
    }
    scenario.play.takesRecordedTime = scenario.link.kind == Link::Kind::Recorded;
}

template <std::int32_t target>
void readUnitOf(const Entry &entry, Scenario &scenario)
{
    readUnit(entry, target, scenario);
}

constexpr Setting<Scenario> scenarioSettings[]{
    {"seed",
     [](const Entry &entry, Scenario &scenario) {
         scenario.seed =
             static_cast<std::uint64_t>(entry.integer(0, std::numeric_limits<std::int64_t>::max()));
     }},
    {configurationName, readConfiguration},
    {unitName(veltrix_sdk::targetCamera), readUnitOf<veltrix_sdk::targetCamera>},
    {unitName(veltrix_sdk::targetBlendUnit), readUnitOf<veltrix_sdk::targetBlendUnit>},
    {"port",
     [](const Entry &entry, Scenario &scenario) {
         readPorts(entry, scenario.ports);
     }},
    {recordingKey,
     [](const Entry &entry, Scenario &scenario) {
         scenario.recordingFile = entry.text();
     }},
    {"missingCalls",
     [](const Entry &entry, Scenario &scenario) {
         scenario.play.missingCalls = chosen(entry, missingCallsRules);
     }},
    {"link",
     [](const Entry &entry, Scenario &scenario) {
         scenario.link = readLink(entry);
     }},
    {"fault",
     [](const Entry &entry, Scenario &scenario) {
         for (const Entry &each : tablesOf(entry)) {
             scenario.faults.push_back(readFault(each));
         }
     }},
    {"memory",
     [](const Entry &entry, Scenario &scenario) {
         readTable(entry, memorySettings, scenario.memoryFile);
         entry.demandOneOf({"file"});
     }},
    {"life",
     [](const Entry &entry, Scenario &scenario) {
         readTable(entry, lifeSettings, scenario.life);
     }},
};

/// Without time no value would ever change, and the author would wait for it in vain.
void refuseLifeWithoutTime(const Entry &file, const Scenario &scenario)
{
    const Life &life{scenario.life};
    const bool lives{!life.drifts.empty() || !life.counters.empty()};
    if (lives && life.timePerCall.count() == 0 && scenario.link.kind == Link::Kind::None) {
        file.find("life")->fail("needs millisecondsPerCall or a link: without them no time goes by");
    }
}

/// Why a text is not even parsed: it is too large, or one of its lines is too long.
std::optional<ScenarioError> sizeError(std::string_view text, const std::string &fileName)
{
    if (text.size() > largestScenario) {
        const std::string size = std::to_string(largestScenario / bytesOfKibibyte) + " KiB";
        return ScenarioError{fileName, 1, 1, {}, "a scenario is not larger than " + size};
    }
    std::size_t line{1};
    std::size_t begin{0};
    while (begin < text.size()) {
        const std::size_t end{std::min(text.find('\n', begin), text.size())};
        if (end - begin > longestLine) {
            const std::string length = std::to_string(longestLine) + " bytes";
            return ScenarioError{
                fileName, line, longestLine + 1, {}, "a line is not longer than " + length + "; break it up"};
        }
        begin = end + 1;
        ++line;
    }
    return std::nullopt;
}

} // namespace

std::string ScenarioError::message() const
{
    std::string message{file + ':' + std::to_string(line) + ':' + std::to_string(column) + ": "};
    if (!key.empty()) {
        message += inQuotes(key) + ' ';
    }
    return message + text;
}

std::variant<Scenario, ScenarioError> readScenario(std::string_view text, const std::string &fileName)
{
    if (std::optional<ScenarioError> error = sizeError(text, fileName)) {
        return *std::move(error);
    }
    const std::variant<TomlNode, TomlError> parsed = parseToml(text);
    if (const auto *const error = std::get_if<TomlError>(&parsed)) {
        const auto &[line, column] = error->position;
        return ScenarioError{fileName, line, column, {}, "this is not TOML: " + oneLine(error->reason, 200)};
    }
    try {
        Scenario scenario;
        const Entry file{std::get<TomlNode>(parsed), {}, fileName};
        readTable(file, scenarioSettings, scenario);
        refuseLifeWithoutTime(file, scenario);
        checkPlay(file, scenario);
        return scenario;
    } catch (ScenarioError &error) {
        return std::move(error);
    }
}

std::vector<std::string> scenarioKeys()
{
    std::vector<std::string> keys = faultKeys();
    const auto append = [&](const std::string &prefix, const std::vector<std::string> &added) {
        for (const std::string &key : added) {
            keys.push_back(prefix + key);
        }
    };
    append("", keysOf(scenarioSettings));
    append("port.", keysOf(portSettings));
    append("link.", keysOf(linkSettings));
    append("memory.", keysOf(memorySettings));
    append("life.", keysOf(lifeSettings));
    append("life.drift.", keysOf(driftSettings));
    append("life.counter.", keysOf(counterSettings));
    for (const std::int32_t target : {veltrix_sdk::targetCamera, veltrix_sdk::targetBlendUnit}) {
        append(std::string{unitName(target)} + '.', {std::string{badPixelsKey}});
    }
    return keys;
}

} // namespace veltrix_simulator
