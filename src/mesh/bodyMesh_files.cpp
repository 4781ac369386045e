#include "mesh/bodyMesh.hpp"

#include "base/files.hpp"
#include "base/processEnd.hpp"
#include "base/rewrite.hpp"
#include "mesh/gdfFormat.hpp"
#include "mesh/meshFormats.hpp"
#include "mesh/nemohFormat.hpp"
#include "mesh/stlFormat.hpp"

#include <algorithm>
#include <iostream>

using sorvik::files::create;
using sorvik::files::open;

int bodyMesh::chooseFrmt(const std::string& file) {
    const std::string ending = file.substr(file.size() - 4);
    std::cout << "mesh format is: " << ending << std::endl;
    const auto& formats = sorvik::meshFormats();
    const auto found = std::find_if(formats.begin(), formats.end(), [&](const auto& format) {
        const auto& endings = format.endings;
        return std::find(endings.begin(), endings.end(), ending) != endings.end();
    });
    return found == formats.end() ? -1 : static_cast<int>(found - formats.begin());
}

bool bodyMesh::read(const std::string& file) {
    const int format = chooseFrmt(file);
    if (format < 0) {
        sorvik::endWithLine(
            "WARNING. MESH FILE FORMAT " + std::to_string(format) +
                " IS NOT SUPPPORTED. PLEASE SUPPLY A .gdf or .stl or a .dat nemoh mesh file.",
            1);
    }
    std::ifstream in = open(file);
    return sorvik::meshFormats()[static_cast<std::size_t>(format)].read(in, file, {faces, nFaces});
}

bool bodyMesh::write(const std::string& file, bool wetOnly) {
    const int chosen = chooseFrmt(file);
    if (chosen < 0) {
        std::cout << "Warning: Output format not supported. Please choose among: .gdf, .stl and "
                     ".dat formats"
                  << std::endl;
        return false;
    }
    const auto& format = sorvik::meshFormats()[static_cast<std::size_t>(chosen)];
    sorvik::rewrite(meshFile, file, [&](std::ostream& out) {
        format.write(out, panels(wetOnly || format.isAlwaysWet));
    });
    return true;
}

sorvik::panelView bodyMesh::panels(bool wetOnly) const {
    return wetOnly ? sorvik::panelView(wetFaces) : sorvik::panelView(faces, nFaces);
}

bool bodyMesh::stl_isbinary(const std::string& file) {
    std::ifstream in = open(file);
    return sorvik::stl::isBinary(in);
}

bool bodyMesh::stl_read_ascii(const std::string& file) {
    std::ifstream in = open(file);
    return sorvik::stl::readAscii(in, file, {faces, nFaces});
}

bool bodyMesh::stl_read(const std::string& file) {
    std::ifstream in = open(file);
    return sorvik::stl::readBinary(in, file, {faces, nFaces});
}

void bodyMesh::stl_print_ascii(const std::string& file, bool wetOnly) const {
    std::ofstream out = create(file);
    sorvik::stl::writeAscii(out, panels(wetOnly));
}

void bodyMesh::stl_print(const std::string& file, bool wetOnly) const {
    std::ofstream out = create(file);
    sorvik::stl::write(out, panels(wetOnly));
}

bool bodyMesh::gdf_read(const std::string& file) {
    std::ifstream in = open(file);
    return sorvik::gdf::read(in, file, {faces, nFaces});
}

void bodyMesh::gdf_print(const std::string& file, bool wetOnly, double ULEN, double GRAV) const {
    std::ofstream out = create(file);
    sorvik::gdf::write(out, panels(wetOnly), ULEN, GRAV);
}

int bodyMesh::nemoh_readMeshInfo(const std::string& file, int& nNodes, int& nPanels) {
    std::ifstream in = open(file);
    return sorvik::nemohMesh::count(in, nNodes, nPanels);
}

int bodyMesh::nemoh_read(const std::string& file) {
    std::ifstream in = open(file);
    sorvik::nemohMesh::read(in, {faces, nFaces});
    return nFaces;
}

int bodyMesh::nemoh_print(const std::string& file, bool wetOnly) const {
    if (!wetOnly) {
        std::cout << " Warning: Nemoh mesh only supports wetFaces to be printed." << std::endl;
    }
    std::ofstream out = create(file);
    return sorvik::nemohMesh::write(out, wetFaces);
}
