// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A profile: settings of both units in a file, which is a scenario of the simulated camera too.
#include "profile.h"

#include "escaped.h"
#include "failure.h"
#include "fieldtext.h"
#include "filenames.h"
#include "files.h"
#include "input.h"
#include "messages.h"
#include "names.h"
#include "output/wording.h"
#include "scenarios/limits.h"
#include "scenarios/tomltext.h"
#include "values.h"

#include <QByteArray>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <optional>
#include <sstream>
#include <system_error>
#include <variant>

using device_settings::Field;
using device_settings::Place;
using veltrix_simulator::TomlMember;
using veltrix_simulator::TomlNode;
using veltrix_simulator::TomlPosition;

namespace ctl
{

namespace
{

/// Reads the tree of a parsed text.
class Reader
{
public:
    Reader(const std::string &itsFileName, const std::vector<Setting> &table)
        : fileName{itsFileName}, places{device_settings::placesOf(table)}
    {}

    Profile read(const TomlNode &root)
    {
        for (const TomlMember &member : *root.as<TomlNode::Table>()) {
            readMember({}, member);
        }
        Profile profile;
        // In the order of the table, so that the device sees the same order whoever wrote the file.
        for (std::size_t place{0}; place < places.size(); ++place) {
            const auto found = std::find_if(numbers.begin(), numbers.end(),
                                            [&](const auto &number) { return number.first == place; });
            if (found != numbers.end()) {
                (canBeSet(places[place]) ? profile.settings : profile.derived)
                    .push_back({places[place], found->second});
            }
        }
        return profile;
    }

    [[noreturn]] void fail(const TomlPosition &position, const std::string &reason) const
    {
        throw Failure{wrongUse, shownName(fileName) + ':' + std::to_string(position.line) + ':' +
                                    std::to_string(position.column) + ": " + reason};
    }

private:
    void readMember(const std::string &prefix, const TomlMember &member)
    {
        const std::string key{prefix + (prefix.empty() ? "" : ".") + member.key};
        const auto place = std::find_if(places.begin(), places.end(), [&](const Place &each) {
            return device_settings::keyOf(each) == key;
        });
        if (place != places.end()) {
            readNumber(static_cast<std::size_t>(place - places.begin()), key, member);
            return;
        }
        if (!isBeginning(key)) {
            fail(member.keyPosition, unknown(key));
        }
        const auto *const table = member.node.as<TomlNode::Table>();
        if (table == nullptr) {
            fail(member.node.position,
                 '"' + sdk_check::escaped(key) + "\" is a group of settings, not a value");
        }
        for (const TomlMember &inner : *table) {
            readMember(key, inner);
        }
    }

    bool isBeginning(const std::string &key) const
    {
        return std::any_of(places.begin(), places.end(), [&](const Place &each) {
            return device_settings::keyOf(each).compare(0, key.size() + 1, key + '.') == 0;
        });
    }

    std::string unknown(const std::string &key) const
    {
        std::vector<std::string> known;
        for (const Place &place : places) {
            known.push_back(device_settings::keyOf(place));
        }
        return '"' + sdk_check::escaped(key) + "\" is no setting of a profile" +
               hintAt(veltrix_simulator::nearest(key, known));
    }

    void readNumber(std::size_t place, const std::string &key, const TomlMember &member)
    {
        const Field &field = places[place].setting->fields[places[place].field];
        if (!canBeSet(places[place]) && !field.derived) {
            fail(member.keyPosition, key + " cannot be set; take this line out");
        }
        const std::optional<double> number{numberIn(member.node)};
        if (!number || !mayBeSent(field, *number)) {
            std::string shown{"This"};
            if (number) {
                shown = device_settings::numberText(*number);
            }
            fail(member.node.position, shown + " is nothing for " + key + ": " +
                                           device_settings::numberRangeText(field) + wholeNumbers(field));
        }
        numbers.emplace_back(place, *number);
    }

    /// A number, or a boolean as 0 or 1.
    static std::optional<double> numberIn(const TomlNode &node)
    {
        if (const auto *const boolean = node.as<bool>()) {
            return *boolean ? 1.0 : 0.0;
        }
        if (const auto *const integer = node.as<std::int64_t>()) {
            return static_cast<double>(*integer);
        }
        const auto *const number = node.as<double>();
        return number != nullptr ? std::optional{*number} : std::nullopt;
    }

    const std::string &fileName;
    const std::vector<Place> places;
    std::vector<std::pair<std::size_t, double>> numbers{};
};

constexpr std::string_view countMark{"# Settings in this file: "};

/// How many settings the text, which ends with a line feed, says it has; nothing where it does not say so.
std::optional<std::size_t> promisedCount(std::string_view text)
{
    if (text.substr(0, countMark.size()) != countMark) {
        return std::nullopt;
    }
    text.remove_prefix(countMark.size());
    std::size_t count{0};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    const bool isWhole{error == std::errc{} && *end == '.'};
    return isWhole ? std::optional{count} : std::nullopt;
}

/// The line, counted from 1, that is longer than a scenario may have it; nothing when none is.
std::optional<std::size_t> tooLongLine(std::string_view text)
{
    std::size_t line{1};
    std::size_t length{0};
    for (const char letter : text) {
        length = letter == '\n' ? 0 : length + 1;
        line += letter == '\n' ? 1 : 0;
        if (length > veltrix_simulator::longestLine) {
            return line;
        }
    }
    return std::nullopt;
}

} // namespace

std::string profileText(const std::string &comment, const std::vector<ProfileLine> &lines)
{
    std::ostringstream text;
    text << countMark << lines.size() << ". " << comment << '\n';
    for (const Unit unit : device_settings::units) {
        const std::string unitKey{keyOf(unit)};
        text << "\n[" << unitKey << "]\n";
        for (const ProfileLine &line : lines) {
            if (line.place.unit == unit) {
                writeAssignment(text, device_settings::keyOf(line.place).substr(unitKey.size() + 1),
                                line.place.setting->fields[line.place.field], line.number);
            }
        }
    }
    return text.str();
}

ExitStatus writeProfile(const std::string &file, const std::string &comment,
                        const std::vector<ProfileLine> &lines)
{
    const std::string text{profileText(comment, lines)};
    if (file == "-") {
        std::cout << text << std::flush;
        return done;
    }
    writeWhole(file, QByteArray::fromStdString(text), wrongUse);
    std::cout << countedSettings(lines.size()) << " saved in " << shownName(file) << std::endl;
    return done;
}

std::string serialNumberText(const std::optional<double> &number)
{
    if (!number) {
        return "without a number";
    }
    return device_settings::numberText(*number);
}

std::string countedSettings(std::size_t count)
{
    return std::to_string(count) + (count == 1 ? " setting" : " settings");
}

Profile parseProfile(const std::string &fileName, std::string_view text, const std::vector<Setting> &table)
{
    Reader reader{fileName, table};
    if (text.size() > veltrix_simulator::largestScenario) {
        reader.fail({1, 1}, "this is no profile: it has more than " +
                                std::to_string(veltrix_simulator::largestScenario /
                                               veltrix_simulator::bytesOfKibibyte) +
                                " KiB");
    }
    if (const std::optional<std::size_t> line{tooLongLine(text)}) {
        reader.fail({*line, 1}, "this is no profile: the line has more than " +
                                    std::to_string(veltrix_simulator::longestLine) + " bytes");
    }
    if (text.empty()) {
        reader.fail({1, 1}, "the file is empty; save the profile again");
    }
    // What was cut off elsewhere than in the last line makes a smaller profile that is as good as any.
    if (text.back() != '\n') {
        const auto lastLine = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
        reader.fail({lastLine, 1},
                    "the last line has no end; is it whole? Save the profile again, or end the line");
    }
    const auto parsed = veltrix_simulator::parseToml(text);
    if (const auto *const error = std::get_if<veltrix_simulator::TomlError>(&parsed)) {
        reader.fail(error->position,
                    sdk_check::escaped(error->reason) + "; mend this line, or save the profile again");
    }
    Profile profile{reader.read(std::get<TomlNode>(parsed))};
    const std::size_t count{profile.settings.size() + profile.derived.size()};
    const std::optional<std::size_t> promised{promisedCount(text)};
    if (promised && *promised != count) {
        reader.fail({1, 1}, "this line says " + std::to_string(*promised) + " settings, and the file has " +
                                std::to_string(count) +
                                "; save the profile again, or take this line out if you changed the file");
    }
    return profile;
}

Profile readProfile(const std::string &fileName, const std::vector<Setting> &table)
{
    Input input{fileName};
    constexpr int most{static_cast<int>(veltrix_simulator::largestScenario)};
    QByteArray text;
    for (QByteArray more{input.read()}; !more.isEmpty() && text.size() <= most; more = input.read()) {
        text += more;
    }
    return parseProfile(Input::nameOf(fileName), {text.constData(), static_cast<std::size_t>(text.size())},
                        table);
}

} // namespace ctl
