// BlockReader: reads a script block by block and runs what it reads. Code blocks are templates: their lines go to the
// result, and what stands between "<%" and "%>" runs.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "script/engine.h"
#include "script/piece_labels.h"
#include "script/script_text.h"
#include "script/surroundings.h"

namespace corvane::script {

class BlockReader {
 public:
  BlockReader(Engine& engine, Surroundings& around, frmLib& lib, CodeRunner& runner)
      : engine_(engine), state_(engine.state), around_(around), lib_(lib), runner_(runner) {}

  // Up to the end of the first code block, to the end of the text, or until the script is stopped. [show] is false
  // where dialogs are built and not shown.
  void Read(std::string script, bool show);

  // Whether a block was met.
  bool MetBlock() const { return met_block_; }
  // Whether a file could not be included; the user knows.
  bool Failed() const { return failed_; }

 private:
  // A piece of code as it was read.
  struct Piece {
    std::string code;
    std::string rest;  // of the last of many lines
    bool many_lines = false;
    bool closed = false;        // the block's closing line was met in it
    bool moves_resume = false;  // a SUB ends in it: restarts begin behind that line
  };

  void ReadOutside(std::string_view line);
  void Include(std::string_view line);
  bool IncludesItself();
  void BeginCode();
  void ReadTemplateLine(std::string_view line);
  void ReadPieces(std::string rest);
  void EndBlock();
  void Restart();
  bool SearchesOn(const PieceStart& from);
  void GoTo(const PieceStart& start);
  bool ClosesBlock(std::string_view line) const;

  Piece ReadPiece(std::string_view behind_mark);
  void ReadLines(Piece& piece, std::string_view first);
  TranslatedPiece RunPiece(const Piece& piece);
  TranslatedPiece RunPieceInSearch(const Piece& piece, const PieceStart& start);
  void PutOut(std::string_view text);

  Engine& engine_;
  ScriptState& state_;
  Surroundings& around_;
  frmLib& lib_;
  CodeRunner& runner_;

  ScriptText text_;
  bool in_code_ = false, ended_ = false, met_block_ = false, failed_ = false, show_ = true;
  ScriptText::Place resume_;                                       // resumeText
  Counters resume_counters_;                                       // with which reading goes on from there
  PieceLabels labels_;                                             // from resume_ on
  std::string rest_;                                               // of a line that is read next
  bool searching_ = false;                                         // a label, since the block was restarted
  long reported_before_ = 0;                                       // errors, when it was
  std::unordered_map<std::string, PieceStart> found_from_resume_;  // where such searches ended, by label
  std::vector<size_t> open_files_;                                 // what was unread behind each included file
};

}  // namespace corvane::script
