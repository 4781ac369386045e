#include "mesh/bodyMesh.hpp"

#include "base/files.hpp"
#include "base/littleEndian.hpp"
#include "base/memory.hpp"
#include "io/printer.hpp"
#include "mesh/pointText.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <limits>

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
        const std::uint32_t word =
            sorvik::littleEndian::load<std::uint32_t>(record + i * sizeof(float));
        std::memcpy(values + i, &word, sizeof word);
    }
    return triangle(values);
}

char* storeVector(char* bytes, const v3<float>& v) {
    for (const float value : {v.x, v.y, v.z}) {
        std::uint32_t word = 0;
        std::memcpy(&word, &value, sizeof word);
        sorvik::littleEndian::store(bytes, word);
        bytes += sizeof word;
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

/// Reads three floats behind a keyword of `words` words.
void readVector(sorvik::textScanner& in, int words, float* values) {
    for (int i = 0; i < words; ++i) {
        in.skipWord();
    }
    for (int i = 0; i < 3; ++i) {
        in.read(values[i]);
    }
    in.skipSpace();
}

triangle readFacet(sorvik::textScanner& in) {
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

/// Makes room for the facets that the rest of the file will hold, if they take as much text as
/// those before them.
void reserveForRest(const std::string& file, std::size_t textRead, std::vector<triangle>& faces) {
    std::error_code failed;
    const auto size = std::filesystem::file_size(file, failed);
    if (!failed && size > textRead) {
        const std::size_t perFacet = textRead / faces.size();
        sorvik::memory::reserve(faces, static_cast<std::size_t>(size) / perFacet + faces.size());
    }
}

/// Whether the next line begins a facet: an F, small or capital.
bool isFacetNext(sorvik::textScanner& in) {
    constexpr int lowerCaseBit = 0x20;
    const int next = in.peek();
    return in.good() && (next & ~lowerCaseBit) == 'F';
}

void writeFacet(sorvik::textWriter& out, const triangle& panel) {
    out << "\tfacet normal " << panel.normal << "\n\t\touter loop\n";
    for (auto corner : {&triangle::vertexA, &triangle::vertexB, &triangle::vertexC}) {
        out << "\t\t\tvertex " << panel.*corner << '\n';
    }
    out << "\t\tendloop\n\tendfacet\n";
}

bool holdsWord(const std::string& line, const char* small, const char* capital) {
    return line.find(small) != std::string::npos || line.find(capital) != std::string::npos;
}

} // namespace

bool bodyMesh::stl_isbinary(const std::string& file) {
    std::ifstream in = sorvik::files::open(file);
    std::string line;
    std::getline(in, line);
    if (!holdsWord(line, "solid", "SOLID")) {
        return true;
    }
    // Where there is no second line, reading one leaves the first.
    return !std::getline(in, line) || !holdsWord(line, "facet", "FACET");
}

bool bodyMesh::stl_read_ascii(const std::string& file) {
    std::cout << " READING STL FILE " << file << " IN ASCII FORMAT " << std::endl;
    std::ifstream stream = sorvik::files::open(file);
    sorvik::textScanner in(stream);
    in.skipLine();
    int count = 0;
    if (in.good()) {
        // `nFaces` is that of an earlier read: only a mesh that is full already is left alone.
        while (nFaces <= mostPanels) {
            faces.push_back(readFacet(in));
            if (++count == facetsToGoBy) {
                reserveForRest(file, in.position(), faces);
            }
            if (!isFacetNext(in)) {
                break;
            }
        }
    }
    nFaces = count;
    std::cout << " Read " << count << " triangles in mesh" << std::endl;
    return in.good();
}

bool bodyMesh::stl_read(const std::string& file) {
    std::ifstream in = sorvik::files::open(file);
    char head[headerSize + countSize] = {};
    in.read(head, sizeof head);
    const std::uint32_t count = sorvik::littleEndian::load<std::uint32_t>(head + headerSize);
    if (count > std::uint32_t(std::numeric_limits<int>::max()) ||
        !sorvik::memory::canHold(count, panelMemory)) {
        printer::fatalError(file + " announces " + std::to_string(count) +
                            " facets, more than memory can hold.");
    }
    faces.clear();
    sorvik::memory::reserve(faces, count);
    readFacets(in, count, faces);
    nFaces = static_cast<int>(count);
    return in.good();
}

void bodyMesh::stl_print_ascii(const std::string& file, bool wetOnly) const {
    std::ofstream stream = sorvik::files::create(file);
    sorvik::textWriter out(stream);
    out << "solid OBJECT\n";
    forChosen(wetOnly, [&](const triangle& panel) { writeFacet(out, panel); });
    out << "endsolid OBJECT\n";
}

void bodyMesh::stl_print(const std::string& file, bool wetOnly) const {
    std::ofstream stream = sorvik::files::create(file);
    stl_write(stream, wetOnly);
}

void bodyMesh::stl_write(std::ostream& stream, bool wetOnly) const {
    char head[headerSize + countSize] = {};
    sorvik::littleEndian::store(head + headerSize, wetOnly
                                                       ? static_cast<std::uint32_t>(wetFaces.size())
                                                       : std::uint32_t(nFaces));
    stream.write(head, sizeof head);
    facetWriter out(stream);
    forChosen(wetOnly, [&](const triangle& panel) { out.write(panel); });
}
