// The functions that reach out of the language: files, boxes, the workshop, the project, objects of other libraries.
#include "runtime/strings.h"
#include "script/function_table.h"
#include "script/numbers.h"

namespace corvane::script {

namespace {

using Argument = const std::string&;

constexpr std::string_view kWriteFileSyntax = "WriteFile syntax error.";

// A folder alone stands for all its files, a pattern alone for those of the current one.
std::string MatchingFiles(FunctionUse& use, Argument path) {
  const long slash = runtime::InStrRev(path, "\\");
  const std::string folder = slash == 0 ? "." : runtime::Left(path, slash), pattern = runtime::Mid(path, slash + 1);
  std::string names;
  for (const std::string& name : use.outside.services.Files.List(folder, pattern.empty() ? "*" : pattern))
    names += name + "|";
  return names;
}

std::string ReadFile(FunctionUse& use, Argument name) {
  return use.outside.services.Files.Read(name);
}

std::string WriteFile(FunctionUse& use, Argument name, Argument text) {
  if (name.empty()) {
    use.errors.ReportError(std::string(kWriteFileSyntax));
    return {};
  }
  use.outside.services.Files.Write(name, text);
  return "0";
}

std::string ShowDialog(FunctionUse& use, Argument form) {
  use.outside.dialogs.Show(form);
  return TextOf(use.state.lastValue);
}

std::string Ask(FunctionUse& use, Argument message) {
  return BooleanText(use.outside.services.Prompts.MsgBox(message, host::vbOKCancel) == host::vbOK);
}

constexpr FunctionRow kRows[] = {
    {.key = "CREATEOBJECT(",
     .arguments = "library, function",
     .help = "Makes an object; the function then calls it.",
     .one = [](FunctionUse& use, Argument list) { return use.objects.CreateScriptObject(list); }},
    {.key = "DBTASK(",
     .arguments = "command",
     .help = "What the database library answers to the command.",
     .one = [](FunctionUse& use, Argument command) { return use.objects.DbTaskCall(command); }},
    {.key = "GETPARAMS(",
     .arguments = "",
     .help = "The parameters that this script was given.",
     .one = [](FunctionUse& use, Argument) { return use.state.scriptParams; }},
    {.key = "GETSELSTART(",
     .arguments = "",
     .help = "Where the selection starts in the workshop's edit box, from 0.",
     .one = [](FunctionUse& use, Argument) { return std::to_string(use.outside.workshop.SelStart()); }},
    {.key = "GETCODE(",
     .arguments = "",
     .help = "The text of the workshop's edit box.",
     .one = [](FunctionUse& use, Argument) { return use.outside.workshop.Code(); }},
    {.key = "CODELINES(",
     .arguments = "component, [line], [count]",
     .help = "Lines of a component's code.",
     .one = [](FunctionUse& use, Argument list) { return use.outside.ide.CodeLines(use.errors, list); }},
    {.key = "GETSELECTION(",
     .arguments = "[component]",
     .help = "The selection: start line, start column, end line and end column with \"|\" between them.",
     .one = [](FunctionUse& use, Argument component) { return use.outside.ide.GetSelection(use.errors, component); }},
    {.key = "ADD(",
     .arguments = "control, item, ...",
     .help = "Adds a button to a toolbar or a picture to an image list.",
     .one = [](FunctionUse& use, Argument list) { return use.outside.ide.Add(use.errors, list); }},
    {.key = "SETPICTURE(",
     .arguments = "target, file",
     .help = "Loads a file into the picture of a control.",
     .one = [](FunctionUse& use, Argument list) { return use.outside.ide.SetPicture(use.errors, list); }},
    {.key = "DIR(",
     .arguments = "pattern",
     .help = "Names of the matching files, or of all files of a folder, each with \"|\" behind it.",
     .one = MatchingFiles},
    {.key = "GETCLIPBOARD(",
     .arguments = "",
     .help = "The text on the clipboard.",
     .one = [](FunctionUse& use, Argument) { return use.outside.services.Clipboard.GetText(); }},
    {.key = "GETPROP(",
     .arguments = "object, [property]",
     .help = "A property of a control or component, or all of them.",
     .one = [](FunctionUse& use, Argument list) { return use.outside.ide.GetProp(use.errors, list); }},
    {.key = "PROCLINES(",
     .arguments = "component, procedure",
     .help = "First line and number of lines of a procedure, with \"|\" between them.",
     .one = [](FunctionUse& use, Argument list) { return use.outside.ide.ProcLines(use.errors, list); }},
    {.key = "DECLARATION(",
     .arguments = "[component]",
     .help = "The lines in front of the first procedure.",
     .one = [](FunctionUse& use, Argument list) { return use.outside.ide.Declaration(use.errors, list); }},
    {.key = "FINDLINE(",
     .arguments = "component, text",
     .help = "The first line that holds the text; 0 if none does.",
     .one = [](FunctionUse& use, Argument list) { return use.outside.ide.FindLine(use.errors, list); }},
    {.key = "WRITEFILE(",
     .arguments = "name, text",
     .help = "Replaces the file; the result is 0.",
     .two = WriteFile,
     .other_count = kWriteFileSyntax},
    {.key = "READFILE(",
     .arguments = "name, [count]",
     .help = "The whole file, or its first characters.",
     .one = ReadFile,
     .two = [](FunctionUse& use, Argument name,
               Argument count) { return runtime::Left(ReadFile(use, name), LongOf(count)); }},
    {.key = "READCODE(",
     .arguments = "component, [line], [count]",
     .help = "Lines of a component's code.",
     .one = [](FunctionUse& use, Argument list) { return use.outside.ide.ReadCode(use.errors, list); }},
    {.key = "SHOW(",
     .arguments = "form",
     .help = "Runs the dialog of a FORM block, given as text or by its name; the result is the button that closed it.",
     .one = ShowDialog},
    {.key = "MSGBOX(", .arguments = "message", .help = "A box with OK and Cancel; whether OK was pressed.", .one = Ask},
    {.key = "COMPONENTS(",
     .arguments = "[filter]",
     .help = "The components of the project as kind.name with \"|\" behind each; with ME the selected one alone.",
     .one = [](FunctionUse& use, Argument filter) { return use.outside.ide.Components(filter); }},
    {.key = "INPUTBOX(",
     .arguments = "prompt, title, [default]",
     .help = "The text typed; empty on Cancel.",
     .two = [](FunctionUse& use, Argument prompt,
               Argument title) { return use.outside.services.Prompts.InputBox(prompt, title); },
     .three = [](FunctionUse& use, Argument prompt, Argument title,
                 Argument text) { return use.outside.services.Prompts.InputBox(prompt, title, text); }},
};

}  // namespace

std::span<const FunctionRow> OutsideFunctions() {
  return kRows;
}

}  // namespace corvane::script
