// The desk without a user: walks through the windows and keeps pictures of them.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <ostream>

#include "desk/desk.h"

namespace corvane::desk {

// Clicks the add-in's button, chooses a component and a procedure in the explorer, goes to its code, and writes a
// picture of the desk and of the explorer into [folder]. Tells on [out] what it did and where the pictures are; false
// where that failed.
bool RunTour(Desk& desk, const QString& folder, std::ostream& out);

// Message boxes where nobody sees them: answered by their default button and counted; shown only for a picture.
class TourPrompts : public host::Prompts {
 public:
  // [plain] answers, [shown] puts boxes on the display.
  TourPrompts(host::Prompts& plain, host::Prompts& shown) : plain_(plain), shown_(shown) {}
  long MsgBox(const std::string& prompt, long style, const std::string& title) override;
  std::string InputBox(const std::string&, const std::string&, const std::string&) override { return {}; }
  std::function<void()> OnBox;  // while set, the next box is shown, and this is called when it is
  long told = 0;                // boxes that nobody waited for

 private:
  host::Prompts &plain_, &shown_;
};

// Pictures of the boxes that ask and tell, as TakeScreenshots; leaves an edited module behind. [prompts] are the
// desk's.
bool TakeBoxPictures(Desk& desk, TourPrompts& prompts, const QString& folder, const QString& suffix, std::ostream& out);

// Pictures of every window into [folder], as <window><suffix>.png. False when one could not be drawn or written.
bool TakeScreenshots(Desk& desk, const QString& folder, const QString& suffix, std::ostream& out);

}  // namespace corvane::desk
