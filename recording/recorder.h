// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// Writes a line for each call that goes to the device library.
#pragma once

#include "calls/objects.h"
#include "calls/parameter.h"
#include "calls/tracefile.h"
#include "calls/traceline.h"
#include "operations/missing.h"
#include "operations/operations.h"
#include "privatetext.h"
#include "veltrix_sdk/records.h"

#include <string>
#include <type_traits>
#include <vector>

namespace recording
{

using veltrix_simulator::CallTime;
using veltrix_simulator::Missing;
using veltrix_simulator::Objects;
using veltrix_simulator::OperationId;
using veltrix_simulator::Parameter;
using veltrix_simulator::Parameters;
using veltrix_simulator::ResultPlace;
using veltrix_simulator::TraceFile;
using Words = veltrix_sdk::ConfigurationWords;

/// What is known when a call begins.
struct Begun
{
    CallTime time;
    int target;
    Missing missing;
};

/// The file, and what has to be known of the device to write in it.
class Recorder
{
public:
    /// Begins the file anew; nothing is open or held. Answers what is wrong; empty when nothing is.
    std::string open(const std::string &itsFileName, const std::string &program);
    void close() { file.close(); }
    bool isOpen() const { return file.isOpen(); }

    /// Hands a call on and writes its line. What it answers is passed on and written as it is.
    template <typename Function>
    std::invoke_result_t<const Function &> call(OperationId operation, Parameters parameters,
                                                const Function &work)
    {
        using Result = std::invoke_result_t<const Function &>;
        const Begun begun{begin(operation)};
        if constexpr (std::is_void_v<Result>) {
            work();
            finish(begun, operation, parameters, ResultPlace{});
        } else {
            Result result{work()};
            // The only text among them is the communication type: whoever plays the recording compares it,
            // and a user may be called so.
            finish(begun, operation, parameters, ResultPlace{&result});
            return result;
        }
    }

    /// The two halves of call(). Words of the configuration are told as an output.
    Begun begin(OperationId operation);
    void finish(const Begun &begun, OperationId operation, Parameters parameters, const ResultPlace &result,
                const Words *words = nullptr);

    /// A text as it is written; it lives until the next one.
    template <typename Text>
    Text told(Text text)
    {
        return texts.without(text);
    }

    /// The words that the program reads and writes in the place of the library's. What the program has
    /// written is handed on before each call, and what the library has written is there after it.
    void keepAlike(Words &ofProgram, Words &ofLibrary)
    {
        copies.push_back({&ofProgram, &ofLibrary, ofLibrary});
    }

    /// What the program has got from the library: the names of objects are those of the latest.
    Objects objects{};
    bool managerHeld{false};
    bool deviceOpen{false};
    int target{0};

private:
    struct WordsCopy
    {
        Words *ofProgram;
        Words *ofLibrary;
        Words known;
    };

    void handWordsOn();
    void fetchWords();
    void write();

    std::string fileName;
    TraceFile file;
    PrivateText texts{PrivateText::ofThisUser()};
    std::vector<WordsCopy> copies;
    std::string line; ///< A member, so that its memory is used again.
};

} // namespace recording
