// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Writes a line for each call that goes to the device library.
#include "recorder.h"

#include "output/clock.h"
#include "output/process.h"
#include "units/configurationfields.h"
#include "veltrix_sdk/numbers.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace recording
{
namespace
{

/// What the operating system said last; empty when it said nothing.
std::string reason()
{
    if (errno == 0) {
        return {};
    }
    return ": " + std::generic_category().message(errno);
}

} // namespace

std::string Recorder::open(const std::string &itsFileName, const std::string &program)
{
    fileName = itsFileName;
    texts = PrivateText::ofThisUser();
    target = veltrix_sdk::targetBlendUnit;
    managerHeld = false;
    deviceOpen = false;
    errno = 0;
    // Who starts the program again with the variable still set must not lose the session that he wanted to
    // send.
    switch (file.open(std::filesystem::u8path(fileName), TraceFile::Earlier::Kept)) {
    case TraceFile::Opening::OtherFile:
        return '"' + fileName +
               "\" is no recording, and is left as it is; name another file, or delete this one";
    case TraceFile::Opening::KeptTooOften:
        return '"' + fileName + "\" cannot be kept: \"" + fileName + ".~1~\" to \"" + fileName + ".~" +
               std::to_string(TraceFile::mostKept) +
               "~\" are there already; delete those that nobody needs, or name another file";
    case TraceFile::Opening::Unwritable:
        return "Cannot write the recording \"" + fileName + '"' + reason() +
               "; name a file that can be written";
    case TraceFile::Opening::Done:
        break;
    }
    line.assign(veltrix_simulator::traceBeginning).append(R"("program":)");
    veltrix_simulator::appendJsonText(line, program);
    line.append(R"(,"time":")")
        .append(veltrix_simulator::formatTime(std::chrono::system_clock::now(),
                                              veltrix_simulator::Precision::Microseconds))
        .append("\"}\n");
    if (!file.write(line)) {
        return "Cannot write the recording \"" + fileName + '"' + reason() +
               "; name a file that can be written";
    }
    return {};
}

Begun Recorder::begin(OperationId operation)
{
    handWordsOn();
    return {CallTime::now(), target, veltrix_simulator::missingFor(operation, deviceOpen, managerHeld)};
}

void Recorder::finish(const Begun &begun, OperationId operation, Parameters parameters,
                      const ResultPlace &result, const Words *words)
{
    fetchWords();
    if (file.isOpen()) {
        const veltrix_simulator::OperationName &name = veltrix_simulator::nameOf(operation);
        veltrix_simulator::writeTraceLine(line, begun.time,
                                          {name.interface, name.name, begun.target, begun.missing}, objects,
                                          parameters, result, words);
        write();
    }
}

void Recorder::handWordsOn()
{
    for (WordsCopy &copy : copies) {
        if (std::memcmp(copy.ofProgram, &copy.known, sizeof(Words)) == 0) {
            continue;
        }
        for (const veltrix_simulator::WordRow &row : veltrix_simulator::configurationWords) {
            // Only these: the library may have written others since.
            if (copy.ofProgram->*row.word != copy.known.*row.word) {
                copy.ofLibrary->*row.word = copy.ofProgram->*row.word;
            }
        }
        if (file.isOpen()) {
            veltrix_simulator::writeWordsLine(line, *copy.ofProgram, copy.known);
            write();
        }
        copy.known = *copy.ofProgram;
    }
}

void Recorder::fetchWords()
{
    for (WordsCopy &copy : copies) {
        copy.known = *copy.ofLibrary;
        *copy.ofProgram = copy.known;
    }
}

void Recorder::write()
{
    errno = 0;
    if (!file.write(line)) {
        veltrix_simulator::writeToStandardError("pilotel: Cannot write the recording \"" + fileName + '"' +
                                                reason() + ". It ends here, and the program goes on.\n");
    }
}

} // namespace recording
