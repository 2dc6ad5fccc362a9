#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <ostream>

#include "cli/check_command.h"
#include "cli/format_command.h"
#include "cli/inspect_command.h"
#include "cli/list_command.h"
#include "cli/plain_services.h"
#include "cli/run_script.h"
#include "cli/script_command.h"
#include "cli/search_command.h"
#include "cli/shown_path.h"
#include "cli/view_command.h"
#include "environment/disk_files.h"
#include "environment/environment.h"
#include "runtime/code_page.h"
#include "runtime/error.h"

namespace corvane::cli {

namespace {

enum Status : int { kDone = 0, kInputProblem = 1, kNothingFound = 1, kWrongUsage = 2 };

// What a command is given: streams, files, and the code page chosen for all of them.
struct Command {
  std::ostream& out;
  std::ostream& errors;
  int code_page = 0;

  int Fail(const std::string& path, const host::Error& error) const {
    TellFailure(errors, path, error);
    return kInputProblem;
  }
};

void TellProblems(const Command& command, const environment::Environment& environment) {
  for (const environment::Problem& problem : environment.Problems()) Tell(command.errors, problem);
}

// Opens the project and runs [work] on it. What was not understood is told, and is a problem of the input.
template <class Work>
int WithProject(const Command& command, const std::string& path, Work work) {
  PlainServices services;
  const auto environment = environment::Environment::Create(services.Files(), nullptr, {command.code_page});
  try {
    environment->Open(environment::WindowsPath(path));
    runtime::SetAnsiCodePage(environment->CodePage());
    if (environment->Projects().empty())
      throw host::Error(runtime::kInvalidFileFormat, "no project in the group could be opened");
    work(*environment);
  } catch (const host::Error& error) {
    TellProblems(command, *environment);
    return command.Fail(path, error);
  }
  TellProblems(command, *environment);
  return environment->Problems().empty() ? kDone : kInputProblem;
}

// Reads a file of this machine for [work], which gives the exit status.
template <class Work>
int WithFile(const Command& command, const std::string& path, Work work) {
  std::string bytes;
  try {
    bytes = PlainServices().Files().Read(environment::WindowsPath(path));
  } catch (const host::Error& error) {
    return command.Fail(path, error);
  }
  return work(bytes);
}

// An empty answer lets the word pass.
std::string CheckCodePage(const std::string& word) {
  int number = 0;
  const auto [end, problem] = std::from_chars(word.data(), word.data() + word.size(), number);
  const bool known = problem == std::errc() && end == word.data() + word.size() && IsKnownCodePage(number);
  return known ? "" : word + " is no code page that is known";
}

// An option whose value is one of [words], which outlive the command.
template <class Meaning>
void AddWord(CLI::App* command, const std::string& name, Meaning& value,
             const std::vector<std::pair<std::string, Meaning>>& words) {
  std::string offered;
  for (const auto& [word, meaning] : words) offered += (offered.empty() ? "" : ", ") + word;
  const auto take = [name, offered, &value, &words](const std::string& given) {
    for (const auto& [word, meaning] : words)
      if (word == given) return void(value = meaning);
    throw CLI::ValidationError(name, "\"" + given + "\" is none of " + offered);
  };
  command->add_option_function<std::string>(name, take, "one of " + offered);
}

class CommandLine {
 public:
  CommandLine(std::ostream& out, std::ostream& errors) : command_{out, errors} {}

  int Run(int argc, char** argv, OpenDesk open_desk) {
    app_.require_subcommand(0, 1);
    DefineDesk();
    DefineList();
    DefineSearch();
    DefineView();
    DefineCheck();
    DefineFormat();
    DefineInspect();
    DefineScript();
    try {
      app_.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
      return app_.exit(error, command_.out, command_.errors) == 0 ? kDone : kWrongUsage;
    }
    return run_ ? Written(run_()) : open_desk(desk_, argc, argv, command_.out, command_.errors);
  }

 private:
  void DefineDesk() {
    app_.add_option("PROJECT", desk_.project, "a Visual Basic 6 project or group to open (.vbp, .vbg)");
    app_.add_option("--codepage", desk_.code_page, "Windows code page of the project; guessed when it is left out")
        ->check(CheckCodePage);
    app_.add_flag("--explorer", desk_.explorer, "open the explorer at once");
    app_.add_option("--connect-mode", desk_.connect_mode,
                    "how the add-in is connected: 0 by hand, 1 at startup, 2 external, 3 command line")
        ->check(CLI::Range(0, 3));
    app_.add_option("--offscreen-tour", desk_.tour, "draw the desk and the explorer at work into this folder, and end");
    app_.add_option("--screenshots", desk_.screenshots, "draw every window into this folder, and end");
    app_.add_option("--suffix", desk_.suffix, "added to the names of the screenshots");
    app_.set_version_flag("--version", std::string("Corvane ") + CORVANE_VERSION);
  }

  // [status], unless the output got lost, as on a full disk.
  int Written(int status) {
    if (command_.out.flush()) return status;
    command_.errors << "the output cannot be written\n";
    return kInputProblem;
  }

  CLI::App* Define(const char* name, const char* description, std::function<int()> run) {
    CLI::App* command = app_.add_subcommand(name, description);
    command->callback([this, run = std::move(run)] { run_ = run; });
    return command;
  }

  CLI::App* DefineOnProject(const char* name, const char* description, std::function<int()> run) {
    CLI::App* command = Define(name, description, std::move(run));
    command->add_option("PROJECT", path_, "the project (.vbp) or group (.vbg)")->required();
    AddCodePage(command, "guessed");
    return command;
  }

  void AddCodePage(CLI::App* command, const std::string& left_out) {
    command->add_option("--codepage", command_.code_page, "Windows code page; " + left_out + " when it is left out")
        ->check(CheckCodePage);
  }

  void DefineList() {
    CLI::App* list = DefineOnProject("list", "components of a project, or the procedures of each", [this] {
      return WithProject(command_, path_, [this](auto& environment) {
        list_.filter.name = runtime::AnsiCodePage().FromUtf8(filter_);
        RunListCommand(environment, list_, command_.out);
        TellOtherProjects(environment, path_, command_.errors);
      });
    });
    list->add_flag("--procedures", list_.procedures, "rows of procedures: component, line, text");
    list->add_flag("--json", list_.json, "JSON Lines");
    AddWord(list, "--kind", list_.filter.kind, KindWords());
    AddWord(list, "--visibility", list_.filter.visibility, VisibilityWords());
    list->add_option("--filter", filter_, "only procedures whose row holds this text");
  }

  void DefineSearch() {
    CLI::App* search = DefineOnProject("search", "lines that hold a text, or properties that do", [this] {
      bool any = false;
      const int status = WithProject(command_, path_, [&](auto& environment) {
        search_.search.text = runtime::AnsiCodePage().FromUtf8(sought_);
        search_.module = runtime::AnsiCodePage().FromUtf8(module_);
        any = RunSearchCommand(environment, search_, command_.out);
        TellOtherProjects(environment, path_, command_.errors);
      });
      return status == kDone && !any ? kNothingFound : status;
    });
    search->add_option("TEXT", sought_, "in any case; \"project title\" finds the lines marked as favourites")
        ->required()
        ->check(CLI::Validator([](const std::string& text) { return text.empty() ? "nothing is sought" : ""; }, ""));
    search->add_flag("--whole", search_.search.wholeWord, "whole words; the text is a pattern then: ? * # [list]");
    search->add_flag("--subs", search_.search.headersOnly, "only headers of procedures and events");
    search->add_flag("--comments", search_.search.withComments, "lines that are comments, too");
    search->add_option("--module", module_, "only in the component of this name");
    search->add_flag("--properties", search_.properties,
                     "in the properties of designers: component, control, property, value");
  }

  void DefineView() {
    CLI::App* view = Define("view", "a file coloured by block level, for the terminal", [this] {
      return WithFile(command_, path_, [this](const std::string& bytes) {
        return ViewFile(bytes, {path_, html_, fold_ == "logical", command_.code_page}, command_.out);
      });
    });
    view->add_option("FILE", path_, "a module, or any text")->required();
    view->add_flag("--html", html_, "as an HTML page");
    view->add_option("--fold", fold_, "logical: only the lines that hold a keyword, and the outermost ones")
        ->check(CLI::IsMember({"logical"}));
    AddCodePage(view, "1252");
  }

  void DefineCheck() {
    DefineOnProject("check", "read a project whole, write it to memory, compare byte for byte", [this] {
      PlainServices services;
      return static_cast<int>(
          RunCheckCommand(path_, command_.code_page, services.Files(), command_.out, command_.errors));
    });
  }

  void DefineFormat() {
    CLI::App* format = Define("format", "indent the code of a module or project by its blocks", [this] {
      PlainServices services;
      format_.code_page = command_.code_page;
      return RunFormatCommand(path_, format_, services.Files(), command_.out, command_.errors);
    });
    format->add_option("FILE", path_, "a module, whose text is put out; or a project or group (.vbp, .vbg)")
        ->required();
    auto* check = format->add_flag("--check", format_.check, "list the files that would change; 1 if there is any");
    format->add_flag("--write", format_.write, "change the files, in the blanks at the starts of their lines alone")
        ->excludes(check);
    AddCodePage(format, "guessed of a project, 1252 of a module");
  }

  void DefineInspect() {
    CLI::App* inspect = app_.add_subcommand("inspect", "what the system makes of a text");
    inspect->require_subcommand(1);
    CLI::App* lines = inspect->add_subcommand("lines", "the lines of a file as a list stores them, as JSON Lines");
    lines->add_option("FILE", path_, "any text")->required();
    lines->add_option("--mode", mode_, "vb, sql or text")->required()->check(CLI::IsMember({"vb", "sql", "text"}));
    lines->add_option("--role", role_, "ListRole of the list, 0 to 2; 0 when it is left out")->check(CLI::Range(0, 2));
    AddCodePage(lines, "1252");
    lines->callback([this] {
      run_ = [this] {
        return WithFile(command_, path_, [this](const std::string& bytes) {
          return InspectLines(bytes, mode_, role_, command_.code_page, command_.out);
        });
      };
    });
    CLI::App* flat = inspect->add_subcommand("flat", "the flat program of a piece of script code, as JSON");
    flat->add_option("FILE", path_, "code, as it stands between <% and %>")->required();
    AddCodePage(flat, "1252");
    flat->callback([this] {
      run_ = [this] {
        return WithFile(command_, path_, [this](const std::string& bytes) {
          return InspectFlat(bytes, command_.code_page, command_.out);
        });
      };
    });
  }

  void DefineScript() {
    CLI::App* script = Define("script", "run a script without windows, and put out its result", [this] {
      return WithFile(command_, path_, [this](const std::string& bytes) {
        script_.json = messages_ == "json";
        script_.code_page = command_.code_page;
        if (check_) return CheckScriptFile(bytes, path_, script_, command_.out, command_.errors);
        return RunScriptFile(bytes, script_, command_.out, command_.errors);
      });
    });
    script->add_option("FILE", path_, "a script")->required();
    script->add_flag("--check", check_,
                     "do not run it, list the places that do what its author hardly meant: line, what it does, how to "
                     "write it; 1 if there is any");
    script
        ->add_option("--answer", script_.answers, "the answer to its next box: a text, ok, or cancel; may be repeated")
        ->allow_extra_args(false)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    script->add_option("--param", script_.parameters, "its next parameter; may be repeated")
        ->allow_extra_args(false)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    auto* project = script->add_option("--project", script_.project, "the project or group it works on (.vbp, .vbg)");
    script->add_option("--component", script_.component, "the component that is selected, as Me")->needs(project);
    script->add_flag("--save", script_.save, "save what it changed; without it nothing is saved")->needs(project);
    script->add_flag("--quiet", script_.quiet, "do not show what it changed");
    script
        ->add_option("--library", script_.library, "folder of LibCode.txt and WorkShop; the installed one if left out")
        ->check(CLI::ExistingDirectory);
    script->add_flag("--plan", script_.plan, "put out the statements in place of running them");
    script->add_option("--messages", messages_, "how boxes are told: text or json")
        ->check(CLI::IsMember({"text", "json"}));
    AddCodePage(script, "1252");
  }

  Command command_;
  CLI::App app_{"Corvane, a project explorer for Visual Basic 6"};
  DeskOptions desk_;
  SearchOptions search_;
  ListOptions list_;
  FormatOptions format_;
  ScriptOptions script_;
  std::string path_, filter_, sought_, module_, mode_, messages_, fold_;
  bool html_ = false, check_ = false;
  int role_ = 0;
  std::function<int()> run_;
};

}  // namespace

int RunCommandLine(int argc, char** argv, OpenDesk open_desk, std::ostream& out, std::ostream& errors) {
  return CommandLine(out, errors).Run(argc, argv, open_desk);
}

}  // namespace corvane::cli
