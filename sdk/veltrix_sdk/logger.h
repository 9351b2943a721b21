// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The SDK's log: one record per SDKLogger object.
#pragma once

#include "veltrix_sdk/export.h"
#if defined(VELTRIX_SDK_SPELLED_OUT)
#include "veltrix_sdk/microsoft_string.h"
#endif

#include <string>

namespace veltrix_sdk
{

/// Severity of a log record, least severe first.
enum severity_level
{
    severity_trace = 0,
    severity_debug = 1,
    severity_info = 2,
    severity_warning = 3,
    severity_error = 4,
    severity_fatal = 5,
};

/// The stream of one log record. Owned by its SDKLogger; valid as long as that object.
class ILogger
{
    virtual void kept0() {}

public:
    // The Microsoft ABI lays out adjacent overloads of one name in reverse order of declaration; the
    // text object has to come first in the table on both ABIs.
#if defined(VELTRIX_SDK_SPELLED_OUT)
    virtual ILogger &insert(const MicrosoftString &text) = 0; ///< 1: appends text.
    virtual ILogger &operator<<(const char *text) = 0;        ///< 2: appends NUL-terminated text.
    ILogger &operator<<(const std::string &text)
    {
        return insert(MicrosoftString{text});
    }
#elif defined(_MSC_VER)
    virtual ILogger &operator<<(const char *text) = 0;        ///< 2: appends NUL-terminated text.
    virtual ILogger &operator<<(const std::string &text) = 0; ///< 1: appends text.
#else
    virtual ILogger &operator<<(const std::string &text) = 0; ///< 1: appends text.
    virtual ILogger &operator<<(const char *text) = 0;        ///< 2: appends NUL-terminated text.
#endif

protected:
    ~ILogger() = default;
};

/// One log record: what is inserted into its stream is written when the object is destroyed.
class VELTRIX_SDK_EXPORT SDKLogger
{
public:
    explicit SDKLogger(severity_level severity);
    ~SDKLogger();

    SDKLogger(const SDKLogger &) = delete;
    SDKLogger &operator=(const SDKLogger &) = delete;

    /// The stream of this record.
    ILogger &GetILogger();

private:
    // Only the library touches it; a library may count on four pointers, the rest is a margin.
    void *storage[8];
};

} // namespace veltrix_sdk
