#include "nemoh/nemohIO.hpp"
#include "target.hpp"

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
    std::vector<double> first, second;
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
        std::vector<std::complex<double>> values;
        project.readForce("ExcitationForce.tec", freqs, directions, 1, static_cast<int>(forces),
                          values);
        check(values.size() == first.size());
    }
    nemohIO::readC(pathOf("project/results"), first);
}
