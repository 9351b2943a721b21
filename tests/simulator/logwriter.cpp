// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A process that writes SDK log records and ends without any cleaning up, for the test of the log.
#include "veltrix_sdk/sdk.h"

#include <cstdlib>

using namespace veltrix_sdk;

namespace
{

/// Logs when static objects are destroyed.
struct LateRecord
{
    ~LateRecord()
    {
        SDKLogger{severity_error}.GetILogger() << "late";
        std::_Exit(0);
    }
};

} // namespace

int main()
{
    static const LateRecord late;
    VeltrixSdk::get_instance()->initialize();
    for (int severity{severity_trace}; severity <= severity_fatal; ++severity) {
        SDKLogger{static_cast<severity_level>(severity)}.GetILogger() << "record\n"
                                                                      << "in two lines";
    }
    SDKLogger{static_cast<severity_level>(severity_fatal + 1)}.GetILogger() << "above all";
    return 0;
}
