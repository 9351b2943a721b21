// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// On Windows the device library is loaded by the first call. When that fails, this tells what to do: on
// standard error, and with TELLS_IN_A_BOX in a box as well.
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
// These come after it, since one of them uses what it declares.
#include <array>
#include <cstdlib>
#include <delayimp.h>
#include <string>

namespace
{

const std::wstring library{L"veltrix.sdk.dll"};

std::wstring ownFolder()
{
    // The longest path that Windows knows.
    std::wstring path(32'768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path.substr(0, path.find_last_of(L'\\'));
}

bool isThere()
{
    return SearchPathW(nullptr, library.c_str(), nullptr, 0, nullptr, nullptr) != 0;
}

/// What a number that Windows gives when it cannot load the library means for it.
struct LoadError
{
    DWORD number;
    const wchar_t *text; ///< without the name of the library, which comes before it
};

const std::array<LoadError, 4> loadErrors{{
    {ERROR_ACCESS_DENIED,
     L" may not be read by this account. Ask the administrator; a virus scanner may hold it, too."},
    {ERROR_SHARING_VIOLATION, L" is held by another program. Close that program and start again."},
    {ERROR_PROC_NOT_FOUND,
     L" does not fit a library that it needs. Install what its maker ships with it, all of one "
     L"delivery."},
    {ERROR_DLL_INIT_FAILED,
     L" cannot get itself ready. Install it, and what its maker ships with it, once more."},
}};

/// What Windows itself says of a number, in the language of the system, and the number.
std::wstring wordsOfWindows(DWORD number)
{
    std::wstring text(512, L'\0');
    text.resize(FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, number, 0,
                               text.data(), static_cast<DWORD>(text.size()), nullptr));
    // It ends with a line end.
    text.resize(text.find_last_not_of(L"\r\n ") + 1);
    return text + L" (error " + std::to_wstring(number) + L')';
}

std::wstring explanation(unsigned notification, const DelayLoadInfo &failure)
{
    const std::wstring otherDelivery{
        library +
        L" is not a delivery that this program was made for. Ask the maker for the one that belongs to the "
        L"camera."};
    if (notification == dliFailGetProc) {
        const std::string name{failure.dlp.szProcName};
        return otherDelivery + L"\n\nIt lacks " + std::wstring{name.begin(), name.end()};
    }
    if (failure.dwLastError == ERROR_BAD_EXE_FORMAT) {
        return otherDelivery + L"\n\nIt is no library for 64-bit Windows, or not a whole one.";
    }
    if (failure.dwLastError == ERROR_MOD_NOT_FOUND && !isThere()) {
        return L"the camera's library " + library + L" was not found. Put it into the folder " + ownFolder() +
               L'.';
    }
    if (failure.dwLastError == ERROR_MOD_NOT_FOUND) {
        return L"a library that " + library + L" needs was not found. Install what its maker ships with it.";
    }
    for (const LoadError &error : loadErrors) {
        if (error.number == failure.dwLastError) {
            return library + error.text;
        }
    }
    return library + L" cannot be loaded. Windows says: " + wordsOfWindows(failure.dwLastError);
}

void writeToStandardError(const std::wstring &text)
{
    const int length{static_cast<int>(text.size())};
    // No character of UTF-16 takes more bytes of UTF-8.
    std::string bytes(text.size() * 3, '\0');
    const int size{WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                                       static_cast<int>(bytes.size()), nullptr, nullptr)};
    DWORD written{0};
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), bytes.data(), static_cast<DWORD>(size), &written, nullptr);
}

FARPROC WINAPI tellAndEnd(unsigned notification, PDelayLoadInfo failure)
{
    const std::wstring text{L"The program cannot start: " + explanation(notification, *failure)};
    writeToStandardError(text + L'\n');
#if defined(TELLS_IN_A_BOX)
    MessageBoxW(nullptr, text.c_str(), L"Pilotel", MB_OK | MB_ICONERROR);
#endif
    // What was set for the console is set back on the way out.
    std::exit(EXIT_FAILURE);
}

} // namespace

// The loader of the device library calls this when it fails.
PfnDliHook __pfnDliFailureHook2{tellAndEnd};
