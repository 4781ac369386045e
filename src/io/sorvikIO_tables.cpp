#include "io/sorvikIO.hpp"

#include "base/classicLocale.hpp"
#include "base/classicText.hpp"

// A table is one row of numbers per line. The look ahead after each line makes the last line of a
// file the last one read, with or without a final end of line.

namespace {

constexpr std::string_view delimiters = ";,:=";

bool isDelimiter(int c) {
    return c != std::char_traits<char>::eof() &&
           delimiters.find(static_cast<char>(c)) != std::string_view::npos;
}

void skipLines(std::istream& in, int count) {
    std::string line;
    for (int i = 0; i < count && in.good(); ++i) {
        std::getline(in, line);
    }
}

/// Reads one line and looks at the character after it.
void nextLine(std::istream& in, std::string& line) {
    std::getline(in, line);
    in.peek();
}

/// Reads rows with `readRow` until the stream ends or a row differs in length from the first.
template <class Row>
int readRows(std::istream& in, Row readRow) {
    std::string line;
    nextLine(in, line);
    const int cols = readRow(line);
    int found = cols;
    while (in.good() && found == cols) {
        nextLine(in, line);
        found = readRow(line);
    }
    return found;
}

} // namespace

template <class T>
bool sorvikIO::isDLM(std::istream& in, int nSkip) {
    skipLines(in, nSkip);
    bool delimited = false;
    if (in.good()) {
        const sorvik::classicLocale whileReading(in);
        T first(0);
        in >> first;
        delimited = isDelimiter(in.peek());
    }
    in.clear();
    in.seekg(0);
    return delimited;
}

template <class T>
int sorvikIO::readLine(const std::string& line, std::vector<T>& data) {
    sorvik::classicText in(line);
    int count = 0;
    while (in.good()) {
        T value(0);
        in >> std::ws >> value >> std::ws;
        in.peek();
        data.push_back(value);
        ++count;
    }
    return count;
}

template <class T>
int sorvikIO::readLineDLM(const std::string& line, std::vector<T> data) {
    sorvik::classicText in(line);
    int count = 0;
    while (in.good()) {
        T value(0);
        in >> std::ws >> value >> std::ws;
        data.push_back(value);
        ++count;
        if (in.good() && isDelimiter(in.peek())) {
            in.get();
        }
        in.peek();
    }
    return count;
}

template <class T>
int sorvikIO::readData(std::istream& in, std::vector<T>& data, int nSkip) {
    const bool delimited = isDLM<T>(in, nSkip);
    skipLines(in, nSkip);
    if (delimited) {
        // Only the columns of a delimited table count; callers rely on `data` staying as it is.
        const std::vector<T> scratch;
        return readRows(in, [&](const std::string& l) { return readLineDLM<T>(l, scratch); });
    }
    return readRows(in, [&](const std::string& l) { return readLine<T>(l, data); });
}

template bool sorvikIO::isDLM<double>(std::istream&, int);
template int sorvikIO::readLine<double>(const std::string&, std::vector<double>&);
template int sorvikIO::readLineDLM<double>(const std::string&, std::vector<double>);
template int sorvikIO::readData<double>(std::istream&, std::vector<double>&, int);
