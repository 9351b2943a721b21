// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Texts without what tells whose machine they come from.
#include "privatetext.h"

#include "output/process.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace recording
{
namespace
{

constexpr std::string_view separators{"/\\"};
constexpr std::string_view quotes{"\"'`"};

bool isOneOf(char character, std::string_view characters)
{
    return characters.find(character) != std::string_view::npos;
}

bool isLetter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

/// Whether a character belongs to words; every one beyond ASCII does.
bool isOfWord(char character)
{
    return isLetter(character) || (character >= '0' && character <= '9') || character == '_' ||
           static_cast<unsigned char>(character) >= 0x80;
}

/// The same character for both cases of a letter and for both separators.
char folded(char character)
{
    if (character == '\\') {
        return '/';
    }
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// Whether the text goes on like this at that place, whatever the case of letters and
/// which separators.
bool continuesWith(std::string_view text, std::size_t place, std::string_view part)
{
    const std::string_view there{text.substr(place, part.size())};
    return std::equal(there.begin(), there.end(), part.begin(), part.end(),
                      [](char one, char other) { return folded(one) == folded(other); });
}

std::string_view withoutSeparatorsAtEnd(std::string_view path)
{
    const std::size_t last{path.find_last_not_of(separators)};
    return path.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

std::string_view lastPart(std::string_view path)
{
    const std::string_view trimmed{withoutSeparatorsAtEnd(path)};
    const std::size_t separator{trimmed.find_last_of(separators)};
    return separator == std::string_view::npos ? trimmed : trimmed.substr(separator + 1);
}

/// How a path begins at a place.
enum class Beginning
{
    None,
    WithDrive,    ///< `C:\`, or two backslashes.
    AtRootOrHome, ///< It is a path only when it has two parts: `/s` is none.
};

Beginning beginningAt(std::string_view text, std::size_t place)
{
    const std::string_view rest{text.substr(place)};
    if (rest.size() < 2) {
        return Beginning::None;
    }
    if ((rest.size() > 2 && isLetter(rest[0]) && rest[1] == ':' && isOneOf(rest[2], separators)) ||
        rest.substr(0, 2) == "\\\\") {
        return Beginning::WithDrive;
    }
    return rest[0] == '/' || rest[0] == '~' ? Beginning::AtRootOrHome : Beginning::None;
}

/// Where a path without quotes ends: at a blank, a control character or what separates it from the next one.
std::size_t endWithoutQuotes(std::string_view text, std::size_t place)
{
    for (; place < text.size(); ++place) {
        const char character{text[place]};
        const bool isNextPath{character == ':' && place + 1 < text.size() &&
                              isOneOf(text[place + 1], separators)};
        if (static_cast<unsigned char>(character) <= ' ' || isOneOf(character, "\"'`<>|,;()[]{}") ||
            isNextPath) {
            break;
        }
    }
    return place;
}

} // namespace

PrivateText::PrivateText(const std::vector<std::string> &itsHomes, std::vector<std::string> itsNames)
    : names{std::move(itsNames)}
{
    for (const std::string &home : itsHomes) {
        // The root of the file system is nobody's.
        const std::string_view folder{withoutSeparatorsAtEnd(home)};
        if (!folder.empty()) {
            homes.emplace_back(folder);
            names.emplace_back(lastPart(folder));
        }
    }
    names.erase(std::remove(names.begin(), names.end(), std::string{}), names.end());
    // Of two names that begin alike the whole one is taken out.
    std::sort(names.begin(), names.end(),
              [](const std::string &one, const std::string &other) { return one.size() > other.size(); });
}

PrivateText PrivateText::ofThisUser()
{
    using veltrix_simulator::environmentVariable;
    return {{environmentVariable("HOME"), environmentVariable("USERPROFILE")},
            {environmentVariable("USER"), environmentVariable("LOGNAME"), environmentVariable("USERNAME"),
             environmentVariable("SUDO_USER")}};
}

std::string_view PrivateText::without(std::string_view text)
{
    changed.clear();
    std::size_t kept{0};
    for (std::size_t place{0}; place < text.size();) {
        const std::size_t end{endOfPath(text, place)};
        if (end == place) {
            ++place;
            continue;
        }
        append(text.substr(kept, place - kept));
        append(lastPart(text.substr(place, end - place)));
        place = kept = end;
    }
    append(text.substr(kept));
    return changed == text ? text : changed;
}

const char *PrivateText::without(const char *text)
{
    if (text == nullptr) {
        return nullptr;
    }
    const std::string_view whole{text};
    return without(whole).data() == text ? text : changed.c_str();
}

void PrivateText::append(std::string_view text)
{
    for (std::size_t place{0}; place < text.size();) {
        const std::size_t length{nameAt(text, place)};
        if (length > 0) {
            changed += "USER";
            place += length;
        } else {
            changed += text[place++];
        }
    }
}

std::size_t PrivateText::nameAt(std::string_view text, std::size_t place) const
{
    if (place > 0 && isOfWord(text[place - 1])) {
        return 0;
    }
    for (const std::string &name : names) {
        const std::size_t end{place + name.size()};
        if (continuesWith(text, place, name) && (end == text.size() || !isOfWord(text[end]))) {
            return name.size();
        }
    }
    return 0;
}

std::size_t PrivateText::endOfPath(std::string_view text, std::size_t place) const
{
    const char before{place > 0 ? text[place - 1] : ' '};
    // What follows a word or its dot is a part of a fraction or of a relative path.
    const Beginning beginning{isOfWord(before) || isOneOf(before, ".-/\\~") ? Beginning::None
                                                                            : beginningAt(text, place)};
    if (beginning == Beginning::None) {
        return place;
    }
    std::size_t end{isOneOf(before, quotes) ? text.find(before, place) : std::string_view::npos};
    if (end == std::string_view::npos) {
        std::size_t from{beginning == Beginning::WithDrive ? place + 2 : place};
        for (const std::string &home : homes) {
            // It may have blanks.
            if (continuesWith(text, place, home)) {
                from = std::max(from, place + home.size());
            }
        }
        end = endWithoutQuotes(text, from);
    }
    const std::string_view path{withoutSeparatorsAtEnd(text.substr(place, end - place))};
    const bool hasParts{path.find_first_of(separators, 1) != std::string_view::npos};
    return hasParts ? end : place;
}

} // namespace recording
