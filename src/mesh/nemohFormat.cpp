#include "mesh/nemohFormat.hpp"

#include "mesh/nodeMatcher.hpp"
#include "mesh/pointText.hpp"

#include <map>

//     2 0              a marker, and 1 for half a hull that is symmetric about y = 0
//     1 x y z          nodes, numbered from 1
//     0 0. 0. 0.       their end: a number below 1
//     1 2 3 1          panels: four node numbers; those of a triangle end with the first
//     0 0 0 0          their end, which is itself read as a panel

namespace sorvik::nemohMesh {
namespace {

/// Node coordinates by number. Most files number their nodes 1, 2, 3, ...: these lie in an array.
class nodeList {
public:
    /// A later node replaces an earlier one of its number.
    void set(int number, const v3<float>& p) {
        const auto index = static_cast<std::size_t>(number);
        if (index == inOrder_.size()) {
            inOrder_.push_back(p);
        } else if (index < inOrder_.size()) {
            inOrder_[index] = p;
        } else {
            others_[number] = p;
        }
    }

    /// (0, 0, 0) for a number that was never set.
    v3<float> get(int number) const {
        const auto index = static_cast<std::size_t>(number);
        if (number > 0 && index < inOrder_.size()) {
            return inOrder_[index];
        }
        const auto other = others_.find(number);
        return other == others_.end() ? v3<float>{} : other->second;
    }

private:
    std::vector<v3<float>> inOrder_ = std::vector<v3<float>>(1);
    std::map<int, v3<float>> others_;
};

/// Reads the two header numbers and the first node number; returns the symmetry flag.
int readHeader(textScanner& in, int& firstNode) {
    int marker = 0;
    int symmetry = 0;
    in.read(marker);
    in.read(symmetry);
    in.read(firstNode);
    return symmetry;
}

/// Reads the nodes from number `first` on, and the line that ends them.
nodeList readNodes(textScanner& in, int first) {
    nodeList nodes;
    int number = first;
    while (in.good() && number >= 1) {
        nodes.set(number, readPoint(in));
        in.read(number);
    }
    readPoint(in);
    return nodes;
}

void readPanels(textScanner& in, const nodeList& nodes, std::vector<triangle>& faces) {
    for (;;) {
        // The end of line after the last panel begins no other.
        in.skipSpace();
        in.peek();
        if (!in.good()) {
            return;
        }
        int corner[4] = {};
        for (int& number : corner) {
            in.read(number);
        }
        const v3<float> a = nodes.get(corner[0]);
        const v3<float> c = nodes.get(corner[2]);
        faces.emplace_back(a, nodes.get(corner[1]), c);
        if (corner[0] != corner[3]) {
            faces.emplace_back(a, c, nodes.get(corner[3]));
        }
    }
}

} // namespace

int count(std::istream& stream, int& nNodes, int& nPanels) {
    textScanner in(stream);
    int number = 0;
    const int symmetry = readHeader(in, number);
    while (in.good() && number >= 1) {
        in.skipLine();
        ++nNodes;
        in.read(number);
    }
    in.skipLine();
    // Every line counts as a panel up to the first that begins with 0. A last line without an end
    // does not count.
    for (bool isEnd = in.peek() == '0'; in.good() && !isEnd; isEnd = in.peek() == '0') {
        in.skipLine();
        nPanels += in.good() ? 1 : 0;
    }
    return symmetry;
}

bool read(std::istream& stream, panelStore panels) {
    textScanner in(stream);
    int firstNode = 0;
    const int symmetry = readHeader(in, firstNode);
    const nodeList nodes = readNodes(in, firstNode);
    readPanels(in, nodes, panels.faces);
    panels.nFaces = static_cast<int>(panels.faces.size());
    if (symmetry == 1) {
        panels.mirror(&v3<float>::y);
    }
    return panels.nFaces != 0;
}

int write(std::ostream& stream, const panelView& panels) {
    nodeMatcher matcher(static_cast<std::size_t>(panels.count()));
    panels.forEach([&](const triangle& panel) {
        matcher.addPanel(panel.vertexA, panel.vertexB, panel.vertexC);
    });
    textWriter out(stream);
    out << "2 0\n";
    int number = 0;
    for (const auto& node : matcher.nodes()) {
        out << ++number << ' ' << node.place << '\n';
    }
    out << "0 0. 0. 0.\n";
    const std::vector<int>& corners = matcher.corners();
    for (std::size_t i = 0; i < corners.size(); i += 3) {
        const int first = corners[i];
        out << first << ' ' << corners[i + 1] << ' ' << corners[i + 2] << ' ' << first << '\n';
    }
    out << "0 0 0 0\n";
    return number;
}

} // namespace sorvik::nemohMesh
