// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Texts without what tells whose machine they come from.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace recording
{

/// Takes paths and the names of a user out of texts: of a path its last part is left, in the place of a name
/// stands `USER`. What counts as a path is `/a/b`, `~/a`, `C:\a` and `\\a\b`, up to a blank or, in quotes,
/// up to the closing one.
class PrivateText
{
public:
    /// The folders are those of the user, the names what the user is called; empty ones do not count. The
    /// last part of a folder is a name, too.
    PrivateText(const std::vector<std::string> &itsHomes, std::vector<std::string> itsNames);

    /// What the environment says of the user.
    static PrivateText ofThisUser();

    /// The text itself when nothing is to be taken out, else another one, which is valid until the next call.
    std::string_view without(std::string_view text);
    /// The same of a text that ends with a NUL; null stays null.
    const char *without(const char *text);

private:
    /// Appends a text without names.
    void append(std::string_view text);
    /// Whether one of the names stands in the text at that place as a word; its length, or 0.
    std::size_t nameAt(std::string_view text, std::size_t place) const;
    /// Where the path that begins at that place ends; the place itself when none begins there.
    std::size_t endOfPath(std::string_view text, std::size_t place) const;

    std::vector<std::string> homes;
    std::vector<std::string> names;
    std::string changed;
};

} // namespace recording
