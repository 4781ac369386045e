#include "view/vtkFile.hpp"

#include "base/platform.hpp"
#include "view/page.hpp"

#include <filesystem>
#include <ostream>

//     <VTKFile type="PolyData" version="1.0" byte_order="LittleEndian" header_type="UInt64">
//       <PolyData>
//         <Piece NumberOfPoints="3" ...>
//           <CellData Normals="Normals">
//             <DataArray type="Float32" Name="Normals" NumberOfComponents="3" format="appended"
//                        offset="0"/>
//           ...
//       <AppendedData encoding="raw">
//     _                  then for each array, from its offset after the underscore on, the number
//                        of its bytes in 8 bytes, and these bytes

namespace sorvik {
namespace {

using lengthType = std::uint64_t;

/// Writes an element, and moves `offset` past its arrays.
void writeElement(std::ostream& out, const vtkElement& element, std::uint64_t& offset) {
    out << '<' << element.name << vtkText(element.attributes) << ">\n";
    for (const vtkArray& array : element.arrays) {
        out << "<DataArray"
            << vtkText({{"type", array.type},
                        {"Name", array.name},
                        {"NumberOfComponents", std::to_string(array.components)},
                        {"format", "appended"},
                        {"offset", std::to_string(offset)}})
            << "/>\n";
        offset += sizeof(lengthType) + array.bytes;
    }
    out << "</" << element.name << ">\n";
}

void writeHead(std::ostream& out, const vtkDataSet& data) {
    out << "<?xml version=\"1.0\"?>\n<VTKFile"
        << vtkText({{"type", data.type},
                    {"version", "1.0"},
                    {"byte_order", "LittleEndian"},
                    {"header_type", "UInt64"}})
        << ">\n<" << data.type << vtkText(data.attributes) << ">\n<Piece" << vtkText(data.piece)
        << ">\n";
    std::uint64_t offset = 0;
    for (const vtkElement& element : data.elements) {
        writeElement(out, element, offset);
    }
    out << "</Piece>\n</" << data.type << ">\n<AppendedData encoding=\"raw\">\n_";
}

} // namespace

std::string vtkText(const vtkAttributes& attributes) {
    std::string text;
    for (const auto& [name, value] : attributes) {
        text += " " + name + "=\"" + escapeHtml(value) + "\"";
    }
    return text;
}

void writeVtk(std::ostream& out, const vtkDataSet& data) {
    writeHead(out, data);
    textWriter numbers(out);
    for (const vtkElement& element : data.elements) {
        for (const vtkArray& array : element.arrays) {
            writeLittleEndian(numbers, lengthType{array.bytes});
            array.write(numbers);
        }
    }
    numbers << "\n</AppendedData>\n</VTKFile>\n";
}

bool isLink(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::is_symlink(platform::pathOf(path), ignored);
}

} // namespace sorvik
