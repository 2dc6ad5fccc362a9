// CommandBarModel: the bars of the environment as data, for who shows them and clicks on them.
#pragma once

#include <string>
#include <vector>

#include "runtime/picture.h"

namespace corvane::environment {

struct BarControl {
  long id = 0;  // unique as long as the environment lives
  long type = 1;
  std::string caption;
  bool visible = true, enabled = true;
  long state = 0, style = 0;
  runtime::PictureRef face;
};

struct Bar {
  std::string name;
  std::vector<BarControl> controls;
};

class CommandBarModel {
 public:
  virtual ~CommandBarModel() = default;
  virtual const std::vector<Bar>& Bars() const = 0;
  virtual const Bar* Find(const std::string& name) const = 0;  // null if there is none
  // Adds what the environment itself has on a bar; a bar that is missing is made.
  virtual void AddOwn(const std::string& bar, BarControl control) = 0;
  virtual void RemoveBar(const std::string& name) = 0;
  // The user clicks: raises the control's CommandBarEvents. False when nobody handles it.
  virtual bool Click(long id) = 0;
};

}  // namespace corvane::environment
