// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What a console program says about a command line that it does not understand.
#include "wronguse.h"

#include "escaped.h"
#include "output/wording.h"

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace sdk_check
{

namespace
{

/// The innermost command that was named; the program itself where none was.
const CLI::App &innermost(const CLI::App &parser)
{
    const std::vector<CLI::App *> named{parser.get_subcommands()};
    return named.empty() ? parser : innermost(*named.back());
}

/// The long options of a command and of what it is a part of.
std::vector<std::string> optionsOf(const CLI::App &command)
{
    std::vector<std::string> names;
    for (const CLI::App *each{&command}; each != nullptr; each = each->get_parent()) {
        for (const CLI::Option *const option : each->get_options()) {
            for (const std::string &name : option->get_lnames()) {
                names.push_back("--" + name);
            }
        }
    }
    return names;
}

std::vector<std::string> commandsOf(const CLI::App &command)
{
    std::vector<std::string> names;
    for (const CLI::App *const each : command.get_subcommands({})) {
        names.push_back(each->get_name());
    }
    return names;
}

std::string withNearest(const std::string &text, const std::string &wrong,
                        const std::vector<std::string> &known)
{
    const std::string near{veltrix_simulator::nearest(wrong, known)};
    std::string said{text + " \"" + escaped(wrong) + '"'};
    if (!near.empty()) {
        said += "; did you mean \"" + near + "\"?";
    }
    return said;
}

/// What is wrong with a word that nothing takes.
std::string unknownWord(const CLI::App &command, const std::string &word)
{
    if (word.size() > 1 && word.front() == '-') {
        const std::string name{word.substr(0, word.find('='))};
        return withNearest("There is no option", name, optionsOf(command));
    }
    const std::vector<std::string> commands{commandsOf(command)};
    if (commands.empty()) {
        return '"' + escaped(word) + "\" is too much.";
    }
    return withNearest("There is no command", word, commands);
}

/// What is wrong with an option that has no value, or more than it takes; the parser's own line begins with
/// it.
std::string wrongCount(const std::string &line)
{
    const std::string option{line.substr(0, line.find(':'))};
    const bool lacksValue{line.find(" missing") != std::string::npos};
    return option + (lacksValue ? " needs a value" : " is there more than once");
}

std::string reasonOf(const CLI::App &parser, const CLI::ParseError &error)
{
    const CLI::App &command = innermost(parser);
    const std::vector<std::string> unknown{parser.remaining(true)};
    const bool lacksCommand{command.get_require_subcommand_min() > 0};
    const bool hasTooMuch{dynamic_cast<const CLI::ExtrasError *>(&error) != nullptr};
    const bool hasWrongCount{dynamic_cast<const CLI::ArgumentMismatch *>(&error) != nullptr};
    if (!unknown.empty() && (lacksCommand || hasTooMuch)) {
        return unknownWord(command, unknown.front());
    }
    if (hasWrongCount) {
        return wrongCount(error.what());
    }
    return escaped(error.what());
}

} // namespace

std::string wrongUseText(const CLI::App &parser, const CLI::ParseError &error)
{
    return reasonOf(parser, error) + "\nTry \"" + parser.get_name() + " --help\".";
}

} // namespace sdk_check
