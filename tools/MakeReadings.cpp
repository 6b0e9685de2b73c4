// make-readings: data files of any size, for tests and benchmarks.
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <vector>

#include "ReadingsOptions.h"
#include "ReadingsWriter.h"

namespace {

constexpr int kFailed = 1;
constexpr int kWrongUsage = 2;

int Complain(const std::string& reason, int code) {
    std::fprintf(stderr, "make-readings: %s\n", reason.c_str());
    return code;
}

brask::Status Put(std::FILE* out, std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), out) == bytes.size()) return {};
    return brask::Error{errno, std::strerror(errno)};
}

int WriteReadings(const brask::ReadingsOptions& options, std::FILE* out) {
    brask::ReadingsWriter writer(options,
                                 [out](std::string_view bytes) { return Put(out, bytes); });
    const brask::Status written = writer.Write();
    if (!written.Ok()) return Complain(written.Why().Reason, kFailed);
    return std::fflush(out) == 0 ? 0 : Complain(std::strerror(errno), kFailed);
}

}  // namespace

int main(int count, char** arguments) {
    const std::vector<std::string_view> given(arguments + 1, arguments + count);
    const auto options = brask::ParseReadingsOptions(given);
    if (!options.Ok()) {
        return Complain(options.Why().Reason + " (try make-readings --help)", kWrongUsage);
    }
    if (options.Value().Help) {
        return Put(stdout, brask::ReadingsHelp()).Ok() && std::fflush(stdout) == 0 ? 0 : kFailed;
    }
    const std::string& path = options.Value().Output;
    std::FILE* const out = path.empty() ? stdout : std::fopen(path.c_str(), "wb");
    if (out == nullptr) return Complain(path + ": " + std::strerror(errno), kFailed);
    const int code = WriteReadings(options.Value(), out);
    if (path.empty()) return code;
    return std::fclose(out) == 0 ? code : Complain(path + ": " + std::strerror(errno), kFailed);
}
