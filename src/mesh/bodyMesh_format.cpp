#include "mesh/bodyMesh.hpp"

#include "base/processEnd.hpp"
#include "base/rewrite.hpp"

#include <iostream>
#include <map>

namespace {

enum format : int { unknown = -1, stl = 0, gdf = 1, nemoh = 2 };

} // namespace

int bodyMesh::chooseFrmt(const std::string& file) {
    static const std::map<std::string, format> formats = {
        {".stl", stl},   {".STL", stl},   {".gdf", gdf},  {".GDF", gdf},
        {".dat", nemoh}, {".DAT", nemoh}, {".nem", nemoh}};
    const std::string extension = file.substr(file.size() - 4);
    std::cout << "mesh format is: " << extension << std::endl;
    const auto found = formats.find(extension);
    return found == formats.end() ? unknown : found->second;
}

bool bodyMesh::read(const std::string& file) {
    const int frmt = chooseFrmt(file);
    switch (frmt) {
    case stl: return stl_isbinary(file) ? stl_read(file) : stl_read_ascii(file);
    case gdf: return gdf_read(file);
    case nemoh: return nemoh_read(file) != 0;
    default:
        sorvik::endWithLine(
            "WARNING. MESH FILE FORMAT " + std::to_string(frmt) +
                " IS NOT SUPPPORTED. PLEASE SUPPLY A .gdf or .stl or a .dat nemoh mesh file.",
            1);
    }
}

bool bodyMesh::write(const std::string& file, bool wetOnly) {
    constexpr double lengthScale = 1.0;
    constexpr double gravity = 9.81;
    switch (chooseFrmt(file)) {
    case stl:
        sorvik::rewrite(meshFile, file, [&](std::ostream& out) { stl_write(out, wetOnly); });
        return true;
    case gdf:
        sorvik::rewrite(meshFile, file,
                        [&](std::ostream& out) { gdf_write(out, wetOnly, lengthScale, gravity); });
        return true;
    case nemoh:
        sorvik::rewrite(meshFile, file, [&](std::ostream& out) { nemoh_write(out); });
        return true;
    default:
        std::cout << "Warning: Output format not supported. Please choose among: .gdf, .stl and "
                     ".dat formats"
                  << std::endl;
        return false;
    }
}
