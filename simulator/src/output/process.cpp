// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// What the process has from outside: its environment and standard error.
#include "output/process.h"

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <cstddef>
#include <windows.h>
#else
#include <cstdlib>
#include <iostream>
#endif

namespace veltrix_simulator
{

#if defined(_WIN32)
namespace
{

std::wstring fromUtf8(std::string_view text)
{
    const int length{static_cast<int>(text.size())};
    std::wstring wide(text.size(), L'\0');
    wide.resize(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), length)));
    return wide;
}

std::string toUtf8(std::wstring_view wide)
{
    const int length{static_cast<int>(wide.size())};
    // No character of UTF-16 takes more.
    std::string text(wide.size() * 3, '\0');
    text.resize(static_cast<std::size_t>(WideCharToMultiByte(
        CP_UTF8, 0, wide.data(), length, text.data(), static_cast<int>(text.size()), nullptr, nullptr)));
    return text;
}

} // namespace

// The C library's own function answers in the code page of the system, which lacks most letters.
std::string environmentVariable(const char *name)
{
    const std::wstring wideName{fromUtf8(name)};
    std::wstring value(GetEnvironmentVariableW(wideName.c_str(), nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(wideName.c_str(), value.data(), static_cast<DWORD>(value.size())));
    return toUtf8(value);
}

// Not through a stream of the C++ library, which would write a carriage return before each line feed.
void writeToStandardError(std::string_view text)
{
    DWORD written{0};
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), text.data(), static_cast<DWORD>(text.size()), &written,
              nullptr);
    if (GetConsoleWindow() == nullptr) {
        OutputDebugStringW(fromUtf8(text).c_str());
    }
}
#else
std::string environmentVariable(const char *name)
{
    const char *const value = std::getenv(name);
    return value != nullptr ? value : "";
}

void writeToStandardError(std::string_view text)
{
    std::cerr << text << std::flush;
}
#endif

} // namespace veltrix_simulator
