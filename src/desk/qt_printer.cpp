#include "desk/qt_printer.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "desk/ansi_text.h"

namespace corvane::desk {

namespace {

constexpr long kPrinterError = 482;
constexpr double kTwipsInInch = 1440;

QString NewFileIn(const QString& folder) {
  const QString name = "Corvane " + QDateTime::currentDateTime().toString("yyyy-MM-dd hh.mm.ss");
  QString path = QDir(folder).filePath(name + ".pdf");
  for (int number = 2; QFileInfo::exists(path); ++number)
    path = QDir(folder).filePath(QString("%1 (%2).pdf").arg(name).arg(number));
  return path;
}

}  // namespace

PrintTarget DefaultPrintTarget() {
  const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
  if (!printer.isNull()) return {printer.printerName(), {}};
  return {{}, NewFileIn(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))};
}

// A document that is being printed. One that could not be begun takes nothing and fails at each text.
struct QtPrinter::Document {
  explicit Document(PrintTarget where) : target(std::move(where)) {
    if (target.file.isEmpty()) {
      printer.setPrinterName(target.printer);
    } else {
      QDir().mkpath(QFileInfo(target.file).path());
      printer.setOutputFileName(target.file);
      printer.setOutputFormat(QPrinter::PdfFormat);
    }
    printer.setDocName("Corvane");
    begun = painter.begin(&printer);
  }

  double Pixels(double twips) const { return twips / kTwipsInInch * printer.resolution(); }

  void Print(const QString& text, double points, double x) {
    QFont font("Arial");
    font.setPointSizeF(points);
    const QFontMetricsF metrics(font, &printer);
    const double page = printer.pageLayout().paintRectPixels(printer.resolution()).height();
    if (y > 0 && y + metrics.height() > page) {
      if (!printer.newPage()) throw runtime::Error(kPrinterError, "Printer error");
      y = 0;
    }
    painter.setFont(font);
    painter.drawText(QPointF(Pixels(x), y + metrics.ascent()), text);
    y += metrics.height();
  }

  PrintTarget target;
  QPrinter printer{QPrinter::HighResolution};
  QPainter painter;
  bool begun = false;
  double y = 0;  // top of the next line, in pixels of the printer
};

QtPrinter::QtPrinter(std::function<PrintTarget()> choose) : choose_(std::move(choose)) {}

QtPrinter::~QtPrinter() = default;

QtPrinter::Document& QtPrinter::OpenDocument() {
  if (!document_) document_ = std::make_unique<Document>(choose_());
  if (!document_->begun) throw runtime::Error(kPrinterError, "Printer error");
  return *document_;
}

void QtPrinter::Print(const std::string& text) {
  const double x = std::exchange(x_, 0.0f);
  OpenDocument().Print(ToLabel(text), font_size_, x);
}

void QtPrinter::EndDoc() {
  x_ = 0;
  const std::unique_ptr<Document> document = std::move(document_);
  if (!document) return;
  if (!document->begun || !document->painter.end()) throw runtime::Error(kPrinterError, "Printer error");
  if (printed) printed(document->target);
}

}  // namespace corvane::desk
