#include "environment/project_file.h"

#include <algorithm>

#include "environment/lookup.h"
#include "environment/statement.h"

namespace corvane::environment {

namespace {

// Parts of a line "Key=Value", as views into it, without the blanks around them.
struct KeyValue {
  std::string_view key, value;
};

std::string_view Trimmed(std::string_view text) {
  size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return text.substr(text.size());
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string_view WithoutQuotes(std::string_view text) {
  return text.size() >= 2 && text.front() == '"' && text.back() == '"' ? text.substr(1, text.size() - 2) : text;
}

KeyValue Split(std::string_view line) {
  size_t equals = line.find('=');
  if (equals == std::string_view::npos) return {};
  return {Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1))};
}

// "Main; ..\Main.bas": the name and the path.
struct NameAndPath {
  std::string_view name, path;
};
NameAndPath SplitValue(const ModuleKind& kind, std::string_view value) {
  size_t semicolon = kind.named_in_project ? value.find(';') : std::string_view::npos;
  if (semicolon == std::string_view::npos) return {value.substr(0, 0), WithoutQuotes(value)};
  return {Trimmed(value.substr(0, semicolon)), WithoutQuotes(Trimmed(value.substr(semicolon + 1)))};
}

void ReplaceView(std::string& text, std::string_view part, const std::string& value) {
  text.replace(static_cast<size_t>(part.data() - text.data()), part.size(), value);
}

std::string TextOf(const ModuleKind& kind, const std::string& name, const std::string& path) {
  std::string text(kind.key);
  return text + "=" + (kind.named_in_project ? name + "; " + path : path);
}

bool NamesAFile(std::string_view key) {
  return KindOfKey(key) != nullptr || SameName(key, "Reference") || SameName(key, "Object");
}

}  // namespace

ProjectFile::ProjectFile(std::string_view bytes) {
  CheckBytes(bytes);
  bool in_section = false;
  size_t first_end = bytes.find('\n');
  if (first_end != std::string_view::npos && (first_end == 0 || bytes[first_end - 1] != '\r')) line_end_ = "\n";
  for (size_t from = 0; from < bytes.size();) {
    size_t feed = bytes.find('\n', from);
    size_t next = feed == std::string_view::npos ? bytes.size() : feed + 1;
    std::string_view line = bytes.substr(from, next - from);
    size_t length = line.size();
    if (length > 0 && line[length - 1] == '\n') --length;
    if (length < line.size() && length > 0 && line[length - 1] == '\r') --length;
    if (!Trimmed(line.substr(0, length)).empty() && Trimmed(line)[0] == '[') in_section = true;
    lines_.push_back({++last_id_, std::string(line.substr(0, length)), std::string(line.substr(length)), in_section});
    from = next;
  }
  if (refusal_.empty()) CheckLines();
}

void ProjectFile::CheckBytes(std::string_view bytes) {
  if (bytes.empty())
    refusal_ = "an empty file is no project";
  else if (bytes.find('\0') != std::string_view::npos)
    refusal_ = "not a text: it holds NUL bytes";
  else if (bytes.substr(0, 3) == "\xEF\xBB\xBF")
    problems_.push_back({{}, 1, "a UTF-8 byte order mark: what this line says is not understood"});
}

void ProjectFile::CheckLines() {
  long keys = 0;
  for (size_t i = 0; i < lines_.size(); ++i) {
    const Line& line = lines_[i];
    if (line.in_section || Trimmed(line.text).empty()) continue;
    if (Split(line.text).key.empty())
      problems_.push_back({{}, static_cast<long>(i) + 1, "neither a key with a value nor a section"});
    else
      ++keys;
  }
  if (keys == 0) refusal_ = "no project file: it has no line with a key and a value";
}

std::string ProjectFile::Write() const {
  std::string out;
  for (const Line& line : lines_) out += line.text + line.line_end;
  return out;
}

std::string ProjectFile::Value(std::string_view key) const {
  for (const Line& line : lines_)
    if (KeyValue parts = Split(line.text); !line.in_section && SameName(parts.key, key))
      return std::string(WithoutQuotes(parts.value));
  return {};
}

long ProjectFile::IdOf(std::string_view key) const {
  for (const Line& line : lines_)
    if (!line.in_section && SameName(Split(line.text).key, key)) return line.id;
  return 0;
}

std::vector<ComponentLine> ProjectFile::Components() const {
  std::vector<ComponentLine> components;
  for (const Line& line : lines_) {
    KeyValue parts = Split(line.text);
    const ModuleKind* kind = line.in_section ? nullptr : KindOfKey(parts.key);
    if (kind == nullptr) continue;
    NameAndPath value = SplitValue(*kind, parts.value);
    components.push_back({line.id, kind, std::string(value.name), std::string(value.path)});
  }
  return components;
}

long ProjectFile::LineNumberOf(long id) const {
  auto found = std::find_if(lines_.begin(), lines_.end(), [&](const Line& line) { return line.id == id; });
  return found == lines_.end() ? 0 : static_cast<long>(found - lines_.begin()) + 1;
}

// Behind the last line of its kind, else behind the last that names a file, else behind the first.
size_t ProjectFile::PlaceFor(const ModuleKind& kind) const {
  size_t place = std::min<size_t>(1, lines_.size()), own = 0;
  for (size_t i = 0; i < lines_.size() && !lines_[i].in_section; ++i) {
    std::string_view key = Split(lines_[i].text).key;
    if (SameName(key, kind.key)) own = i + 1;
    if (NamesAFile(key) && !SameName(key, "RelatedDoc")) place = i + 1;
  }
  return own != 0 ? own : place;
}

long ProjectFile::AddComponent(const ModuleKind& kind, const std::string& name, const std::string& path) {
  size_t place = PlaceFor(kind);
  Line line{++last_id_, TextOf(kind, name, path), line_end_, false};
  if (place > 0 && lines_[place - 1].line_end.empty()) std::swap(line.line_end, lines_[place - 1].line_end);
  lines_.insert(lines_.begin() + static_cast<long>(place), line);
  return last_id_;
}

void ProjectFile::RemoveLine(long id) {
  std::erase_if(lines_, [&](const Line& line) { return line.id == id; });
}

ProjectFile::Line* ProjectFile::Find(long id) {
  auto found = std::find_if(lines_.begin(), lines_.end(), [&](const Line& line) { return line.id == id; });
  return found == lines_.end() ? nullptr : &*found;
}

void ProjectFile::RenameComponent(long id, const std::string& name) {
  Line* line = Find(id);
  if (line == nullptr) return;
  KeyValue parts = Split(line->text);
  std::string_view old = SplitValue(*KindOfKey(parts.key), parts.value).name;
  if (!old.empty()) ReplaceView(line->text, old, name);
}

void ProjectFile::SetPath(long id, const std::string& path) {
  Line* line = Find(id);
  if (line == nullptr) return;
  KeyValue parts = Split(line->text);
  ReplaceView(line->text, SplitValue(*KindOfKey(parts.key), parts.value).path, path);
}

void ProjectFile::RenameInSettings(const std::string& old_name, const std::string& name) {
  for (Line& line : lines_) {
    KeyValue parts = Split(line.text);
    bool names = SameName(parts.key, "Startup") || SameName(parts.key, "IconForm") ||
                 SameName(parts.key, "DebugStartupComponent");
    std::string_view value = WithoutQuotes(parts.value);
    if (!line.in_section && names && SameName(value, old_name)) ReplaceView(line.text, value, name);
  }
}

}  // namespace corvane::environment
