// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Where the programs enter the device library, and the recording of what they call there.
#include "sdkentry.h"

#include "output/process.h"
#include "recordedobjects.h"
#include "recorder.h"
#include "standins.h"

#include <cstdint>
#include <string_view>

using namespace veltrix_sdk;

namespace recording
{
namespace
{

/// What a recording consists of. There is one in a process, as there is one root of the library. It is never
/// destroyed: objects that outlive main() may still log.
struct Session
{
    Recorder recorder;
    StandIns<RecordedSdk, IVeltrixSdk> roots{recorder, &Objects::sdk};
};

Session &session()
{
    static auto *const only = new Session;
    return *only;
}

IVeltrixSdk *rootOfLibrary()
{
    return VeltrixSdk::get_instance();
}

IVeltrixSdk *recordedRoot()
{
    return session().recorder.call(OperationId::get_instance, {},
                                   [] { return session().roots.of(rootOfLibrary()); });
}

// Where a root comes from. Without a recording no call but this one goes another way than in a program that
// calls the library itself.
IVeltrixSdk *(*rootToday)(){rootOfLibrary};

bool isRecording()
{
    return rootToday != rootOfLibrary;
}

} // namespace

/// The stream of a log record, with the text that it was given.
class RecordedStream final : public ILogger
{
public:
    RecordedStream(severity_level itsSeverity, ILogger &itsStream) : severity{itsSeverity}, stream{itsStream}
    {}

#if !defined(VELTRIX_SDK_SPELLED_OUT)
    ILogger &operator<<(const std::string &added) override
    {
        text += added;
        stream << added;
        return *this;
    }
#else
    ILogger &insert(const MicrosoftString &added) override
    {
        text += added.view();
        stream.insert(added);
        return *this;
    }
#endif

    ILogger &operator<<(const char *added) override
    {
        text += added != nullptr ? added : "";
        stream << added;
        return *this;
    }

    const severity_level severity;
    std::string text;

private:
    ILogger &stream;
};

IVeltrixSdk *sdkRoot()
{
    return rootToday();
}

LogRecord::LogRecord(severity_level severity) : logger{std::in_place, severity}
{
    if (isRecording()) {
        recorded = std::make_unique<RecordedStream>(severity, logger->GetILogger());
    }
}

LogRecord::~LogRecord()
{
    if (recorded != nullptr) {
        Recorder &recorder = session().recorder;
        recorder.call(
            OperationId::log,
            {static_cast<std::int32_t>(recorded->severity), recorder.told(std::string_view{recorded->text})},
            [&] { logger.reset(); });
    }
}

ILogger &LogRecord::stream()
{
    return recorded != nullptr ? *recorded : logger->GetILogger();
}

std::string fileOf(const std::string &option)
{
    return option.empty() ? veltrix_simulator::environmentVariable("PILOTEL_RECORD") : option;
}

std::string begin(const std::string &file, const std::string &program)
{
    if (file.empty()) {
        return {};
    }
    std::string fault{session().recorder.open(file, program + " " PILOTEL_VERSION)};
    rootToday = fault.empty() ? recordedRoot : rootOfLibrary;
    return fault;
}

void beginAsEnvironmentSays(const std::string &program)
{
    const std::string fault{begin(fileOf({}), program)};
    if (!fault.empty()) {
        veltrix_simulator::writeToStandardError("pilotel: " + fault +
                                                ". The program goes on without a recording.\n");
    }
}

void end()
{
    session().recorder.close();
    rootToday = rootOfLibrary;
}

} // namespace recording
