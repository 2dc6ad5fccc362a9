// The "&" of captions.
#pragma once

#include <string>
#include <string_view>

namespace corvane::forms {

// Key code of the letter or digit behind the caption's "&"; 0 if there is none. "&&" is a plain "&".
int AccessKeyOf(std::string_view caption);
// The caption as it is read: without the mark.
std::string WithoutMnemonic(std::string_view caption);

}  // namespace corvane::forms
