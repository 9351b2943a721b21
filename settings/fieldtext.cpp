// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The numbers of a field in the words and units of operators, and back.
#include "fieldtext.h"

#include "values.h"
#include "veltrix_sdk/kinds.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>
#include <vector>

namespace device_settings
{

namespace
{

/// What a switch may be called beside its number.
struct SwitchWord
{
    std::string_view text;
    double number;
};

constexpr std::array switchWords{SwitchWord{"true", 1}, SwitchWord{"false", 0}, SwitchWord{"on", 1},
                                 SwitchWord{"off", 0},  SwitchWord{"yes", 1},   SwitchWord{"no", 0}};

/// In the order of the kinds.
constexpr std::array<const char *, veltrix_sdk::kindCount> kindNames{
    "bool",   "8-bit unsigned", "16-bit unsigned", "32-bit unsigned", "32-bit signed", "float",
    "double", "text",           "object"};

double counted(const Scale &scale, double number)
{
    return number / scale.perUnit - scale.zero;
}

std::string countedText(const Scale &scale, double number)
{
    const double digits{std::pow(10.0, scale.decimals)};
    return numberText(std::round(counted(scale, number) * digits) / digits);
}

std::string lowered(std::string_view text)
{
    std::string small{text};
    for (char &letter : small) {
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    return small;
}

std::optional<double> plainNumber(std::string_view text)
{
    double number{0};
    const char *const end{text.data() + text.size()};
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    const bool isNumber{error == std::errc{} && stop == end && std::isfinite(number)};
    return isNumber ? std::optional{number} : std::nullopt;
}

std::string withoutEnd(std::string text, std::string_view end)
{
    const bool has{text.size() > end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0};
    text.resize(text.size() - (has ? end.size() : 0));
    return text;
}

std::string enumerated(const std::vector<std::string> &words)
{
    std::string text;
    for (std::size_t place{0}; place < words.size(); ++place) {
        const bool last{place + 1 == words.size()};
        text += place == 0 ? "" : last ? " or " : ", ";
        text += words[place];
    }
    return text;
}

} // namespace

std::string inWords(const Field &field, double number)
{
    if (isWhole(number) && number >= 0 && number < static_cast<double>(field.words.size())) {
        return field.words[static_cast<std::size_t>(number)];
    }
    if (!field.scale.isGiven || !std::isfinite(number)) {
        return {};
    }
    return countedText(field.scale, number) + (field.scale.unit.empty() ? "" : ' ' + field.scale.unit);
}

std::string numberInWords(const Field &field, double number)
{
    const std::string words{inWords(field, number)};
    return numberText(number, field.kind) + (words.empty() ? "" : " (" + words + ')');
}

std::optional<double> numberOf(const Field &field, std::string_view text)
{
    const std::string lower{lowered(text)};
    const auto named = std::find(field.words.begin(), field.words.end(), lower);
    if (named != field.words.end()) {
        return static_cast<double>(named - field.words.begin());
    }
    if (field.kind == Kind::Boolean) {
        for (const SwitchWord &known : switchWords) {
            if (known.text == lower) {
                return known.number;
            }
        }
    }
    const std::optional<double> number{plainNumber(text)};
    if (!number || allows(field.allowed, *number) || !field.scale.isGiven) {
        return number;
    }
    // Truncated as the window does it, so that both send the same.
    const double asCounted{(*number + field.scale.zero) * field.scale.perUnit};
    const double sent{veltrix_sdk::hasFractions(field.kind) ? asCounted : std::trunc(asCounted)};
    return allows(field.allowed, sent) ? sent : number;
}

std::string numberRangeText(const Field &field)
{
    return field.kind == Kind::Boolean ? "true or false" : withoutEnd(describe(field.allowed), " is allowed");
}

std::string rangeText(const Field &field)
{
    std::string range{numberRangeText(field)};
    if (!field.words.empty()) {
        return enumerated(field.words) + ", or " + range;
    }
    if (field.scale.isGiven) {
        const std::string unit{field.scale.unit.empty() ? "" : ' ' + field.scale.unit};
        return countedText(field.scale, field.allowed.minimum) + " to " +
               countedText(field.scale, field.allowed.maximum) + unit + ", or " + range;
    }
    return range;
}

std::string kindName(Kind kind)
{
    return kindNames[static_cast<std::size_t>(kind)];
}

} // namespace device_settings
