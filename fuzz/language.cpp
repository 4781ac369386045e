#include "languageCheck.hpp"

void tryText(const std::string& text) {
    checkLanguage(text, '=');
}
