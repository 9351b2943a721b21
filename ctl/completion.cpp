// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a word of a command line can be, for the shells.
#include "completion.h"

#include "commandline.h"
#include "fieldtext.h"
#include "names.h"
#include "ports.h"
#include "values.h"
#include "veltrix_sdk/numbers.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>
#include <utility>

using device_settings::Field;

namespace ctl
{

namespace
{

using Words = std::vector<std::string>;

/// Where the words before lead.
struct Spot
{
    const CLI::App *command;
    const CLI::Option *awaited{nullptr}; ///< An option that the next word belongs to.
};

const CLI::App *findCommand(const CLI::App &in, const std::string &name)
{
    for (const CLI::App *const command : in.get_subcommands({})) {
        if (command->get_name() == name) {
            return command;
        }
    }
    return nullptr;
}

/// Of the command, or of those that it belongs to.
const CLI::Option *findOption(const CLI::App *command, const std::string &name)
{
    for (; command != nullptr; command = command->get_parent()) {
        if (const CLI::Option *const option = command->get_option_no_throw(name)) {
            return option;
        }
    }
    return nullptr;
}

Spot spotBehind(const CLI::App &root, const Words &before)
{
    Spot spot{&root};
    for (const std::string &word : before) {
        if (spot.awaited != nullptr) {
            spot.awaited = nullptr;
        } else if (word.size() > 1 && word.front() == '-') {
            const CLI::Option *const option{findOption(spot.command, word)};
            spot.awaited = option != nullptr && option->get_expected_max() > 0 ? option : nullptr;
        } else if (const CLI::App *const command = findCommand(*spot.command, word)) {
            spot.command = command;
        }
    }
    return spot;
}

Words optionsOf(const CLI::App *command)
{
    Words words;
    for (; command != nullptr; command = command->get_parent()) {
        for (const CLI::Option *const option : command->get_options()) {
            for (const std::string &name : option->get_lnames()) {
                const std::string word{"--" + name};
                if (std::find(words.begin(), words.end(), word) == words.end()) {
                    words.push_back(word);
                }
            }
        }
    }
    return words;
}

Words valuesOf(const Field &field)
{
    if (field.kind == device_settings::Kind::Boolean) {
        return {"true", "false"};
    }
    Words words{field.words};
    for (const double number : field.allowed.only) {
        words.push_back(device_settings::numberText(number));
    }
    return words;
}

Words assignments(Session &session, const std::string &begun)
{
    const std::size_t sign{begun.find('=')};
    Words words;
    for (const Named &named : allNames(session)) {
        if (named.configuration != nullptr || !canBeSet(named.place)) {
            continue;
        }
        if (sign == std::string::npos) {
            words.push_back(named.key + '=');
        } else if (begun.compare(0, sign, named.key) == 0) {
            for (const std::string &value : valuesOf(fieldOf(named))) {
                words.push_back(named.key + '=' + value);
            }
        }
    }
    return words;
}

Words names(Session &session)
{
    Words words;
    for (const Named &named : allNames(session)) {
        words.push_back(named.key);
    }
    return words;
}

Words unitKeys()
{
    return {keyOf(Unit::BlendUnit), keyOf(Unit::Camera)};
}

/// What `store` takes.
Words setsToStore()
{
    return {"user", "expert"};
}

Words awaitedWords(const CLI::Option &option)
{
    // Each option that takes a word has a long name.
    const std::string name{option.get_lnames().front()};
    if (name == "port") {
        return allPorts();
    }
    if (name == "unit") {
        return unitKeys();
    }
    Words rates;
    if (name == "baud-rate") {
        std::transform(veltrix_sdk::linkBaudRates.begin(), veltrix_sdk::linkBaudRates.end(),
                       std::back_inserter(rates), [](std::int32_t rate) { return std::to_string(rate); });
    }
    return rates;
}

Words wordsAt(Session &session, const Spot &spot, const std::string &begun)
{
    if (spot.awaited != nullptr) {
        return awaitedWords(*spot.awaited);
    }
    if (!begun.empty() && begun.front() == '-') {
        return optionsOf(spot.command);
    }
    const std::vector<const CLI::App *> inner{spot.command->get_subcommands({})};
    if (!inner.empty()) {
        Words words;
        for (const CLI::App *const command : inner) {
            words.push_back(command->get_name());
        }
        return words;
    }
    const std::string command{spot.command->get_name()};
    if (command == "set") {
        return assignments(session, begun);
    }
    const bool ofPixels{spot.command->get_parent()->get_name() == "bad-pixels"};
    if (command == "get" || (command == "list" && !ofPixels)) {
        return names(session);
    }
    if (command == "store") {
        return setsToStore();
    }
    return {};
}

} // namespace

std::vector<std::string> completions(Session &session, const std::vector<std::string> &before,
                                     const std::string &begun, TypedIn where)
{
    Arguments arguments;
    Command command;
    CLI::App root{"", "pilotel-ctl"};
    addCommands(root, arguments, command, where);
    Words words{wordsAt(session, spotBehind(root, before), begun)};
    words.erase(
        std::remove_if(words.begin(), words.end(),
                       [&](const std::string &word) { return word.compare(0, begun.size(), begun) != 0; }),
        words.end());
    return words;
}

} // namespace ctl
