// Any bytes as what the infrared link brings: the device list, received blocks cut anywhere, the
// whole answer of an instrument. No crash, nothing lost, the file stays where it belongs.
#include <algorithm>
#include <string>
#include <vector>

#include "FuzzInput.h"
#include "link/DeviceList.h"
#include "link/InstrumentCommands.h"
#include "link/ReceivedFileCheck.h"
#include "link/ReceivedFiling.h"
#include "platform/InfraredBlocks.h"
#include "platform/simulated/MemoryFiles.h"

namespace brask {
namespace {

void ReadDeviceList(std::string_view bytes) {
    InfraredDeviceList devices{};
    std::copy_n(bytes.begin(), std::min(bytes.size(), devices.size()), devices.begin());
    const FoundDevice found = FindInstrument(devices);
    Require(found.Name.size() <= 22 && found.Name.find('\0') == std::string::npos);
    Require(!found.Accepted || found.Count > 0);
    Require(ServiceAddress(devices)[0] == 26);
}

// Receives of `most` bytes: whatever the cuts, the text behind the control bytes is the same.
std::string TextOf(std::string_view stream, std::size_t most) {
    InfraredBlocks blocks;
    EndOfData end;
    std::string text;
    for (; !stream.empty(); stream.remove_prefix(std::min(most, stream.size()))) {
        const std::string part(stream.substr(0, most));
        const std::string block = blocks.Next(part, part.size() == most);
        Require(block.size() <= part.size() + 1);
        if (block.empty()) continue;
        end.Add(std::string_view(block).substr(1));
        text += block.substr(1);
    }
    Require(end.Met() || !end.LineFeedCame());
    std::erase(text, '\0');
    return text;
}

void CheckFile(std::string_view content) {
    MemoryFiles disk;
    disk.Contents["/file"] = content;
    const CheckedFile checked = CheckReceivedFile(*disk.Open("/file").Value(), [] { return true; });
    Require(checked.Outcome.Ok());
    Require(checked.Counted <= std::count(content.begin(), content.end(), '\r') + 1);
    Require(!checked.BadLine || checked.BadLine->size() != 35);
    const auto instrument = ReadInstrumentText(*disk.Open("/file").Value());
    const std::string name = ReceivedFileName(instrument.Value(), {{2004, 3, 5}, 13, 30, 0});
    Require(name.size() <= 255 && name.starts_with("K42") &&
            name.ends_with(" 03_05_2004_13_30_00.csv"));
    Require(name.find_first_of(std::string("/\\:\r\n\0", 6)) == std::string::npos);
}

}  // namespace
}  // namespace brask

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace brask;
    const std::string_view text = FuzzText(bytes, size);
    ReadDeviceList(text);
    CheckFile(text);
    // the first byte is how many control bytes begin the connection; they must all be there
    if (!text.empty() && bytes[0] < size) {
        const std::string whole = TextOf(text, size + 1);
        for (const std::size_t most : {std::size_t{1}, std::size_t{2}, std::size_t{7}, size}) {
            Require(TextOf(text, most) == whole);
        }
    }
    return 0;
}
