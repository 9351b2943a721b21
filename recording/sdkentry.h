// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Where the programs enter the device library, and the recording of what they call there.
#pragma once

#include "veltrix_sdk/logger.h"
#include "veltrix_sdk/sdk.h"

#include <memory>
#include <optional>
#include <string>

namespace recording
{

class RecordedStream;

/// The root of the device library. While a recording runs, it and all objects that it gives hand each call on
/// and write its line; without one they are the library's own.
veltrix_sdk::IVeltrixSdk *sdkRoot();

/// One record of the library's log, which is written at the end of its life.
class LogRecord
{
public:
    explicit LogRecord(veltrix_sdk::severity_level severity);
    ~LogRecord();
    LogRecord(const LogRecord &) = delete;
    LogRecord &operator=(const LogRecord &) = delete;

    /// The stream that takes the text; valid as long as this.
    veltrix_sdk::ILogger &stream();

private:
    std::optional<veltrix_sdk::SDKLogger> logger;
    std::unique_ptr<RecordedStream> recorded; ///< Null without a recording.
};

/// The file to record in, in UTF-8: the one that an option of the command line names, else that of
/// PILOTEL_RECORD; empty when neither names one.
std::string fileOf(const std::string &option);

/// Begins to record in a file, whose name is in UTF-8; an earlier recording there is kept with ".~1~" behind
/// its name, or the next number that is free. To be called before the library is called for the first time.
/// The program is named in the first line. Answers what is wrong, in one line without a line feed, or an
/// empty text; without a name nothing is recorded and nothing is wrong. When a line cannot be written later
/// on, the recording ends and standard error tells.
std::string begin(const std::string &file, const std::string &program);

/// Begins to record where PILOTEL_RECORD says. What is wrong is told on standard error, and nothing is
/// recorded then.
void beginAsEnvironmentSays(const std::string &program);

/// Ends the recording. The objects that the program has stay valid, and sdkRoot() is the library's own.
void end();

} // namespace recording
