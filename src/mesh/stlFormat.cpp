#include "mesh/stlFormat.hpp"

#include "base/classicText.hpp"
#include "base/littleEndian.hpp"
#include "base/memory.hpp"
#include "io/printer.hpp"
#include "mesh/pointText.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iostream>
#include <limits>
#include <streambuf>
#include <string_view>
#include <utility>

// Binary, little-endian: 80 bytes of header, the number of facets in 4 bytes, 50 bytes a facet:
// normal, A, B, C (12 floats) and 2 bytes of attribute.
//
// ASCII:  solid NAME
//         facet normal nx ny nz
//           outer loop
//             vertex x y z                three times
//           endloop
//         endfacet
//         endsolid NAME
// Keywords are not checked: any word stands for any other. White space is free.

namespace sorvik::stl {
namespace {

constexpr std::size_t headerSize = 80;
constexpr std::size_t countSize = 4;
constexpr std::size_t floatsPerFacet = 12;
constexpr std::size_t facetSize = floatsPerFacet * sizeof(float) + 2;
constexpr std::size_t facetsPerBlock = 4096;
/// Facets of a text file from which the number of the others is estimated.
constexpr int facetsToGoBy = 256;
/// The attribute of every facet written.
constexpr char attribute[] = {0x30, 0x00};
/// A mesh that holds more panels than this is not read into.
constexpr int mostPanels = 499999;

/// What one panel takes in memory: its fields, its open product, and its place in the wetted
/// surface.
constexpr std::size_t panelMemory = sizeof(triangle) + 9 * sizeof(double) + 16 + sizeof(void*);

triangle loadFacet(const char* record) {
    float values[floatsPerFacet];
    for (std::size_t i = 0; i < floatsPerFacet; ++i) {
        values[i] = littleEndian::load<float>(record + i * sizeof(float));
    }
    return triangle(values);
}

char* storeVector(char* bytes, const v3<float>& v) {
    for (const float value : {v.x, v.y, v.z}) {
        littleEndian::store(bytes, value);
        bytes += sizeof value;
    }
    return bytes;
}

/// Facet records through a large block.
class facetWriter {
public:
    explicit facetWriter(std::ostream& target) : out_(target), block_(facetsPerBlock * facetSize) {}
    facetWriter(const facetWriter&) = delete;
    facetWriter& operator=(const facetWriter&) = delete;
    ~facetWriter() { flush(); }

    void write(const triangle& panel) {
        end_ = storeVector(end_, panel.normal);
        end_ = storeVector(end_, panel.vertexA);
        end_ = storeVector(end_, panel.vertexB);
        end_ = storeVector(end_, panel.vertexC);
        end_ = std::copy(std::begin(attribute), std::end(attribute), end_);
        if (end_ == block_.data() + block_.size()) {
            flush();
        }
    }

private:
    void flush() {
        out_.write(block_.data(), end_ - block_.data());
        end_ = block_.data();
    }

    std::ostream& out_;
    std::vector<char> block_;
    char* end_ = block_.data();
};

/// Appends `count` facets. Where the stream ends early, the rest repeats its last record, as far as
/// that goes.
void readFacets(std::istream& in, std::size_t count, std::vector<triangle>& faces) {
    std::vector<char> block(std::min(count, facetsPerBlock) * facetSize);
    std::vector<char> last(facetSize);
    for (std::size_t left = count; left > 0;) {
        const std::size_t wanted = std::min(left, facetsPerBlock);
        in.read(block.data(), static_cast<std::streamsize>(wanted * facetSize));
        const auto got = static_cast<std::size_t>(in.gcount());
        const std::size_t whole = got / facetSize;
        for (std::size_t i = 0; i < whole; ++i) {
            faces.push_back(loadFacet(block.data() + i * facetSize));
        }
        if (whole > 0) {
            std::memcpy(last.data(), block.data() + (whole - 1) * facetSize, facetSize);
        }
        std::memcpy(last.data(), block.data() + whole * facetSize, got - whole * facetSize);
        for (std::size_t i = whole; i < wanted; ++i) {
            faces.push_back(loadFacet(last.data()));
        }
        left -= wanted;
    }
}

/// Reads three floats after a keyword of `words` words.
void readVector(textScanner& in, int words, float* values) {
    for (int i = 0; i < words; ++i) {
        in.skipWord();
    }
    for (int i = 0; i < 3; ++i) {
        in.read(values[i]);
    }
    in.skipSpace();
}

triangle readFacet(textScanner& in) {
    float values[floatsPerFacet] = {};
    readVector(in, 2, values);
    in.skipLine();
    for (int corner = 1; corner <= 3; ++corner) {
        readVector(in, 1, values + static_cast<std::size_t>(3 * corner));
    }
    in.skipLine();
    in.skipLine();
    in.skipSpace();
    return triangle(values);
}

/// Whether a stream buffer gave a place to return to: a pipe gives none.
bool isPlace(std::istream::pos_type place) {
    return place != std::istream::pos_type(-1);
}

/// How much is left of a stream that can be rewound; 0 for pipes and devices, which cannot. The
/// stream stays as it is.
std::size_t lengthOf(std::istream& in) {
    std::streambuf& buffer = *in.rdbuf();
    const std::istream::pos_type here = buffer.pubseekoff(0, std::ios::cur, std::ios::in);
    if (!isPlace(here)) {
        return 0;
    }
    const std::istream::pos_type end = buffer.pubseekoff(0, std::ios::end, std::ios::in);
    buffer.pubseekpos(here, std::ios::in);
    return end > here ? static_cast<std::size_t>(end - here) : 0;
}

/// Makes room for the facets of a text of `length` characters, if the rest take as many of them as
/// those in the first `textRead`.
void reserveForRest(std::size_t length, std::size_t textRead, std::vector<triangle>& faces) {
    if (length > textRead) {
        const std::size_t perFacet = textRead / faces.size();
        memory::reserve(faces, length / perFacet + faces.size());
    }
}

/// Whether the next line begins a facet: an F, small or capital.
bool isFacetNext(textScanner& in) {
    constexpr int lowerCaseBit = 0x20;
    const int next = in.peek();
    return in.good() && (next & ~lowerCaseBit) == 'F';
}

void writeFacet(textWriter& out, const triangle& panel) {
    out << "\tfacet normal " << panel.normal << "\n\t\touter loop\n";
    for (auto corner : {&triangle::vertexA, &triangle::vertexB, &triangle::vertexC}) {
        out << "\t\t\tvertex " << panel.*corner << '\n';
    }
    out << "\t\tendloop\n\tendfacet\n";
}

/// Words of five letters as numbers, so that a line of any length can be searched as it is read.
using word = std::uint64_t;

constexpr word append(word last, char letter) {
    constexpr word fiveLetters = 0xFFFFFFFFFFU;
    return (last << 8 | static_cast<unsigned char>(letter)) & fiveLetters;
}

constexpr word wordOf(std::string_view letters) {
    word last = 0;
    for (const char letter : letters) {
        last = append(last, letter);
    }
    return last;
}

/// Reads a line and returns whether it holds one of two words.
bool lineHolds(std::istream& in, word small, word capital) {
    bool isFound = false;
    word last = 0;
    for (char c = 0; in.get(c) && c != '\n';) {
        last = append(last, c);
        isFound = isFound || last == small || last == capital;
    }
    return isFound;
}

/// The first two lines, as far as they lie within `mostHead` characters.
std::string readHead(std::istream& in) {
    constexpr std::size_t mostHead = std::size_t(1) << 20;
    std::string head;
    int lines = 0;
    for (char c = 0; lines < 2 && head.size() < mostHead && in.get(c);) {
        head += c;
        lines += c == '\n' ? 1 : 0;
    }
    return head;
}

/// What was read of a stream, followed by the rest of it.
class joinedBuffer : public std::streambuf {
public:
    joinedBuffer(std::string head, std::istream& rest) : block_(std::move(head)), rest_(rest) {
        setg(block_.data(), block_.data(), block_.data() + block_.size());
    }

protected:
    int_type underflow() override {
        constexpr std::size_t blockSize = std::size_t(1) << 16;
        block_.resize(blockSize);
        rest_.read(block_.data(), blockSize);
        setg(block_.data(), block_.data(), block_.data() + rest_.gcount());
        return rest_.gcount() == 0 ? traits_type::eof() : traits_type::to_int_type(block_[0]);
    }

private:
    std::string block_;
    std::istream& rest_;
};

bool readAs(bool binary, std::istream& in, const std::string& name, panelStore panels) {
    return binary ? readBinary(in, name, panels) : readAscii(in, name, panels);
}

} // namespace

bool isBinary(std::istream& in) {
    const auto start = in.tellg();
    const bool isText = lineHolds(in, wordOf("solid"), wordOf("SOLID")) &&
                        lineHolds(in, wordOf("facet"), wordOf("FACET"));
    if (isPlace(start)) {
        in.clear();
        in.seekg(start);
    }
    return !isText;
}

bool readAscii(std::istream& in, const std::string& name, panelStore panels) {
    std::cout << " READING STL FILE " << name << " IN ASCII FORMAT " << std::endl;
    const std::size_t length = lengthOf(in);
    textScanner text(in);
    text.skipLine();
    int count = 0;
    if (text.good()) {
        // `nFaces` is that of an earlier read: only a mesh that is full already is left alone.
        while (panels.nFaces <= mostPanels) {
            panels.faces.push_back(readFacet(text));
            if (++count == facetsToGoBy) {
                reserveForRest(length, text.position(), panels.faces);
            }
            if (!isFacetNext(text)) {
                break;
            }
        }
    }
    panels.nFaces = count;
    std::cout << " Read " << count << " triangles in mesh" << std::endl;
    return text.good();
}

bool canHold(std::uint32_t count) {
    return count <= std::uint32_t(std::numeric_limits<int>::max()) &&
           memory::canHold(count, panelMemory);
}

bool readBinary(std::istream& in, const std::string& name, panelStore panels) {
    char head[headerSize + countSize] = {};
    in.read(head, sizeof head);
    const auto count = littleEndian::load<std::uint32_t>(head + headerSize);
    if (!canHold(count)) {
        printer::fatalError(name + " announces " + std::to_string(count) +
                            " facets, more than memory can hold.");
    }
    panels.faces.clear();
    memory::reserve(panels.faces, count);
    readFacets(in, count, panels.faces);
    panels.nFaces = static_cast<int>(count);
    return in.good();
}

bool read(std::istream& in, const std::string& name, panelStore panels) {
    if (lengthOf(in) > 0) {
        return readAs(isBinary(in), in, name, panels);
    }
    const std::string head = readHead(in);
    classicText lines(head);
    joinedBuffer buffer(head, in);
    std::istream whole(&buffer);
    return readAs(isBinary(lines), whole, name, panels);
}

void writeAscii(std::ostream& stream, const panelView& panels) {
    textWriter out(stream);
    out << "solid OBJECT\n";
    panels.forEach([&](const triangle& panel) { writeFacet(out, panel); });
    out << "endsolid OBJECT\n";
}

void write(std::ostream& stream, const panelView& panels) {
    char head[headerSize + countSize] = {};
    littleEndian::store(head + headerSize, static_cast<std::uint32_t>(panels.count()));
    stream.write(head, sizeof head);
    facetWriter out(stream);
    panels.forEach([&](const triangle& panel) { out.write(panel); });
}

} // namespace sorvik::stl
