#include "desk/user_act.h"

#include <exception>

#include "desk/ansi_text.h"

namespace corvane::desk {

bool UserAct(const std::function<void()>& act, const std::function<void(const QString& why)>& tell) noexcept {
  std::string why;
  try {
    act();
    return true;
  } catch (const std::exception& error) {
    why = error.what();
  } catch (...) {
    // Nothing is known of it.
  }
  try {
    tell(ToLabel(why.empty() ? "unknown error" : why));
  } catch (...) {
    // A fault that cannot be told must not leave either.
  }
  return false;
}

}  // namespace corvane::desk
