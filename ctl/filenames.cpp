// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Names of files in messages.
#include "filenames.h"

#include "escaped.h"

#include <QChar>
#include <QString>
#include <QVector>

#include <cstddef>

namespace ctl
{

namespace
{

/// How many bytes a letter of UTF-8 has that begins with this one; 1 where none begins with it.
std::size_t bytesOfLetter(char first)
{
    const auto byte = static_cast<unsigned char>(first);
    if (byte >= 0xf0) {
        return 4;
    }
    if (byte >= 0xe0) {
        return 3;
    }
    return byte >= 0xc0 ? 2 : 1;
}

/// Whether the bytes are one letter of UTF-8 that can be seen and leaves its neighbours where they are.
bool isVisibleLetter(std::string_view bytes)
{
    const QVector<uint> letters{QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size())).toUcs4()};
    if (letters.size() != 1 || letters.first() == QChar::ReplacementCharacter) {
        return false;
    }
    const QChar::Category category{QChar::category(letters.first())};
    return QChar::isPrint(letters.first()) && category != QChar::Separator_Line &&
           category != QChar::Separator_Paragraph;
}

} // namespace

std::string shownName(std::string_view file)
{
    constexpr int longest{200};
    std::string shown;
    for (int letters{0}; !file.empty(); ++letters) {
        if (letters == longest) {
            return shown + "...";
        }
        const std::string_view letter{file.substr(0, bytesOfLetter(file.front()))};
        const bool asItIs{letter.size() > 1 && isVisibleLetter(letter)};
        const std::size_t taken{asItIs ? letter.size() : 1};
        shown += asItIs ? std::string{letter} : sdk_check::escaped(file.substr(0, 1));
        file.remove_prefix(taken);
    }
    return shown;
}

} // namespace ctl
