#include "io/sorvikIO.hpp"

#include "base/classicLocale.hpp"
#include "base/processEnd.hpp"
#include "io/brackets.hpp"

#include <istream>
#include <limits>

// The lookup of a single key in a stream, without reading the rest into a map.

namespace {

void skipRestOfLine(std::istream& in) {
    in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
}

/// The value that the stream stands at: a block, or the rest of the line.
std::string readValue(std::istream& in) {
    std::string value;
    if (sorvik::brackets::opens(static_cast<char>(in.peek()))) {
        value = sorvikIO::extractBlock(in);
    } else {
        std::getline(in, value);
        sorvikIO::stripFromComment(value);
    }
    sorvikIO::stripFromUnwanted(value);
    return value;
}

/// Skips blanks and tabs; a newline stands for a value that is missing.
void skipBlanks(std::istream& in) {
    while (in.peek() == ' ' || in.peek() == '\t') {
        in.get();
    }
}

} // namespace

std::string sorvikIO::findKey(std::istream& in, const std::string& key) {
    const sorvik::classicLocale whileReading(in);
    std::string word(key.size(), '\0');
    for (in >> std::ws; in.good(); in >> std::ws) {
        const std::streampos wordStart = in.tellg();
        in.read(word.data(), static_cast<std::streamsize>(word.size()));
        char assign = 0;
        if (word == key && in >> assign && assign == assignmentDLM) {
            skipBlanks(in);
            if (in.peek() == ';' || in.peek() == '\n') {
                sorvik::endWithLine("FATAL ERROR in sorvikIO::findKey: \n Key " + key +
                                        " has no value in the input file!",
                                    1);
            }
            return readValue(in);
        }
        // A key longer than its line has read into the next one.
        in.clear();
        in.seekg(wordStart);
        skipRestOfLine(in);
    }
    return notFoundStr;
}

std::string sorvikIO::lookupKey(std::istream& in, const std::string& key) {
    const std::streampos start = in.tellg();
    std::string value = findKey(in, key);
    if (value != notFoundStr) {
        return value;
    }
    in.clear();
    in.seekg(start);
    return alternativeKey(in, key);
}

std::string sorvikIO::alternativeKey(std::istream& in, const std::string& key) {
    const std::streampos start = in.tellg();
    for (std::size_t cut = key.rfind(memberDLM); cut != std::string::npos && cut > 0;
         // uncovered: GCC counts the second line of a loop separately
         cut = key.rfind(memberDLM, cut - 1)) {
        const std::string source = findKey(in, key.substr(0, cut) + memberDLM + "source");
        in.clear();
        in.seekg(start);
        if (source != notFoundStr) {
            std::string value = findKey(in, source + key.substr(cut));
            in.clear();
            in.seekg(start);
            return value;
        }
    }
    return notFoundStr;
}
