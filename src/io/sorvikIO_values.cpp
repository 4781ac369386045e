#include "io/sorvikIO.hpp"

#include "base/classicText.hpp"

// A number is what the standard stream extraction accepts in the classic locale; there is no
// grammar of our own.

template <class T>
void sorvikIO::parse(const std::string& text, T& out) {
    sorvik::classicText in(text);
    out = T(0);
    in >> out;
}

template <class T>
void sorvikIO::parse(const std::string& text, std::vector<T>& out) {
    sorvik::classicText in(text);
    while (in.good()) {
        T value(0);
        in >> value >> std::ws;
        in.peek();
        out.push_back(value);
    }
}

template void sorvikIO::parse<double>(const std::string&, double&);
template void sorvikIO::parse<int>(const std::string&, int&);
template void sorvikIO::parse<double>(const std::string&, std::vector<double>&);
