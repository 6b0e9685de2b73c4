// make_stream DATAFILE RAW: the stream in which an instrument would send this data file.
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "link/StreamEncoder.h"

int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("usage: make_stream DATAFILE RAW\n", stderr);
        return 2;
    }
    std::ifstream file(arguments[1], std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    std::ofstream raw(arguments[2], std::ios::binary);
    raw << brask::EncodeStream(lines) << std::flush;
    return raw ? 0 : 1;
}
