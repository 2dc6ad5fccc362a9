#include "cli/plain_services.h"

#include <gtest/gtest.h>

namespace corvane::cli {
namespace {

TEST(PlainPrompts, TheDefaultButtonAnswers) {
  EXPECT_EQ(DefaultAnswer(host::vbOKOnly), host::vbOK);
  EXPECT_EQ(DefaultAnswer(host::vbYesNoCancel | host::vbCritical), host::vbYes);
  EXPECT_EQ(DefaultAnswer(host::vbYesNo | host::vbDefaultButton2), host::vbNo);
  EXPECT_EQ(DefaultAnswer(host::vbAbortRetryIgnore | host::vbDefaultButton3), host::vbIgnore);
}

TEST(PlainSettings, AreRememberedUntilTheProgramEnds) {
  PlainServices plain;
  const host::Services services = plain;
  services.Settings.SaveSetting("Corvane", "Settings", "A", "1");
  EXPECT_EQ(services.Settings.GetSetting("Corvane", "Settings", "A", "0"), "1");
  EXPECT_EQ(services.Settings.GetSetting("Corvane", "Other", "A", "0"), "0");
  EXPECT_EQ(host::Services(PlainServices()).Settings.GetSetting("Corvane", "Settings", "A", "0"), "0");
}

TEST(NoPrinter, PrintingIsError482AndAnEndIsNone) {
  PlainServices plain;
  const host::Services services = plain;
  services.Printer.EndDoc();
  try {
    services.Printer.Print("text");
    ADD_FAILURE();
  } catch (const runtime::Error& error) {
    EXPECT_EQ(error.Number(), 482);
  }
}

TEST(Pictures, WhatIsNoPictureIsError481) {
  PlainServices plain;
  const host::Services services = plain;
  try {
    services.Pictures.LoadPicture(services.App.Path + "\\readme.txt");
    ADD_FAILURE();
  } catch (const runtime::Error& error) {
    EXPECT_EQ(error.Number(), 481);
  }
}

}  // namespace
}  // namespace corvane::cli
