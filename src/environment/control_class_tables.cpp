#include "environment/control_class_tables.h"

namespace corvane::environment {

namespace {

using enum PropertyKind;
using enum PropertyRule;

constexpr std::string_view kButtonFace = "&H8000000F&", kButtonText = "&H80000012&", kWindow = "&H80000005&",
                           kWindowText = "&H80000008&";

// Texts of choices, as the environment writes them behind the number.
constexpr std::string_view kManualAutomatic = "Manual|Automatic";
constexpr std::string_view kAppearances = "Flat|3D";
constexpr std::string_view kBorders = "None|Fixed Single";
constexpr std::string_view kWindowBorders =
    "None|Fixed Single|Sizable|Fixed Dialog|Fixed ToolWindow|Sizable ToolWindow";
constexpr std::string_view kLineBorders = "Transparent|Solid|Dash|Dot|Dash-Dot|Dash-Dot-Dot|Inside Solid";
constexpr std::string_view kPointers =
    "Default|Arrow|Cross|I-Beam|Icon|Size|Size NE SW|Size N S|Size NW SE|Size W E|Up Arrow|Hourglass|No Drop|"
    "Arrow and Hourglass|Arrow and Question|Size All|99=Custom";
constexpr std::string_view kOleDrops = "None|Manual|Automatic";
constexpr std::string_view kDataLinks = "None|Automatic|Manual|Notify";
constexpr std::string_view kFormLinks = "None|Source";
constexpr std::string_view kScaleModes = "User|Twip|Point|Pixel|Character|Inch|Millimeter|Centimeter";
constexpr std::string_view kDrawModes =
    "1=Blackness|Not Merge Pen|Mask Not Pen|Not Copy Pen|Mask Pen Not|Invert|Xor Pen|Not Mask Pen|Mask Pen|Not Xor Pen|"
    "Nop|Merge Not Pen|Copy Pen|Merge Pen Not|Merge Pen|Whiteness";
constexpr std::string_view kDrawStyles = "Solid|Dash|Dot|Dash-Dot|Dash-Dot-Dot|Transparent|Inside Solid";
constexpr std::string_view kFillStyles =
    "Solid|Transparent|Horizontal Line|Vertical Line|Upward Diagonal|Downward Diagonal|Cross|Diagonal Cross";
constexpr std::string_view kButtonStyles = "Standard|Graphical";
constexpr std::string_view kTextAlignments = "Left Justify|Right Justify|Center";
constexpr std::string_view kBoxAlignments = "Left Justify|Right Justify";
constexpr std::string_view kBackStyles = "Transparent|Opaque";
constexpr std::string_view kAligns = "None|Align Top|Align Bottom|Align Left|Align Right";
constexpr std::string_view kSelections = "None|Simple|Extended";
constexpr std::string_view kPalettes = "Halftone|UseZOrder|Custom|Container|None|Object";
constexpr std::string_view kStartPositions = "Manual|CenterOwner|CenterScreen|Windows Default";
constexpr std::string_view kWindowStates = "Normal|Minimized|Maximized";

// Sets that several classes share.
constexpr PropertyRow kNoTip[] = {
    {"DragIcon", Picture},
    {"DragMode", Choice, "0", kManualAutomatic},
    {"Enabled", Boolean, "True"},
    {"Height", Length, "", {}, true},
    {"Left", Length, "", {}, true},
    {"MouseIcon", Picture},
    {"MousePointer", Choice, "0", kPointers},
    {"Tag", Text},
    {"Top", Length, "", {}, true},
    {"Visible", Boolean, "True"},
    {"WhatsThisHelpID", Number, "0"},
    {"Width", Length, "", {}, true},
};
constexpr PropertyRow kTip[] = {{"ToolTipText", Text}};
constexpr PropertyRow kTabIndex[] = {{"TabIndex", Number, "", {}, true}};
constexpr PropertyRow kFocus[] = {
    {"CausesValidation", Boolean, "True"},
    {"HelpContextID", Number, "0"},
    {"TabIndex", Number, "", {}, true},
    {"TabStop", Boolean, "True"},
};
constexpr PropertyRow kData[] = {
    {"DataField", Text}, {"DataFormat", Reference}, {"DataMember", Text}, {"DataSource", Text}};
constexpr PropertyRow kLink[] = {
    {"LinkItem", Text}, {"LinkMode", Choice, "0", kDataLinks}, {"LinkTimeout", Number, "50"}, {"LinkTopic", Text}};
constexpr PropertyRow kScale[] = {
    {"ScaleHeight", Length, "", {}, true},   {"ScaleLeft", Length, "0"},
    {"ScaleMode", Choice, "1", kScaleModes}, {"ScaleTop", Length, "0"},
    {"ScaleWidth", Length, "", {}, true},
};
constexpr PropertyRow kDraw[] = {
    {"AutoRedraw", Boolean, "False"},
    {"ClipControls", Boolean, "True"},
    {"DrawMode", Choice, "13", kDrawModes},
    {"DrawStyle", Choice, "0", kDrawStyles},
    {"DrawWidth", Number, "1"},
    {"FillColor", Colour, "&H00000000&"},
    {"FillStyle", Choice, "1", kFillStyles},
    {"FontTransparent", Boolean, "True"},
    {"HasDC", Boolean, "True"},
};
constexpr PropertyRow kButton[] = {
    {"DisabledPicture", Picture},          {"DownPicture", Picture},
    {"MaskColor", Colour, "&H00C0C0C0&"},  {"Picture", Picture},
    {"Style", Choice, "0", kButtonStyles}, {"UseMaskColor", Boolean, "False"},
};
constexpr PropertyRow kAppearance[] = {{"Appearance", Choice, "1", kAppearances}};
constexpr PropertyRow kFont[] = {{"Font", Font}};
constexpr PropertyRow kOleDrop[] = {{"OLEDropMode", Choice, "0", kOleDrops}};
constexpr PropertyRow kOleDrag[] = {{"OLEDragMode", Choice, "0", kManualAutomatic}};
constexpr PropertyRow kRightToLeft[] = {{"RightToLeft", Boolean, "False"}};
constexpr PropertyRow kOnFace[] = {{"BackColor", Colour, kButtonFace}, {"ForeColor", Colour, kButtonText}};
constexpr PropertyRow kOnWindow[] = {{"BackColor", Colour, kWindow}, {"ForeColor", Colour, kWindowText}};
constexpr PropertyRow kCaption[] = {{"Caption", Text}};
constexpr PropertyRow kPicture[] = {{"Picture", Picture}};

// The properties of single classes.
constexpr PropertyRow kForm[] = {
    {"BorderStyle", Choice, "2", kWindowBorders},
    {"ControlBox", Boolean, "True"},
    {"Enabled", Boolean, "True"},
    {"Height", Length, "", {}, false, FrameHeight},
    {"HelpContextID", Number, "0"},
    {"Icon", Picture},
    {"KeyPreview", Boolean, "False"},
    {"Left", Length, "", {}, false, FrameLeft},
    {"LinkMode", Choice, "0", kFormLinks},
    {"LinkTopic", Text, "$", {}, true},
    {"MaxButton", Boolean, "True"},
    {"MDIChild", Boolean, "False"},
    {"MinButton", Boolean, "True"},
    {"MouseIcon", Picture},
    {"MousePointer", Choice, "0", kPointers},
    {"Moveable", Boolean, "True"},
    {"NegotiateMenus", Boolean, "True"},
    {"Palette", Picture},
    {"PaletteMode", Choice, "0", kPalettes},
    {"ShowInTaskbar", Boolean, "True"},
    {"StartUpPosition", Choice, "0", kStartPositions},
    {"Tag", Text},
    {"Top", Length, "", {}, false, FrameTop},
    {"Visible", Boolean, "True"},
    {"WhatsThisButton", Boolean, "False"},
    {"WhatsThisHelp", Boolean, "False"},
    {"Width", Length, "", {}, false, FrameWidth},
    {"WindowState", Choice, "0", kWindowStates},
};
constexpr PropertyRow kMdiForm[] = {
    {"AutoShowChildren", Boolean, "True"},
    {"BackColor", Colour, "&H8000000C&", {}, true},
    {"Enabled", Boolean, "True"},
    {"Height", Length, "", {}, false, FrameHeight},
    {"HelpContextID", Number, "0"},
    {"Icon", Picture},
    {"Left", Length, "", {}, false, FrameLeft},
    {"LinkMode", Choice, "0", kFormLinks},
    {"LinkTopic", Text, "$", {}, true},
    {"MouseIcon", Picture},
    {"MousePointer", Choice, "0", kPointers},
    {"Moveable", Boolean, "True"},
    {"NegotiateToolbars", Boolean, "True"},
    {"ScrollBars", Boolean, "True"},
    {"StartUpPosition", Choice, "0", kStartPositions},
    {"Tag", Text},
    {"Top", Length, "", {}, false, FrameTop},
    {"Visible", Boolean, "True"},
    {"WhatsThisHelp", Boolean, "False"},
    {"Width", Length, "", {}, false, FrameWidth},
    {"WindowState", Choice, "0", kWindowStates},
};
constexpr PropertyRow kUserControl[] = {
    {"AccessKeys", Text},
    {"Alignable", Boolean, "False"},
    {"BackStyle", Choice, "1", kBackStyles},
    {"BorderStyle", Choice, "0", kBorders},
    {"CanGetFocus", Boolean, "True"},
    {"ClipBehavior", Choice, "1", "None|UseRegion"},
    {"ControlContainer", Boolean, "False"},
    {"DataBindingBehavior", Choice, "0", "vbNone|vbSimpleBound|vbComplexBound"},
    {"DataSourceBehavior", Choice, "0", "vbNone|vbDataSource"},
    {"DefaultCancel", Boolean, "False"},
    {"EditAtDesignTime", Boolean, "False"},
    {"Enabled", Boolean, "True"},
    {"ForwardFocus", Boolean, "False"},
    {"Height", Length, "", {}, false, ClientHeight},
    {"HitBehavior", Choice, "1", "None|UseRegion|UsePaint"},
    {"InvisibleAtRuntime", Boolean, "False"},
    {"KeyPreview", Boolean, "False"},
    {"MaskColor", Colour, kButtonFace},
    {"MaskPicture", Picture},
    {"MouseIcon", Picture},
    {"MousePointer", Choice, "0", kPointers},
    {"Palette", Picture},
    {"PaletteMode", Choice, "3", kPalettes},
    {"PropertyPages", Reference},
    {"Public", Boolean, "", {}, false, Exposed},
    {"Tag", Text},
    {"ToolboxBitmap", Picture},
    {"Width", Length, "", {}, false, ClientWidth},
    {"Windowless", Boolean, "False"},
};
constexpr PropertyRow kPropertyPage[] = {
    {"Enabled", Boolean, "True"},
    {"Height", Length, "", {}, false, ClientHeight},
    {"HelpContextID", Number, "0"},
    {"KeyPreview", Boolean, "False"},
    {"MouseIcon", Picture},
    {"MousePointer", Choice, "0", kPointers},
    {"Palette", Picture},
    {"PaletteMode", Choice, "0", kPalettes},
    {"StandardSize", Choice, "0", "Custom|Small|Large"},
    {"Tag", Text},
    {"Width", Length, "", {}, false, ClientWidth},
};
constexpr PropertyRow kUserDocument[] = {
    {"ContinuousScroll", Boolean, "True"},
    {"Enabled", Boolean, "True"},
    {"Height", Length, "", {}, false, ClientHeight},
    {"HScrollSmallChange", Length, "225"},
    {"KeyPreview", Boolean, "False"},
    {"MinHeight", Length, "0"},
    {"MinWidth", Length, "0"},
    {"MouseIcon", Picture},
    {"MousePointer", Choice, "0", kPointers},
    {"Palette", Picture},
    {"PaletteMode", Choice, "0", kPalettes},
    {"ScrollBars", Choice, "3", "None|Horizontal|Vertical|Both"},
    {"Tag", Text},
    {"VScrollSmallChange", Length, "225"},
    {"Width", Length, "", {}, false, ClientWidth},
};
constexpr PropertyRow kCommandButton[] = {
    {"BackColor", Colour, kButtonFace}, {"Cancel", Boolean, "False"}, {"Default", Boolean, "False"}};
constexpr PropertyRow kCheckBox[] = {{"Alignment", Choice, "0", kBoxAlignments},
                                     {"Value", Choice, "0", "Unchecked|Checked|Grayed"}};
constexpr PropertyRow kOptionButton[] = {{"Alignment", Choice, "0", kBoxAlignments}, {"Value", Boolean, "False"}};
constexpr PropertyRow kTextBox[] = {
    {"Alignment", Choice, "0", kTextAlignments},
    {"BorderStyle", Choice, "1", kBorders},
    {"HideSelection", Boolean, "True"},
    {"Locked", Boolean, "False"},
    {"MaxLength", Number, "0"},
    {"MultiLine", Boolean, "False"},
    {"PasswordChar", Text},
    {"ScrollBars", Choice, "0", "None|Horizontal|Vertical|Both"},
    {"Text", Text},
};
constexpr PropertyRow kLabel[] = {
    {"Alignment", Choice, "0", kTextAlignments},
    {"AutoSize", Boolean, "False"},
    {"BackStyle", Choice, "1", kBackStyles},
    {"BorderStyle", Choice, "0", kBorders},
    {"UseMnemonic", Boolean, "True"},
    {"WordWrap", Boolean, "False"},
};
constexpr PropertyRow kItems[] = {
    {"IntegralHeight", Boolean, "True"}, {"ItemData", ItemData}, {"List", List}, {"Sorted", Boolean, "False"}};
constexpr PropertyRow kComboBox[] = {
    {"Locked", Boolean, "False"}, {"Style", Choice, "0", "Dropdown Combo|Simple Combo|Dropdown List"}, {"Text", Text}};
constexpr PropertyRow kListBox[] = {
    {"Columns", Number, "0"}, {"MultiSelect", Choice, "0", kSelections}, {"Style", Choice, "0", "Standard|Checkbox"}};
constexpr PropertyRow kFrame[] = {
    {"BorderStyle", Choice, "1", kBorders}, {"ClipControls", Boolean, "True"}, {"HelpContextID", Number, "0"}};
constexpr PropertyRow kPictureBox[] = {{"Align", Choice, "0", kAligns},
                                       {"AutoSize", Boolean, "False"},
                                       {"BorderStyle", Choice, "1", kBorders},
                                       {"Negotiate", Boolean, "False"}};
constexpr PropertyRow kImage[] = {{"BorderStyle", Choice, "0", kBorders}, {"Stretch", Boolean, "False"}};
constexpr PropertyRow kTimer[] = {{"Enabled", Boolean, "True"},
                                  {"Interval", Number, "0"},
                                  {"Left", Length, "", {}, true},
                                  {"Tag", Text},
                                  {"Top", Length, "", {}, true}};
constexpr PropertyRow kScrollBar[] = {{"LargeChange", Number, "1"},
                                      {"Max", Number, "32767"},
                                      {"Min", Number, "0"},
                                      {"SmallChange", Number, "1"},
                                      {"Value", Number, "0"}};
constexpr PropertyRow kFileListBox[] = {
    {"Archive", Boolean, "True"}, {"Hidden", Boolean, "False"}, {"MultiSelect", Choice, "0", kSelections},
    {"Normal", Boolean, "True"},  {"Pattern", Text, "\"*.*\""}, {"ReadOnly", Boolean, "True"},
    {"System", Boolean, "False"},
};
constexpr PropertyRow kShape[] = {
    {"BackColor", Colour, kWindow},
    {"BackStyle", Choice, "0", kBackStyles},
    {"BorderColor", Colour, kWindowText},
    {"BorderStyle", Choice, "1", kLineBorders},
    {"BorderWidth", Number, "1"},
    {"DrawMode", Choice, "13", kDrawModes},
    {"FillColor", Colour, "&H00000000&"},
    {"FillStyle", Choice, "1", kFillStyles},
    {"Height", Length, "", {}, true},
    {"Left", Length, "", {}, true},
    {"Shape", Choice, "0", "Rectangle|Square|Oval|Circle|Rounded Rectangle|Rounded Square"},
    {"Tag", Text},
    {"Top", Length, "", {}, true},
    {"Visible", Boolean, "True"},
    {"Width", Length, "", {}, true},
};
constexpr PropertyRow kLine[] = {
    {"BorderColor", Colour, kWindowText},
    {"BorderStyle", Choice, "1", kLineBorders},
    {"BorderWidth", Number, "1"},
    {"DrawMode", Choice, "13", kDrawModes},
    {"Tag", Text},
    {"Visible", Boolean, "True"},
    {"X1", Length, "", {}, true},
    {"X2", Length, "", {}, true},
    {"Y1", Length, "", {}, true},
    {"Y2", Length, "", {}, true},
};
constexpr PropertyRow kDataControl[] = {
    {"Align", Choice, "0", kAligns},
    {"BOFAction", Choice, "0", "Move First|BOF"},
    {"Connect", Text, "\"Access\"", {}, true},
    {"DatabaseName", Text, "", {}, true},
    {"DefaultCursorType", Choice, "0", "DefaultCursor|ODBCCursor|ServerSideCursor", true},
    {"DefaultType", Choice, "2", "1=UseODBC|UseJet", true},
    {"EOFAction", Choice, "0", "Move Last|EOF|Add New"},
    {"Exclusive", Boolean, "False", {}, true},
    {"Negotiate", Boolean, "False"},
    {"Options", Number, "0", {}, true},
    {"ReadOnly", Boolean, "False", {}, true},
    {"RecordsetType", Choice, "1", "Table|Dynaset|Snapshot", true},
    {"RecordSource", Text, "", {}, true},
};
constexpr PropertyRow kOle[] = {
    {"AutoActivate", Choice, "2", "Manual|GetFocus|DoubleClick|Automatic"},
    {"AutoVerbMenu", Boolean, "True"},
    {"BackColor", Colour, kWindow},
    {"BackStyle", Choice, "1", kBackStyles},
    {"BorderStyle", Choice, "1", kBorders},
    {"Class", Text},
    {"DataField", Text},
    {"DataSource", Text},
    {"DisplayType", Choice, "0", "Content|Icon"},
    {"HostName", Text},
    {"MiscFlags", Number, "0"},
    {"OLEDropAllowed", Boolean, "False"},
    {"OLETypeAllowed", Choice, "2", "Linked|Embedded|Either"},
    {"SizeMode", Choice, "0", "Clip|Stretch|AutoSize|Zoom"},
    {"SourceDoc", Text},
    {"SourceItem", Text},
    {"UpdateOptions", Choice, "0", "Automatic|Frozen|Manual"},
    {"Verb", Number, "0"},
};
constexpr PropertyRow kMenu[] = {
    {"Caption", Text, "", {}, true},
    {"Checked", Boolean, "False"},
    {"Enabled", Boolean, "True"},
    {"HelpContextID", Number, "0"},
    {"NegotiatePosition", Choice, "0", "None|Left|Middle|Right"},
    {"Shortcut", Shortcut},
    {"Tag", Text},
    {"Visible", Boolean, "True"},
    {"WindowList", Boolean, "False"},
};
// The head of a class file.
constexpr PropertyRow kClass[] = {
    {"DataBindingBehavior", Choice, "0", "vbNone|vbSimpleBound|vbComplexBound", true},
    {"DataSourceBehavior", Choice, "0", "vbNone|vbDataSource", true},
    {"Instancing", Choice, "", "1=Private|PublicNotCreatable|SingleUse|GlobalSingleUse|MultiUse|GlobalMultiUse", false,
     Instancing},
    {"MTSTransactionMode", Choice, "0",
     "NotAnMTSObject|NoTransactions|RequiresTransaction|UsesTransaction|RequiresNewTransaction", true},
    {"Persistable", Choice, "0", "NotPersistable|Persistable", true},
};
constexpr PropertyRow kClassUnlisted[] = {{"MultiUse", Boolean, "True", {}, true}};

// Written for a window's client area, never listed.
constexpr PropertyRow kClient[] = {
    {"ClientHeight", Length, "", {}, true},
    {"ClientLeft", Length, "", {}, true},
    {"ClientTop", Length, "", {}, true},
    {"ClientWidth", Length, "", {}, true},
};

constexpr PropertyRow kExtender[] = {
    {"Align", Choice, "0", kAligns},
    {"Cancel", Boolean, "False"},
    {"CausesValidation", Boolean, "True"},
    {"DataField", Text},
    {"DataFormat", Reference},
    {"DataMember", Text},
    {"DataSource", Text},
    {"Default", Boolean, "False"},
    {"DragIcon", Picture},
    {"DragMode", Choice, "0", kManualAutomatic},
    {"Height", Length, "", {}, true},
    {"HelpContextID", Number, "0"},
    {"Left", Length, "", {}, true},
    {"Negotiate", Boolean, "False"},
    {"TabIndex", Number, "", {}, true},
    {"TabStop", Boolean, "True"},
    {"Tag", Text},
    {"ToolTipText", Text},
    {"Top", Length, "", {}, true},
    {"Visible", Boolean, "True"},
    {"WhatsThisHelpID", Number, "0"},
    {"Width", Length, "", {}, true},
};

}  // namespace

PropertySet ExtenderTable() {
  return kExtender;
}

const std::vector<ClassTable>& ClassTables() {
  static const std::vector<ClassTable> tables = {
      {"VB.Form",
       "Form",
       "Load",
       true,
       4680,
       3195,
       {kDraw, kScale, kAppearance, kOnFace, kCaption, kFont, kOleDrop, kPicture, kRightToLeft, kForm},
       kClient},
      {"VB.MDIForm",
       "MDIForm",
       "Load",
       true,
       4680,
       3195,
       {kAppearance, kCaption, kFont, kOleDrop, kPicture, kRightToLeft, kMdiForm},
       kClient},
      {"VB.UserControl",
       "UserControl",
       "Initialize",
       true,
       4800,
       3600,
       {kDraw, kScale, kAppearance, kOnFace, kFont, kOleDrop, kPicture, kRightToLeft, kUserControl},
       kClient},
      {"VB.PropertyPage",
       "PropertyPage",
       "Initialize",
       true,
       4800,
       3600,
       {kDraw, kScale, kAppearance, kOnFace, kCaption, kFont, kOleDrop, kPicture, kRightToLeft, kPropertyPage},
       kClient},
      {"VB.UserDocument",
       "UserDocument",
       "Initialize",
       true,
       4800,
       3600,
       {kDraw, kScale, kAppearance, kOnFace, kFont, kOleDrop, kPicture, kRightToLeft, kUserDocument},
       kClient},
      {"VB.CommandButton",
       "Command",
       "Click",
       false,
       1215,
       495,
       {kNoTip, kTip, kFocus, kButton, kAppearance, kCaption, kFont, kOleDrop, kRightToLeft, kCommandButton},
       {}},
      {"VB.CheckBox",
       "Check",
       "Click",
       false,
       1215,
       495,
       {kNoTip, kTip, kFocus, kButton, kData, kAppearance, kOnFace, kCaption, kFont, kOleDrop, kRightToLeft, kCheckBox},
       {}},
      {"VB.OptionButton",
       "Option",
       "Click",
       false,
       1215,
       495,
       {kNoTip, kTip, kFocus, kButton, kAppearance, kOnFace, kCaption, kFont, kOleDrop, kRightToLeft, kOptionButton},
       {}},
      {"VB.TextBox",
       "Text",
       "Change",
       false,
       1215,
       495,
       {kNoTip, kTip, kFocus, kData, kLink, kAppearance, kOnWindow, kFont, kOleDrag, kOleDrop, kRightToLeft, kTextBox},
       {}},
      {"VB.Label",
       "Label",
       "Click",
       false,
       1215,
       495,
       {kNoTip, kTip, kTabIndex, kData, kLink, kAppearance, kOnFace, kCaption, kFont, kOleDrop, kRightToLeft, kLabel},
       {}},
      {"VB.ComboBox",
       "Combo",
       "Change",
       false,
       1215,
       315,
       {kNoTip, kTip, kFocus, kData, kAppearance, kOnWindow, kFont, kOleDrag, kOleDrop, kRightToLeft, kItems,
        kComboBox},
       {}},
      {"VB.ListBox",
       "List",
       "Click",
       false,
       1215,
       450,
       {kNoTip, kTip, kFocus, kData, kAppearance, kOnWindow, kFont, kOleDrag, kOleDrop, kRightToLeft, kItems, kListBox},
       {}},
      {"VB.Frame",
       "Frame",
       "DragDrop",
       true,
       1215,
       495,
       {kNoTip, kTip, kTabIndex, kAppearance, kOnFace, kCaption, kFont, kOleDrop, kRightToLeft, kFrame},
       {}},
      {"VB.PictureBox",
       "Picture",
       "Click",
       true,
       1215,
       495,
       {kNoTip, kTip, kFocus, kData, kLink, kDraw, kScale, kAppearance, kOnFace, kFont, kOleDrag, kOleDrop, kPicture,
        kRightToLeft, kPictureBox},
       {}},
      {"VB.Image",
       "Image",
       "Click",
       false,
       1215,
       495,
       {kNoTip, kTip, kData, kAppearance, kOleDrag, kOleDrop, kPicture, kImage},
       {}},
      {"VB.Timer", "Timer", "Timer", false, 0, 0, {kTimer}, {}},
      {"VB.HScrollBar", "HScroll", "Change", false, 1215, 255, {kNoTip, kFocus, kRightToLeft, kScrollBar}, {}},
      {"VB.VScrollBar", "VScroll", "Change", false, 255, 1215, {kNoTip, kFocus, kRightToLeft, kScrollBar}, {}},
      {"VB.DriveListBox",
       "Drive",
       "Change",
       false,
       1215,
       315,
       {kNoTip, kTip, kFocus, kAppearance, kOnWindow, kFont, kOleDrop},
       {}},
      {"VB.DirListBox",
       "Dir",
       "Change",
       false,
       1215,
       495,
       {kNoTip, kTip, kFocus, kAppearance, kOnWindow, kFont, kOleDrag, kOleDrop},
       {}},
      {"VB.FileListBox",
       "File",
       "Click",
       false,
       1215,
       495,
       {kNoTip, kTip, kFocus, kAppearance, kOnWindow, kFont, kOleDrag, kOleDrop, kFileListBox},
       {}},
      {"VB.Shape", "Shape", "", false, 1215, 495, {kShape}, {}},
      {"VB.Line", "Line", "", false, 0, 0, {kLine}, {}},
      {"VB.Data",
       "Data",
       "Validate",
       false,
       1215,
       495,
       {kNoTip, kTip, kAppearance, kOnWindow, kCaption, kFont, kOleDrop, kRightToLeft, kDataControl},
       {}},
      {"VB.OLE", "OLE", "Updated", false, 1215, 495, {kNoTip, kFocus, kAppearance, kOle}, {}},
      {"VB.Menu", "Menu", "Click", true, 0, 0, {kMenu}, {}},
      {"VB.Class", "Class", "Initialize", false, 0, 0, {kClass}, kClassUnlisted},
  };
  return tables;
}

}  // namespace corvane::environment
