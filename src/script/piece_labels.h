// PieceLabels: where the labels of a block stand, so that a restart or a search over many pieces goes straight to the
// piece that reading would come to.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "script/flat_program.h"
#include "script/script_state.h"
#include "script/script_text.h"

namespace corvane::script {

// Where a piece of code begins: its line from [at] on, what is unread behind that line, and the counters there.
struct PieceStart {
  std::shared_ptr<const std::string> line;
  size_t at = 0;
  ScriptText::Place behind_line;
  Counters counters;

  bool ComesBehind(const PieceStart& other) const;
};

// What a piece was made into.
struct TranslatedPiece {
  bool known = false;
  std::shared_ptr<FlatProgram> program;  // nothing for a piece without content
  bool reported = false;                 // an error, as it will each time
};

class PieceLabels {
 public:
  // Reading begins anew. Pieces are not to be added where [readable] is false: they will be read otherwise then.
  void Clear(bool readable);
  // The next piece that was read; one that was added before adds nothing. Behind one that reports an error no more are
  // added, since a search must come by there.
  void Add(const PieceStart& start, const TranslatedPiece& piece);
  // The end of the block was read.
  void EndReached() { end_reached_ = true; }
  // Whether all labels up to the end are here.
  bool Whole() const { return end_reached_ && readable_; }

  // The first piece that holds the label, of all or of those behind [here]; nothing if none is known.
  const PieceStart* First(const std::string& label) const;
  const PieceStart* Behind(const std::string& label, const PieceStart& here) const;

 private:
  std::unordered_map<std::string, std::vector<PieceStart>> places_;  // rising
  PieceStart last_;
  bool any_ = false, readable_ = true, end_reached_ = false;
};

}  // namespace corvane::script
