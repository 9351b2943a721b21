// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A library veltrix.sdk of Microsoft's ABI: tables, records, results, std::string and exported names are
// those of Microsoft's compiler. It hands every call on to the simulated SDK, which lies beside it as
// veltrix.core.dll. No library and no header of Microsoft's is used.
#include "veltrix_sdk/sdk.h"

#include <string>

using namespace veltrix_sdk;

inline void *operator new(std::size_t /*size*/, void *place) noexcept
{
    return place;
}

extern "C" {
// The simulated SDK; the names are those of core.def.
__declspec(dllimport) IVeltrixSdk *core_instance();
__declspec(dllimport) void *core_open_record(void *logger, int severity);
__declspec(dllimport) void core_close_record(void *logger);
__declspec(dllimport) ILogger *core_record(void *logger);
__declspec(dllimport) const char *const *core_additional_ports();

// What the compiler asks of a run-time library.
int _fltused = 0;
void _purecall()
{
    __builtin_trap();
}
void *memcpy(void *to, const void *from, std::size_t size)
{
    auto *volatile target = static_cast<unsigned char *>(to);
    for (std::size_t place = 0; place < size; ++place) {
        target[place] = static_cast<const unsigned char *>(from)[place];
    }
    return to;
}

__declspec(dllexport) const char *const *veltrix_sdk_additional_ports()
{
    return core_additional_ports();
}
}

namespace
{

// Configuration and device: classes that hand each operation on to `inner`; written by forward.cmake.
#include "forward.inc"

// There is one of each at a time, so each has one place.
alignas(16) unsigned char rootPlace[64];
alignas(16) unsigned char configurationPlace[1024];
alignas(16) unsigned char managerPlace[64];
alignas(16) unsigned char devicePlace[64];

struct Manager final : IDeviceManager
{
    IDeviceManager *inner;

    IDeviceControl *openDevice(const char *portName) override
    {
        IDeviceControl *const opened = inner->openDevice(portName);
        if (opened == nullptr) {
            return nullptr;
        }
        auto *const device = new (devicePlace) ForwardIDeviceControl;
        device->inner = opened;
        return device;
    }

    void closeDevice(IDeviceControl *closed) override
    {
        inner->closeDevice(closed != nullptr ? static_cast<ForwardIDeviceControl *>(closed)->inner : nullptr);
    }
};

struct Root final : IVeltrixSdk
{
    IVeltrixSdk *inner;

    bool initialize() override { return inner->initialize(); }

    ISdkConfiguration *getConfiguration() override
    {
        static_assert(sizeof(ForwardISdkConfiguration) <= sizeof configurationPlace);
        auto *const configuration = new (configurationPlace) ForwardISdkConfiguration;
        configuration->inner = inner->getConfiguration();
        configuration->words = configuration->inner->words;
        return configuration;
    }

    IDeviceManager *getDeviceManager() override
    {
        IDeviceManager *const held = inner->getDeviceManager();
        if (held == nullptr) {
            return nullptr;
        }
        auto *const manager = new (managerPlace) Manager;
        manager->inner = held;
        return manager;
    }

    void releaseDeviceManager(IDeviceManager **manager) override
    {
        IDeviceManager *released = *manager != nullptr ? static_cast<Manager *>(*manager)->inner : nullptr;
        inner->releaseDeviceManager(&released);
        if (released == nullptr) {
            *manager = nullptr;
        }
    }
};

struct Record final : ILogger
{
    ILogger *inner;

    ILogger &operator<<(const char *text) override
    {
        *inner << text;
        return *this;
    }

    /// Reads the string by its size, as Microsoft's library does.
    ILogger &operator<<(const std::string &text) override
    {
        static char copy[4096];
        if (text.size() >= sizeof copy) {
            *inner << "(a std::string of an impossible size)";
            return *this;
        }
        memcpy(copy, text.data(), text.size());
        copy[text.size()] = '\0';
        *inner << copy;
        return *this;
    }
};

} // namespace

namespace veltrix_sdk
{

IVeltrixSdk *VeltrixSdk::get_instance()
{
    auto *const root = new (rootPlace) Root;
    root->inner = core_instance();
    return root;
}

// The simulated SDK uses the first of the eight pointers, the stream of the record the last four.
SDKLogger::SDKLogger(severity_level severity)
{
    static_assert(sizeof(Record) <= 4 * sizeof(void *));
    // Microsoft's compiler goes on with what a constructor returns.
    if (core_open_record(this, severity) != this) {
        __builtin_trap();
    }
    auto *const record = new (storage + 4) Record;
    record->inner = core_record(this);
}

SDKLogger::~SDKLogger()
{
    core_close_record(this);
}

ILogger &SDKLogger::GetILogger()
{
    return *reinterpret_cast<Record *>(storage + 4);
}

} // namespace veltrix_sdk
