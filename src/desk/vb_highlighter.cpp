#include "desk/vb_highlighter.h"

#include <QSet>

namespace corvane::desk {

namespace {

const QSet<QString>& Keywords() {
  static const QSet<QString> words = [] {
    const QString all =
        "addressof alias and any append as base binary boolean byref byte byval call case cbool cbyte ccur cdate cdbl "
        "cdec "
        "cint close clng compare const csng cstr currency cvar cverr date debug declare defbool defbyte defcur defdate "
        "defdbl defint deflng defobj defsng defstr defvar dim do doevents double each else elseif empty end endif enum "
        "eqv erase error event exit explicit false for friend function get global gosub goto if imp implements in "
        "input "
        "integer is lbound len let lib like line lock long loop lset me mid mod module new next not nothing null "
        "object "
        "on open option optional or output paramarray preserve print private property public put raiseevent random "
        "randomize read redim rem resume return rset seek select set single static step stop string sub tab then to "
        "true "
        "type typeof ubound unlock until variant wend while with withevents write xor";
    const QStringList list = all.split(' ');
    return QSet<QString>(list.begin(), list.end());
  }();
  return words;
}

bool IsWordStart(QChar c) {
  return c.isLetter();
}
bool IsWordPart(QChar c) {
  return c.isLetterOrNumber() || c == '_';
}

// A word behind a point is a member, whatever it is called.
bool IsKeyword(QStringView line, int start, int length) {
  if (start > 0 && (line[start - 1] == '.' || line[start - 1] == '!')) return false;
  return Keywords().contains(line.mid(start, length).toString().toLower());
}

bool IsRem(QStringView word) {
  return word.compare(QLatin1String("rem"), Qt::CaseInsensitive) == 0;
}

QTextCharFormat FormatOf(VbHighlighter::Part part) {
  QTextCharFormat format;
  switch (part) {
    case VbHighlighter::Part::Keyword:
      format.setForeground(QColor(0x00, 0x30, 0x9F));
      break;
    case VbHighlighter::Part::String:
      format.setForeground(QColor(0x9A, 0x2A, 0x1C));
      break;
    case VbHighlighter::Part::Comment:
      format.setForeground(QColor(0x1E, 0x7B, 0x34));
      break;
    case VbHighlighter::Part::Plain:
      break;
  }
  return format;
}

}  // namespace

std::vector<VbHighlighter::Run> VbHighlighter::Runs(QStringView line, bool& in_comment) {
  std::vector<Run> runs;
  const int length = static_cast<int>(line.size());
  const auto comment_from = [&](int start) {
    runs.push_back({start, length - start, Part::Comment});
    in_comment = line.endsWith(QLatin1String(" _"));
  };
  if (std::exchange(in_comment, false)) return comment_from(0), runs;
  for (int at = 0; at < length;) {
    const int start = at;
    const QChar c = line[at++];
    if (c == '\'') return comment_from(start), runs;
    if (c == '"') {
      while (at < length && line[at] != '"') ++at;
      at = std::min(at + 1, length);
      runs.push_back({start, at - start, Part::String});
    } else if (IsWordStart(c)) {
      while (at < length && IsWordPart(line[at])) ++at;
      if (!IsKeyword(line, start, at - start)) continue;
      if (IsRem(line.mid(start, at - start))) return comment_from(start), runs;
      runs.push_back({start, at - start, Part::Keyword});
    } else if (c == '#' && at < length && IsWordStart(line[at])) {
      while (at < length && IsWordPart(line[at])) ++at;
      if (IsKeyword(line, start + 1, at - start - 1)) runs.push_back({start, at - start, Part::Keyword});
    }
  }
  return runs;
}

void VbHighlighter::highlightBlock(const QString& text) {
  bool in_comment = previousBlockState() == 1;
  for (const Run& run : Runs(text, in_comment)) setFormat(run.start, run.length, FormatOf(run.part));
  setCurrentBlockState(in_comment ? 1 : 0);
}

}  // namespace corvane::desk
