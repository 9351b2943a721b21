// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// std::string as Microsoft's library lays it out, for compilers that bring another library.
#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace veltrix_sdk
{

/// Text in the layout of std::string in a 64-bit release build with Microsoft's library. It refers to the
/// text that it was made from: whoever receives it may read it, and must neither change nor keep it.
class MicrosoftString
{
public:
    explicit MicrosoftString(const std::string &text)
        : size{text.size()}, capacity{size < placeForText ? placeForText - 1 : size}
    {
        static_assert(sizeof(MicrosoftString) == 32);
        static_assert(offsetof(MicrosoftString, characters) == 0);
        static_assert(offsetof(MicrosoftString, size) == 16);
        static_assert(offsetof(MicrosoftString, capacity) == 24);
        if (isInPlace()) {
            std::memcpy(characters.inPlace, text.data(), size);
            characters.inPlace[size] = '\0';
        } else {
            characters.elsewhere = text.data();
        }
    }

    std::string_view view() const { return {isInPlace() ? characters.inPlace : characters.elsewhere, size}; }

private:
    /// Text of up to 15 characters, with its NUL, lies in the object itself.
    static constexpr std::size_t placeForText{16};

    bool isInPlace() const { return capacity < placeForText; }

    union {
        char inPlace[placeForText];
        const char *elsewhere;
    } characters{};
    std::size_t size;
    std::size_t capacity; ///< Characters that there is room for, without the NUL.
};

} // namespace veltrix_sdk
