#include "script/keywords.h"

namespace corvane::script {

Keyword KeywordOf(std::string_view start, std::string_view shape, std::string_view help) {
  const size_t end = start.find_last_not_of(" :(");
  return {std::string(start.substr(0, end == std::string_view::npos ? 0 : end + 1)), shape, help};
}

}  // namespace corvane::script
