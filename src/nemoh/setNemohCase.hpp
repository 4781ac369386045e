#pragma once

#include "io/inputMap.hpp"

/// The -nemoh task: writes the Nemoh project of one floating body into the folder "bem.output".
///
/// The mesh of the body is moved into position and cut at z = 0, or, with "keepMesh", copied as it
/// is; manual, "Nemoh projects", lists the keys. Returns 1, or -1 after a line on standard output
/// that says what is wrong with the input or which file could not be written.
int setNemohCase(const inputMap& inputs);
