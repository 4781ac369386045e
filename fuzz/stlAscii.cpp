#include "meshCheck.hpp"

void tryText(const std::string& text) {
    bodyMesh mesh;
    mesh.stl_read_ascii(fileOf("in.stl", text));
    checkCuts(mesh);
    if (mesh.faces.empty()) {
        return;
    }
    mesh.stl_print_ascii(pathOf("1.stl"), false);
    bodyMesh again;
    check(!bodyMesh::stl_isbinary(pathOf("1.stl")) && again.stl_read_ascii(pathOf("1.stl")));
    again.stl_print_ascii(pathOf("2.stl"), false);
    check(contentOf(pathOf("2.stl")) == contentOf(pathOf("1.stl")));
}
