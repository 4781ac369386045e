#include "nemoh/nemohIO.hpp"
#include "target.hpp"

namespace {

using numbers = std::vector<double>;

/// Compares all pairs after the head, which ends with a zone line, with their places.
void checkPlaces(const std::string& results, std::size_t freqs, std::size_t forces,
                 const numbers& first, const numbers& second) {
    std::istringstream in(results);
    std::stringstream data;
    std::size_t head = forces + 2;
    for (std::string text; std::getline(in, text);) {
        char mark = 0;
        if (!(std::istringstream(text) >> mark)) {
            continue;
        }
        if (head > 0) {
            head = mark == 'Z' ? 0 : head - 1;
        } else if (mark != 'Z' && mark != '"') {
            data << text << '\n';
        }
    }
    for (std::size_t line = 0; line * forces < first.size(); ++line) {
        double a = 0, b = 0;
        data >> a;
        for (std::size_t force = 0; force < forces; ++force) {
            const std::size_t at = (line / freqs * forces + force) * freqs + line % freqs;
            check(data >> a >> b && first.at(at) == a && second.at(at) == b);
        }
    }
}

} // namespace

/// The text is that of Nemoh.cal, a line "====", and that of all results.
void tryText(const std::string& text) {
    static const nemohIO project(pathOf("project"));
    const std::size_t split = text.find("\n====\n");
    const std::string results = split == std::string::npos ? "" : text.substr(split + 5);
    fileOf("project/Nemoh.cal", text.substr(0, split));
    for (const char* name :
         {"RadiationCoefficients.tec", "ExcitationForce.tec", "KH.dat", "Hydrostatics.dat"}) {
        fileOf(std::string("project/results/") + name, results);
    }
    numbers first, second;
    int freqs = 0, directions = 0;
    const int bodies = project.readCase(freqs, first, directions, second);
    const auto perForce = static_cast<std::size_t>(freqs);
    const auto sets = static_cast<std::size_t>(directions);
    check(first.size() == perForce && second.size() == sets);
    std::size_t motions = 0, forces = 0;
    for (int body = 1; body == 1 || body <= bodies; ++body) {
        int counts[2] = {};
        if (project.readBody(body, counts[0], counts[1], first) != 0) {
            return;
        }
        motions += static_cast<std::size_t>(counts[0]);
        forces += static_cast<std::size_t>(counts[1]);
    }
    if (ends([&] { project.readCoeffs(freqs, bodies, first, second); })) {
        check(first.size() == motions * forces * perForce && second.size() == first.size());
    }
    if (ends([&] { project.readExcitation(freqs, directions, bodies, first, second); })) {
        check(first.size() == sets * forces * perForce && second.size() == first.size());
        checkPlaces(results, perForce, forces, first, second);
        std::vector<std::complex<double>> values;
        project.readForce("ExcitationForce.tec", freqs, directions, 1, static_cast<int>(forces),
                          values);
        check(values.size() == first.size());
    }
    nemohIO::readC(pathOf("project/results"), first);
}
