// A designer on a text, with an owner that records what it is told.
#pragma once

#include <gtest/gtest.h>
#include <map>
#include <string>

#include "environment/designer_form.h"
#include "runtime/strings.h"

namespace corvane::environment {

// Lines with CR LF behind each.
inline std::string Crlf(const std::string& text) {
  return runtime::Replace(text, "\n", "\r\n");
}

class FakeOwner : public DesignerOwner {
 public:
  std::string name = "Form1", new_sibling = "Form1.frx";
  std::map<std::string, std::string> files, attributes;
  long changes = 0, reads = 0;
  Designer* designer = nullptr;

  std::string ComponentName() override { return name; }
  void RenameComponent(const std::string& new_name) override {
    name = new_name;
    designer->SetRootName(new_name);
  }
  std::string ModuleAttribute(const std::string& attribute) override { return attributes[attribute]; }
  std::string ReadSibling(const std::string& file) override {
    ++reads;
    const auto found = files.find(file);
    if (found == files.end()) throw host::Error(runtime::kFileNotFound);
    return found->second;
  }
  std::string NewSiblingName() override { return new_sibling; }
  void DesignerChanged() override { ++changes; }
};

struct OpenDesigner {
  explicit OpenDesigner(const std::string& text, host::ComponentType kind = host::ComponentType::VBForm)
      : designer(kind, Crlf(text), owner) {
    owner.designer = &designer;
  }
  host::Ref<host::VBControls> Controls() { return designer.Form()->VBControls(); }
  host::Ref<host::VBControl> Control(const host::Index& index) { return Controls()->Item(index); }
  host::Ref<host::Property> Of(const host::Index& control, const std::string& property) {
    return Control(control)->Properties()->Item(property);
  }
  host::Ref<host::Property> Of(const std::string& property) { return designer.Properties()->Item(property); }
  // With LF, to read in tests.
  std::string Text() { return runtime::Replace(designer.Write(), "\r\n", "\n"); }

  FakeOwner owner;
  Designer designer;
};

template <class Act>
long ErrorOf(Act act) {
  try {
    act();
  } catch (const host::Error& error) {
    return error.Number();
  }
  return 0;
}

// A form with all that is usual: nested controls, an array, a font, menus.
inline const char* const kStockForm = R"(VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Begin VB.Form frmStock 
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Stock ""A"""
   ClientHeight    =   3195
   ClientLeft      =   45
   ClientTop       =   615
   ClientWidth     =   4680
   BeginProperty Font 
      Name            =   "Tahoma"
      Size            =   9.75
      Charset         =   0
      Weight          =   700
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   LinkTopic       =   "frmStock"
   ScaleHeight     =   3195
   ScaleWidth      =   4680
   StartUpPosition =   3  'Windows Default
   Begin VB.Frame fraKind 
      Caption         =   "Kind"
      Height          =   1215
      Left            =   120
      TabIndex        =   3
      Top             =   120
      Width           =   1455
      Begin VB.OptionButton optKind 
         Caption         =   "B"
         Height          =   255
         Index           =   1
         Left            =   120
         TabIndex        =   5
         Top             =   600
         Width           =   1215
      End
      Begin VB.OptionButton optKind 
         Caption         =   "A"
         BeginProperty Font 
            Name            =   "Arial"
            Size            =   8.25
            Charset         =   0
            Weight          =   400
            Underline       =   0   'False
            Italic          =   -1  'True
            Strikethrough   =   0   'False
         EndProperty
         Height          =   255
         Index           =   0
         Left            =   120
         TabIndex        =   4
         Top             =   240
         Value           =   -1  'True
         Width           =   1215
      End
   End
   Begin VB.ListBox lstItems 
      Height          =   1035
      ItemData        =   "frmStock.frx":0000
      Left            =   1680
      List            =   "frmStock.frx":000E
      TabIndex        =   2
      Top             =   120
      Width           =   1455
   End
   Begin MSComctlLib.Slider sldSize 
      Height          =   495
      Left            =   3240
      TabIndex        =   1
      Top             =   120
      Width           =   1215
      _ExtentX        =   2143
      _ExtentY        =   873
      _Version        =   393216
      TickStyle       =   3
   End
   Begin VB.TextBox txtNote 
      Height          =   495
      Left            =   1680
      TabIndex        =   0
      Text            =   "Note"
      Top             =   1320
      Width           =   1455
   End
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
      Begin VB.Menu mnuFileOpen 
         Caption         =   "&Open"
         Shortcut        =   ^O
      End
      Begin VB.Menu mnuFileBar 
         Caption         =   "-"
      End
   End
End
)";

// Its List holds "one", "two" with the data 7 and 0.
inline std::string StockSibling() {
  constexpr char kBytes[] =
      "\2\0\3\0"
      "\1\0"
      "7"
      "\1\0"
      "0"
      "\0\0\0\0"  // ItemData
      "\2\0\3\0"
      "\3\0"
      "one"
      "\3\0"
      "two";  // List
  return std::string(kBytes, sizeof kBytes - 1);
}

}  // namespace corvane::environment
