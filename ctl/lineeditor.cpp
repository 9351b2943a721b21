// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Lines that somebody types, with history and completion where the system has an editor for them.
#include "lineeditor.h"

#include "failure.h"
#include "interruption.h"
#include "shell.h"

#include <cstdlib>
#include <cstring>
#include <iostream>
#include <utility>

#if defined(PILOTEL_HAS_LINE_EDITOR)
#include <editline/readline.h>
#endif
#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace ctl
{

bool LineEditor::somebodyTypes()
{
#if defined(_WIN32)
    return _isatty(0) != 0 && _isatty(1) != 0;
#else
    return ::isatty(STDIN_FILENO) != 0 && ::isatty(STDOUT_FILENO) != 0;
#endif
}

#if defined(PILOTEL_HAS_LINE_EDITOR)

namespace
{

/// The library calls back without an object.
LineEditor::Complete &currentComplete()
{
    static LineEditor::Complete complete;
    return complete;
}

std::vector<std::string> &currentWords()
{
    static std::vector<std::string> words;
    return words;
}

char *nextWord(const char * /*text*/, int state)
{
    static std::size_t next{0};
    next = state == 0 ? 0 : next + 1;
    const std::vector<std::string> &words = currentWords();
    // The library frees it.
    return next < words.size() ? ::strdup(words[next].c_str()) : nullptr;
}

char **completeWord(const char *text, int start, int /*end*/)
{
    // Never names of files.
    rl_attempted_completion_over = 1;
    try {
        const std::vector<std::string> before{
            wordsOf(std::string{rl_line_buffer, static_cast<std::size_t>(start)})};
        currentWords() = currentComplete()(before, text);
    } catch (const Failure &) {
        currentWords().clear();
    }
    const std::vector<std::string> &words = currentWords();
    const bool isAssignment{words.size() == 1 && words.front().back() == '='};
    rl_completion_append_character = isAssignment ? 0 : int{' '};
    return rl_completion_matches(text, nextWord);
}

} // namespace

LineEditor::LineEditor(Complete complete)
{
    static constexpr const char *wordEnds{" \t\n"};
    currentComplete() = std::move(complete);
    rl_readline_name = "pilotel-ctl";
    rl_attempted_completion_function = completeWord;
    rl_basic_word_break_characters = wordEnds;
}

LineEditor::~LineEditor()
{
    rl_attempted_completion_function = nullptr;
    currentComplete() = {};
}

std::optional<std::string> LineEditor::read(const char *prompt)
{
    char *const typed{::readline(prompt)};
    if (typed == nullptr) {
        const bool interrupted{wasInterrupted()};
        forgetCtrlC();
        if (!interrupted || wasInterrupted()) {
            return std::nullopt;
        }
        // Ctrl-C takes back what was typed so far.
        std::cout << std::endl;
        return std::string{};
    }
    std::string line{typed};
    std::free(typed);
    if (!line.empty()) {
        add_history(line.c_str());
    }
    return line;
}

#else

LineEditor::LineEditor(Complete /*complete*/) {}
LineEditor::~LineEditor() = default;

std::optional<std::string> LineEditor::read(const char *prompt)
{
    std::cout << prompt << std::flush;
    std::string line;
    return std::getline(std::cin, line) ? std::optional{line} : std::nullopt;
}

#endif

} // namespace ctl
