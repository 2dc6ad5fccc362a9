#include "cli/search_command.h"

#include <ostream>

#include "environment/environment.h"
#include "explorer/project_access.h"
#include "explorer/search_properties.h"
#include "runtime/code_page.h"
#include "runtime/strings.h"

namespace corvane::cli {

using host::Ref;

namespace {

std::string Utf8(std::string_view text) {
  return runtime::AnsiCodePage().ToUtf8(text);
}

// What would end a line or a column of the output is a blank in it.
std::string Column(std::string text) {
  for (char& c : text)
    if (c == '\t' || c == '\r' || c == '\n') c = ' ';
  return "\t" + Utf8(text);
}

class Searcher {
 public:
  Searcher(const SearchOptions& options, std::ostream& out)
      : options_(options),
        out_(out),
        properties_(
            options.search.text, [] { return true; }, [] {}) {}

  void Search(host::VBComponent& component) {
    const std::string name = component.Name();
    if (!options_.module.empty() && name != options_.module) return;
    named_ = true;
    std::string lines;
    options_.properties ? AddProperties(component, name, lines) : AddLines(component, name, lines);
    any_ = any_ || !lines.empty();
    out_ << lines;
  }
  bool Any() const { return any_; }
  bool Named() const { return named_; }

 private:
  void AddLines(host::VBComponent& component, const std::string& name, std::string& lines) {
    const Ref<host::CodeModule> module = component.CodeModule();
    const std::string head = Utf8(name) + "\t";
    explorer::SearchModule(*module, options_.search, [&](long line, const std::string& text, long) {
      lines += head + std::to_string(line) + "\t" + Utf8(runtime::LTrim(text)) + "\n";
    });
  }

  void AddProperties(host::VBComponent& component, const std::string& name, std::string& lines) {
    if (!explorer::HasDesigner(component.Type())) return;
    properties_.Search(component, [&](const explorer::PropertyHit& hit) {
      lines += Utf8(name) + Column(hit.control) + Column(hit.property) + Column(hit.value) + "\n";
    });
  }

  const SearchOptions& options_;
  std::ostream& out_;
  explorer::PropertySearch properties_;
  bool any_ = false, named_ = false;
};

}  // namespace

bool RunSearchCommand(environment::Environment& environment, const SearchOptions& options, std::ostream& out) {
  Searcher searcher(options, out);
  const Ref<host::VBProject> project = environment.ActiveVBProject();
  for (const Ref<host::VBComponent>& component : host::Each(explorer::Object(project).VBComponents()))
    if (explorer::HasCode(*component)) searcher.Search(*component);
  if (!searcher.Named() && !options.module.empty())
    throw host::Error(runtime::kSubscriptOutOfRange, "no component is named " + options.module);
  return searcher.Any();
}

}  // namespace corvane::cli
