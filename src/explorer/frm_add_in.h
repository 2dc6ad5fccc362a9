// frmAddIn: the explorer, one modeless window that shows the open project as three linked views: components, procedures
// of the chosen component, code. The views are snapshots: they were true when they were filled, and are filled again
// when the user acts. A row carries its own line and component; the environment is asked again at each use.
//
// Any routine that fills a list sets `busy` first and clears it last: handlers may run during DoEvents.
#pragma once

#include <optional>
#include <string>

#include "codelist/cv_button.h"
#include "codelist/uc_list_box.h"
#include "explorer/add_in_object.h"
#include "explorer/bookmarks.h"
#include "explorer/code_points.h"
#include "explorer/favorite_designers.h"
#include "explorer/form_acts.h"
#include "explorer/list_snapshots.h"
#include "explorer/procedure_scan.h"
#include "explorer/rows.h"
#include "explorer/tool_windows.h"
#include "forms/controls.h"
#include "host/services.h"
#include "host/vbe.h"

namespace corvane::explorer {

struct SoughtWord;
struct Tool;

// What is done with the current component.
enum class ComponentAct { AddToFavorites = 1, Clone = 2, Copy = 3, Paste = 4, Map = 5 };

class frmAddIn : public forms::Form {
 public:
  frmAddIn(host::Services& services, forms::Toolkit& toolkit);

  host::Ref<host::VBE> VBInstance;
  AddInObject* Connect = nullptr;

  // Shows the window; when it was loaded already, pops up mnuIDE.
  void Display();
  // Brings the explorer to the module and the line of the active code pane. Returns whether there was one; when there
  // is none, the project mode is chosen, with a message unless this is the first listing.
  bool CurrentModule();

  forms::ImageList imgl{*this, "imgl"};
  forms::Toolbar tlbr{*this, "tlbr"};

  // Components.
  forms::Label Label1{*this, "Label1"};
  codelist::CvButton axAllComp, axForms, axControls, axModules, axClasses, axLastComp;
  forms::ComboBox lbxComp1{*this, "lbxComp1"}, lbxComp2{*this, "lbxComp2"};
  forms::TextBox txtFind{*this, "txtFind"};
  forms::Frame Frame1{*this, "Frame1"};
  forms::OptionButton optFirst{Frame1, "optFirst"}, optSecond{Frame1, "optSecond"};

  // Procedures.
  forms::Label Label2{*this, "Label2"};
  codelist::CvButton cmdPrev, cmdNext;
  forms::ListBox lbxProc1{*this, "lbxProc1"}, lbxProc2{*this, "lbxProc2"};
  forms::TextBox txtFproc{*this, "txtFproc"};
  forms::Frame Frame2{*this, "Frame2"}, Frame3{*this, "Frame3"};
  forms::OptionButton optProcAll{Frame2, "optProcAll"}, optProcSub{Frame2, "optProcSub"},
      optProcFunc{Frame2, "optProcFunc"}, optProcProp{Frame2, "optProcProp"}, optProcEvent{Frame2, "optProcEvent"};
  forms::OptionButton optAllProc{Frame3, "optAllProc"}, optProcPubl{Frame3, "optProcPubl"},
      optProcPriv{Frame3, "optProcPriv"}, optProcStat{Frame3, "optProcStat"};

  // Code.
  forms::Label Label3{*this, "Label3"}, lblSub{*this, "lblSub"}, Label5{*this, "Label5"};
  codelist::CvButton cmGo;
  codelist::ucListBox txtCode;

  // Modes, search, clip book.
  forms::Frame Frame4{*this, "Frame4"}, Frame6{*this, "Frame6"}, Frame5{Frame6, "Frame5"};
  forms::OptionButton optProj{Frame4, "optProj"}, optCurMod{Frame4, "optCurMod"}, optSelMod{Frame4, "optSelMod"};
  forms::ComboBox cmbSearch{Frame6, "cmbSearch"};
  codelist::CvButton cbSearch;
  forms::OptionButton optFndAll{Frame6, "optFndAll"}, optFndCur{Frame6, "optFndCur"}, optFndSel{Frame6, "optFndSel"},
      optGroup{Frame6, "optGroup"};
  forms::CheckBox chkWhole{Frame5, "chkWhole"}, chkSub{Frame5, "chkSub"}, chkComnt{Frame5, "chkComnt"};
  forms::CommandButton cmdMore{*this, "cmdMore"};
  codelist::CvButton cmdColor;
  forms::TextBox txtClip{*this, "txtClip"};

  // Out of sight.
  forms::ListBox lstSave{*this, "lstSave"};
  forms::TextBox txtPrev{*this, "txtPrev"};

  forms::Menu mnuPLB, mnuSearch, mnuSearchMod, mnuGoDesign, mnuComnt, mnuCop, mnuCopy, mnuCopyAdd, mnuCopyPLB;
  forms::Menu mnuIDE, mnuExec, mnuIDECurrent, mnuIDEPrev, mnuIDESearch, mnuIDEDeclare, mnuIDETitle;
  forms::Menu mnuTools;  // the keys of the toolbar, for the keyboard

  // The list pair in use; all logic works through these two.
  forms::ComboBox* lbxComp = &lbxComp1;
  forms::ListBox* lbxProc = &lbxProc1;

  // procedure_index.cpp
  void FillProcedureList(host::CodeModule& module);
  // [number] -1 for none; it is shown only with a label of more than one character.
  void AddProcedureRow(host::CodeModule& module, long line, const std::string& label = {}, long number = -1);

  // go_to_code.cpp
  // Position of the component that the procedure row and the code row point to, 0 if there is none; with goMode it also
  // goes there in the environment, to the start of the procedure with toProcStart.
  long GoToCode();

  // tools.cpp
  void SetTools(ToolWindows windows);

  // component_action.cpp
  void ComponentAction(ComponentAct action);

  // replace_line.cpp: puts [text] into the module in place of what [row] of the code view shows.
  void ReplaceCodeLine(long row, const std::string& text);

  // run_wizard.cpp: requires a library. A [key] of less than two characters asks for the wizard.
  void RunWizard(const std::string& key);

  std::string copiedDesigner;  // what "aPaste" pastes: a copied designer, or a menu that a wizard left

  bool goMode = false, toProcStart = false;
  bool designerFromRow = false;  // the next click on cmGo takes the component from the procedure row
  std::string pendingComponent;  // name of a component to choose at the next choice
  std::string currentText;       // component row that was selected before the list was rebuilt
  long currentItemData = 0;
  std::string previousPoint;  // bookmark row of the place the latest jump left; empty before the first

  // history.cpp
  // To be called before another view comes. The view as it stands becomes the newest point; false where it is no place
  // in code.
  bool SavePendingPoint();
  void ResetHistoryButtons();  // what is pending is pushed, and the place is past the newest point
  CodePoints points;
  CodePoint nextPoint;  // recorded, and pushed at the next navigation

  // bookmark_list.cpp
  void RememberCaretLine();  // of the active code pane, in Label5 and the two below
  void PutBookmark();        // on the line that is remembered
  Bookmarks bookmarks;
  std::string caretModule;
  long caretLine = 0;

  // favorite_designers.cpp
  void AddFavoriteDesigner(const std::string& name);
  FavoriteDesigners favoriteDesigners;

  // snapshots.cpp
  // To be called before the lists are emptied: notes the component row and copies what is listed for it. False where
  // that is the project itself, or nothing.
  bool TakeSnapshotOfView();
  ListSnapshots snapshots{lstSave};
  bool hasResults = false;  // a search listed its hits since the latest snapshot
  long searchScope = 0;     // while the code view asks for a search: 2 whole project, 3 active module

 private:
  friend class ToolTable;
  friend class MenuTable;

  // What a choice of a mode or pair remembers of each of the two list pairs.
  static constexpr int kPairs = 2;

  // frm_add_in_design.cpp
  void Design();
  void DesignLists();
  void DesignOptions();
  void DesignButtons();
  void PlaceControls();
  void OrderTabs();
  void ResetToDesign();
  void ResetTexts();
  void ResetOptions();

  // toolbar.cpp
  void DesignToolbar();
  void AddFixedEntries();
  bool Allows(bool does, Rule rule) const;
  void ShowToolStates();
  bool HasEntries(const Tool& tool) const;
  void tlbr_ButtonClick(int position);
  void tlbr_ButtonDropDown(int position);
  void tlbr_ButtonMenuClick(int position, int entry);
  void RunTool(Act act);
  void RunTool(const std::function<void()>& act);
  void Refresh();
  void ShowAbout();
  void Exit();

  // tools_menu.cpp
  void OpenToolsMenu();
  void AddToolItems(int position, const Tool& tool);
  forms::Menu& AddToolItem(forms::Menu& parent, const std::string& caption, bool enabled, std::function<void()> act);
  std::vector<std::unique_ptr<forms::Menu>> toolItems;

  // menus.cpp
  void DesignMenus();
  void ShowMenuStates();
  void mnuIDESearch_Click();

  // procedure_menu.cpp
  void lbxProc_MouseDown(int button, forms::Twips x, forms::Twips y);
  void lbxProc_KeyDown(int& key, int shift);
  void OpenProcedureMenu(forms::Twips x, forms::Twips y);
  void mnuSearch_Click();
  void mnuGoDesign_Click();

  // tools.cpp
  bool CanCopy() const;
  bool CanPaste() const;
  bool CanDeclare() const;
  bool CanNote() const;
  bool CanMap() const;
  bool HasLibrary() const;
  void CopyProperties();
  void PasteProperties();
  void ShowMap();
  void ShowNotes();
  void DeclareAtCaret();
  void mnuIDEDeclare_Click();
  long ComponentOfPane();

  // component_action.cpp
  std::optional<std::string> CurrentComponentName(ComponentAct action);
  std::optional<std::string> NameOfResultAbove() const;

  // clone_component.cpp
  void CloneCurrent();
  void CloneComponent(host::VBComponent& component, const std::string& name);
  bool IsReadOnly(const std::string& file);
  void SayNotCloned(const std::string& message);
  void SayWhyNotCloned(const host::Error& error);

  // replace_line.cpp
  host::Ref<host::CodeModule> ModuleUnderTitle(long row, long& line);
  host::Ref<host::CodeModule> ModuleInView(long row, long& line);
  void SayChangedBefore();

  // procedure_comment.cpp
  void mnuComnt_Click();
  void CommentProcedure();
  void RunInCommentMode();
  void CommentAt(host::CodeModule& module, long line);
  long HeaderFor(host::CodeModule& module, long line);

  // run_wizard.cpp
  bool KeepMenu(const std::string& result);
  void StartWizard();
  void OpenWorkshop();

  // bookmark_list.cpp
  void PutCaretLine();
  void ShowBookmarks();
  void ShowFirstBookmark();
  void ForgetPlaces();

  // favorites.cpp
  void ToggleFavorite();
  void ShowFavorites();

  // favorite_designers.cpp
  void AddCurrentDesigner();
  void ShowFavoriteDesigners();

  // favorite_wizards.cpp
  void LoadWizardFavorites();
  void StartFavorite(int entry);

  // copy_menu.cpp
  void CopyToClipBook(const std::string& text);
  void mnuCopy_Click();
  void mnuCopyAdd_Click();
  void mnuCopyPLB_Click();

  // windows_of_environment.cpp
  void CloseOtherWindows();
  void CloseDesignersBut(const std::string& selected);
  void ClearImmediate();

  // window.cpp
  void BindEvents();
  void BindComponentEvents();
  void BindProcedureEvents();
  void BindCodeEvents();
  void BindSearchEvents();
  void Form_Load();
  void Form_Activate();
  void Form_Unload();
  void ForgetChoices();
  void Form_KeyDown(int& key, int shift);
  void Leave();
  void DoEvents() { services.Loop.DoEvents(); }
  void Focus(forms::Control& control);

  // resize.cpp
  void Form_Resize();
  void KeepMinimumSize();
  void PlaceByWidth(forms::Twips w);
  void AlignRight(forms::Twips right);
  void PlaceByHeight();
  void SetCodeHeight(forms::Twips height);

  // component_list.cpp
  void FillComponentList();
  void ListProject();
  long BeginFill();
  void HideProcedures();
  void ShowProcedures();
  std::string BeginListing();
  bool RememberComponentRow();
  void ForgetComponentRow();
  void ListComponents(const std::string& nameFilter);
  void AddGlobals(host::CodeModule& module, long index, std::string& text);
  bool PassesKindFilter(host::ComponentType type) const;
  void ChooseListedRow();
  void ListKind(long kind);
  void lbxComp_Click();
  void lbxComp_GotFocus();
  void lbxComp_KeyPress(int& key);
  void ListActiveModule();
  void ShowComponent(long index);
  bool TakePendingComponent(long& index);
  void OfferInSearch(const std::string& rowText);
  void txtFind_KeyPress(int key);

  // current_module.cpp
  void LeaveCurrentMode();
  void ListModuleAt(host::CodeModule& module, long caretLine);
  void SelectRowNear(long caretLine);
  void optProj_Click();
  void optCurMod_Click();
  void optSelMod_Click();

  // history.cpp
  void RecordCurrentPoint();
  long ComponentInView();
  bool PushHistoryPoint();
  void ForgetHistory();
  void ShowHistoryStates();
  bool CanStepBack() const { return points.HasLower(); }
  bool CanStepOn() const { return points.HasHigher(); }
  bool HasHistory() const { return points.Count() > 0; }
  void LeaveNewestPlace();
  void StepToPrevious();
  void StepToNext();
  void StepToFirst();
  void StepToLast();
  void StepToChosen(int entry);
  void ShowPoint();
  void RestoreHistoryPoint();
  long ListedRow(const std::string& text, long line) const;
  void txtCode_CodeLostFocus(long row);

  // snapshots.cpp
  bool TakeSnapshot();
  void cmdPrev_Click();
  void cmdNext_Click();
  void SaveNewestList();
  void RestoreList(long position, const SnapshotHeader& header);
  void SelectComponentRow(const SnapshotHeader& header);
  void LeaveCurrentCode();
  void RestoreCode(long position);

  // go_proc.cpp
  void txtCode_GoProc(const std::string& text);
  long ComponentOfObject(const std::string& object);
  long RowOfWord(const SoughtWord& word, long component) const;
  bool ListWord(const SoughtWord& word, long& component);
  bool ListWordOf(const SoughtWord& word, host::VBComponent& component, long index);
  void ShowWord(long row);

  // code_events.cpp
  void txtCode_DblClick();
  void txtCode_Search(const std::string& text);
  void ShowClipBook();

  // project_search.cpp
  void cbSearch_Click();
  void cmbSearch_Click();
  void cmbSearch_KeyPress(int& key);
  void mnuSearchMod_Click();
  void SayInSearch(const char* message);
  std::string SelectedModule() const;
  void RememberSearchText(const std::string& text);
  void BeginResults();
  void ListHits(std::string module);
  std::string ModuleToSearch();
  void ListHitsOf(host::VBComponent& component, const std::string& only, const std::string& project);
  void ShowFirstResult();
  void RestoreComponentRow(const std::string& text, long itemData);

  // property_search.cpp
  void SearchProperties();
  long ListPropertyHits(const std::string& text, long fill);
  void BeginPropertyHits();
  void AddHeading(const std::string& name);
  void AddResult(const std::string& row);

  // list_pairs.cpp
  void SwitchPair(int to);
  void ShowPair(int pair);

  // procedure_index.cpp
  ProcedureFilter FilterInForce();
  void AddProcedureText(const std::string& text, long line, const std::string& label = {}, long number = -1);
  void AddRow(const std::string& text, long itemData);
  void FilterProcedures();
  void BindFilter(forms::OptionButton& option);
  void optAllProc_Click();
  void optProcEvent_Click();
  void txtFproc_KeyPress(int key);
  void lbxProc_DblClick();
  void lbxProc_KeyPress(int key);

  // code_view.cpp
  void lbxProc_Click();
  long ComponentOfRow();
  long ComponentOfBookmark(const Bookmark& bookmark);
  host::Ref<host::VBComponent> ComponentAt(const std::string& row, long index);
  host::Ref<host::VBComponents> ComponentsOf(const std::string& row);
  std::string ComponentNamedBy(const std::string& row) const;
  host::Ref<host::VBComponent> ComponentToWrite();
  void RememberView(host::CodeModule& module, long firstLine);
  void ShowDeclarations(host::CodeModule& module);
  bool ShowProcedure(host::CodeModule& module, long line);
  void ShowBlock(host::CodeModule& module, long line, const std::string& title);
  void ShowCode(const std::string& text, bool raw, bool wholeBlock);
  void ShowRaw(const std::string& text);
  void txtCode_TextDone();
  void ReloadCode(long row);
  void cmdMore_Click();
  void CoverLists(bool covered);
  void cmdColor_Click();
  void txtCode_EscapeClicked();

  // go_to_code.cpp
  bool IsGlobalsText() const;
  host::Ref<host::CodeModule> ModuleOfTitleAbove(long& index, long& line);
  host::Ref<host::CodeModule> ModuleOfRow(long& index, long& line);
  void GoTo(host::CodeModule& module, long line);
  void RememberPreviousPoint();
  void cmGo_Click();
  std::string DesignerName();
  bool OpenDesigner(const std::string& name);
  void SayNoDesigner();
  void SayTitleChosen();

  host::Services& services;

  bool activated = false;      // the work of the first activation has been done
  bool loadedOnce = false;     // the window is loaded
  bool initDone = false;       // the first listing has been tried
  bool busy = false;           // a list is being filled: a click on one does nothing
  bool noOptionEvent = false;  // an option is set by code: its click does nothing
  bool noPairEvent = false;    // a pair switch or a search sets the mode options
  bool keepFilters = false;    // a filter is clicked: a listing leaves the filters as they are
  bool skipGlobals = false;    // a kind button lists
  bool filterClicked = false;  // the mouse press under way has chosen a filter
  bool searching = false;      // the properties are searched: any click ends it
  bool navigating = false;     // a step through the history loads the view
  bool textLoads = false;      // into the code view
  bool wasMinimised = false;   // at the end of the last resize
  long kindFilter = 0;         // 0 all, 1 forms, 2 user controls, 3 standard modules, 4 classes
  long currentComponent = 0;   // position of the component in view
  long chosenRow = -1;         // of the components, before a text is typed
  long fills = 0;              // listings begun: one that finds another number behind a yield ends there
  bool proceduresHadFocus = false;

  ToolWindows tools;
  bool commentMode = false;      // the comment of a procedure is read or written
  std::string commentText;       // on the way in the present one, on the way out the new one; character 2: to be read
  std::string collectedComment;  // the present one
  long commentLines = 0;         // of the present one, up to the header

  int pair = 0;
  long pairLine[kPairs] = {};
  bool pairProj[kPairs] = {true, true}, pairCurMod[kPairs] = {};

  long textOffset = 1;       // row on which the text about to be loaded must stand
  long savedPosition = 0;    // the same, from a history step; 0: none
  long textsDone = 0;        // texts that were loaded to their end
  long firstCodeRow = 1;     // row of the first real line of the text shown
  long firstLineShown = 0;   // line of the module that the first row shows; 0: none in particular
  std::string viewedModule;  // the one whose text the code view shows; empty: none in particular
  long viewedLines = 0;      // how many it had then
  forms::Rect codePlace;     // of the code view before it was maximised
};

}  // namespace corvane::explorer
