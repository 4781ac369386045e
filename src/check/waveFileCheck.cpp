#include "check/waveFileCheck.hpp"

#include "base/excerpt.hpp"
#include "base/files.hpp"
#include "base/numberText.hpp"
#include "check/quietly.hpp"
#include "waves/waveFile.hpp"

namespace sorvik {

namespace {

bool beginsWithNumber(const std::string& line) {
    const std::size_t first = line.find_first_not_of(" \t,;([{+-.");
    return first != line.npos && isDigit(line[first]);
}

} // namespace

void addLostTrains(report& result, const std::string& waveFile) {
    std::ifstream in = files::open(waveFile);
    waveBlock block;
    std::streampos end = 0;
    long long blocks = 0;
    const quietOutcome outcome = quietly([&] {
        for (; readWaveBlock(in, waveFile, block); ++blocks) {
            end = in.tellg();
        }
    });
    if (outcome.hasEnded || end == std::streampos(-1)) {
        return; // the last block ends with the file
    }
    in.clear();
    in.seekg(0);
    location stop;
    std::string word;
    int rows = 0;
    std::string text;
    int line = 1;
    for (std::streampos at = 0; std::getline(in, text); ++line, at = in.tellg()) {
        if (at < end) {
            continue;
        }
        if (stop.line == 0 && text.find_first_not_of(" \t\r") != text.npos) {
            stop.file = waveFile;
            stop.line = line;
            word = text;
        }
        rows += beginsWithNumber(text) ? 1 : 0;
    }
    if (rows > 0) {
        result.add("lost-trains",
                   "The reading ends after block " + std::to_string(blocks) + " at \"" +
                       excerpt(word) + "\". Rows of numbers that follow: " + std::to_string(rows) +
                       ".",
                   {stop});
    }
}

} // namespace sorvik
