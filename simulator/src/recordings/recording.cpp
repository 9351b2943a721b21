// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// A recording as it is played: what was answered to which call, one after the other.
#include "recordings/recording.h"

#include "output/wording.h"
#include "recordings/recordingreader.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace veltrix_simulator
{
namespace
{

constexpr std::size_t mostPorts{256};
constexpr std::size_t bytesOfMebibyte{std::size_t{1} << 20};

void notePort(const RecordedCall &call, std::vector<std::string> &ports)
{
    const auto *const name = std::get_if<std::string>(&call.arguments.front());
    if (name != nullptr && ports.size() < mostPorts && !isOneOf(*name, ports)) {
        ports.push_back(*name);
    }
}

void append(RecordedCall &&call, std::size_t line, Recording &recording)
{
    if (call.missing != Missing::Nothing || call.operation->interface == Interface::Log) {
        return;
    }
    if (call.operation->id == OperationId::openDevice) {
        notePort(call, recording.ports);
    }
    const auto found = recording.answers
                           .try_emplace(recordedName(*call.operation, call.target, callText(call)),
                                        RecordedAnswers{recording.answers.size(), call.operation, {}})
                           .first;
    recording.order.emplace_back(line, &found->first);
    found->second.list.push_back(
        {line, call.took, succeeded(call), call.hasOutputs, std::move(call.answer), std::move(call.words)});
}

} // namespace

std::string recordedName(const Operation &operation, std::int32_t target, const std::string &callText)
{
    if (operation.interface != Interface::Device) {
        return callText;
    }
    return addressedName(target).append(1, '.').append(callText);
}

std::variant<Recording, std::string> readRecording(std::istream &input, const std::string &fileName)
{
    Recording recording;
    recording.file = fileName;
    RecordingReader reader{input, fileName};
    try {
        while (std::optional<RecordedLine> line = reader.next()) {
            if (auto *const call = std::get_if<RecordedCall>(&*line)) {
                append(std::move(*call), reader.line(), recording);
            }
        }
    } catch (const RecordingError &wrong) {
        return wrong.message();
    }
    recording.lines = reader.line();
    recording.cut = reader.cut();
    return recording;
}

std::variant<Recording, std::string> loadRecording(const std::string &fileName)
{
    const std::filesystem::path path{std::filesystem::u8path(fileName)};
    // Reading a pipe could wait for ever.
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) {
        return fileName +
               ": there is no such recording; a scenario names it as it is seen from the scenario's folder";
    }
    // Of one that has just been taken away it is the largest number.
    if (std::filesystem::file_size(path, error) > largestRecording) {
        return fileName + ":1: the recording has more than " +
               std::to_string(largestRecording / bytesOfMebibyte) + " MiB; play a part of it";
    }
    std::ifstream input{path, std::ios::binary};
    if (!input) {
        return fileName + ":1: the recording cannot be read; give this user the right to";
    }
    return readRecording(input, fileName);
}

} // namespace veltrix_simulator
