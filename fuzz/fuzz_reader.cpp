// Any bytes as a data file: no crash, and the same result wherever blocks end.
#include <algorithm>
#include <cstring>
#include <string>

#include "FuzzInput.h"
#include "data/DataFileReader.h"
#include "data/DateTime.h"

namespace brask {
namespace {

class PiecesFile final : public InputFile {
  public:
    PiecesFile(std::string_view bytes, std::size_t piece) : bytes_(bytes), piece_(piece) {}

    Result<std::size_t> Read(std::span<char> buffer) override {
        const std::size_t length = std::min({buffer.size(), piece_, bytes_.size()});
        std::copy_n(bytes_.data(), length, buffer.data());
        bytes_.remove_prefix(length);
        return length;
    }
    std::uint64_t Size() const override { return bytes_.size(); }

  private:
    std::string_view bytes_;
    std::size_t piece_;
};

struct Outcome final : ReadObserver {
    DataSet Data;
    std::string Reports;
    ReadSummary Summary;

    Outcome(std::string_view bytes, std::size_t piece, const ReadOptions& options) {
        PiecesFile file(bytes, piece);
        Summary = DataFileReader(Data, options, *this).ReadDataFile(file);
    }
    void OnBadLine(const LineReport& report) override {
        Reports += std::to_string(report.LineNumber);
        Reports += report.Line;
        Reports += report.Field;
        Reports += report.Rewritten;
    }
    void OnReadings(std::int32_t) override {}
    bool KeepReading() override { return true; }
};

bool SameBits(std::span<const double> a, std::span<const double> b) {
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size_bytes()) == 0);
}

void CheckPieces(const Outcome& whole, const Outcome& pieces) {
    Require(SameBits(whole.Data.Times(), pieces.Data.Times()));
    Require(SameBits(whole.Data.Gas(), pieces.Data.Gas()));
    Require(SameBits(whole.Data.Temperatures(), pieces.Data.Temperatures()));
    Require(whole.Data.InstrumentName == pieces.Data.InstrumentName);
    Require(whole.Data.InstrumentSerialNumber == pieces.Data.InstrumentSerialNumber);
    Require(whole.Data.InstrumentDate == pieces.Data.InstrumentDate);
    Require(whole.Data.InstrumentGas == pieces.Data.InstrumentGas);
    Require(whole.Reports == pieces.Reports);
    Require(whole.Summary.LoneLineFeeds == pieces.Summary.LoneLineFeeds);
    Require(whole.Summary.RejectedLines == pieces.Summary.RejectedLines);
}

}  // namespace
}  // namespace brask

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace brask;
    if (size < 1) return 0;
    const ReadOptions options{static_cast<LongDateOrder>(bytes[0] % 3),
                              TemperatureUnit((bytes[0] & 64) != 0)};
    const std::string_view text = FuzzText(bytes + 1, size - 1);
    const Outcome whole(text, text.size(), options);
    CheckPieces(whole, Outcome(text, 1, options));
    CheckPieces(whole, Outcome(text, 40, options));
    for (const double serial : whole.Data.Times()) {
        Require(ParseDateTime(FormatReadingTime(serial), options.DateOrder) == serial);
    }
    return 0;
}
