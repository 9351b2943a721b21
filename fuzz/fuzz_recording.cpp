// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Throws bytes at the reader of recordings, and plays what it takes for one.
#include "recordings/player.h"
#include "recordings/recording.h"
#include "recordings/recordingreader.h"
#include "scenarios/scenario.h"
#include "simulation.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <string>
#include <variant>

using namespace veltrix_simulator;

namespace
{

const std::string fileName{"fuzzed.trace"};

void demand(bool isMet)
{
    if (!isMet) {
        std::abort();
    }
}

void demandOneLine(const std::string &text)
{
    demand(text.find('\n') == std::string::npos);
}

/// Writes every call as it is shown.
void show(const std::string &bytes)
{
    std::istringstream input{bytes};
    RecordingReader reader{input, fileName};
    while (const std::optional<RecordedLine> line = reader.next()) {
        if (const auto *const call = std::get_if<RecordedCall>(&*line)) {
            demandOneLine(callText(*call) + answerText(*call) + wordsText(call->words));
            demand(succeeded(*call) || !call->answer.empty());
        }
    }
}

/// Some of each kind of operation on both units.
void playRecorded(const Scenario &scenario)
{
    Simulation &played{simulation()};
    played.start(scenario);
    played.state.managerHeld = true;
    played.sdk.initialize();
    played.sdk.getConfiguration();
    static_cast<void>(std::string{played.configuration.getCommunicationType()});
    for (const Port &port : scenario.ports) {
        played.manager.openDevice(port.name.c_str());
    }
    for (const std::int32_t target : {0, 1}) {
        played.device.setTarget(target);
        std::uint8_t number{0};
        played.device.connect(&number);
        played.device.getVideoMode(&number);
        veltrix_sdk::Temperatures temperatures{};
        veltrix_sdk::ZoomConfig zoom{};
        veltrix_sdk::Warp warp{};
        for (int round{0}; round < 3; ++round) {
            played.device.getTemperatures(&temperatures);
            played.device.getZoomConfig(&zoom);
            played.device.configureZoom(&zoom);
            played.device.getWarp(&warp);
            played.device.getEdgeCorrection();
            played.device.getRoiX1(1);
            played.device.setGamma(played.device.getGamma() + 1);
        }
    }
    played.manager.closeDevice(&played.device);
}

} // namespace

/// Whatever is taken for a recording can be shown and played, by either rule; a refusal is one line that
/// names the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string bytes(data, data + size);
    std::istringstream input{bytes};
    std::variant<Recording, std::string> read{readRecording(input, fileName)};
    if (const auto *const refusal = std::get_if<std::string>(&read)) {
        demand(refusal->rfind(fileName + ':', 0) == 0);
        demandOneLine(*refusal);
        return 0;
    }
    show(bytes);
    Scenario scenario;
    for (const std::string &name : std::get<Recording>(read).ports) {
        scenario.ports.push_back({name});
    }
    scenario.play.recording = std::make_shared<const Recording>(std::get<Recording>(std::move(read)));
    for (const MissingCalls rule : {MissingCalls::Refuse, MissingCalls::Simulate}) {
        scenario.play.missingCalls = rule;
        playRecorded(scenario);
    }
    return 0;
}
