// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The exported entries of the contract.
#include "simulation.h"
#include "veltrix_sdk/export.h"
#include "veltrix_sdk/extensions.h"
#include "veltrix_sdk/logger.h"
#include "veltrix_sdk/sdk.h"

#include <memory>
#include <new>
#include <string>

namespace veltrix_sdk
{
namespace
{

/// The stream of one log record.
class LogRecord final : public ILogger
{
public:
    explicit LogRecord(severity_level itsSeverity) : severity{itsSeverity} {}

#if !defined(VELTRIX_SDK_SPELLED_OUT)
    ILogger &operator<<(const std::string &added) override
    {
        text += added;
        return *this;
    }
#else
    ILogger &insert(const MicrosoftString &added) override
    {
        text += added.view();
        return *this;
    }
#endif

    ILogger &operator<<(const char *added) override
    {
        text += added != nullptr ? added : "";
        return *this;
    }

    const severity_level severity;
    std::string text;
};

LogRecord *recordIn(void *const *storage)
{
    return static_cast<LogRecord *>(storage[0]);
}

} // namespace

IVeltrixSdk *VeltrixSdk::get_instance()
{
    return veltrix_simulator::simulation().root();
}

// Of the storage only the first pointer is used.
SDKLogger::SDKLogger(severity_level severity)
{
    storage[0] = new LogRecord{severity};
}

SDKLogger::~SDKLogger()
{
    const std::unique_ptr<LogRecord> record{recordIn(storage)};
    veltrix_simulator::simulation().completeRecord(record->severity, record->text);
}

ILogger &SDKLogger::GetILogger()
{
    return *recordIn(storage);
}

#if defined(VELTRIX_SDK_SPELLED_OUT)
/// The constructor for programs of Microsoft's compiler, which expect the object as its result.
extern "C" void *veltrix_sdk_construct_logger(void *place, int severity)
{
    return new (place) SDKLogger{static_cast<severity_level>(severity)};
}
#endif

} // namespace veltrix_sdk

extern "C" VELTRIX_SDK_EXPORT const char *const *veltrix_sdk_additional_ports()
{
    return veltrix_simulator::simulation().portNames();
}
