// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// An entry of a scenario file: a value with the key that leads to it.
#include "scenarios/entry.h"

#include "output/wording.h"
#include "scenarios/scenarioreader.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <tuple>

namespace veltrix_simulator
{
namespace
{

std::string range(double minimum, double maximum)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(15);
    text << " from " << minimum << " to " << maximum;
    return text.str();
}

/// A number, also one without a point. An integer that a double may not hold exactly is none.
std::optional<double> toDouble(const TomlNode &node)
{
    if (const auto *const number = node.as<double>()) {
        return *number;
    }
    constexpr std::int64_t lastExact{std::int64_t{1} << std::numeric_limits<double>::digits};
    const auto *const integer = node.as<std::int64_t>();
    if (integer == nullptr || *integer < -lastExact || *integer > lastExact) {
        return std::nullopt;
    }
    return static_cast<double>(*integer);
}

const TomlMember *findMember(const TomlNode::Table &table, std::string_view key)
{
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const TomlMember &member) { return member.key == key; });
    return found == table.end() ? nullptr : &*found;
}

bool stands(const TomlNode &node, const TomlNode &before)
{
    const TomlPosition &here = node.position;
    const TomlPosition &there = before.position;
    return std::tie(here.line, here.column) > std::tie(there.line, there.column);
}

} // namespace

void Entry::failAt(const TomlPosition &position, std::string text) const
{
    throw ScenarioError{*file, std::max<std::size_t>(position.line, 1),
                        std::max<std::size_t>(position.column, 1), path, std::move(text)};
}

void Entry::fail(std::string text) const
{
    failAt(node->position, std::move(text));
}

bool Entry::boolean() const
{
    const auto *const boolean = node->as<bool>();
    if (boolean == nullptr) {
        fail("takes true or false");
    }
    return *boolean;
}

std::int64_t Entry::integer(std::int64_t minimum, std::int64_t maximum) const
{
    const auto *const integer = node->as<std::int64_t>();
    if (integer == nullptr || *integer < minimum || *integer > maximum) {
        fail("takes an integer from " + std::to_string(minimum) + " to " + std::to_string(maximum));
    }
    return *integer;
}

double Entry::number(double minimum, double maximum) const
{
    const std::optional<double> number = toDouble(*node);
    // Negated, so that NaN is out of range.
    if (!number || !(*number >= minimum && *number <= maximum)) {
        fail("takes a number" + range(minimum, maximum));
    }
    return *number;
}

std::chrono::microseconds Entry::milliseconds(double minimum, double maximum) const
{
    return std::chrono::microseconds{std::llround(number(minimum, maximum) * 1e3)};
}

std::chrono::microseconds Entry::seconds(double minimum, double maximum) const
{
    return std::chrono::microseconds{std::llround(number(minimum, maximum) * 1e6)};
}

std::string Entry::text() const
{
    const auto *const text = node->as<std::string>();
    if (text == nullptr || text->empty() || std::any_of(text->begin(), text->end(), isControl)) {
        fail("takes a text that is not empty and of one line");
    }
    return *text;
}

std::size_t Entry::choice(const std::vector<std::string> &names) const
{
    const auto *const text = node->as<std::string>();
    if (text == nullptr) {
        fail("takes " + alternatives(names));
    }
    const auto found = std::find(names.begin(), names.end(), *text);
    if (found == names.end()) {
        fail("takes " + alternatives(names) + ", not " + inQuotes(*text));
    }
    return static_cast<std::size_t>(found - names.begin());
}

std::optional<Value> Entry::value() const
{
    if (const auto *const boolean = node->as<bool>()) {
        return *boolean;
    }
    if (const auto *const integer = node->as<std::int64_t>()) {
        return *integer;
    }
    if (const auto *const number = node->as<double>()) {
        return *number;
    }
    // Texts of the contract end at the first NUL, so none may stand inside one.
    if (const auto *const text = node->as<std::string>();
        text != nullptr && text->find('\0') == std::string::npos) {
        return *text;
    }
    return std::nullopt;
}

std::vector<Entry> Entry::elements() const
{
    const auto *const list = node->as<TomlNode::List>();
    if (list == nullptr) {
        fail("takes a list");
    }
    std::vector<Entry> elements;
    for (const TomlNode &element : *list) {
        elements.emplace_back(element, path, *file);
    }
    return elements;
}

const TomlNode::Table &Entry::table() const
{
    const auto *const members = node->as<TomlNode::Table>();
    if (members == nullptr) {
        fail("takes a table");
    }
    return *members;
}

std::vector<Entry> Entry::entries() const
{
    std::vector<Entry> entries;
    for (const TomlMember &member : table()) {
        entries.push_back(under(member));
    }
    return entries;
}

std::optional<Entry> Entry::find(std::string_view key) const
{
    const TomlMember *const found = findMember(table(), key);
    if (found == nullptr) {
        return std::nullopt;
    }
    return under(*found);
}

void Entry::refuseUnknown(const std::vector<std::string> &known) const
{
    for (const Entry &entry : entries()) {
        const std::string_view key = std::string_view{entry.path}.substr(path.empty() ? 0 : path.size() + 1);
        if (!isOneOf(key, known)) {
            failUnknown(key, known);
        }
    }
}

void Entry::failUnknown(std::string_view key, const std::vector<std::string> &known) const
{
    const TomlMember &member = *findMember(table(), key);
    under(member).failAt(member.keyPosition, "is unknown here" + suggestion(key, known));
}

void Entry::refuseStrangers(std::string_view chooser, const std::vector<Belonging> &belongings) const
{
    const std::string value = find(chooser)->text();
    for (const Belonging &belonging : belongings) {
        std::vector<std::string> choices;
        for (const Belonging &other : belongings) {
            if (other.key == belonging.key) {
                choices.emplace_back(other.choice);
            }
        }
        const std::optional<Entry> entry = find(belonging.key);
        if (entry && !isOneOf(value, choices)) {
            entry->fail("belongs to " + std::string{chooser} + ' ' + alternatives(choices) + ", not to " +
                        inQuotes(value));
        }
    }
}

void Entry::refuseTwoOf(const std::vector<std::string> &keys) const
{
    std::optional<Entry> first;
    for (const std::string &key : keys) {
        const std::optional<Entry> entry = find(key);
        if (first && entry) {
            const bool inOrder{stands(*entry->node, *first->node)};
            const Entry &later{inOrder ? *entry : *first};
            later.fail("cannot stand beside " + inQuotes((inOrder ? *first : *entry).lastKey()));
        }
        first = entry ? entry : first;
    }
}

void Entry::demandOneOf(const std::vector<std::string> &keys) const
{
    if (std::none_of(keys.begin(), keys.end(), [&](const std::string &key) { return find(key); })) {
        fail("lacks " + alternatives(keys));
    }
}

std::string Entry::origin() const
{
    return *file + ':' + std::to_string(node->position.line);
}

Entry Entry::under(const TomlMember &member) const
{
    std::string whole{member.key};
    if (!path.empty()) {
        whole.insert(0, path + '.');
    }
    return {member.node, std::move(whole), *file};
}

} // namespace veltrix_simulator
