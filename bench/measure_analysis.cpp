#include <Qsci/qsciscintillabase.h>
#include <fstream>
#include <iterator>
#include <memory>
#include <stdexcept>

#include "bench/measurements.h"
#include "codelist/uc_list_box.h"
#include "forms/headless_toolkit.h"
#include "tests/support/fake_services.h"

namespace corvane::bench {

namespace {

constexpr int kRounds = 5;

// The code of a module's file: what stands behind the last of the attributes at its head.
std::string CodeOf(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(in), {}};
  auto at = text.find("Attribute VB_Name");
  while (text.compare(at, 13, "Attribute VB_") == 0) at = text.find('\n', at) + 1;
  return text.substr(at);
}

// The code list as the explorer has it, on a window that nobody draws.
class OurList {
 public:
  OurList() {
    window_.Show();
    window_.list.sGrid("VB");
    window_.list.ListRole = codelist::kSourcePane;  // the whole text, not the first procedure
  }

  double Load(const std::string& text) {
    std::string copy = text;
    return Seconds([&] { window_.list.SetText(std::move(copy)); });
  }
  long Lines() const { return window_.list.ListCount(); }

 private:
  struct Window : forms::Form {
    Window(forms::Toolkit& toolkit, host::Services& services) : Form(toolkit, "Window"), list(*this, "list", services) {
      list.Move(0, 0, 12000, 12000);
    }
    codelist::ucListBox list;
  };
  tests::FakeServices services_;
  forms::HeadlessToolkit toolkit_;
  Window window_{toolkit_, services_};
};

// Scintilla with its lexer for Visual Basic. Its time is that of the lexer alone: the text is in the editor already.
class Scintilla {
 public:
  double Colourise(const std::string& text) {
    editor_.SendScintilla(Base::SCI_SETTEXT, text.c_str());
    editor_.SendScintilla(Base::SCI_SETLEXERLANGUAGE, 0UL, "vb");
    editor_.SendScintilla(Base::SCI_SETKEYWORDS, 0UL, kKeywords);
    editor_.SendScintilla(Base::SCI_CLEARDOCUMENTSTYLE);
    const double seconds = Seconds([this] { editor_.SendScintilla(Base::SCI_COLOURISE, 0UL, -1L); });
    if (editor_.SendScintilla(Base::SCI_GETENDSTYLED) != static_cast<long>(text.size()) ||
        editor_.SendScintilla(Base::SCI_GETLEXER) == 0)
      throw std::runtime_error("Scintilla has not styled the text");
    return seconds;
  }

 private:
  using Base = QsciScintillaBase;
  static constexpr const char* kKeywords =
      "and as boolean byref byval call case const currency date declare dim do double each else elseif end enum erase "
      "error event exit explicit false for friend function get global gosub goto if implements in integer is let lib "
      "like long loop me mod new next not nothing object on option optional or paramarray preserve private property "
      "public raiseevent redim rem resume select set single static step stop string sub then to true type typeof until "
      "variant wend while with withevents xor";
  QsciScintillaBase editor_;
};

}  // namespace

std::string CodeOf(const GeneratedProject& project) {
  std::string code;
  for (const auto& file : project.files) code += CodeOf(file);
  return code;
}

void MeasureAnalysis(const Setting& setting, Table& table) {
  OurList ours;
  Scintilla peer;
  Growth growth;
  for (const auto& project : setting.projects) {
    const std::string code = CodeOf(project);
    const auto size = static_cast<double>(code.size());
    const auto [our_time, peer_time] = InTurn(
        kRounds, [&] { return ours.Load(code); }, [&] { return peer.Colourise(code); });
    table.AtLeast("analysing " + Count(ours.Lines()) + " lines (peer: Scintilla's VB lexer)",
                  Megabytes(size / our_time), Megabytes(size / peer_time), peer_time / our_time, 1.5);
    growth.Add(our_time, size);
  }
  table.AtMost("  its time a byte, the largest project to the smallest", "", "", growth.Ratio(), 1.2);
}

}  // namespace corvane::bench
