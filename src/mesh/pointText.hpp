#pragma once

#include "base/textScanner.hpp"
#include "base/textWriter.hpp"
#include "mesh/v3.hpp"

namespace sorvik {

/// Writes "x y z".
inline textWriter& operator<<(textWriter& out, const v3<float>& p) {
    return out << p.x << ' ' << p.y << ' ' << p.z;
}

/// Reads three numbers; those that are missing are 0.
inline v3<float> readPoint(textScanner& in) {
    v3<float> p;
    in.read(p.x);
    in.read(p.y);
    in.read(p.z);
    return p;
}

} // namespace sorvik
