#include "desk/send_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QWidget>

#include "desk/ansi_text.h"
#include "forms/sent_keys.h"
#include "forms/types.h"

namespace corvane::desk {

namespace {

struct NamedKey {
  int code;
  Qt::Key key;
};

// By key code of Visual Basic.
constexpr NamedKey kNamedKeys[] = {
    {3, Qt::Key_Pause},     {8, Qt::Key_Backspace}, {9, Qt::Key_Tab},       {13, Qt::Key_Return},
    {20, Qt::Key_CapsLock}, {27, Qt::Key_Escape},   {33, Qt::Key_PageUp},   {34, Qt::Key_PageDown},
    {35, Qt::Key_End},      {36, Qt::Key_Home},     {37, Qt::Key_Left},     {38, Qt::Key_Up},
    {39, Qt::Key_Right},    {40, Qt::Key_Down},     {44, Qt::Key_Print},    {45, Qt::Key_Insert},
    {46, Qt::Key_Delete},   {47, Qt::Key_Help},     {144, Qt::Key_NumLock}, {145, Qt::Key_ScrollLock},
};

int KeyOf(int code) {
  for (const NamedKey& named : kNamedKeys)
    if (named.code == code) return named.key;
  return Qt::Key_F1 + code - forms::vbKeyF1;
}

Qt::KeyboardModifiers ModifiersOf(int shift) {
  Qt::KeyboardModifiers held;
  if (shift & forms::vbShiftMask) held |= Qt::ShiftModifier;
  if (shift & forms::vbCtrlMask) held |= Qt::ControlModifier;
  if (shift & forms::vbAltMask) held |= Qt::AltModifier;
  return held;
}

KeyStroke TypedStroke(std::string_view character, Qt::KeyboardModifiers modifiers) {
  const QString text = ToLabel(character);
  const int key = text.isEmpty() ? 0 : text.at(0).toUpper().unicode();
  const bool types = !(modifiers & (Qt::ControlModifier | Qt::AltModifier));
  return {key, modifiers, types ? (modifiers & Qt::ShiftModifier ? text.toUpper() : text) : QString()};
}

KeyStroke StrokeOf(const forms::SentKey& sent) {
  const Qt::KeyboardModifiers held = ModifiersOf(sent.shift);
  if (!sent.character.empty()) return TypedStroke(sent.character, held);
  return {KeyOf(sent.key_code), held, sent.key_code == forms::vbKeyReturn ? "\r" : QString()};
}

QObject* Receiver() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup;
  if (QWidget* focus = QApplication::focusWidget()) return focus;
  return QApplication::activeWindow();
}

}  // namespace

std::vector<KeyStroke> ParseKeys(std::string_view keys) {
  std::vector<KeyStroke> strokes;
  for (const forms::SentKey& sent : forms::ParseSentKeys(keys)) strokes.push_back(StrokeOf(sent));
  return strokes;
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
