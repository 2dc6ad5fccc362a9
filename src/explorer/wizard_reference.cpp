#include "explorer/wizard_reference.h"

#include "runtime/strings.h"

namespace corvane::explorer {

using namespace runtime;

namespace {

constexpr char kFileMark[] = "\x01", kEntryMark[] = "\x03", kWizardFolder[] = "Wizards\\";
constexpr long kFirstBrace = 2, kShortestRow = 2;

// Cut at the first "!": the name of the script, and where in it, behind a mark where there is one.
WizardReference Split(const std::string& reference) {
  long end = InStr(reference, "!");
  if (end == 0) return {reference, {}};
  std::string rest = Mid(reference, end + 1);
  if (long mark = InStr(rest, kEntryMark); mark > 0) rest = Mid(rest, mark + 1);
  return {Left(reference, end - 1), rest};
}

}  // namespace

WizardReference ReferenceOfKey(std::string_view key) {
  long brace = InStrRev(key, "{");
  return brace < kFirstBrace ? WizardReference() : Split(Mid(key, brace));
}

// Behind a row stands the number of its group: no entry is meant by it. A file is one of the wizards' folder.
WizardReference ReferenceOfRow(std::string_view row) {
  if (Len(row) < kShortestRow) return {};
  long brace = InStr(row, "  {"), at = brace > 0 ? brace + 2 : InStr(row, kFileMark);
  if (at == 0) return {};
  std::string reference = Mid(row, at);
  WizardReference wizard = Split(reference);
  if (!Holds(reference, kEntryMark)) wizard.entry.clear();
  if (BeginsWith(wizard.name, kFileMark)) wizard.name.insert(1, kWizardFolder);
  return wizard;
}

}  // namespace corvane::explorer
