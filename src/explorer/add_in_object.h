#pragma once

namespace corvane::explorer {

// What the explorer sees of the add-in object that owns it.
class AddInObject {
 public:
  virtual ~AddInObject() = default;
  virtual void Show(bool display) = 0;
  virtual void Hide() = 0;
};

}  // namespace corvane::explorer
