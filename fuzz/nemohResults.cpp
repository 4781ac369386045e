#include "nemoh/nemohIO.hpp"
#include "target.hpp"

namespace {

using numbers = std::vector<double>;

/// Whether `read` comes to its end.
template <class Read>
bool ends(Read read) {
    try {
        read();
    } catch (const sorvik::processEnded&) {
        return false;
    }
    return true;
}

/// Compares the pairs of all lines behind the head, which ends with a zone line, with their places.
void checkPlaces(const std::string& results, std::size_t freqs, std::size_t forces,
                 const numbers& first, const numbers& second) {
    std::istringstream in(results);
    std::size_t head = forces + 2, line = 0;
    for (std::string text; std::getline(in, text);) {
        const std::size_t start = text.find_first_not_of(" \t\r");
        const char mark = start == std::string::npos ? '"' : text[start];
        if (start != std::string::npos && head > 0) {
            head = mark == 'Z' ? 0 : head - 1;
            continue;
        }
        if (mark == 'Z' || mark == '"') {
            continue;
        }
        std::istringstream row(text);
        double a = 0, b = 0;
        row >> a;
        for (std::size_t at = line / freqs * freqs * forces + line % freqs; row >> a >> b;) {
            check(first.at(at) == a && second.at(at) == b);
            at += freqs;
        }
        ++line;
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
