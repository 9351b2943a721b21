// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// An entry of a scenario file: a value with the key that leads to it.
#pragma once

#include "scenarios/scenarioreader.h"
#include "scenarios/tomltext.h"
#include "veltrix_simulator/simulator.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace veltrix_simulator
{

/// A key that may stand only where another key, the chooser, has a certain value: `answer` belongs to the
/// effect "answer". It may be listed with several values.
struct Belonging
{
    std::string_view key;
    std::string_view choice;
};

/// A value with the key that leads to it. What does not fit is thrown as a ScenarioError with the position
/// of what is wrong.
class Entry
{
public:
    Entry(const TomlNode &itsNode, std::string itsPath, const std::string &itsFile)
        : node{&itsNode}, path{std::move(itsPath)}, file{&itsFile}
    {}

    [[noreturn]] void fail(std::string text) const;

    bool boolean() const;
    std::int64_t integer(std::int64_t minimum, std::int64_t maximum) const;
    double number(double minimum, double maximum) const;
    /// A number of milliseconds or of seconds.
    std::chrono::microseconds milliseconds(double minimum, double maximum) const;
    std::chrono::microseconds seconds(double minimum, double maximum) const;
    /// A text that is not empty and has no control characters.
    std::string text() const;
    /// The place of the text among the names.
    std::size_t choice(const std::vector<std::string> &names) const;
    /// A bool, an integer, a number or a text.
    std::optional<Value> value() const;

    bool isList() const { return node->as<TomlNode::List>() != nullptr; }
    /// The elements of an array, each under the key of the array.
    std::vector<Entry> elements() const;
    /// The entries of a table.
    std::vector<Entry> entries() const;
    std::optional<Entry> find(std::string_view key) const;

    /// Refuse what a table may not have: keys that are not known, keys that stand without the value of the
    /// chooser that they belong to, and two keys of which only one can stand. The chooser stands there.
    void refuseUnknown(const std::vector<std::string> &known) const;
    void refuseStrangers(std::string_view chooser, const std::vector<Belonging> &belongings) const;
    void refuseTwoOf(const std::vector<std::string> &keys) const;
    /// Refuses a table that has none of the keys.
    void demandOneOf(const std::vector<std::string> &keys) const;
    /// Refuses a key that the table has.
    [[noreturn]] void failUnknown(std::string_view key, const std::vector<std::string> &known) const;

    const std::string &keyPath() const { return path; }
    /// The part of the path after the last dot.
    std::string_view lastKey() const { return std::string_view{path}.substr(path.rfind('.') + 1); }
    /// Such as `flaky.toml:12`.
    std::string origin() const;

private:
    const TomlNode::Table &table() const;
    [[noreturn]] void failAt(const TomlPosition &position, std::string text) const;
    Entry under(const TomlMember &member) const;

    const TomlNode *node;
    std::string path;
    const std::string *file;
};

/// A name that a text may be, and what it stands for.
template <typename Id>
struct Choice
{
    Id id;
    std::string_view name;
};

/// The id of the row whose name the text is.
template <typename Rows>
auto chosen(const Entry &entry, const Rows &rows)
{
    std::vector<std::string> names;
    names.reserve(std::size(rows));
    for (const auto &row : rows) {
        names.emplace_back(row.name);
    }
    return rows[entry.choice(names)].id;
}

/// One key of a table and what it does to the target.
template <typename Target>
struct Setting
{
    std::string_view key;
    void (*read)(const Entry &entry, Target &target);
};

template <typename Target, std::size_t count>
std::vector<std::string> keysOf(const Setting<Target> (&settings)[count])
{
    std::vector<std::string> keys;
    for (const Setting<Target> &setting : settings) {
        keys.emplace_back(setting.key);
    }
    return keys;
}

/// Reads a table, whose keys are those of the settings.
template <typename Target, std::size_t count>
void readTable(const Entry &table, const Setting<Target> (&settings)[count], Target &target)
{
    table.refuseUnknown(keysOf(settings));
    for (const Setting<Target> &setting : settings) {
        if (const std::optional<Entry> entry = table.find(setting.key)) {
            setting.read(*entry, target);
        }
    }
}

} // namespace veltrix_simulator
