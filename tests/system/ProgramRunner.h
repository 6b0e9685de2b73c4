// Runs the built program in an empty home of its own and keeps what it wrote.
#pragma once

#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <filesystem>
#include <string>
#include <vector>

#include "StartProgram.h"

namespace brask {

struct Finished {
    int Status = -1;  // the exit status; -1 when a signal ended the program
    std::string Out;
    std::string Error;
};

class ProgramTest : public testing::Test {
  protected:
    // Makes the home and sends the program there.
    ProgramTest();
    ~ProgramTest() override;

    // Runs brask; its standard output goes to the file `out` instead of Finished::Out when that is
    // given.
    Finished Run(const std::vector<std::string>& arguments, const std::string& out = "") const;
    // Runs brask with --json; the one document, null (and a failure) when there is none.
    rapidjson::Document Json(std::vector<std::string> arguments, int expectedStatus = 0) const;

    // A path in the home, with the system's separators.
    std::string At(const std::string& name) const {
        return (home_ / name).make_preferred().string();
    }
    // Of the diagnostic log.
    std::string Log() const { return Read(LogPath(home_.string())); }
    // Writes a file there; its path.
    std::string Write(const std::string& name, const std::string& bytes) const;
    // Of a file there, or anywhere when the path is absolute; empty when there is none.
    std::string Read(const std::string& name) const;
    // Everything below the home, sorted, joined by blanks.
    std::string Listing() const;

  private:
    std::filesystem::path home_;
};

// A data line in the instrument's form.
std::string DataLine(const std::string& time, const std::string& gas, const std::string& celsius);

// The keys of an object in their order, joined by blanks.
std::string KeysOf(const rapidjson::Value& object);

// The texts of "messages".
std::vector<std::string> MessagesOf(const rapidjson::Value& document);

}  // namespace brask
