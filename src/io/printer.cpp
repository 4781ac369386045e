#include "io/printer.hpp"

#include "base/classicLocale.hpp"
#include "base/processEnd.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iostream>
#include <limits>
#include <string_view>

int printer::m_dblSize = 8;

namespace {

constexpr int barLength = 50;

[[noreturn]] void terminate() {
    std::cout << "* * * Terminating sorvik simulation * * * \n\n" << std::endl;
    sorvik::processEnd(1);
}

[[noreturn]] void terminateWith(std::string_view message) {
    std::cout << "* * * * * * * * * * * A FATAL ERROR HAS OCCURED * * * * * * * * * * *\n\n\t"
              << message << "\n\n"
              << std::endl;
    terminate();
}

void printHeader(const std::string& title) {
    std::cout << "----- " << title << " -----" << std::endl;
}

void printFooter(const std::string& title) {
    std::cout << "------" << std::string(title.size(), '-') << "------" << std::endl;
    std::cout << std::endl;
}

} // namespace

void printer::fatalError(const std::string& message) {
    terminateWith(message);
}

void printer::fatalError(const char* message) {
    terminateWith(message);
}

void printer::fatalNotFound(const std::string& key, const std::string& format) {
    std::cout << "* * * FATAL ERROR * * * \n\tCannot find value of " << key << " in input file. \n"
              << std::endl;
    if (!format.empty()) {
        std::cout << "Expected input of format : \n\t" << key << " = " << format << "\n\n"
                  << std::endl;
    }
    terminate();
}

void printer::fatalCheckSize(int found, int expected, const std::string& name) {
    if (found == expected) {
        return;
    }
    std::cout << "Expected vector of size " << expected << " for input " << name
              << ". Found length " << found << std::endl;
    fatalError("");
}

void printer::printMatrix(const int& rows, const int& cols, const double* data,
                          const std::string& title) {
    printHeader(title);
    printMatrix(std::cout, rows, cols, data);
    printFooter(title);
}

void printer::printMatrix(const int& rows, const int& cols, const std::vector<double>& data,
                          const std::string& title) {
    printMatrix(rows, cols, data.data(), title);
}

void printer::printMatrix(std::ostream& os, const int& rows, const int& cols, const double* data) {
    const sorvik::classicLocale whileWriting(os);
    for (int i = 0; i < rows; ++i) {
        const double* row = data + static_cast<std::ptrdiff_t>(i) * cols;
        for (int j = 0; j < cols; ++j) {
            os << '\t' << row[j];
        }
        os << std::endl;
    }
}

// uncovered: an overload that no task calls
void printer::printMatrix(std::ostream& os, const int& rows, const int& cols,
                          const std::vector<double>& data) {
    printMatrix(os, rows, cols, data.data());
}

void printer::printMatrix(const int& rows, const int& cols, const std::vector<std::string>& cells,
                          const std::string& title) {
    printHeader(title);
    auto cell = cells.cbegin();
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < cols; ++j) {
            std::cout << *cell++ << "  ";
        }
        std::cout << std::endl;
    }
    printFooter(title);
}

std::ostream& printer::printLine(std::ostream& os, const int& n, const double& first,
                                 const double& scale, const double* values) {
    const sorvik::classicLocale whileWriting(os);
    os << first;
    for (int i = 0; i < n; ++i) {
        os << '\t' << values[i] * scale;
    }
    return os << '\n';
}

// uncovered: no task calls it
void printer::writeDoubles(std::ostream& os, int n, const double* values) {
    if (n > 0) {
        os.write(reinterpret_cast<const char*>(values),
                 static_cast<std::streamsize>(n) * m_dblSize);
    }
}

void printer::showProgress(const double& done, const double& total, int& shown) {
    const double share = done * barLength / total;
    if (!std::isfinite(share) || share <= -1.0) {
        return;
    }
    // Bounded before the conversion: an int cannot hold every double, nor twice every int.
    constexpr int most = std::numeric_limits<int>::max() / 2;
    const int reached = static_cast<int>(std::fmin(share, most));
    if (reached > shown) {
        shown = reached;
        const auto length = static_cast<std::size_t>(std::min(reached, barLength));
        std::cout << "\r[" << std::string(length, '#') << std::string(barLength - length, ' ')
                  << "]   " << 2 * reached << " %" << std::flush;
    }
    if (reached == barLength) {
        std::cout << std::endl;
    }
}
