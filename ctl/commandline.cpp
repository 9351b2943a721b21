// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The command line: which command with what, for the program and for each line of its shell.
#include "commandline.h"

#include "recordings.h"
#include "shell.h"
#include "veltrix_sdk/numbers.h"
#include "wronguse.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <sstream>

namespace ctl
{

namespace
{

std::vector<std::string> linkRates()
{
    std::vector<std::string> rates;
    rates.reserve(veltrix_sdk::linkBaudRates.size());
    for (const std::int32_t rate : veltrix_sdk::linkBaudRates) {
        rates.push_back(std::to_string(rate));
    }
    return rates;
}

/// The units by their keys; both where none is named, the Blend Unit first.
std::vector<Unit> unitsOf(const std::vector<std::string> &names)
{
    std::vector<Unit> units;
    for (const Unit unit : device_settings::units) {
        const std::string key{keyOf(unit)};
        if (names.empty() || std::find(names.begin(), names.end(), key) != names.end()) {
            units.push_back(unit);
        }
    }
    return units;
}

/// The one unit that a command works on.
Unit unitOf(const Arguments &arguments)
{
    if (arguments.units.empty()) {
        return Unit::Camera;
    }
    return unitsOf(arguments.units).front();
}

/// Adds the subcommands to a parser.
class Builder
{
public:
    Builder(CLI::App &itsParser, Arguments &itsArguments, Command &itsCommand)
        : parser{itsParser}, arguments{itsArguments}, command{itsCommand}
    {}

    void addAll(TypedIn where)
    {
        if (where == TypedIn::Bash) {
            addOptions();
            addShell();
        }
        add(parser, "ports", "Names the ports that a camera may be behind",
            [](Session & /*session*/) { return listPorts(); });
        add(parser, "info", "Who the units are, how warm, how old, and their built-in test", showInfo);
        addSettings();
        addProfiles();
        addStore();
        addWatch();
        addBadPixels();
        addRecording();
    }

private:
    void addOptions()
    {
        parser.set_version_flag("--version", "pilotel-ctl " PILOTEL_VERSION);
        parser
            .add_option(
                "-p,--port", arguments.link.port,
                "The port of the device, such as COM3, ttyUSB0 or SIM1; not needed where there is one")
            ->type_name("NAME");
        parser
            .add_option("--baud-rate", arguments.link.baudRate,
                        "The speed of the link; what the library says if not given")
            ->type_name("RATE")
            ->check(CLI::IsMember{linkRates()});
        parser
            .add_option("--record", arguments.link.recording,
                        "Records every call to the library in this file; else PILOTEL_RECORD names one")
            ->type_name("FILE");
    }

    CLI::App *add(CLI::App &parent, const std::string &name, const std::string &what, Command action)
    {
        CLI::App *const added{parent.add_subcommand(name, what)};
        added->fallthrough();
        added->final_callback([&chosen = command, action = std::move(action)] { chosen = action; });
        return added;
    }

    void addShell()
    {
        CLI::App *const shell{
            add(parser, "shell", "The same commands over one open connection, typed or from a file or a pipe",
                [&given = arguments](Session &session) { return runShell(session, given.file); })};
        shell->add_option("FILE", arguments.file, "A command in each line; standard input if not given");
    }

    void addSettings()
    {
        CLI::App *const list{add(parser, "list", "Every setting with value, range and meaning",
                                 [&given = arguments](Session &session) {
                                     return listSettings(session, given.names, given.json);
                                 })};
        list->add_option("NAME", arguments.names, "Only these, or what begins so, such as camera.zoom");
        list->add_flag("--json", arguments.json, "One JSON document instead of a table");
        CLI::App *const get{
            add(parser, "get", "Reads settings by their names",
                [&given = arguments](Session &session) { return getSettings(session, given.names); })};
        get->add_option("NAME", arguments.names, "Such as camera.gamma, or camera.zoom for all of the zoom")
            ->required();
        CLI::App *const set{
            add(parser, "set", "Sets settings and reads them back; all of them or none",
                [&given = arguments](Session &session) { return setSettings(session, given.names); })};
        set->add_option("NAME=VALUE", arguments.names, "Such as camera.gamma=2.2 or camera.colorLut=iron")
            ->required();
    }

    void addProfiles()
    {
        CLI::App *const profile{parser.add_subcommand("profile", "All settings in a file")};
        profile->fallthrough();
        profile->require_subcommand(1);
        const auto addOne = [&](const char *name, const char *what, Command action) {
            CLI::App *const added{add(*profile, name, what, std::move(action))};
            added
                ->add_option("FILE", arguments.file,
                             "A profile, which is a scenario of the simulated camera too")
                ->required();
            return added;
        };
        addOne("save", "Writes the settings of both units into a file; - for standard output",
               [&given = arguments](Session &session) { return saveProfile(session, given.file); });
        addOne("apply", "Sets what a file has, all of it or nothing; - for standard input",
               [&given = arguments](Session &session) {
                   return applyProfile(session, given.file, given.dryRun);
               })
            ->add_flag("--dry-run", arguments.dryRun, "Only tells what would be set");
        addOne("diff", "Tells where the units differ from a file; - for standard input",
               [&given = arguments](Session &session) { return compareProfile(session, given.file); });
    }

    void addStore()
    {
        CLI::App *const store{add(parser, "store", "Makes settings outlive the power of the units",
                                  [&given = arguments](Session &session) {
                                      return storeSettings(session, given.set == "expert",
                                                           unitsOf(given.units));
                                  })};
        store->add_option("SET", arguments.set, "user or expert")
            ->required()
            ->check(CLI::IsMember{std::vector<std::string>{"user", "expert"}});
        addUnits(*store, "Only of this unit: camera or blendUnit");
    }

    void addWatch()
    {
        CLI::App *const watch{parser.add_subcommand("watch", "Reads something again and again")};
        watch->fallthrough();
        watch->require_subcommand(1);
        CLI::App *const temperatures{
            add(*watch, "temperatures", "The temperatures of both units, until Ctrl-C",
                [&given = arguments](Session &session) { return watchTemperatures(session, given.watch); })};
        temperatures
            ->add_option_function<std::string>(
                "--every", [&to = arguments.watch](const std::string &text) { to.every = *durationOf(text); },
                "How often: such as 500ms, 1s, 2min or 1h; 1s if not given")
            ->type_name("TIME")
            ->check([](const std::string &text) {
                if (durationOf(text)) {
                    return std::string{};
                }
                return '"' + text + "\" is no time such as 500ms, 1s, 2min or 1h";
            });
        temperatures->add_option("--count", arguments.watch.count, "So many readings")
            ->type_name("N")
            ->check(CLI::Range(1, 1'000'000'000));
        temperatures
            ->add_option("--csv", arguments.watch.csvFile,
                         "A file with the readings in millikelvin; - for standard output")
            ->type_name("FILE");
        temperatures->add_option("--plot", arguments.watch.plotFile, "Also draws the curves, at the end")
            ->type_name("FILE.png")
            ->check([](const std::string &file) { return file.empty() ? "a file has a name" : ""; });
    }

    void addBadPixels()
    {
        CLI::App *const all{parser.add_subcommand("bad-pixels", "The table of bad pixels and its file")};
        all->fallthrough();
        all->require_subcommand(1);
        add(*all, "read", "Copies the table of the unit into its file in the working directory",
            [&given = arguments](Session &session) { return readBadPixels(session, unitOf(given)); });
        add(*all, "write", "Copies the file into the unit",
            [&given = arguments](Session &session) { return writeBadPixels(session, unitOf(given)); });
        addDeclaration(*all, "add", "Declares pixels bad in the file", true);
        addDeclaration(*all, "remove", "Declares pixels good in the file", false);
        CLI::App *const list{
            add(*all, "list", "Names the bad pixels of a file", [&given = arguments](Session &session) {
                return listBadPixels(session, unitOf(given), given.file, given.picture);
            })};
        list->add_option("FILE", arguments.file, "Such as bpr_SN10417.bin; that of the unit if not given");
        list->add_option("--picture", arguments.picture, "Also paints them on the sensor, 640 by 480")
            ->type_name("FILE.png");
        for (CLI::App *const each : all->get_subcommands({})) {
            addUnits(*each, "camera, which is meant if not given, or blendUnit")->expected(1);
        }
    }

    void addDeclaration(CLI::App &to, const char *name, const char *what, bool bad)
    {
        CLI::App *const added{add(to, name, what, [&given = arguments, bad](Session &session) {
            return declareBadPixels(session, unitOf(given), given.pixels, bad);
        })};
        added->add_option("PIXEL", arguments.pixels.single, "COLUMN,ROW, such as 12,34");
        added->add_option("--row", arguments.pixels.rows, "All pixels of a row")
            ->type_name("ROW")
            ->check(CLI::Range(0U, veltrix_sdk::sensorRows - 1));
        added->add_option("--column", arguments.pixels.columns, "All pixels of a column")
            ->type_name("COLUMN")
            ->check(CLI::Range(0U, veltrix_sdk::sensorColumns - 1));
    }

    void addRecording()
    {
        CLI::App *const recording{parser.add_subcommand("recording", "Recorded sessions, without a device")};
        recording->fallthrough();
        recording->require_subcommand(1);
        CLI::App *const show{
            add(*recording, "show", "Every call with its answer, a line each",
                [&given = arguments](Session & /*session*/) { return showRecording(given.file); })};
        CLI::App *const profile{add(*recording, "profile", "What the units held at its end, as a profile",
                                    [&given = arguments](Session & /*session*/) {
                                        return saveRecordedProfile(given.file, given.profile);
                                    })};
        for (CLI::App *const each : {show, profile}) {
            each->add_option(
                    "FILE", arguments.file,
                    "What a program recorded, or a trace of the simulated camera; - for standard input")
                ->required();
        }
        profile->add_option("PROFILE", arguments.profile, "The file to write; standard output if not given");
    }

    CLI::Option *addUnits(CLI::App &to, const char *what)
    {
        return to.add_option("--unit", arguments.units, what)
            ->type_name("UNIT")
            ->check(CLI::IsMember{std::vector<std::string>{keyOf(Unit::Camera), keyOf(Unit::BlendUnit)}});
    }

    CLI::App &parser;
    Arguments &arguments;
    Command &command;
};

/// The help has a name for each word that a command takes; that it is text goes without saying.
void leaveOutKinds(CLI::App &command)
{
    for (CLI::Option *const option : command.get_options()) {
        const std::string kind{option->get_type_name()};
        if (option->get_positional() && kind == "TEXT") {
            option->type_name("");
        }
    }
    for (CLI::App *const each : command.get_subcommands({})) {
        leaveOutKinds(*each);
    }
}

constexpr const char *description{"Reads and sets the Veltrix KR thermal camera and its Blend Unit."};
constexpr const char *footer{
    "Exit status: 0 done, 1 the device refuses or differs, 2 wrong use, 3 no device."};

} // namespace

void addCommands(CLI::App &parser, Arguments &arguments, Command &command, TypedIn where)
{
    Builder{parser, arguments, command}.addAll(where);
    leaveOutKinds(parser);
}

Command parse(const std::vector<std::string> &words, Arguments &arguments, TypedIn where)
{
    Command command;
    CLI::App parser{description, "pilotel-ctl"};
    parser.footer(footer);
    parser.require_subcommand(1);
    addCommands(parser, arguments, command, where);
    try {
        parser.parse(std::vector<std::string>(words.rbegin(), words.rend()));
    } catch (const CLI::Success &asked) {
        parser.exit(asked, std::cout, std::cerr);
        return {};
    } catch (const CLI::ParseError &error) {
        throw Failure{wrongUse, sdk_check::wrongUseText(parser, error)};
    }
    return command;
}

} // namespace ctl
