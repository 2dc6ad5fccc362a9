// ReadingCommands: what the right mouse button and typed characters do on a list: the menu for the place that was
// clicked, its searches, jumps, folding and rewriting, and the filling of the quick list.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "codelist/click_place.h"
#include "codelist/list_menu.h"
#include "codelist/reading.h"

namespace corvane::codelist {

class ucListBox;

class ReadingCommands {
 public:
  explicit ReadingCommands(ucListBox& list);

  // Opens the menu for the place of the last button release, at [x], [y] of the surface.
  void OpenMenu(forms::Twips x, forms::Twips y);
  void KeyTyped(int key);

  ucListBox& list;
  ListMenu menu;

 private:
  friend class ListMenuTable;

  // reading_menu.cpp
  ClickPlace PlaceUnderPointer();
  void LookAtClickedPlace();
  void TakeWord(Word word);
  void OfferOnlyWhatIsHeard();
  void PopUp(forms::Twips x, forms::Twips y);

  // reading_commands.cpp
  CleanLineOf CleanLines() const;
  const std::string& WithoutObject();
  void SearchWord();
  void SearchInModule();
  void SearchInProject();
  void AskForDBSearch();
  std::optional<long> LevelToFold();
  void CollapseUnderPointer();
  void CollapseOnColorLevel();
  void CollapseLogically();
  void CollapseSelectedLines();
  void ResetFolding();
  void ExpandBehindCurrent();
  void JumpTo(long line);
  void GoDownLevel();
  void GoUpLevel();
  void GoToLabel();
  void GoToPrevious();
  void GoToDeclaration();
  void GoToProcedure();
  void SaveIntoHistory();
  void RewriteLines(const std::function<std::optional<std::string>(long)>& rewritten);
  void FormatCode();
  void CommentSelected();
  void UncommentSelected();

  // print_code.cpp
  bool IsAnySelected() const;
  void PrintLines();
  void PrintCode();

  // quick_search.cpp
  bool IsQuicklyListed(long line) const;
  bool ListQuickly(const std::function<bool(const std::string&)>& wanted);
  void ShowListedQuickly(bool found, bool keep);
  void ShowDeclarations();
  void SearchHere();
  void SearchQuickly(const std::string& text, size_t last);
  void BlankTyped();
  void AskForQuickSearch(int key);

  std::string cursorWord, wordStop;  // under the pointer when the menu was opened, and what ended it
  long menuLevel = 0;                // the block level there
  bool dbSearchAsked = false;
};

}  // namespace corvane::codelist
