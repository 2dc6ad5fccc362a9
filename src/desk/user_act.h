// UserAct: where an act of the user enters from Qt. Nothing may leave a slot or an event handler of Qt, so what an act
// throws ends it there and is told.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <functional>
#include <type_traits>
#include <utility>

namespace corvane::desk {

// Runs [act]; what it throws goes to [tell]. Returns whether it ran to its end.
bool UserAct(const std::function<void()>& act, const std::function<void(const QString& why)>& tell) noexcept;

// The same for an act of [receiver], a function or one of its members; its Told hears of what was thrown.
template <class Receiver, class Act, class... Args>
void ActOf(Receiver* receiver, Act& act, Args&&... args) noexcept {
  const QPointer<Receiver> still_there(receiver);
  UserAct(
      [&] {
        if constexpr (std::is_member_function_pointer_v<Act>)
          (receiver->*act)(std::forward<Args>(args)...);
        else
          act(std::forward<Args>(args)...);
      },
      [&](const QString& why) {
        if (still_there) still_there->Told(why);
      });
}

// As QObject::connect does it. [act] takes all that the signal gives, or nothing.
template <class Sender, class Source, class... Args, class Receiver, class Act>
void ConnectAct(Sender* sender, void (Source::*signal)(Args...), Receiver* receiver, Act act,
                Qt::ConnectionType type = Qt::AutoConnection) {
  constexpr bool takes_all = std::is_invocable_v<Act, Args...> || std::is_invocable_v<Act, Receiver*, Args...>;
  if constexpr (takes_all)
    QObject::connect(
        sender, signal, receiver, [receiver, act](Args... args) mutable { ActOf(receiver, act, args...); }, type);
  else
    QObject::connect(
        sender, signal, receiver, [receiver, act]() mutable { ActOf(receiver, act); }, type);
}

// Once the message loop turns again.
template <class Receiver, class Act>
void ActLater(Receiver* receiver, Act act) {
  QTimer::singleShot(0, receiver, [receiver, act]() mutable { ActOf(receiver, act); });
}

}  // namespace corvane::desk
