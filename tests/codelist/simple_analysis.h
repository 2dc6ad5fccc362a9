// The analyser in its plain form: one character after the other, positions from 1, exactly the steps that the fast form
// takes in bulk. Tests compare the two.
#pragma once

#include <string>

#include "codelist/keyword_tables.h"
#include "codelist/line_analysis.h"
#include "runtime/strings.h"

namespace corvane::codelist {

class SimpleAnalysis {
 public:
  SimpleAnalysis(Language language, AnalysisState& state, std::string text)
      : language_(language), state_(state), text_(std::move(text)) {
    if (state_.inBlockComment) text_.insert(0, 1, '\x06');
    upper_ = runtime::UCase(text_) + "  ";
    open_ = runtime::InStr(upper_, "OPEN ");
  }

  std::string Run() {
    for (i_ = 1; i_ <= runtime::Len(text_); ++i_) {
      c_ = upper_[Place(i_)];
      o_ = text_[Place(i_)];
      if (!Step()) return out_;
    }
    if (thenState_ > 1) out_ += "/-\\";
    return out_;
  }

 private:
  static size_t Place(long i) { return static_cast<size_t>(i - 1); }
  bool At(std::string_view words) const { return runtime::Mid(upper_, i_, runtime::Len(words)) == words; }

  bool Copy() {
    out_ += o_;
    prev_ = c_;
    return true;
  }
  bool TakeRest() {
    out_ += runtime::Mid(text_, i_);
    return false;
  }

  // False when the walk ends here.
  bool Step() {
    if (c_ == '"') inString_ = !inString_;
    if (inString_) return Copy();
    if (c_ == '\t') {
      out_ += "    ";
      c_ = o_ = ' ';
    }
    return language_ == Language::Sql ? Sql() : Vb();
  }

  bool Vb() {
    if (c_ == '\'') {
      if (thenState_ > 1) out_ += "/-\\";
      return TakeRest();
    }
    if (thenState_ == 1 && static_cast<unsigned char>(c_) >= 'A') thenState_ = 2;
    if (!runtime::Holds(" :#\t", std::string_view(&prev_, 1))) return Copy();
    return Words(VbKeywords());
  }

  bool Sql() {
    if (c_ == '\'') {
      inSqlString_ = !inSqlString_;
      return Copy();
    }
    if (inSqlString_) return Copy();
    if (state_.inBlockComment) {
      if (At("*/")) state_.inBlockComment = false;
      return Copy();
    }
    if (At("/*")) {
      state_.inBlockComment = true;
      if (runtime::InStr(text_, "*/") > 0) state_.inBlockComment = false;
      return TakeRest();
    }
    if (At("--")) return TakeRest();
    if (c_ == '(') {
      out_ += "(/+\\";
      prev_ = c_;
      return true;
    }
    if (c_ == ')') {
      out_ += "/-\\";
      return Copy();
    }
    if (!runtime::Holds("\t (\\=+", std::string_view(&prev_, 1))) return Copy();
    return Words(SqlKeywords());
  }

  bool Words(std::span<const KeywordRow> rows) {
    for (const KeywordRow& row : rows)
      if (Fits(row)) return Take(row);
    return Copy();
  }

  bool Fits(const KeywordRow& row) const {
    if (!At(row.match)) return false;
    if (!row.next.empty() && !runtime::Holds(row.next, runtime::Mid(upper_, i_ + runtime::Len(row.match), 1)))
      return false;
    if (!row.next.empty() && i_ + runtime::Len(row.match) > runtime::Len(upper_)) return false;
    switch (row.condition) {
      case Condition::NoOpenBefore:
        return open_ == 0 || open_ > i_;
      case Condition::InCase:
        return state_.sqlInCase;
      case Condition::OutsideCase:
        return !state_.sqlInCase;
      default:
        return true;
    }
  }

  bool Take(const KeywordRow& row) {
    switch (row.effect) {
      case Effect::EndsProcedure:
        state_.endOfProc = true;
        return Copy();
      case Effect::MeetsThen:
        thenState_ = 1;
        break;
      case Effect::EntersCase:
        state_.sqlInCase = true;
        break;
      case Effect::LeavesCase:
        state_.sqlInCase = false;
        break;
      default:
        break;
    }
    if (row.marking == Marking::Closing) out_ += "/-\\";
    if (row.marking != Marking::Plain) out_ += '\x02';
    out_ += row.form;
    i_ += row.consumed - 1;
    o_ = row.last;
    if (row.blank_behind) c_ = ' ';
    return Copy();
  }

  Language language_;
  AnalysisState& state_;
  std::string text_, upper_, out_;
  char c_ = ' ', o_ = ' ', prev_ = ' ';
  long i_ = 1, open_ = 0;
  bool inString_ = false, inSqlString_ = false;
  int thenState_ = 0;
};

}  // namespace corvane::codelist
