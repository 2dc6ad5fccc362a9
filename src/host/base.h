// What every interface of the host contract shares: references, indices, errors, collections.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <variant>

#include "runtime/error.h"
#include "runtime/variant.h"

namespace corvane::host {

// A reference to an object of the environment. An empty one is Visual Basic's Nothing. Two references to one object may
// differ as pointers: compare objects by what they are (name, position), as the logic does.
template <class T>
using Ref = std::shared_ptr<T>;

using Error = runtime::Error;
using runtime::PassOverErrors;
using runtime::Variant;

// Collections take a position from 1 or a name (compared without case). A missing item is Error 9.
using Index = std::variant<long, std::string>;

// An ordered, 1-based collection.
template <class T>
class Collection {
 public:
  virtual ~Collection() = default;
  virtual long Count() = 0;
  virtual Ref<T> Item(const Index& index) = 0;
};

// `for (Ref<VBComponent> component : Each(project->VBComponents()))`: the items in order, each fetched when it is
// reached. The collection is held until the loop ends.
template <class C>
auto Each(Ref<C> collection) {
  struct Iterator {
    C* collection;
    long position;
    auto operator*() const { return collection->Item(Index(position)); }
    Iterator& operator++() { return ++position, *this; }
    bool operator!=(const Iterator& other) const { return position != other.position; }
  };
  struct Range {
    Ref<C> collection;
    long count;
    Iterator begin() const { return {collection.get(), 1}; }
    Iterator end() const { return {collection.get(), count + 1}; }
  };
  const long count = collection->Count();
  return Range{std::move(collection), count};
}

// The same for a collection that the caller keeps alive.
template <class C>
auto Each(C& collection) {
  return Each(Ref<C>(Ref<void>(), &collection));
}

// A bound event. Destroying it unbinds; it may outlive the object that raises the event.
class Subscription {
 public:
  virtual ~Subscription() = default;
};

}  // namespace corvane::host
