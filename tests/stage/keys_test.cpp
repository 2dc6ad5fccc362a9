// The keyboard: in a window of the add-in every key is the add-in's, elsewhere none is.
#include "tests/stage/story.h"

namespace corvane::stage {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Keys : public Story {
 protected:
  void Open() {
    ASSERT_EQ(host.StartUp(), S_OK);
    Click("Standard", kButton);
    ASSERT_NE(Explorer(), nullptr);
  }
  bool HasFocus(HWND control) const { return GetFocus() == control || IsChild(control, GetFocus()); }
};

// The environment's loop looks every message up among its accelerators, ours too.
TEST_F(Keys, EveryKeyInOurWindowIsOurs) {
  Open();
  SetFocus(Components());
  Key(VK_TAB);
  EXPECT_FALSE(HasFocus(Components()));
  EXPECT_TRUE(IsChild(Explorer(), GetFocus()));
  Key(VK_TAB, {.shift = true});
  EXPECT_TRUE(HasFocus(Components()));

  const HWND filter = ComponentFilter();
  SetFocus(filter);
  Key('A');
  Key('B');
  EXPECT_EQ(CaptionOf(filter), "ab");
  Key(VK_HOME);
  Key(VK_DELETE);
  EXPECT_EQ(CaptionOf(filter), "b");
  Key(VK_DELETE);

  long asked = stage.ledger.Calls("VBComponents.Item");
  Key(VK_F5);
  EXPECT_GE(stage.ledger.Calls("VBComponents.Item"), asked + 23) << "the project was listed again";
  Key('2', {.alt = true});
  EXPECT_EQ(RowsOf(Components()).size(), 1u + 9u) << "the forms alone";
  Key('1', {.alt = true});
  EXPECT_GT(RowsOf(Components()).size(), 20u);
  Key('F', {.ctrl = true});
  EXPECT_NE(Explorer(), nullptr);

  Press(Procedures(), {VK_HOME, VK_DOWN, VK_RETURN});
  EXPECT_NE(environment->ActiveCodePane(), nullptr);
  Press(Procedures(), {VK_ESCAPE});
  EXPECT_EQ(Explorer(), nullptr);
  EXPECT_THAT(window.commands, IsEmpty());
}

TEST_F(Keys, TheEnvironmentsKeysAreItsOwnWhileItHasTheFocus) {
  Open();
  SetForegroundWindow(window.Handle());
  SetFocus(window.CodeArea());
  Key(VK_F5);
  Key('F', {.ctrl = true});
  Key(VK_DELETE);
  Key('1', {.alt = true});
  Key('A');
  EXPECT_THAT(window.commands, ElementsAre(1, 2, 3, 7, 8));
  Key('D');
  Key('E');
  Key('M');
  EXPECT_EQ(CaptionOf(window.CodeArea()), "dem");
  Key(VK_TAB);
  Key(VK_RETURN);
  Key(VK_ESCAPE);
  EXPECT_THAT(window.commands, ElementsAre(1, 2, 3, 7, 8, 4, 5, 6));
  EXPECT_NE(Explorer(), nullptr);
}

}  // namespace
}  // namespace corvane::stage
