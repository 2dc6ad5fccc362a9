// OpenProject: reading the modules that a project names. What cannot be read or is no module is reported and left out;
// its line in the project file stays.
#include <algorithm>
#include <map>

#include "environment/lookup.h"
#include "environment/open_environment.h"
#include "environment/open_project.h"
#include "environment/paths.h"
#include "environment/statement.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::environment {

namespace {

constexpr size_t kLargestFile = 0x7FFFFFFF;

const SourceFile* FindSource(const std::vector<SourceFile>& sources, const std::string& path) {
  auto found = std::find_if(sources.begin(), sources.end(),
                            [&](const SourceFile& source) { return SamePath(source.path, path); });
  return found == sources.end() ? nullptr : &*found;
}

// The line of the first NUL byte; 0 if there is none.
long LineOfNul(std::string_view bytes) {
  size_t at = bytes.find('\0');
  if (at == std::string_view::npos) return 0;
  return std::count(bytes.begin(), bytes.begin() + static_cast<long>(at), '\n') + 1;
}

// A form whose root is an MDI form, a user control under a form's key: the root's class decides.
const ModuleKind* KindInFile(const ModuleKind& by_key, const ModuleHead& head) {
  const ModuleKind* by_root = KindOfRootClass(head.root_class);
  return by_root != nullptr && HasDesigner(by_key.type) ? by_root : &by_key;
}

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Neither a statement nor a declaration of Visual Basic ends so, a comment may.
bool EndsAsInC(std::string_view line) {
  size_t last = line.find_last_not_of(" \t");
  return last != std::string_view::npos && (line[last] == ';' || line[last] == '{');
}

bool Declares(std::string_view line) {
  line = WithoutIndent(line);
  for (std::string_view word : {"option", "implements", "type", "enum", "declare", "event", "attribute"})
    if (StartsWithWord(line, word)) return true;
  return !DeclaredNames(line).empty();
}

// Whether a text has lines of code, and none of them defines or declares anything.
bool IsForeign(const OpenModule::Source& source) {
  bool has_code = false;
  for (std::string_view line : CutIntoLines(std::string_view(source.bytes).substr(source.head.code_start))) {
    if (IsBlank(line) || IsComment(WithoutIndent(line))) continue;
    if (!EndsAsInC(line) && Declares(line)) return false;
    has_code = true;
  }
  return has_code;
}

std::string FirstOf(std::initializer_list<std::string> names) {
  for (const std::string& name : names)
    if (!name.empty()) return name;
  return {};
}

}  // namespace

void OpenProject::ReportAt(const ComponentLine& line, const std::string& reason) {
  Environment().Report({path_, file_.LineNumberOf(line.id), line.path + ": " + reason});
}

// A path beyond ASCII can be looked for only when the code page is known, and that may show in the other modules.
void OpenProject::ReadModules(const std::vector<SourceFile>& sources) {
  for (const Problem& problem : file_.Problems()) Environment().Report({path_, problem.line, problem.reason});
  KeepLooseTexts(sources);
  CheckResourceFile();
  std::vector<ComponentLine> later;
  for (const ComponentLine& line : file_.Components())
    if (IsAscii(line.path))
      ReadModule(line, sources);
    else
      later.push_back(line);
  Environment().TakeCodePageHint(CodePageOfFonts());
  if (later.empty()) return;
  Environment().TakeCodePageHint(CodePageOfPaths(later));
  for (const ComponentLine& line : later) ReadModule(line, sources);
  // The ids of lines rise from the first to the last.
  auto in_file_order = [](const auto& a, const auto& b) { return a->ProjectLine() < b->ProjectLine(); };
  std::stable_sort(modules_.begin(), modules_.end(), in_file_order);
}

// The environment only passes the resource file on: it is looked for, not read.
void OpenProject::CheckResourceFile() {
  std::string path = file_.Value("ResFile32");
  if (path.empty() || !IsMissing(path)) return;
  Environment().Report({path_, file_.LineNumberOf(file_.IdOf("ResFile32")), path + ": file not found"});
}

bool OpenProject::IsFolder(const std::string& path) const {
  uint32_t attributes = Environment().FilesInUse().Attributes(path);
  return attributes != host::kNoSuchFile && (attributes & host::kDirectory) != 0;
}

bool OpenProject::IsMissing(const std::string& path) const {
  for (const SourceFile& text : loose_texts_)
    if (SamePath(text.path, path)) return false;
  std::string whole = JoinPath(FolderOf(path_), path);
  return !IsAbsolutePath(whole) || Environment().FilesInUse().Attributes(whole) == host::kNoSuchFile;
}

void OpenProject::KeepLooseTexts(const std::vector<SourceFile>& sources) {
  std::vector<ComponentLine> lines = file_.Components();
  for (const SourceFile& source : sources) {
    auto names_it = [&](const ComponentLine& line) {
      return HasCode(line.kind->type) && SamePath(line.path, source.path);
    };
    if (std::none_of(lines.begin(), lines.end(), names_it)) loose_texts_.push_back(source);
  }
}

std::string OpenProject::ReadBeside(const std::string& path, const std::string& name) const {
  std::string whole = JoinPath(FolderOf(path), name);
  for (const SourceFile& text : loose_texts_)
    if (SamePath(JoinPath(FolderOf(path_), text.path), whole)) return text.text;
  if (!IsAbsolutePath(whole)) throw host::Error(runtime::kFileNotFound);
  return Environment().FilesInUse().Read(whole);
}

// The code page that most forms ask for; 0 if none asks for one.
int OpenProject::CodePageOfFonts() const {
  std::map<int, int> votes;
  for (const auto& module : modules_)
    for (long charset : module->Charsets())
      if (int page = runtime::CodePageOfCharset(static_cast<int>(charset))) ++votes[page];
  auto fewer = [](const auto& a, const auto& b) { return a.second < b.second; };
  auto most = std::max_element(votes.begin(), votes.end(), fewer);
  return most == votes.end() ? 0 : most->first;
}

// The code page under which the first of these files is found; 0 if there is none.
int OpenProject::CodePageOfPaths(const std::vector<ComponentLine>& lines) const {
  int in_force = runtime::AnsiCodePage().Number(), found = 0;
  for (int page : {in_force, 932, 950, 936, 949, 1251, 1252, 1250, 1253, 1254, 874}) {
    runtime::SetAnsiCodePage(page);
    std::string path = JoinPath(FolderOf(path_), lines.front().path);
    if (!IsAbsolutePath(path) || Environment().FilesInUse().Attributes(path) == host::kNoSuchFile) continue;
    found = page;
    break;
  }
  runtime::SetAnsiCodePage(in_force);
  return found;
}

bool OpenProject::ReadBytes(const ComponentLine& line, const std::vector<SourceFile>& sources,
                            OpenModule::Source& source) {
  if (const SourceFile* text = FindSource(sources, line.path)) {
    source.bytes = text->text;
    return true;
  }
  if (!IsAbsolutePath(source.path)) return ReportAt(line, "no folder to look in: the project was never saved"), false;
  try {
    source.stamp = Environment().FilesInUse().Stamp(source.path);
    if (static_cast<uint64_t>(std::max<int64_t>(source.stamp.size, 0)) > kLargestFile)
      return ReportAt(line, "a file of 2 GB or more"), false;
    source.bytes = Environment().FilesInUse().Read(source.path);
    return true;
  } catch (const runtime::Error& error) {
    bool is_folder = error.Number() == runtime::kPathFileAccessError && IsFolder(source.path);
    ReportAt(line, is_folder ? "a folder, no file" : ReasonOf(error));
    return false;
  }
}

// Why a file that was read can be no module of its kind; empty text for one that can.
std::string OpenProject::TextRefusal(const OpenModule::Source& source) {
  if (long line = LineOfNul(source.bytes)) return "no text: NUL byte in line " + std::to_string(line);
  if (HasDesigner(source.kind->type) && source.head.version.empty())
    return "no " + std::string(source.kind->key) + ": its first line is not VERSION";
  return {};
}

// Why it cannot be a module of this project.
std::string OpenProject::Refusal(const OpenModule::Source& source) const {
  if (std::string reason = TextRefusal(source); !reason.empty()) return reason;
  if (paths_in_use_.count(runtime::UCase(InCodePage(source.path)))) return "named twice in the project";
  auto other = HasCode(source.kind->type) ? names_in_use_.find(runtime::UCase(source.name)) : names_in_use_.end();
  if (other != names_in_use_.end()) return "its name " + source.name + " is that of " + other->second;
  return {};
}

// Large projects have thousands of modules: what is in use is looked up, not searched.
void OpenProject::CollectNamesInUse() {
  paths_in_use_.clear();
  names_in_use_.clear();
  for (const auto& module : modules_) AddNamesInUse(*module);
}

void OpenProject::AddNamesInUse(OpenModule& module) {
  const std::string& path = module.PathAsRead();
  if (!path.empty()) paths_in_use_.insert(runtime::UCase(InCodePage(path)));
  if (HasCode(module.Type())) names_in_use_.emplace(runtime::UCase(module.Name()), FileNameOf(path));
}

// Reads the head of the source's bytes, and with it its kind and its name.
void OpenProject::TakeHead(OpenModule::Source& source, const std::string& name_in_project) const {
  if (!HasCode(source.kind->type)) {
    source.name = FileNameOf(source.path);
    return;
  }
  source.head = ReadModuleHead(source.bytes);
  source.kind = KindInFile(*source.kind, source.head);
  source.name = FirstOf({source.head.name, source.head.root_name, name_in_project, StemOf(source.path)});
  FindConflictMark(source.bytes, source.head.designer_end, source.head.problems);
  if (source.kind->type == host::ComponentType::ClassModule && source.head.version.empty())
    source.head.problems.push_back({{}, 1, "class without a VERSION line: all of it is taken for code"});
}

// A related document is listed though its file is missing: nobody reads it.
void OpenProject::ReportName(const ComponentLine& line, const OpenModule::Source& source) {
  if (!HasCode(source.kind->type)) {
    if (IsMissing(line.path)) ReportAt(line, "file not found");
  } else if (source.head.name.empty()) {
    if (!source.head.problems.empty()) return;
    if (!IsForeign(source)) return ReportAt(line, "no line in it says its name: called " + source.name);
    std::string reason = "a module of another language? Nothing in it has a name or is declared: called ";
    Environment().Report({source.path, 1, reason + source.name});
  } else if (!line.name.empty() && !SameName(line.name, source.head.name)) {
    ReportAt(line, "called " + line.name + " here and " + source.head.name + " in its file");
  }
}

void OpenProject::ReadModule(const ComponentLine& line, const std::vector<SourceFile>& sources) {
  if (line.path.empty()) return ReportAt(line, "a line without a path");
  OpenModule::Source source;
  source.kind = line.kind;
  source.project_line = line.id;
  source.path = JoinPath(FolderOf(path_), line.path);
  if (SamePath(source.path, path_)) return ReportAt(line, "the project file names itself");
  if (HasCode(line.kind->type) && !ReadBytes(line, sources, source)) return;
  TakeHead(source, line.name);
  if (std::string reason = Refusal(source); !reason.empty()) return ReportAt(line, reason);
  ReportName(line, source);
  for (const Problem& problem : source.head.problems) Environment().Report({source.path, problem.line, problem.reason});
  modules_.push_back(std::make_shared<OpenModule>(*this, std::move(source)));
  AddNamesInUse(*modules_.back());
}

}  // namespace corvane::environment
