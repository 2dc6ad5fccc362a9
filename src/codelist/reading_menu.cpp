// The menus of the right mouse button: which entries are offered for the place that was clicked.
#include "codelist/collapse.h"
#include "codelist/reading_commands.h"
#include "codelist/uc_list_box.h"
#include "forms/form.h"
#include "runtime/strings.h"

namespace corvane::codelist {

namespace {

using enum ListEntry;

// In a tree they need a quick list.
constexpr ListEntry kOfCode[] = {mnuEdit, mnuBeginSub, mnuVar, mnuHistory, mnuFormat};
constexpr ListEntry kOfItem[] = {mnuEditTempl, mnuNewItem, mnuDeleteItem, mnuEditItem, mnuRenameItem};
constexpr ListEntry kOfWord[] = {mnuQFind, mnuSearch, mnuGoProc, mnuDeclare};
// They tell the container something and depend on nothing else.
constexpr ListEntry kOfContainer[] = {mnuSearchLocal, mnuSearchAll, mnuComnt, mnuUncomnt, mnuFormat, mnuHistory};

// Where [control] stands on its form.
forms::Point PlaceOnForm(const forms::Control& control) {
  forms::Point place{control.Left(), control.Top()};
  for (const forms::Control* around = control.ContainerOf().AsControl(); around;
       around = around->ContainerOf().AsControl()) {
    place.x += around->Left();
    place.y += around->Top();
  }
  return place;
}

std::string Quoted(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

}  // namespace

ClickPlace ReadingCommands::PlaceUnderPointer() {
  return PlaceAt(list.store.Text(list.currentLine), list.store.LineLevel(list.currentLine),
                 list.mouseX - list.gutterWidth, [this](std::string_view text) { return list.WidthOf(text); });
}

void ReadingCommands::OpenMenu(Twips x, Twips y) {
  if (list.loading || list.store.Count() == 0) return;
  for (const ListEntry entry : {mnuPrev, mnuGoto, mnuExpand, mnuQuick}) menu.Enable(entry, false);
  for (const ListEntry entry : kOfWord) menu.Enable(entry, true);
  for (const ListEntry entry : kOfContainer) menu.Enable(entry, true);
  menu.Enable(mnuEdit, list.store.Has(list.currentLine));
  menu.Enable(mnuPrev, list.previousLine > 0);
  menu.Enable(mnuExpand, CanExpand(list.store, list.currentLine));
  menu.Enable(mnuQuick, list.lbx.ListCount() > 0);
  menu.Enable(mnuDBFind, static_cast<bool>(list.DBSearch));
  menu[mnuColor].SetCaption(list.colorCaption);
  if (list.store.Has(list.currentLine)) LookAtClickedPlace();
  const forms::Point surface = PlaceOnForm(list.pic);
  PopUp(surface.x + x, surface.y + y);
}

void ReadingCommands::LookAtClickedPlace() {
  list.ClickLevel = list.store.LineLevel(list.currentLine);
  menu.Enable(mnuGoto, runtime::Holds(runtime::UCase(list.store.Text(list.currentLine)), "GOTO "));
  const ClickPlace place = PlaceUnderPointer();
  menuLevel = place.level;
  Word word;
  if (place.position <= place.text.size()) word = WordAt(place.text, place.position, list.listMode == kSqlList);
  if (word.text.size() >= 2)
    TakeWord(std::move(word));
  else
    for (const ListEntry entry : kOfWord) menu.Enable(entry, false);
}

void ReadingCommands::TakeWord(Word word) {
  constexpr std::string_view kMe = "Me.";
  wordStop = word.stop;
  cursorWord = std::move(word.text);
  if (cursorWord[0] == '.') cursorWord.insert(0, ObjectOfWith(CleanLines(), list.currentLine));
  if (runtime::BeginsWith(cursorWord, kMe)) cursorWord.erase(0, kMe.size());
  const std::string member = Quoted(BehindFirstDot(cursorWord));
  menu[mnuQFind].SetCaption("Search here " + member);
  menu[mnuSearch].SetCaption("Search word " + member);
  menu[mnuDeclare].SetCaption("Goto " + member + " Declaration");
  menu[mnuGoProc].SetCaption("Goto Proc " + Quoted(cursorWord));
}

// An entry whose command tells the container does nothing where the container does not listen.
void ReadingCommands::OfferOnlyWhatIsHeard() {
  const auto disable = [this](std::initializer_list<ListEntry> entries) {
    for (const ListEntry entry : entries) menu.Enable(entry, false);
  };
  if (!list.Search) disable({mnuSearch, mnuSearchLocal, mnuSearchAll});
  if (!list.GoProc) disable({mnuGoProc});
  if (!list.UpdateString) disable({mnuEdit, mnuComnt, mnuUncomnt, mnuFormat});
  if (!list.CodeLostFocus) disable({mnuHistory});
}

void ReadingCommands::PopUp(Twips x, Twips y) {
  if (!list.treeMode) {
    menu.Enable(mnuCollapce, !CanFold(list.store, list.currentLine) || PlaceUnderPointer().level >= kFirstBlockLevel);
    OfferOnlyWhatIsHeard();
    list.FormOf().PopupMenu(menu.mnuPopUp, x, y);
    menu.Enable(mnuCollapce, true);
  } else if (list.ListRole == kScriptTree) {
    const std::string_view text = list.store.Text(list.currentLine);
    const auto behind_first = [&](char c) { return text.find(c, 1) != std::string_view::npos; };
    const bool item = behind_first('}') && behind_first('{');
    for (const ListEntry entry : kOfItem) menu.Enable(entry, item);
    list.FormOf().PopupMenu(menu.mnuTitle, x, y);
  } else {
    for (const ListEntry entry : kOfCode) menu.Enable(entry, list.lbx.ListCount() > 0);
    OfferOnlyWhatIsHeard();
    list.FormOf().PopupMenu(menu.mnuPopUp, x, y);
    for (const ListEntry entry : kOfCode) menu.Enable(entry, true);
  }
  if (std::exchange(dbSearchAsked, false)) list.DBSearch(WithoutObject());
}

}  // namespace corvane::codelist
