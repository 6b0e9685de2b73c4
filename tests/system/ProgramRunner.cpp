#include "ProgramRunner.h"

#include <fstream>
#include <iterator>
#include <set>

#include "platform/NativeSystem.h"

namespace brask {

namespace fs = std::filesystem;

ProgramTest::ProgramTest() {
    const fs::path unique = NativeSystem().Disk().CreateTemporary("brask-system-").Value();
    // not below a directory called temp, where data files are treated in another way
    home_ = (fs::absolute(BRASK_BIN "/tests") / unique.filename()).make_preferred();
    fs::create_directory(home_);
    fs::remove(unique);
    LiveIn(home_.string());
}

ProgramTest::~ProgramTest() {
    std::error_code ignored;
    fs::remove_all(home_, ignored);
}

Finished ProgramTest::Run(const std::vector<std::string>& arguments, const std::string& out) const {
    // beside the home, so that listings of it show only what the program made
    const std::string outPath = out.empty() ? home_.string() + ".out" : out;
    const std::string errorPath = home_.string() + ".err";
    const int status = RunToEnd("brask", arguments, {outPath, errorPath});
    Finished finished{status, out.empty() ? Read(outPath) : "", Read(errorPath)};
    if (out.empty()) fs::remove(outPath);
    fs::remove(errorPath);
    return finished;
}

rapidjson::Document ProgramTest::Json(std::vector<std::string> arguments,
                                      int expectedStatus) const {
    arguments.emplace_back("--json");
    const Finished finished = Run(arguments);
    EXPECT_EQ(finished.Status, expectedStatus) << finished.Error;
    rapidjson::Document document;
    document.Parse<rapidjson::kParseFullPrecisionFlag | rapidjson::kParseValidateEncodingFlag>(
        finished.Out.c_str());
    EXPECT_FALSE(document.HasParseError()) << finished.Out;
    return document;
}

std::string ProgramTest::Write(const std::string& name, const std::string& bytes) const {
    fs::create_directories((home_ / name).parent_path());
    std::ofstream(home_ / name, std::ios::binary) << bytes;
    return At(name);
}

std::string ProgramTest::Read(const std::string& name) const {
    std::ifstream file(home_ / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string ProgramTest::Listing() const {
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(home_)) {
        names.insert(entry.path().lexically_relative(home_).string());
    }
    std::string listing;
    for (const std::string& name : names) listing += (listing.empty() ? "" : " ") + name;
    return listing;
}

std::string DataLine(const std::string& time, const std::string& gas, const std::string& celsius) {
    return time + "," + gas + "," + celsius + "\r\n";
}

std::string KeysOf(const rapidjson::Value& object) {
    std::string keys;
    for (const auto& member : object.GetObject()) {
        keys += (keys.empty() ? "" : " ") + std::string(member.name.GetString());
    }
    return keys;
}

std::vector<std::string> MessagesOf(const rapidjson::Value& document) {
    std::vector<std::string> texts;
    for (const auto& text : document["messages"].GetArray()) texts.emplace_back(text.GetString());
    return texts;
}

}  // namespace brask
