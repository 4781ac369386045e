#include "mesh/gdfFormat.hpp"

#include "mesh/pointText.hpp"

#include <iostream>

// One line of text, then
//     ULEN GRAV        length scale and gravity, not used; what follows on the line is skipped
//     ISX ISY          1: half of a hull, symmetric about x = 0, y = 0; the rest is skipped
//     NPAN             number of panels
//     x y z x y z x y z x y z       a panel: its four corners, on any number of lines

namespace sorvik::gdf {
namespace {

struct gdfHeader {
    int symmetricX = 0;
    int symmetricY = 0;
    int panels = 0;
};

gdfHeader readHeader(textScanner& in) {
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
int readPanels(textScanner& in, int announced, std::vector<triangle>& faces) {
    int records = 0;
    while (records < announced && in.good()) {
        const v3<float> a = readPoint(in);
        const v3<float> b = readPoint(in);
        const v3<float> c = readPoint(in);
        readPoint(in);
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

bool read(std::istream& in, const std::string& name, panelStore panels) {
    std::cout << " READING GDF FILE " << name << " IN ASCII FORMAT " << std::endl;
    textScanner text(in);
    const gdfHeader header = readHeader(text);
    const bool hasHeader = !text.failed();
    const int records = hasHeader ? readPanels(text, header.panels, panels.faces) : 0;

    // A record in an odd place counts as one triangle, one in an even place as two.
    const int triangles = records + records / 2;
    panels.nFaces = 2 * records - triangles;
    std::cout << " Read " << records << " panels, out of which " << triangles
              << " were triangles. Generated " << panels.nFaces << " triangles." << std::endl;
    if (header.symmetricX == 1) {
        panels.mirror(&v3<float>::x);
    }
    if (header.symmetricY == 1) {
        panels.mirror(&v3<float>::y);
    }
    std::cout << " GDF FILE READ COMPLETE. A total of  " << panels.nFaces << " triangles generated "
              << std::endl;
    return hasHeader && records == header.panels;
}

void write(std::ostream& stream, const panelView& panels, double ULEN, double GRAV) {
    textWriter out(stream);
    out << " WAMIT FILE FORMAT FROM TRIANGULAR STL-STYLE MESH \n";
    out << ULEN << ' ' << GRAV << "\t ULEN GRAV\n";
    out << "0 0\t ISX ISY\n";
    out << panels.count() << '\n';
    panels.forEach([&](const triangle& panel) {
        out << panel.vertexA << ' ' << panel.vertexB << ' ' << panel.vertexC << ' ' << panel.vertexA
            << '\n';
    });
}

} // namespace sorvik::gdf
