#pragma once

#include "numerics/vectorKernels.hpp"
