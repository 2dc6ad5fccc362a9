// Workshop: what expressions ask of the window in which scripts are written.
#pragma once

#include <string>
#include <vector>

namespace corvane::script {

class Workshop {
 public:
  virtual ~Workshop() = default;
  virtual std::string Code() = 0;  // the text of its edit box
  virtual long SelStart() = 0;     // in that box, from 0
  // The items in the order of its sorted list box.
  virtual std::vector<std::string> Sorted(std::vector<std::string> items) = 0;
};

// As a sorted list box shows them: without regard to case, equal ones in the order they came.
std::vector<std::string> SortedAsListed(std::vector<std::string> items);

}  // namespace corvane::script
