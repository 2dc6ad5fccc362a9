#include "script/piece_labels.h"

#include <algorithm>

namespace corvane::script {

// A line may have been cut at its front since.
bool PieceStart::ComesBehind(const PieceStart& other) const {
  if (behind_line.at != other.behind_line.at) return behind_line.at > other.behind_line.at;
  return line->size() - at < other.line->size() - other.at;
}

void PieceLabels::Clear(bool readable) {
  places_.clear();
  any_ = end_reached_ = false;
  readable_ = readable;
}

void PieceLabels::Add(const PieceStart& start, const TranslatedPiece& piece) {
  if (!readable_ || (any_ && !start.ComesBehind(last_))) return;
  readable_ = piece.known && !piece.reported;
  any_ = true;
  last_ = start;
  if (!readable_ || piece.program == nullptr) return;
  for (const auto& [label, in_program] : piece.program->Labels()) places_[std::string(label)].push_back(start);
}

const PieceStart* PieceLabels::First(const std::string& label) const {
  const auto found = places_.find(label);
  return found == places_.end() ? nullptr : &found->second.front();
}

const PieceStart* PieceLabels::Behind(const std::string& label, const PieceStart& here) const {
  const auto found = places_.find(label);
  if (found == places_.end()) return nullptr;
  const auto next =
      std::upper_bound(found->second.begin(), found->second.end(), here,
                       [](const PieceStart& place, const PieceStart& start) { return start.ComesBehind(place); });
  return next == found->second.end() ? nullptr : &*next;
}

}  // namespace corvane::script
