#include "meshCheck.hpp"

void tryText(const std::string& text) {
    bodyMesh mesh;
    mesh.gdf_read(fileOf("in.gdf", text));
    checkCuts(mesh);
    mesh.gdf_print(pathOf("1.gdf"), false, 1, 9.81);
    bodyMesh again;
    check(again.gdf_read(pathOf("1.gdf")));
    again.gdf_print(pathOf("2.gdf"), false, 1, 9.81);
    // Four lines of header; every second panel is read.
    std::ifstream one(pathOf("1.gdf"));
    std::ifstream two(pathOf("2.gdf"));
    std::string expected;
    std::string written;
    for (int line = 0; std::getline(one, expected); ++line) {
        expected = line == 3 ? std::to_string((mesh.nFaces + 1) / 2) : expected;
        check((line > 4 && line % 2 != 0) || (std::getline(two, written) && written == expected));
    }
    check(!std::getline(two, written));
}
