#include "mesh/bodyMesh.hpp"

#include "base/files.hpp"
#include "mesh/pointText.hpp"

#include <iostream>

// One line of text, then
//     ULEN GRAV        length scale and gravity, not used; what follows on the line is skipped
//     ISX ISY          1: half of a hull, symmetric about x = 0, y = 0; the rest is skipped
//     NPAN             number of panels
//     x y z x y z x y z x y z       a panel: its four corners, on any number of lines

namespace {

struct gdfHeader {
    int symmetricX = 0;
    int symmetricY = 0;
    int panels = 0;
};

gdfHeader readHeader(sorvik::textScanner& in) {
    gdfHeader header;
    double unused = 0;
    in.skipLine();
    in.read(unused);
    in.read(unused);
    in.skipLine();
    in.read(header.symmetricX);
    in.read(header.symmetricY);
    in.skipLine();
    in.read(header.panels);
    return header;
}

/// Appends the panels of the records in odd places, each as the triangle of its first three
/// corners; those in even places make none. Returns the number of whole records read.
int readPanels(sorvik::textScanner& in, int announced, std::vector<triangle>& faces) {
    int records = 0;
    while (records < announced && in.good()) {
        const v3<float> a = sorvik::readPoint(in);
        const v3<float> b = sorvik::readPoint(in);
        const v3<float> c = sorvik::readPoint(in);
        sorvik::readPoint(in);
        if (in.failed()) {
            break;
        }
        if (records % 2 == 0) {
            faces.emplace_back(a, b, c);
        }
        ++records;
    }
    return records;
}

} // namespace

bool bodyMesh::gdf_read(const std::string& file) {
    std::cout << " READING GDF FILE " << file << " IN ASCII FORMAT " << std::endl;
    std::ifstream stream = sorvik::files::open(file);
    sorvik::textScanner in(stream);
    const gdfHeader header = readHeader(in);
    const bool hasHeader = !in.failed();
    const int records = hasHeader ? readPanels(in, header.panels, faces) : 0;

    // A record in an odd place counts as one triangle, one in an even place as two.
    const int triangles = records + records / 2;
    nFaces = 2 * records - triangles;
    std::cout << " Read " << records << " panels, out of which " << triangles
              << " were triangles. Generated " << nFaces << " triangles." << std::endl;
    if (header.symmetricX == 1) {
        mirrorX();
    }
    if (header.symmetricY == 1) {
        mirrorY();
    }
    std::cout << " GDF FILE READ COMPLETE. A total of  " << nFaces << " triangles generated "
              << std::endl;
    return hasHeader && records == header.panels;
}

void bodyMesh::gdf_print(const std::string& file, bool wetOnly, double ULEN, double GRAV) const {
    std::ofstream stream = sorvik::files::create(file);
    gdf_write(stream, wetOnly, ULEN, GRAV);
}

void bodyMesh::gdf_write(std::ostream& stream, bool wetOnly, double ULEN, double GRAV) const {
    sorvik::textWriter out(stream);
    out << " WAMIT FILE FORMAT FROM TRIANGULAR STL-STYLE MESH \n";
    out << ULEN << ' ' << GRAV << "\t ULEN GRAV\n";
    out << "0 0\t ISX ISY\n";
    out << (wetOnly ? static_cast<int>(wetFaces.size()) : nFaces) << '\n';
    forChosen(wetOnly, [&](const triangle& panel) {
        out << panel.vertexA << ' ' << panel.vertexB << ' ' << panel.vertexC << ' ' << panel.vertexA
            << '\n';
    });
}
