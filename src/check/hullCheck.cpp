#include "check/hullCheck.hpp"

#include "base/files.hpp"
#include "check/quietly.hpp"
#include "mesh/bodyMesh.hpp"

namespace sorvik {

report checkHull(const std::string& file, const hullOptions& options) {
    if (!files::canOpen(file)) {
        throw cannotCheck("Cannot read " + file + ". Check the name of the mesh.");
    }
    report result;
    bodyMesh mesh;
    const quietOutcome outcome = quietly([&] {
        const std::vector<double> origin(options.origin.begin(), options.origin.end());
        mesh = bodyMesh(file, origin, {0, 0, 0}, options.level);
    });
    if (outcome.hasEnded || mesh.faces.empty()) {
        result.add("unread-file", outcome.lastLine());
        return result;
    }
    result.addFact("panels", "Panels", static_cast<long long>(mesh.faces.size()));
    return result;
}

} // namespace sorvik
