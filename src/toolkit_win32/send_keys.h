// SendKeys: keys pressed as by the user's hand, into the window with the focus, whosever it is.
#pragma once

#include <string_view>

namespace corvane::toolkit_win32 {

class Win32Toolkit;

// Each key is processed before the next. Throws Error 5 for keys that cannot be read, 70 where the system refuses.
void SendKeys(Win32Toolkit& toolkit, std::string_view keys);

}  // namespace corvane::toolkit_win32
