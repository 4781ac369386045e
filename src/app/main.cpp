#include "app/help.hpp"
#include "app/jsonFormat.hpp"
#include "app/meshConvert.hpp"
#include "io/reader.hpp"

namespace {

bool isAsked(const char* flag, int argc, const char** argv) {
    int position = argc;
    return reader::findFlag(flag, argc, argv, position);
}

} // namespace

/// Runs the task whose flag comes first in the order below. A mesh conversion goes on to the
/// others.
int main(int argc, const char** argv) {
    if (argc < 2) {
        help();
        return 0;
    }
    int position = argc;
    if (reader::findFlag("-meshConvert", argc, argv, position) &&
        !meshConvert(position, argc, argv)) {
        return 0;
    }
    if (isAsked("-toJSON", argc, argv)) {
        return jsonFormat(argc, argv);
    }
    help();
    return 0;
}
