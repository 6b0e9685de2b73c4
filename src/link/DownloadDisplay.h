// What a download shows of itself while it runs.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/Texts.h"

namespace brask {

// The steps of a download, one after the other; cancelling leads from each to the last.
enum class DownloadStep { kStarting, kConnecting, kReceiving, kVerifying, kClearing, kEnded };

struct DownloadDisplay {
    DownloadStep Step = DownloadStep::kStarting;
    // The labels lblIRDAConnect, by index; UTF-8.
    std::array<std::string, 6> Labels;
    // Whether labels 4 and 5 ask the user to press a key on the instrument, in red.
    bool Prompt = false;
    // Characters received so far.
    std::int64_t Bytes = 0;
};

// Who shows it. Called from the middle of the work whenever something of it has changed, with each
// block while receiving; must return soon.
class DownloadView {
  public:
    virtual ~DownloadView() = default;
    virtual void OnDownload(const DownloadDisplay& display) = 0;
};

// "12345 (1,234.5 BPS)": a length in bytes with what came in a second on the average of the elapsed
// tenths; the length alone while no time has passed.
std::string RateText(const Texts& texts, std::int64_t bytes, std::int64_t elapsedTenths);

}  // namespace brask
