// Rows of the tables, made of the members of the host contract: arguments and results are converted by their types.
#pragma once

#include <tuple>
#include <utility>

#include "tests/stage/call.h"
#include "tests/stage/enumerator.h"

namespace corvane::stage {

// An argument as a member of the host contract takes it. One that was left out is nought, empty or Nothing.
template <class A>
struct Argument;

template <>
struct Argument<long> {
  Argument(Call& call, long position) : value(call.Has(position) ? call.Number(position) : 0) {}
  void WriteBack(Call&, long) {}
  long value;
};

template <>
struct Argument<bool> {
  Argument(Call& call, long position) : value(call.Has(position) && call.Flag(position)) {}
  void WriteBack(Call&, long) {}
  bool value;
};

template <class E>
requires std::is_enum_v<E>
struct Argument<E> {
  Argument(Call& call, long position) : value(static_cast<E>(call.Number(position))) {}
  void WriteBack(Call&, long) {}
  E value;
};

template <>
struct Argument<const std::string&> {
  Argument(Call& call, long position) : value(call.Text(position)) {}
  void WriteBack(Call&, long) {}
  std::string value;
};

template <>
struct Argument<const host::Index&> {
  Argument(Call& call, long position) : value(call.Place(position)) {}
  void WriteBack(Call&, long) {}
  host::Index value;
};

template <>
struct Argument<const runtime::Variant&> {
  Argument(Call& call, long position) : value(call.Value(position)) {}
  void WriteBack(Call&, long) {}
  runtime::Variant value;
};

template <class T>
struct Argument<const host::Ref<T>&> {
  Argument(Call& call, long position) : value(std::static_pointer_cast<T>(call.Object(position, TableOf<T>()))) {}
  void WriteBack(Call&, long) {}
  host::Ref<T> value;
};

template <>
struct Argument<long&> {
  Argument(Call& call, long position) : value(call.Number(position)) {}
  void WriteBack(Call& call, long position) { call.WriteBack(position, value); }
  long value;
};

template <>
struct Argument<host::ProcKind&> {
  Argument(Call& call, long position) : value(static_cast<host::ProcKind>(call.Number(position))) {}
  void WriteBack(Call& call, long position) { call.WriteBack(position, static_cast<long>(value)); }
  host::ProcKind value;
};

// Forwards a call to a member of the host's [T].
template <class T, auto member>
struct Forward;

template <class T, class Base, class Result, class... A, Result (Base::*member)(A...)>
struct Forward<T, member> {
  static void Run(Call& call) { Run(call, std::index_sequence_for<A...>()); }

 private:
  template <size_t... i>
  static void Run(Call& call, std::index_sequence<i...>) {
    // Braces: the arguments are converted in their order.
    [[maybe_unused]] std::tuple<Argument<A>...> arguments{Argument<A>(call, static_cast<long>(i))...};
    T& target = call.Target<T>();
    if constexpr (std::is_void_v<Result>)
      (target.*member)(std::get<i>(arguments).value...);
    else
      call.Return((target.*member)(std::get<i>(arguments).value...));
    (std::get<i>(arguments).WriteBack(call, static_cast<long>(i)), ...);
  }
};

template <class T, auto member>
constexpr Handler kForward = &Forward<T, member>::Run;

inline Member Get(const char* name, DISPID id, Handler get, int required = 0, int allowed = -1) {
  return {name, id, required, allowed < 0 ? required : allowed, get, nullptr, nullptr};
}
inline Member GetSet(const char* name, DISPID id, Handler get, Handler put, int arguments = 0) {
  return {name, id, arguments, arguments, get, nullptr, put};
}
inline Member Method(const char* name, DISPID id, Handler method, int required = 0, int allowed = -1) {
  return {name, id, required, allowed < 0 ? required : allowed, nullptr, method, nullptr};
}

// How a collection's Item is called: with a place, and further arguments where it takes any.
struct ItemCall {
  Handler item;
  long allowed = 1;
};

// What every collection has.
template <class Collection>
std::vector<Member> CollectionMembers(DISPID count, std::vector<Member> more = {},
                                      ItemCall call = {kForward<Collection, &Collection::Item>}) {
  std::vector<Member> members = {
      {"Item", DISPID_VALUE, 1, call.allowed, call.item, call.item, nullptr},
      Get("Count", count, kForward<Collection, &Collection::Count>),
      {"_NewEnum", DISPID_NEWENUM, 0, 0, &Enumerate<Collection>, &Enumerate<Collection>, nullptr},
  };
  members.insert(members.end(), more.begin(), more.end());
  return members;
}

}  // namespace corvane::stage
