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
#include <cerrno>
#include <csignal>
#include <cwchar>
#include <editline/readline.h>
#include <poll.h>
#include <sys/signalfd.h>
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

/// Ctrl-C and its like wait for the end of the line, and whoever waits for keys is woken by them: one that
/// comes while the line is drawn is not lost. They are noted when this ends.
class WaitingSignals
{
public:
    WaitingSignals()
    {
        sigset_t waiting;
        ::sigemptyset(&waiting);
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
            ::sigaddset(&waiting, signal);
        }
        ::sigprocmask(SIG_BLOCK, &waiting, &before);
        descriptor() = ::signalfd(-1, &waiting, SFD_CLOEXEC);
    }
    ~WaitingSignals()
    {
        ::close(descriptor());
        ::sigprocmask(SIG_SETMASK, &before, nullptr);
    }
    WaitingSignals(const WaitingSignals &) = delete;
    WaitingSignals &operator=(const WaitingSignals &) = delete;

    /// Waits for a key; false when a signal came instead.
    static bool waitForKey()
    {
        pollfd ready[]{{STDIN_FILENO, POLLIN, 0}, {descriptor(), POLLIN, 0}};
        // A window that changes its size, and a program that goes on after Ctrl-Z, wake it as well.
        while (::poll(ready, 2, -1) < 0) {
            if (errno != EINTR) {
                return false;
            }
        }
        return ready[1].revents == 0;
    }

private:
    /// The library asks for keys without an object.
    static int &descriptor()
    {
        static int opened{-1};
        return opened;
    }

    sigset_t before{};
};

/// The next letter, of one byte or several; -1 at the end of the input or for a signal.
int nextKey(FILE * /*input*/)
{
    std::mbstate_t state{};
    for (;;) {
        char byte{};
        if (!WaitingSignals::waitForKey() || ::read(STDIN_FILENO, &byte, 1) != 1) {
            return -1;
        }
        wchar_t letter{};
        const std::size_t size{std::mbrtowc(&letter, &byte, 1, &state)};
        constexpr std::size_t begun{static_cast<std::size_t>(-2)};
        constexpr std::size_t damaged{static_cast<std::size_t>(-1)};
        if (size == damaged) {
            state = {};
        } else if (size != begun) {
            return static_cast<int>(letter);
        }
    }
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
    rl_getc_function = nextKey;
    rl_attempted_completion_function = completeWord;
    rl_basic_word_break_characters = wordEnds;
    for (const std::string &line : history.load()) {
        add_history(line.c_str());
    }
}

LineEditor::~LineEditor()
{
    rl_attempted_completion_function = nullptr;
    currentComplete() = {};
}

std::optional<std::string> LineEditor::read(const char *prompt)
{
    char *const typed{[prompt] {
        const WaitingSignals waiting;
        return ::readline(prompt);
    }()};
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
        history.add(line);
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
