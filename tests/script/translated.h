// A piece of code translated, for tests.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "script/flat_items.h"
#include "script/marks.h"
#include "script/prepare_source.h"
#include "script/translator.h"
#include "tests/script/recorded_errors.h"

namespace corvane::script {

// [code] as a block's reader gives it: "\n" is a line end.
inline std::string Piece(std::string code) {
  std::replace(code.begin(), code.end(), '\n', lineMark);
  return code;
}

struct Translated {
  explicit Translated(const std::string& code, ScriptState start = {}, size_t cancelled = RecordedErrors::kNever)
      : state(std::move(start)), report(state, cancelled) {
    std::string text = PrepareSource(Piece(code), report);
    flat = TranslateCode(text, state, report);
  }

  // Statements without their headers; labels with a pilcrow in place of their mark.
  std::vector<std::string> Items() const { return ItemsOf(false); }
  // Statements with eq and paren before them: "00,02 a(1)=2:".
  std::vector<std::string> ItemsWithFields() const { return ItemsOf(true); }
  std::vector<std::string> Messages() const { return report.Messages(); }
  Counters Count() const { return state.counters; }

  ScriptState state;
  RecordedErrors report;
  std::string flat;

 private:
  std::vector<std::string> ItemsOf(bool fields) const {
    std::vector<std::string> items;
    for (std::string_view rest = WithoutSeparators(flat); !rest.empty(); rest = WithoutSeparators(rest)) {
      const FlatItem item = ReadFlatItem(rest);
      if (item.size == 0) {
        items.push_back("unreadable: " + std::string(rest));
        break;
      }
      const bool statement = item.kind == FlatItem::kStatement;
      std::string start = statement ? "" : "¶";
      if (statement && fields) start = FormatField2(*item.eq) + "," + FormatField2(*item.paren) + " ";
      items.push_back(start + std::string(item.text));
      rest.remove_prefix(item.size);
    }
    return items;
  }
};

}  // namespace corvane::script
