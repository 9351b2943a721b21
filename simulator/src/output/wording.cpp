// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// How messages name what stands in a file that somebody else may have written.
#include "output/wording.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace veltrix_simulator
{
namespace
{

constexpr std::size_t longestQuote{80};
constexpr std::size_t longestList{20};

char lower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// How many characters have to be added, dropped or replaced to come from one name to the other; the case of
/// letters does not count.
std::size_t distance(std::string_view from, std::string_view to)
{
    std::vector<std::size_t> row(to.size());
    std::iota(row.begin(), row.end(), std::size_t{1});
    std::size_t left{to.size()};
    for (std::size_t line{0}; line < from.size(); ++line) {
        std::size_t diagonal{line};
        left = line + 1;
        for (std::size_t place{0}; place < to.size(); ++place) {
            const std::size_t replaced{diagonal + (lower(from[line]) == lower(to[place]) ? 0 : 1)};
            diagonal = row[place];
            left = std::min({replaced, left + 1, diagonal + 1});
            row[place] = left;
        }
    }
    return left;
}

/// Whether a name was broken off, such as "interval" for "intervalSeconds".
bool isBeginning(std::string_view wrong, std::string_view name)
{
    return wrong.size() >= 3 && name.substr(0, wrong.size()) == wrong;
}

/// Whether a name has the letters of another in another order, such as "sede" for "seed".
bool isMixedUp(std::string_view wrong, std::string_view name)
{
    return wrong.size() == name.size() && std::is_permutation(wrong.begin(), wrong.end(), name.begin());
}

/// Whether a byte is inside a character of UTF-8, not at its beginning.
bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::string joined(const std::vector<std::string> &names, const char *last)
{
    std::string result;
    for (std::size_t place{0}; place < names.size(); ++place) {
        const char *const between{place + 1 < names.size() ? ", " : last};
        result += (place == 0 ? "" : between) + inQuotes(names[place]);
    }
    return result;
}

} // namespace

bool isControl(char character)
{
    return (character >= '\0' && character < ' ') || character == '\x7F';
}

std::string oneLine(std::string_view text, std::size_t longest)
{
    std::size_t length{std::min(text.size(), longest)};
    while (length > 0 && length < text.size() && continuesCharacter(text[length])) {
        --length;
    }
    std::string line;
    for (const char character : text.substr(0, length)) {
        line += isControl(character) ? '?' : character;
    }
    return line + (length < text.size() ? "..." : "");
}

std::string inQuotes(std::string_view text)
{
    return '"' + oneLine(text, longestQuote) + '"';
}

std::string alternatives(const std::vector<std::string> &names)
{
    return joined(names, " or ");
}

std::string enumeration(const std::vector<std::string> &names)
{
    return joined(names, " and ");
}

bool isOneOf(std::string_view name, const std::vector<std::string> &names)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::string nearest(std::string_view wrong, const std::vector<std::string> &known)
{
    // With more than one wrong letter in three a name is not alike any more.
    std::size_t least{std::max<std::size_t>(wrong.size() / 3, 1) + 1};
    std::string found;
    for (const std::string &name : known) {
        const std::size_t away{isBeginning(wrong, name) || isMixedUp(wrong, name) ? 1
                                                                                  : distance(wrong, name)};
        if (away < least && away < name.size()) {
            least = away;
            found = name;
        }
    }
    return found;
}

std::string suggestion(std::string_view wrong, const std::vector<std::string> &known)
{
    const std::string near = nearest(wrong, known);
    if (!near.empty()) {
        return "; did you mean " + inQuotes(near) + '?';
    }
    return known.size() <= longestList ? "; it can be " + alternatives(known)
                                       : "; simulator/README.md tells what there is";
}

} // namespace veltrix_simulator
