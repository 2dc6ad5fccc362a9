// Colours of Visual Basic text in a code pane: keywords, strings, comments (also those that a line end continues).
#pragma once

#include <QSyntaxHighlighter>

namespace corvane::desk {

class VbHighlighter : public QSyntaxHighlighter {
 public:
  explicit VbHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {}

  enum class Part { Plain, Keyword, String, Comment };
  struct Run {
    int start, length;
    Part part;
    bool operator==(const Run&) const = default;
  };
  // The coloured parts of a line. [in_comment]: the line before ended in a comment that goes on; on return: this one
  // does.
  static std::vector<Run> Runs(QStringView line, bool& in_comment);

 protected:
  void highlightBlock(const QString& text) override;
};

}  // namespace corvane::desk
