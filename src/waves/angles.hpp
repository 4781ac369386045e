#pragma once

namespace sorvik {

constexpr double pi = 3.14159265358979323846;
constexpr double radiansPerDegree = 0.017453292519943295;

} // namespace sorvik
