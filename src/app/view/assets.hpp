#pragma once

#include <string_view>

/// Texts that the build puts into the program.
namespace sorvik {

std::string_view libraryScript();  ///< three.js and its orbit controls
std::string_view libraryLicence(); ///< of three.js
std::string_view pageStyle();
std::string_view pageScript();

} // namespace sorvik
