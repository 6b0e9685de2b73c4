// Any bytes as a received transfer: no crash, fillers do not count, lines are counted right.
#include <algorithm>
#include <string>

#include "FuzzInput.h"
#include "data/ReceivedFileExpander.h"
#include "platform/simulated/MemoryFiles.h"

namespace brask {
namespace {

struct Expanded {
    std::string Data;
    std::int64_t Lines = 0;
};

Expanded Expand(std::string raw) {
    MemoryFiles disk;
    disk.Contents["/raw"] = std::move(raw);
    const auto lines = ReceivedFileExpander(disk).ExpandReceivedFile("/raw", "/data");
    Require(lines.Ok());
    return {disk.Contents["/data"], lines.Value()};
}

}  // namespace
}  // namespace brask

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace brask;
    std::string raw(FuzzText(bytes, size));
    const Expanded expanded = Expand(raw);
    Require(expanded.Lines == std::count(expanded.Data.begin(), expanded.Data.end(), '\n'));
    Require(expanded.Data.empty() || expanded.Data.ends_with("\r\n"));
    Require(std::none_of(expanded.Data.begin(), expanded.Data.end(),
                         [](char c) { return c == '\0' || (c & 0x80) != 0; }));
    std::erase(raw, '\0');
    Require(Expand(raw).Data == expanded.Data);
    // what was expanded holds no codes any more, and no line ends but its own
    if (expanded.Data.find("INSTRUMENT:") == std::string::npos) {
        Require(Expand(expanded.Data).Data == expanded.Data);
    }
    return 0;
}
