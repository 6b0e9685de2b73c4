// Reading one file of the handheld from its start to its end.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/HandheldAccess.h"
#include "platform/Texts.h"

namespace brask {

// How a reading went: the first thing that kept it from being complete.
struct ReadingOutcome {
    enum class End {
        kComplete,    // every byte was read and taken
        kReadFailed,  // the handheld reported an error
        kShort,       // the handheld said nothing, but bytes are missing, may be, or are too many
        kNotTaken,    // `take` failed
        kStopped,     // `mayGoOn` said no
    };
    End How = End::kComplete;
    Error Why;                 // when it is not complete
    std::uint64_t Length = 0;  // of a complete one, in bytes
};

// Hands every block to `take` in turn and asks `mayGoOn` before each. Ends at the first failure:
// where a read goes on after an error is not known. The file stays open.
ReadingOutcome ReadThrough(HandheldFile& file, const Texts& texts,
                           const std::function<Status(std::string_view)>& take,
                           const std::function<bool()>& mayGoOn);

}  // namespace brask
