#include "desk/send_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>
#include <array>

#include "desk/ansi_text.h"
#include "runtime/code_page.h"
#include "runtime/error.h"
#include "runtime/strings.h"

namespace corvane::desk {

namespace {

struct NamedKey {
  std::string_view name;
  int key;
};

constexpr NamedKey kNamedKeys[] = {
    {"BACKSPACE", Qt::Key_Backspace},
    {"BS", Qt::Key_Backspace},
    {"BKSP", Qt::Key_Backspace},
    {"BREAK", Qt::Key_Pause},
    {"CAPSLOCK", Qt::Key_CapsLock},
    {"DELETE", Qt::Key_Delete},
    {"DEL", Qt::Key_Delete},
    {"DOWN", Qt::Key_Down},
    {"END", Qt::Key_End},
    {"ENTER", Qt::Key_Return},
    {"ESC", Qt::Key_Escape},
    {"HELP", Qt::Key_Help},
    {"HOME", Qt::Key_Home},
    {"INSERT", Qt::Key_Insert},
    {"INS", Qt::Key_Insert},
    {"LEFT", Qt::Key_Left},
    {"NUMLOCK", Qt::Key_NumLock},
    {"PGDN", Qt::Key_PageDown},
    {"PGUP", Qt::Key_PageUp},
    {"PRTSC", Qt::Key_Print},
    {"RIGHT", Qt::Key_Right},
    {"SCROLLLOCK", Qt::Key_ScrollLock},
    {"TAB", Qt::Key_Tab},
    {"UP", Qt::Key_Up},
};
constexpr int kFunctionKeys = 16;

constexpr long kMostRepeats = 1000;

KeyStroke NamedStroke(std::string_view name, Qt::KeyboardModifiers modifiers) {
  const std::string upper = runtime::UCase(name);
  for (const NamedKey& named : kNamedKeys)
    if (named.name == upper) return {named.key, modifiers, named.key == Qt::Key_Return ? "\r" : QString()};
  for (int number = 1; number <= kFunctionKeys; ++number)
    if (upper == "F" + std::to_string(number)) return {Qt::Key_F1 + number - 1, modifiers, {}};
  throw runtime::Error(runtime::kInvalidProcedureCall);
}

KeyStroke TypedStroke(std::string_view character, Qt::KeyboardModifiers modifiers) {
  const QString text = ToLabel(character);
  const int key = text.isEmpty() ? 0 : text.at(0).toUpper().unicode();
  const bool types = !(modifiers & (Qt::ControlModifier | Qt::AltModifier));
  return {key, modifiers, types ? (modifiers & Qt::ShiftModifier ? text.toUpper() : text) : QString()};
}

class Parser {
 public:
  explicit Parser(std::string_view keys) : rest_(keys) {}

  std::vector<KeyStroke> Parse() {
    while (!rest_.empty()) ParseOne({});
    return std::move(strokes_);
  }

 private:
  void ParseOne(Qt::KeyboardModifiers held) {
    const char first = Peek();
    switch (first) {
      case '+':
        return ParseHeld(held | Qt::ShiftModifier);
      case '^':
        return ParseHeld(held | Qt::ControlModifier);
      case '%':
        return ParseHeld(held | Qt::AltModifier);
      case '(':
        return ParseGroup(held);
      case '{':
        return ParseBraces(held);
      case ')':
      case '}':
        throw runtime::Error(runtime::kInvalidProcedureCall);
      case '~':
        rest_.remove_prefix(1);
        return strokes_.push_back(NamedStroke("ENTER", held));
      default:
        strokes_.push_back(TypedStroke(TakeCharacter(), held));
    }
  }

  void ParseHeld(Qt::KeyboardModifiers held) {
    rest_.remove_prefix(1);
    ParseOne(held);
  }

  void ParseGroup(Qt::KeyboardModifiers held) {
    rest_.remove_prefix(1);
    while (Peek() != ')') ParseOne(held);
    rest_.remove_prefix(1);
  }

  // A closing brace right behind the opening one is the key itself: "{}}".
  void ParseBraces(Qt::KeyboardModifiers held) {
    const size_t close = rest_.find('}', 2);
    if (close == std::string_view::npos) throw runtime::Error(runtime::kInvalidProcedureCall);
    std::string_view name = rest_.substr(1, close - 1);
    rest_.remove_prefix(close + 1);
    long repeats = 1;
    if (const size_t blank = name.rfind(' '); blank != std::string_view::npos && blank > 0) {
      repeats = static_cast<long>(runtime::Val(name.substr(blank + 1)));
      name = name.substr(0, blank);
    }
    if (repeats < 0 || repeats > kMostRepeats) throw runtime::Error(runtime::kInvalidProcedureCall);
    const bool one_character = name.size() == 1 || ToLabel(name).size() == 1;
    const KeyStroke stroke = one_character ? TypedStroke(name, held) : NamedStroke(name, held);
    strokes_.insert(strokes_.end(), repeats, stroke);
  }

  char Peek() const {
    if (rest_.empty()) throw runtime::Error(runtime::kInvalidProcedureCall);
    return rest_.front();
  }

  std::string_view TakeCharacter() {
    const bool two = rest_.size() > 1 && runtime::AnsiCodePage().IsLead(static_cast<unsigned char>(rest_.front()));
    const std::string_view character = rest_.substr(0, two ? 2 : 1);
    rest_.remove_prefix(character.size());
    return character;
  }

  std::string_view rest_;
  std::vector<KeyStroke> strokes_;
};

QObject* Receiver() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* focus = QApplication::focusWidget()) return focus;
  return QApplication::activeWindow();
}

}  // namespace

std::vector<KeyStroke> ParseKeys(std::string_view keys) {
  return Parser(keys).Parse();
}

void PressKeys(const std::vector<KeyStroke>& strokes) {
  for (const KeyStroke& stroke : strokes) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QObject* receiver = Receiver();
      if (!receiver) return;
      QKeyEvent event(type, stroke.key, stroke.modifiers, stroke.text);
      QApplication::sendEvent(receiver, &event);
    }
    QCoreApplication::processEvents();
  }
}

}  // namespace corvane::desk
