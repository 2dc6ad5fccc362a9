// The pieces of code in a script text and in what it includes, each with the lines it comes from.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvane::script {

struct IncludedFile {
  std::string name;  // as it is to be told
  std::string text;  // its lines end in CR LF
};
// The file that a FILE: line names; nothing where there is none.
using ReadInclude = std::function<std::optional<IncludedFile>(const std::string& name)>;

struct CodePiece {
  std::string code;         // as the block reader gives it, without the ":" at its end
  std::vector<long> lines;  // number of its first line and of the one behind each lineMark: see ScriptSource
};

struct SourceLine {
  std::string file;  // empty: the script itself
  long line = 0;     // from 1
};

// What a run of a script reads. Its lines are numbered from 1 as they are read, over all files.
struct ScriptSource {
  std::vector<CodePiece> pieces;  // of the CODE{ block that runs, in their order
  bool has_block = false;         // a CODE{ block
  bool has_dialog = false;        // a FORM{ or MENU{ before it or in its place
  std::optional<SourceLine> failed_include;

  SourceLine PlaceOf(long number) const;

  // Where numbering goes on: the lines from [number] on are those of [place.file] from [place.line] on.
  struct Origin {
    long number;
    SourceLine place;
  };
  std::vector<Origin> origins;
};

// The lines of [script] end in CR LF.
ScriptSource ReadScriptSource(std::string_view script, const ReadInclude& include);

}  // namespace corvane::script
