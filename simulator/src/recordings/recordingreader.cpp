// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Reads a recording line by line: a trace of the simulator, or of a program that recorded its calls.
#include "recordings/recordingreader.h"

#include "output/wording.h"
#include "recordings/recordedline.h"

#include <utility>

namespace veltrix_simulator
{

std::string RecordingError::message() const
{
    return file + ':' + std::to_string(line) + ": " + text;
}

RecordingReader::RecordingReader(std::istream &itsInput, std::string itsFileName)
    : input{itsInput}, fileName{std::move(itsFileName)}
{}

std::optional<RecordedLine> RecordingReader::next()
{
    if (isCut || !read()) {
        if (number == 0) {
            number = 1;
            fail("the file is empty; name one that a program recorded");
        }
        return std::nullopt;
    }
    try {
        RecordedLine parsed{parseRecordedLine(text)};
        if (number == 1 && !std::holds_alternative<RecordedHeader>(parsed)) {
            throw LineError{"the first line has no \"trace\""};
        }
        return parsed;
    } catch (const LineError &error) {
        // Without its first line nothing says that it is a recording at all.
        if (number == 1) {
            fail("this is no recording: " + error.reason + "; name a file that a program recorded");
        }
        if (!isEnded) {
            isCut = true;
            return std::nullopt;
        }
        fail(error.reason + "; record the session again, or take this line out");
    }
}

std::optional<std::string> RecordingReader::cut() const
{
    if (!isCut) {
        return std::nullopt;
    }
    return RecordingError{fileName, number,
                          "the last line is cut; what stands before it is used. Where the program did not "
                          "crash, copy the file again"}
        .message();
}

bool RecordingReader::read()
{
    constexpr std::size_t portion{std::size_t{1} << 16};
    text.clear();
    isEnded = false;
    while (true) {
        const std::size_t end{buffer.find('\n', used)};
        isEnded = end != std::string::npos;
        text.append(buffer, used, isEnded ? end - used : std::string::npos);
        used = isEnded ? end + 1 : buffer.size();
        if (text.size() > longestRecordedLine) {
            ++number;
            fail("the line has more than " + std::to_string(longestRecordedLine) +
                 " bytes; name a file that a program recorded, or take this line out");
        }
        if (isEnded) {
            break;
        }
        buffer.resize(portion);
        input.read(buffer.data(), static_cast<std::streamsize>(portion));
        buffer.resize(static_cast<std::size_t>(input.gcount()));
        used = 0;
        if (buffer.empty()) {
            break;
        }
    }
    const bool isLine{isEnded || !text.empty()};
    number += isLine ? 1 : 0;
    return isLine;
}

void RecordingReader::fail(const std::string &reason) const
{
    throw RecordingError{fileName, number, reason};
}

} // namespace veltrix_simulator
