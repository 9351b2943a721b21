// SPDX-FileCopyrightText: 2026 The Pilotel Developers
// SPDX-License-Identifier: MIT
// The objects that stand in for those of the device library.
#pragma once

#include "recorder.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace recording
{

/// One for each object of the library; they are kept, as the program may keep a pointer to one.
template <typename StandIn, typename Object>
class StandIns
{
public:
    /// The recorder is told the latest of them as the object of that kind; it outlives this.
    StandIns(Recorder &itsRecorder, Object *Objects::*itsKind) : recorder{itsRecorder}, kind{itsKind} {}

    /// What stands in for the object. Null stays null.
    Object *of(Object *object)
    {
        if (object == nullptr) {
            return nullptr;
        }
        auto found =
            std::find_if(all.begin(), all.end(), [&](const auto &each) { return each->behind() == object; });
        if (found == all.end()) {
            found = all.insert(found, std::make_unique<StandIn>(recorder, *object));
        }
        return recorder.objects.*kind = found->get();
    }

    /// The library's object behind one of these; any other pointer as it is.
    Object *behind(Object *object) const
    {
        const auto found =
            std::find_if(all.begin(), all.end(), [&](const auto &each) { return each.get() == object; });
        return found != all.end() ? (*found)->behind() : object;
    }

private:
    Recorder &recorder;
    Object *Objects::*kind;
    std::vector<std::unique_ptr<StandIn>> all;
};

} // namespace recording
