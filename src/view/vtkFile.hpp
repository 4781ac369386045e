#pragma once

#include "base/littleEndian.hpp"
#include "base/rewrite.hpp"
#include "base/textWriter.hpp"

#include <array>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

/// VTK XML files for ParaView: a head in XML, then the numbers of all arrays as they lie in memory.
namespace sorvik {

/// Numbers of a data set, in tuples such as the coordinates of a point.
struct vtkArray {
    std::string name;           ///< text
    std::string type;           ///< of a number, such as "Float32"
    std::size_t components = 1; ///< of a tuple
    std::uint64_t bytes = 0;    ///< of all tuples
    /// Writes them, little-endian.
    std::function<void(textWriter&)> write;
};

/// Writes the bytes of a number, the lowest first.
template <class Number>
void writeLittleEndian(textWriter& out, Number value) {
    char bytes[sizeof value];
    littleEndian::store(bytes, value);
    out << std::string_view(bytes, sizeof bytes);
}

/// An array whose tuple i, from 0, is `tupleOf(i)`: a std::array of float, double, std::int32_t,
/// std::int64_t or std::uint8_t. It is called while the file is written, so that no copy of the
/// numbers is needed.
template <class TupleOf>
vtkArray makeVtkArray(std::string name, std::size_t tuples, TupleOf tupleOf) {
    using tuple = std::invoke_result_t<TupleOf, std::size_t>;
    using number = typename tuple::value_type;
    const char* kind = std::is_floating_point_v<number> ? "Float"
                       : std::is_signed_v<number>       ? "Int"
                                                        : "UInt";
    const auto write = [tuples, tupleOf = std::move(tupleOf)](textWriter& out) {
        for (std::size_t i = 0; i < tuples; ++i) {
            for (const number value : tupleOf(i)) {
                writeLittleEndian(out, value);
            }
        }
    };
    return {std::move(name), kind + std::to_string(8 * sizeof(number)), std::tuple_size_v<tuple>,
            std::uint64_t{tuples} * sizeof(tuple), write};
}

/// Names and values of attributes; values are text.
using vtkAttributes = std::vector<std::pair<std::string, std::string>>;

/// An element that holds arrays, such as "Points".
struct vtkElement {
    std::string name;
    vtkAttributes attributes;
    std::vector<vtkArray> arrays;
};

/// What a file holds.
struct vtkDataSet {
    std::string type;         ///< such as "PolyData"
    vtkAttributes attributes; ///< of the element of that name
    vtkAttributes piece;      ///< of its one piece
    std::vector<vtkElement> elements;
};

/// Attributes as they stand in a tag, each after a blank. Values are escaped.
std::string vtkText(const vtkAttributes& attributes);

/// Writes the file of a data set.
void writeVtk(std::ostream& out, const vtkDataSet& data);

/// Whether the name `path` is that of a link, which may lead to a file of the user's.
bool isLink(const std::string& path);

/// As `replace`, but a link is left as it is, and counts as a file that cannot be written.
template <class Write>
bool replaceNoLink(const std::string& path, Write write) {
    return !isLink(path) && replace(path, write);
}

} // namespace sorvik
