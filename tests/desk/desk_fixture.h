// A desk's window over a project in memory, with a fake user.
#pragma once

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <memory>

#include "desk/main_window.h"
#include "environment/environment.h"
#include "environment/memory_files.h"
#include "environment/project.h"
#include "tests/support/fake_services.h"

namespace corvane::desk {

inline constexpr char kModule[] =
    "Attribute VB_Name = \"modStock\"\r\n"
    "Option Explicit\r\n"
    "Public Total As Long\r\n"
    "\r\n"
    "Public Sub Main()\r\n"
    "    Total = 1\r\n"
    "End Sub\r\n"
    "\r\n"
    "Private Function Twice(n As Long) As Long\r\n"
    "    Twice = n * 2\r\n"
    "End Function\r\n";

inline constexpr char kForm[] =
    "VERSION 5.00\r\n"
    "Begin VB.Form frmStock \r\n"
    "   Caption         =   \"Stock\"\r\n"
    "   ClientHeight    =   3000\r\n"
    "   ClientLeft      =   60\r\n"
    "   ClientTop       =   345\r\n"
    "   ClientWidth     =   4500\r\n"
    "   LinkTopic       =   \"Form1\"\r\n"
    "   ScaleHeight     =   3000\r\n"
    "   ScaleWidth      =   4500\r\n"
    "   StartUpPosition =   3  'Windows Default\r\n"
    "   Begin VB.CommandButton cmdSave \r\n"
    "      Caption         =   \"&Save\"\r\n"
    "      Height          =   375\r\n"
    "      Left            =   3000\r\n"
    "      TabIndex        =   2\r\n"
    "      Top             =   2400\r\n"
    "      Width           =   1215\r\n"
    "   End\r\n"
    "   Begin VB.Frame fraItem \r\n"
    "      Caption         =   \"Item\"\r\n"
    "      Height          =   1695\r\n"
    "      Left            =   150\r\n"
    "      TabIndex        =   0\r\n"
    "      Top             =   300\r\n"
    "      Width           =   4200\r\n"
    "      Begin VB.TextBox txtName \r\n"
    "         Height          =   285\r\n"
    "         Left            =   600\r\n"
    "         TabIndex        =   1\r\n"
    "         Text            =   \"Bolt\"\r\n"
    "         Top             =   450\r\n"
    "         Width           =   1500\r\n"
    "      End\r\n"
    "   End\r\n"
    "   Begin VB.Menu mnuFile \r\n"
    "      Caption         =   \"&File\"\r\n"
    "      Begin VB.Menu mnuFileExit \r\n"
    "         Caption         =   \"E&xit\"\r\n"
    "      End\r\n"
    "   End\r\n"
    "End\r\n"
    "Attribute VB_Name = \"frmStock\"\r\n"
    "Attribute VB_GlobalNameSpace = False\r\n"
    "Attribute VB_Creatable = False\r\n"
    "Attribute VB_PredeclaredId = True\r\n"
    "Attribute VB_Exposed = False\r\n"
    "Option Explicit\r\n"
    "\r\n"
    "Private Sub cmdSave_Click()\r\n"
    "    Main\r\n"
    "End Sub\r\n"
    "\r\n"
    "Private Sub Form_Load()\r\n"
    "    Caption = \"Stock\"\r\n"
    "End Sub\r\n";

inline constexpr char kProject[] =
    "Type=Exe\r\n"
    "Form=frmStock.frm\r\n"
    "Module=modStock; modStock.bas\r\n"
    "Startup=\"Sub Main\"\r\n"
    "Name=\"Stock\"\r\n";

inline void Settle() {
  for (int turn = 0; turn < 3; ++turn) QCoreApplication::processEvents();
}

class DeskTest : public testing::Test {
 protected:
  void SetUp() override {
    environment_ = environment::Environment::Create(files_, &clipboard_);
    files_.Put("C:\\Work\\Stock.vbp", kProject);
    files_.Put("C:\\Work\\modStock.bas", kModule);
    files_.Put("C:\\Work\\frmStock.frm", kForm);
    environment_->Open("C:\\Work\\Stock.vbp");
    window_ = std::make_unique<MainWindow>(environment_, prompts_);
    window_->show();
    window_->activateWindow();
    Settle();
  }
  void TearDown() override { window_.reset(); }

  std::shared_ptr<environment::Module> Module(const std::string& name) const {
    for (const auto& module : environment_->Projects().at(0)->Modules())
      if (module->Name() == name) return module;
    return nullptr;
  }

  environment::MemoryFiles files_;
  tests::FakeClipboard clipboard_;
  tests::FakePrompts prompts_;
  std::shared_ptr<environment::Environment> environment_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace corvane::desk
