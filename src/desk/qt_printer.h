// QtPrinter: documents on the system's default printer, without a dialog; where there is none, as PDF files.
#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "host/services.h"

namespace corvane::desk {

// Where the next document goes: to [printer], or into [file] when that is not empty.
struct PrintTarget {
  QString printer, file;
};

// The default printer; else a file of its own, named after the time, in the user's folder of documents.
PrintTarget DefaultPrintTarget();

class QtPrinter : public host::Printer {
 public:
  explicit QtPrinter(std::function<PrintTarget()> choose = DefaultPrintTarget);
  ~QtPrinter() override;

  float FontSize() const override { return font_size_; }
  void SetFontSize(float points) override { font_size_ = points; }
  void SetCurrentX(float twips) override { x_ = twips; }
  void Print(const std::string& text) override;
  void EndDoc() override;

  // Called when a document has gone out, with where it went.
  std::function<void(const PrintTarget&)> printed;

 private:
  struct Document;
  Document& OpenDocument();

  std::function<PrintTarget()> choose_;
  float font_size_ = 12, x_ = 0;
  std::unique_ptr<Document> document_;
};

}  // namespace corvane::desk
