#include "app/jsonFormat.hpp"

#include "app/inputFile.hpp"
#include "io/reader.hpp"

int jsonFormat(int argc, const char** argv) {
    std::string name;
    reader::getFlag("-f", argc, argv, name);
    sorvik::readInputFile(name).print(reader::removeExtension(name) + ".json");
    return 1;
}
